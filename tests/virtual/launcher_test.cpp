#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>

#include "platform/hid.h"
#include "platform/main_loop.h"
#include "support/launcher_process.h"
#include "support/temp_folder.h"

namespace tarnix {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class LauncherTest : public testing::Test {
  protected:
    void SetUp() override { ::setenv("TMPDIR", folder.path().c_str(), 1); }
    void TearDown() override {
        ::unsetenv("TMPDIR");
        EXPECT_TRUE(fs::is_empty(folder.path())) << "the mocked system is left behind";
    }

    const std::string self = fs::read_symlink("/proc/self/exe").string();
    TempFolder folder;
};

TEST_F(LauncherTest, LendsTheKeyboardToAProgramAndEndsWithItsStatus) {
    LauncherProcess launcher({"--seed-macro", "2 6 Combo x3 04:00 04:80", "--", self, "--probe"});
    EXPECT_THAT(launcher.until("probe reads"), HasSubstr("set 05 active profile: 3"));
    launcher.command("emit 0x0A 13");
    EXPECT_THAT(launcher.until("probe got"), HasSubstr("event 0A"));
    EXPECT_THAT(launcher.until("\n"), HasSubstr(" 0 10 13 0"));
    launcher.command("record 1 04:05 04:80");
    launcher.command("show");
    const std::string shown = launcher.until("ok show");
    EXPECT_THAT(shown, HasSubstr("active profile 3\n"));
    EXPECT_THAT(shown, HasSubstr("profile 2 macro G6 \"Combo\" loops 3 steps 2: 04 00 04 80\n"));
    EXPECT_THAT(shown, HasSubstr("profile 3 macro G1 unnamed loops 0 steps 2: 04 05 04 80\n"));
    launcher.command("unplug");
    EXPECT_THAT(launcher.rest(), HasSubstr("probe lost it"));
    EXPECT_EQ(launcher.status(), 7);
}

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

TEST_F(LauncherTest, EndsItsProgramWithItself) {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        LauncherProcess launcher(
            {"--", "/bin/sh", "-c", "trap 'exit 3' TERM; echo started; while :; do sleep 0.1; done"});
        launcher.until("started");
        launcher.signal(number);
        EXPECT_EQ(launcher.status(), 3) << number;
    }
}

/// The program of the test above: uses the keyboard's two interfaces and says what it sees.
int probe() {
    class NoLoop final : public MainLoop {
        std::unique_ptr<Subscription> watch(int, std::function<void()>) override { return nullptr; }
        std::unique_ptr<Subscription> after(Milliseconds, std::function<void()>) override { return nullptr; }
        void post(std::function<void()>) override {}
    } loop;
    const auto hid = makeSystemHid(loop);
    std::unique_ptr<HidDevice> features;
    std::unique_ptr<HidDevice> events;
    for (const HidInterface& each : hid->enumerate()) {
        if (each.usagePage == 0x000B) features = hid->open(each.path);
        if (each.usagePage == 0x000A) events = hid->open(each.path);
    }
    std::vector<std::uint8_t> report{5, 3, 2};
    if (!features || !events || !features->setFeature(report) || !features->getFeature(report)) return 1;
    std::printf("probe reads\n");
    std::fflush(stdout);
    report.assign(8, 0);
    while (events->read(report) == HidDevice::ReadResult::Report) {
        std::printf("probe got %d %d %d %d\n", report[0], report[1], report[2], report[3]);
        std::fflush(stdout);
    }
    std::printf("probe lost it\n");
    return features->setFeature(report) ? 1 : 7;
}

} // namespace
} // namespace tarnix

int main(int argc, char** argv) {
    if (argc > 1 && std::string(argv[1]) == "--probe") return tarnix::probe();
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
