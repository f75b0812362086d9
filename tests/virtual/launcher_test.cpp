#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>

#include "support/launcher_process.h"
#include "support/temp_folder.h"

namespace tarnix {
namespace {

namespace fs = std::filesystem;

class LauncherTest : public testing::Test {
  protected:
    void SetUp() override { ::setenv("TMPDIR", folder.path().c_str(), 1); }
    void TearDown() override {
        ::unsetenv("TMPDIR");
        EXPECT_TRUE(fs::is_empty(folder.path())) << "the mocked system is left behind";
    }

    TempFolder folder;
};

TEST_F(LauncherTest, AnswersCommandsInOrderAndRefusesBadOnes) {
    LauncherProcess launcher({"--unplugged", "--", "/bin/sleep", "1000"});
    for (const char* bad :
         {"emit 5",      "emit 256 0",      "emit 0x",         "profile 0",  "profile 4",
          "light mode",  "light blue 3",    "light all 1 2 3", "lock win 2", "record 7",
          "record 1 04", "record 1 04:100", "seed 1 1",        "fail some",  "delay -1",
          "vanish x",    "mouse",           "wait x",          "PLUG",       "fail 99999999999"}) {
        launcher.command(bad);
        EXPECT_THAT(launcher.until("\n"), testing::Eq("error: " + std::string(bad) + "\n"));
    }
    launcher.command("wait 300");
    launcher.command("# a remark, and an empty line\n");
    launcher.command("mouse in");
    launcher.command("plug");
    launcher.command("lock all 1");
    launcher.command("quit");
    const std::string rest = launcher.rest();
    EXPECT_THAT(rest,
                testing::MatchesRegex(
                    "ok wait 300\nok mouse in\nok plug\n[^\n]*event 09[^\n]*\nok lock all 1\nok quit\n"));
    EXPECT_EQ(launcher.status(), 128 + SIGTERM);
}

} // namespace
} // namespace tarnix
