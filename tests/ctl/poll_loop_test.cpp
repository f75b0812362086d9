#include "ctl/poll_loop.h"

#include <gmock/gmock.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <csignal>
#include <string>
#include <thread>

namespace tarnix {
namespace {

TEST(PollLoopTest, ServesPostsInOrderTimersWhenDueAndEndsCallbacksWithTheirSubscriptions) {
    PollLoop loop;
    std::string seen;
    const int readable = ::eventfd(1, EFD_CLOEXEC);
    std::unique_ptr<MainLoop::Subscription> own, other, never;
    // Ends the others in the first turn, however late that comes.
    const auto ending = loop.after(Milliseconds(0), [&] {
        other.reset();
        never.reset();
    });
    other = loop.watch(readable, [&] { seen += "other "; });
    own = loop.watch(readable, [&] {
        seen += "own ";
        own.reset();
    });
    const auto last = loop.after(Milliseconds(60), [&] { loop.quit(); });
    const auto first = loop.after(Milliseconds(20), [&] { seen += "timer "; });
    never = loop.after(Milliseconds(40), [&] { seen += "never "; });
    loop.run();
    EXPECT_EQ(seen, "other own timer ") << "the watches end in the first turn";

    seen.clear();
    std::thread poster([&] {
        for (const char* word : {"a", "b", "c"})
            loop.post([&seen, word] { seen += word; });
        loop.post([&] { loop.quit(); });
    });
    loop.run();
    poster.join();
    EXPECT_EQ(seen, "abc");
    ::close(readable);
}

TEST(PollLoopTest, InterruptionsReachTheCallbackAndDoNothingElse) {
    PollLoop loop;
    int interruptions = 0;
    const auto subscription = loop.onInterrupt([&] {
        if (++interruptions == 2) loop.quit();
    });
    ::raise(SIGINT);
    loop.post([] { ::raise(SIGTERM); });
    loop.run();
    EXPECT_EQ(interruptions, 2);
}

} // namespace
} // namespace tarnix
