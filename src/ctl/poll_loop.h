// The main loop of a program without windows, and its clock.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "platform/main_loop.h"
#include "platform/posted_work.h"

namespace tarnix {

class PollLoop final : public MainLoop {
  public:
    PollLoop();
    ~PollLoop() override;
    PollLoop(const PollLoop&) = delete;
    PollLoop& operator=(const PollLoop&) = delete;

    std::unique_ptr<Subscription> watch(int descriptor, std::function<void()> readable) override;
    std::unique_ptr<Subscription> after(Milliseconds time, std::function<void()> callback) override;
    void post(std::function<void()> work) override { m_posted.post(std::move(work)); }
    /// Calls back on SIGINT and SIGTERM, which then do nothing else in this process. To be asked for before
    /// there are threads.
    std::unique_ptr<Subscription> onInterrupt(std::function<void()> callback);

    /// Serves callbacks, sleeping while there is nothing to do, until one of them calls `quit`.
    void run();
    void quit() { m_running = false; }

  private:
    struct Entry;
    class Handle;
    using Entries = std::vector<std::shared_ptr<Entry>>;

    std::unique_ptr<Subscription> add(Entry entry);
    void wait();
    void callDueTimers();

    Entries m_entries;
    int m_signals = -1; ///< a signalfd, once interruptions are asked for
    bool m_running = false;
    PostedWork m_posted;
};

/// Sleeps through its pauses.
class SleepingClock final : public Clock {
  public:
    Milliseconds now() override;
    void pause(Milliseconds time) override;
};

} // namespace tarnix
