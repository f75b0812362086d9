#include <gmock/gmock.h>

#include "main_window_bench.h"

namespace tarnix {
namespace {

TEST(MainWindow, ItsEndIsTheFarewellAndTheEndOfTheTrayIcon) {
    MainWindowBench bench;
    bench.run([] {});
    EXPECT_THAT(bench.files.log, ::testing::ElementsAre("set 05 03 07", "tray removed"));
}

} // namespace
} // namespace tarnix
