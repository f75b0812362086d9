#include <gmock/gmock.h>

#include "main_window_bench.h"

namespace tarnix {
namespace {

using MainWindow = MainWindowTest;

TEST_F(MainWindow, AValueWithoutANameLeavesItsFieldAsItIs) {
    const CComboButton& mode = field(id::lightModeField);
    for (const std::string value : {"2", "16", "-1", "99999999999", "abc"}) {
        store.setSetting(1, settingLightMode, value);
        window->ShowLighting(1);
        window->ShowLighting(5);
        EXPECT_EQ(mode.valueText(), value == "abc" ? "Light Off" : "RGB Breath") << value;
    }
}

TEST_F(MainWindow, EscapeClosesAListOfLights) {
    g_nMainPage = 3;
    window->send(id::lightingPageTab, 0, NOTIFY_CLICK);
    for (const auto& [id, place] : {std::pair{id::lightModeField, PopupPlace::LightMode},
                                    {id::brightnessField, PopupPlace::LightBrightness},
                                    {id::speedField, PopupPlace::LightSpeed}}) {
        click(id);
        EXPECT_TRUE(field(id).m_bOpen && isOpen(place)) << id;
        window->OnKey({KeyPress::Key::Escape, true});
        EXPECT_FALSE(field(id).m_bOpen || isOpen(place)) << id;
    }
}

TEST_F(MainWindow, OnlyAClickOnTheLogoOpensItsLinkAndTheEndIsTheFarewellAndTheEndOfTheTrayIcon) {
    for (const LParam code : {NOTIFY_ENTER, NOTIFY_DOWN, NOTIFY_LEAVE})
        window->send(id::logoLink, 0, code);
    EXPECT_EQ(shell.opened, Journal{});
    window->send(id::logoLink, 0, NOTIFY_CLICK);
    EXPECT_EQ(shell.opened, Journal{"https://www.tarnix.example/"});
    window->destroyWindow();
    EXPECT_THAT(files.log, ::testing::ElementsAre("set 05 active profile: program ends", "tray removed"));
}

} // namespace
} // namespace tarnix
