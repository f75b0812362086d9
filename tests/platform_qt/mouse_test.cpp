#include <gmock/gmock.h>

#include "platform/application.h"
#include "recording_window.h"
#include "support/desktop_driver.h"

namespace tarnix::testing {
namespace {

using ::testing::ElementsAre;

Application& application() {
    static int argc = 1;
    static char name[] = "platform_qt_window_test";
    static char* argv[] = {name, nullptr};
    static Application instance(argc, argv);
    return instance;
}

TEST(Mouse, PressReleaseAndDoubleClickArriveWithClientCoordinates) {
    application();
    Log log;
    RecordingWindow window("", log);
    ASSERT_TRUE(window.createWindow({.role = "Test", .taskbarButton = true}, Rect::at(100, 120, 300, 200)));
    window.show();
    ASSERT_TRUE(
        runUntil([&] { return window.screenRect() == Rect::at(100, 120, 300, 200) && !log.empty(); }));
    log.clear();
    click({150, 180});
    doubleClick({160, 190});
    ASSERT_TRUE(runUntil([&] { return log.size() >= 6; }));
    EXPECT_THAT(log, ElementsAre("down 1 50,60", "up 0 50,60", "down 1 60,70", "up 0 60,70", "double 1 60,70",
                                 "up 0 60,70"));
}

} // namespace
} // namespace tarnix::testing
