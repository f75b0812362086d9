#include "ctl/poll_loop.h"

#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdint>
#include <optional>
#include <thread>
#include <utility>

namespace tarnix {

using SteadyClock = std::chrono::steady_clock;

/// A watch or a timer. It lives until the loop has seen that its subscription is gone, so that a callback may
/// end any of them.
struct PollLoop::Entry {
    std::function<void()> callback;
    int descriptor = -1;                               ///< of a watch
    std::optional<SteadyClock::time_point> dueAt = {}; ///< of a timer that has not rung
    bool alive = true;
};

class PollLoop::Handle final : public Subscription {
  public:
    explicit Handle(std::shared_ptr<Entry> entry) : m_entry(std::move(entry)) {}
    ~Handle() override { m_entry->alive = false; }

  private:
    std::shared_ptr<Entry> m_entry;
};

PollLoop::PollLoop() = default;

PollLoop::~PollLoop() {
    if (m_signals >= 0) ::close(m_signals);
}

std::unique_ptr<MainLoop::Subscription> PollLoop::add(Entry entry) {
    m_entries.push_back(std::make_shared<Entry>(std::move(entry)));
    return std::make_unique<Handle>(m_entries.back());
}

std::unique_ptr<MainLoop::Subscription> PollLoop::watch(int descriptor, std::function<void()> readable) {
    return add({std::move(readable), descriptor});
}

std::unique_ptr<MainLoop::Subscription> PollLoop::after(Milliseconds time, std::function<void()> callback) {
    return add({std::move(callback), -1, SteadyClock::now() + time});
}

std::unique_ptr<MainLoop::Subscription> PollLoop::onInterrupt(std::function<void()> callback) {
    sigset_t signals;
    ::sigemptyset(&signals);
    ::sigaddset(&signals, SIGINT);
    ::sigaddset(&signals, SIGTERM);
    ::sigprocmask(SIG_BLOCK, &signals, nullptr);
    m_signals = ::signalfd(m_signals, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
    return watch(m_signals, [this, callback = std::move(callback)] {
        signalfd_siginfo taken{};
        if (::read(m_signals, &taken, sizeof taken) > 0) callback();
    });
}

void PollLoop::run() {
    m_running = true;
    while (m_running) {
        std::erase_if(m_entries, [](const auto& entry) { return !entry->alive; });
        wait();
        callDueTimers();
        for (const auto& work : m_posted.take())
            work();
    }
}

/// Sleeps until a descriptor can be read, the next timer is due or work was posted; calls the watches.
void PollLoop::wait() {
    std::vector<pollfd> waits{{m_posted.descriptor(), POLLIN, 0}};
    Entries watches;
    std::optional<SteadyClock::time_point> next;
    for (const auto& entry : m_entries) {
        if (entry->dueAt) next = std::min(next.value_or(*entry->dueAt), *entry->dueAt);
        if (entry->descriptor < 0) continue;
        waits.push_back({entry->descriptor, POLLIN, 0});
        watches.push_back(entry);
    }
    int timeout = -1;
    if (next) {
        const auto left = std::chrono::ceil<Milliseconds>(*next - SteadyClock::now()).count();
        timeout = static_cast<int>(std::clamp<std::int64_t>(left, 0, 60000));
    }
    if (::poll(waits.data(), waits.size(), timeout) <= 0) return;
    for (std::size_t i = 0; i < watches.size(); ++i) {
        if (waits[i + 1].revents != 0 && watches[i]->alive) watches[i]->callback();
    }
}

void PollLoop::callDueTimers() {
    const auto now = SteadyClock::now();
    const Entries entries = m_entries;
    for (const auto& entry : entries) {
        if (!entry->alive || !entry->dueAt || *entry->dueAt > now) continue;
        entry->dueAt.reset();
        entry->callback();
    }
}

Milliseconds SleepingClock::now() {
    return std::chrono::duration_cast<Milliseconds>(SteadyClock::now().time_since_epoch());
}

void SleepingClock::pause(Milliseconds time) {
    std::this_thread::sleep_for(time);
}

} // namespace tarnix
