#include <gmock/gmock.h>

#include "main_window_bench.h"
#include "ui/dialog_layouts.h"

namespace tarnix {
namespace {

constexpr unsigned f1 = 2201;
constexpr std::size_t f1Position = 17;

TEST(KeyPage, AKeyWithACodeOfItsOwnGetsItBack) {
    MainWindowBench bench;
    bench.run([&] {
        const auto& codes = bench.store.ProfileTable[0].KeyCodes;
        const auto choose = [&](int code) {
            bench.window->send(msg::keyCodeChosen, f1, code);
            return codes[f1Position];
        };
        EXPECT_EQ(choose(62), 0xC4);
        EXPECT_TRUE(bench.cap(f1).m_bRemapped);
        EXPECT_TRUE(bench.window->link().pending().isMarked(PendingWrites::keyCodeRow, 0));
        EXPECT_EQ(choose(58), 0xC0);
        EXPECT_FALSE(bench.cap(f1).m_bRemapped);
        EXPECT_EQ(choose(41), 41);

        bench.clickAndAnswer(f1, dialog::wideSize, {{352, 67}, {298, 208}}); // own function, Cancel
        EXPECT_EQ(codes[f1Position], 41);
        bench.clickAndAnswer(f1, dialog::wideSize, {{352, 67}, {198, 208}}); // own function, OK
        EXPECT_EQ(codes[f1Position], 0xC0);
    });
}

TEST(LightingPage, ValuesWithoutANameLeaveTheFieldsAsTheyAre) {
    MainWindowBench bench;
    bench.run([&] {
        const auto texts = [&] {
            std::string all;
            for (const unsigned id : {id::lightModeField, id::brightnessField, id::speedField})
                all += bench.field(id).valueText() + '|';
            return all;
        };
        const auto before = texts();
        for (const char* value : {"16", "-1", "99999999999"}) {
            for (const int pair : {settingLightMode, settingLightBrightness, settingLightSpeed})
                bench.store.setSetting(1, pair, value);
            bench.window->ShowLighting(1);
            EXPECT_EQ(texts(), before) << value;
        }
        bench.window->ShowLighting(5);
        bench.window->ShowKeyCodes(-1);
        EXPECT_EQ(texts(), before);
        bench.store.setSetting(1, settingLightMode, "abc");
        bench.window->ShowLighting(1);
        EXPECT_EQ(bench.field(id::lightModeField).valueText(), "Light Off");
    });
}

} // namespace
} // namespace tarnix
