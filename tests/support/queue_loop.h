// A main loop without descriptors.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

#include "platform/main_loop.h"

namespace tarnix {

/// A loop that runs posted work, and has one timer at a time ring, when the test says so.
class QueueLoop : public MainLoop {
  public:
    std::unique_ptr<Subscription> watch(int, std::function<void()>) override { return nullptr; }
    std::unique_ptr<Subscription> after(Milliseconds time, std::function<void()> callback) override {
        times.push_back(static_cast<int>(time.count()));
        m_timer = std::move(callback);
        return std::make_unique<Subscription>();
    }
    /// False when no timer is set.
    bool ring() {
        const auto callback = std::exchange(m_timer, nullptr);
        if (callback) callback();
        return callback != nullptr;
    }
    void post(std::function<void()> work) override {
        const std::lock_guard lock(m_mutex);
        m_work.push_back(std::move(work));
        m_posted.notify_all();
    }
    /// Whether that much posted work comes to wait.
    bool holds(std::size_t count) {
        std::unique_lock lock(m_mutex);
        return m_posted.wait_for(lock, std::chrono::seconds(20), [&] { return m_work.size() == count; });
    }
    /// Runs the next piece of work; false when it takes too long to come.
    bool runOne(Milliseconds patience = std::chrono::seconds(20)) {
        std::unique_lock lock(m_mutex);
        const auto there = [this] { return !m_work.empty(); };
        // A wait for no time would still give the processor away.
        if (!there() && (patience == Milliseconds(0) || !m_posted.wait_for(lock, patience, there)))
            return false;
        const auto work = std::move(m_work.front());
        m_work.pop_front();
        lock.unlock();
        work();
        return true;
    }
    /// Runs work as it comes until the condition holds; false when none comes any more.
    bool runUntil(const std::function<bool()>& condition) {
        while (!condition())
            if (!runOne()) return false;
        return true;
    }
    void runPosted() {
        while (runOne(Milliseconds(0))) {
        }
    }

    std::vector<int> times; ///< that timers were set to

  private:
    std::function<void()> m_timer;
    std::mutex m_mutex;
    std::condition_variable m_posted;
    std::deque<std::function<void()>> m_work;
};

} // namespace tarnix
