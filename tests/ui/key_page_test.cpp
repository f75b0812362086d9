#include <gmock/gmock.h>

#include "main_window_bench.h"
#include "ui/dialog_layouts.h"

namespace tarnix {
namespace {

constexpr unsigned f1 = 2201;
constexpr std::size_t f1Position = 17;

/// The pixels of a control's rectangle.
std::vector<Color> look(MainWindowBench& bench, const CControlBase& control) {
    const auto face = bench.face();
    std::vector<Color> pixels;
    for (int y = control.m_rect.top; y < control.m_rect.bottom; ++y)
        for (int x = control.m_rect.left; x < control.m_rect.right; ++x)
            pixels.push_back(face->image().pixel({x, y}));
    return pixels;
}

TEST(KeyPage, AKeyWithACodeOfItsOwnGetsItBack) {
    MainWindowBench bench;
    bench.run([&] {
        const auto plain = look(bench, bench.cap(f1));
        const auto& codes = bench.store.ProfileTable[0].KeyCodes;

        bench.window->send(msg::keyCodeChosen, f1, 62);
        EXPECT_EQ(codes[f1Position], 0xC4);
        EXPECT_TRUE(bench.cap(f1).m_bRemapped);
        EXPECT_NE(look(bench, bench.cap(f1)), plain);
        EXPECT_TRUE(bench.window->link().pending().isMarked(PendingWrites::keyCodeRow, 0));

        bench.window->send(msg::keyCodeChosen, f1, 58);
        EXPECT_EQ(codes[f1Position], 0xC0);
        EXPECT_EQ(look(bench, bench.cap(f1)), plain);

        bench.window->send(msg::keyCodeChosen, f1, 41);
        EXPECT_EQ(codes[f1Position], 41);
        bench.window->send(msg::keyCodeChosen, 2200, 41);
        EXPECT_EQ(codes[static_cast<std::size_t>(GetKeyButtonPosition(0))], 0xF5);
    });
}

TEST(KeyPage, TheDialogOfAClickedKeyGivesItItsOwnFunctionBack) {
    MainWindowBench bench;
    bench.run([&] {
        bench.window->send(msg::keyCodeChosen, f1, 62);
        bench.clickAndAnswer(f1, dialog::wideSize, {{352, 67}, {198, 208}}); // own function, OK
        EXPECT_EQ(bench.store.ProfileTable[0].KeyCodes[f1Position], 0xC0);

        bench.window->send(msg::keyCodeChosen, f1, 62);
        bench.clickAndAnswer(f1, dialog::wideSize, {{352, 67}, {298, 208}}); // own function, Cancel
        EXPECT_EQ(bench.store.ProfileTable[0].KeyCodes[f1Position], 0xC4);
    });
}

TEST(LightingPage, AChosenModeIsShownStoredAndSentByALaterApply) {
    MainWindowBench bench;
    bench.run([&] {
        bench.click(id::lightingPageTab);
        bench.click(id::lightModeField);
        EXPECT_TRUE(bench.field(id::lightModeField).m_bOpen);
        bench.choose(PopupPlace::LightMode, 5);
        EXPECT_FALSE(bench.field(id::lightModeField).m_bOpen);
        EXPECT_EQ(bench.field(id::lightModeField).valueText(), "Red Full");
        EXPECT_EQ(bench.store.settingNumber(0, settingLightMode), 5);
        bench.click(id::speedField);
        bench.choose(PopupPlace::LightSpeed, 2);
        bench.click(id::brightnessField);
        bench.choose(PopupPlace::LightBrightness, 0);
        bench.click(id::cancelButton);
        EXPECT_THAT(bench.changes(), ::testing::IsEmpty());

        bench.window->show();
        bench.click(id::applyButton);
        EXPECT_EQ(bench.changes().front().substr(0, 21), "set 07 08 00 00 05 24");
    });
}

TEST(LightingPage, ValuesWithoutANameLeaveTheFieldsAsTheyAre) {
    MainWindowBench bench;
    bench.run([&] {
        const auto texts = [&] {
            return std::vector{bench.field(id::lightModeField).valueText(),
                               bench.field(id::brightnessField).valueText(),
                               bench.field(id::speedField).valueText()};
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
        // Text that is no number is 0; and the second field shows the slot that has no field.
        bench.store.SetGKeyName(1, 5, "Sixth");
        bench.store.setSetting(1, settingLightMode, "abc");
        bench.window->ShowLighting(1);
        EXPECT_EQ(texts().front(), "Light Off");
        EXPECT_EQ(bench.field(id::gKeyField2).valueText(), "Sixth");
    });
}

} // namespace
} // namespace tarnix
