#include "platform/linux/raw_keys.h"

#include <gmock/gmock.h>
#include <linux/input-event-codes.h>
#include <spawn.h>
#include <sys/wait.h>

#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <vector>

#include "platform/linux/virtual_keys.h"

extern char** environ;

namespace tarnix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Keys = std::vector<std::pair<unsigned, bool>>;

/// Presses keys on the display, as a user would.
void type(std::vector<const char*> words) {
    words.insert(words.begin(), "xdotool");
    words.push_back(nullptr);
    pid_t child = -1;
    ASSERT_EQ(::posix_spawnp(&child, words[0], nullptr, nullptr, const_cast<char**>(words.data()), environ),
              0);
    int status = -1;
    ::waitpid(child, &status, 0);
    ASSERT_EQ(status, 0);
}

class RawKeysTest : public testing::Test {
  protected:
    void start() {
        source = RawKeys::listen([this](const RawKey& key) {
            const std::lock_guard guard(m_mutex);
            m_keys.push_back(key);
            m_arrived.notify_one();
        });
        ASSERT_NE(source, nullptr);
    }

    /// The keys so far, once there are as many as expected.
    std::vector<RawKey> take(std::size_t count) {
        std::unique_lock guard(m_mutex);
        m_arrived.wait_for(guard, std::chrono::seconds(20), [&] { return m_keys.size() >= count; });
        return std::exchange(m_keys, {});
    }

    static Keys codes(const std::vector<RawKey>& keys) {
        Keys result;
        for (const RawKey& key : keys)
            result.emplace_back(key.evdevCode, key.down);
        return result;
    }

    std::unique_ptr<RawKeys> source;

  private:
    std::mutex m_mutex;
    std::condition_variable m_arrived;
    std::vector<RawKey> m_keys;
};

TEST_F(RawKeysTest, ReportsEachPressAndReleaseInOrderWhileItLives) {
    start();
    type({"keydown", "50", "keydown", "38", "keyup", "38", "keyup", "50"}); // X key codes: left Shift and A
    const std::vector<RawKey> keys = take(4);
    EXPECT_THAT(codes(keys), ElementsAre(std::pair(KEY_LEFTSHIFT, true), std::pair(KEY_A, true),
                                         std::pair(KEY_A, false), std::pair(KEY_LEFTSHIFT, false)));
    for (std::size_t i = 1; i < keys.size(); ++i)
        EXPECT_LE(keys[i].time - keys[i - 1].time, 10000u) << "one clock, in order";

    source.reset();
    type({"key", "56"});
    start();
    type({"key", "104"});
    EXPECT_THAT(codes(take(2)), ElementsAre(std::pair(KEY_KPENTER, true), std::pair(KEY_KPENTER, false)));
}

TEST_F(RawKeysTest, ReportsAHeldKeyOnce) {
    start();
    type({"keydown", "54", "sleep", "1.5", "keyup", "54"});
    EXPECT_THAT(codes(take(2)), ElementsAre(std::pair(KEY_C, true), std::pair(KEY_C, false)));
}

TEST_F(RawKeysTest, SleepsBetweenKeys) {
    start();
    type({"key", "40"});
    take(2);
    // How often this process's threads have gone to sleep of their own accord; each wake-up adds one.
    const auto sleeps = [] {
        std::size_t count = 0;
        for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
            std::ifstream status(task.path() / "status");
            for (std::string word; status >> word;)
                if (word == "voluntary_ctxt_switches:") {
                    std::size_t number = 0;
                    status >> number;
                    count += task.path().filename() == std::to_string(::getpid()) ? 0 : number;
                }
        }
        return count;
    };
    const std::size_t before = sleeps();
    type({"sleep", "1"});
    EXPECT_LE(sleeps(), before + 1);
}

TEST(RawKeysWithoutDisplay, AreNone) {
    const std::string display = std::getenv("DISPLAY");
    ::setenv("DISPLAY", ":nowhere", 1);
    EXPECT_EQ(RawKeys::listen([](const RawKey&) {}), nullptr);
    ::setenv("DISPLAY", display.c_str(), 1);
}

TEST(VirtualKeys, ToldApartWhereMacrosNeedThem) {
    // The cases that a layout's own numbering would merge or lose.
    EXPECT_EQ(virtualKeyOf(KEY_ENTER), 0x0D);
    EXPECT_EQ(virtualKeyOf(KEY_KPENTER), 0x0E);
    EXPECT_EQ(virtualKeyOf(KEY_RIGHTSHIFT), 0xA1);
    EXPECT_EQ(virtualKeyOf(KEY_RIGHTALT), 0xA5);
    EXPECT_EQ(virtualKeyOf(KEY_SYSRQ), 0x2C);
    EXPECT_EQ(virtualKeyOf(KEY_102ND), 0xE2);
    EXPECT_EQ(virtualKeyOf(KEY_KP7), 0x67);
    for (const unsigned none : {0u, unsigned{BTN_LEFT}, ~0u})
        EXPECT_EQ(virtualKeyOf(none), 0);
}

} // namespace
} // namespace tarnix
