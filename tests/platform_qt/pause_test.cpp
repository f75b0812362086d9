#include <unistd.h>

#include <chrono>
#include <thread>

#include "window_fixture.h"

namespace tarnix::testing {
namespace {

using namespace std::chrono_literals;

using Pause = WindowTest;

TEST_F(Pause, PaintsAndKeepsEverythingElseForAfterwardsInOrder) {
    showMain(m_window);
    movePointer({150, 180});
    settle();
    m_window.startTimer(9, 1);
    ASSERT_TRUE(runUntil([this] { return std::count(m_log.begin(), m_log.end(), "timer 9") > 1; }));
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const auto watch = application().mainLoop().watch(ends[0], [&] {
        char byte = 0;
        if (read(ends[0], &byte, 1) == 1) m_log.push_back(std::string("read ") + byte);
    });
    const auto timer = application().mainLoop().after(1ms, [&] { m_log.push_back("after"); });
    m_log.clear();
    const int paints = m_window.paints;

    m_window.post(1);
    m_window.invalidate();
    std::thread user([&] {
        m_window.post(2);
        click({150, 180});
        tapKey("a");
        std::this_thread::sleep_for(100ms); // what follows does not go by way of the X server
        EXPECT_EQ(write(ends[1], "xy", 2), 2);
        m_window.postClose();
        m_window.post(3);
    });
    const auto start = application().clock().now();
    application().clock().pause(300ms);
    EXPECT_GE(application().clock().now() - start, 300ms) << "never shorter";
    user.join();
    EXPECT_GT(m_window.paints, paints);
    EXPECT_THAT(m_log, IsEmpty());

    ASSERT_TRUE(logged("destroy"));
    m_window.stopTimer(9);
    Log users = m_log;
    std::erase_if(users, [](const std::string& entry) {
        return !entry.starts_with("message") && !entry.ends_with("50,60") && entry != "key other";
    });
    EXPECT_THAT(users,
                ElementsAre("message 1 0 0", "message 2 0 0", "down 1 50,60", "up 0 50,60", "key other"))
        << "the third message found no window";
    EXPECT_THAT(m_log, ::testing::IsSupersetOf({"after", "timer 9"}));
    EXPECT_LE(std::count(m_log.begin(), m_log.end(), "timer 9"), 2) << "300 ticks became one";
    EXPECT_TRUE(logged("read x") && logged("read y"));
    close(ends[0]);
    close(ends[1]);
}

} // namespace
} // namespace tarnix::testing
