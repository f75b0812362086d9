#include <gmock/gmock.h>

#include "main_window_bench.h"

namespace tarnix {
namespace {

TEST(LightingPage, AChoiceIsStoredShownAndMarkedForItsOwnSetting) {
    MainWindowBench bench;
    bench.run([&] {
        bench.click(id::lightingPageTab);
        const std::tuple<unsigned, PopupPlace, std::size_t, const char*, const char*> choices[] = {
            {id::lightModeField, PopupPlace::LightMode, 3, "Flow Right", "341"},
            {id::brightnessField, PopupPlace::LightBrightness, 2, "50%", "321"},
            {id::speedField, PopupPlace::LightSpeed, 2, "Fast", "322"}};
        for (const auto& [field, place, row, text, values] : choices) {
            bench.click(field);
            testing::settle();
            EXPECT_TRUE(bench.field(field).m_bOpen);
            bench.choose(place, row);
            EXPECT_FALSE(bench.field(field).m_bOpen || bench.window->popups().any());
            EXPECT_EQ(bench.field(field).valueText(), text);
            std::string now;
            for (const int pair : {settingLightMode, settingLightBrightness, settingLightSpeed})
                now += bench.store.GetSetting(0, pair, PairText::Value);
            EXPECT_EQ(now, values);
            EXPECT_TRUE(bench.window->link().pending().isMarked(PendingWrites::lightingRow, 0));
            bench.window->link().pending().clearAll();
        }
    });
}

TEST(LightingPage, AValueWithoutANameLeavesItsFieldAsItIs) {
    MainWindowBench bench;
    bench.run([&] {
        const CComboButton& field = bench.field(id::lightModeField);
        for (const char* value : {"16", "-1", "99999999999"}) {
            bench.store.setSetting(1, settingLightMode, value);
            bench.window->ShowLighting(1);
            EXPECT_EQ(field.valueText(), "RGB Full") << value;
        }
        bench.window->ShowLighting(5);
        bench.store.setSetting(1, settingLightMode, "abc");
        bench.window->ShowLighting(1);
        EXPECT_EQ(field.valueText(), "Light Off");
        for (const LParam code : {NOTIFY_ENTER, NOTIFY_DOWN, NOTIFY_CLICK, NOTIFY_LEAVE})
            bench.window->send(id::logoLink, 0, code);
        EXPECT_EQ(bench.shell.opened, Journal{"https://www.tarnix.example/"});
    });
}

} // namespace
} // namespace tarnix
