#include <gmock/gmock.h>

#include "main_window_bench.h"

namespace tarnix {
namespace {

using MainWindow = MainWindowTest;

TEST_F(MainWindow, AValueWithoutANameLeavesItsFieldAsItIs) {
    const CComboButton& mode = field(id::lightModeField);
    const std::pair<const char*, const char*> shown[] = {{"2", "RGB Breath"},
                                                         {"16", "RGB Breath"},
                                                         {"-1", "RGB Breath"},
                                                         {"99999999999", "RGB Breath"},
                                                         {"abc", "Light Off"}};
    for (const auto& [value, name] : shown) {
        store.setSetting(1, settingLightMode, value);
        window->ShowLighting(1);
        window->ShowLighting(5);
        EXPECT_EQ(mode.valueText(), name) << value;
    }
}

TEST_F(MainWindow, OnlyAClickOnTheLogoOpensItsLinkAndTheEndIsTheFarewellAndTheEndOfTheTrayIcon) {
    for (const LParam code : {NOTIFY_ENTER, NOTIFY_DOWN, NOTIFY_LEAVE})
        window->send(id::logoLink, 0, code);
    EXPECT_EQ(shell.opened, Journal{});
    window->send(id::logoLink, 0, NOTIFY_CLICK);
    EXPECT_EQ(shell.opened, Journal{"https://www.tarnix.example/"});
    window->destroyWindow();
    EXPECT_THAT(files.log, ::testing::ElementsAre("set 05 03 07", "tray removed"));
}

} // namespace
} // namespace tarnix
