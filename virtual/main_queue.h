// Work that other threads have for the main loop's.
#pragma once

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

#include "platform/linux/file_descriptor.h"
#include "virtual/glib_source.h"

namespace tarnix {

class MainQueue {
  public:
    MainQueue()
        : m_signal(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
          m_source(GlibSource::readable(m_signal.get(), [this] {
              run();
              return true;
          })) {}
    MainQueue(const MainQueue&) = delete;
    MainQueue& operator=(const MainQueue&) = delete;

    /// From any thread. The work is done from the main loop, in the order of the calls.
    void post(std::function<void()> work) {
        const std::lock_guard lock(m_mutex);
        m_works.push_back(std::move(work));
        constexpr std::uint64_t one = 1;
        [[maybe_unused]] const auto written = ::write(m_signal.get(), &one, sizeof one);
    }

  private:
    void run() {
        std::vector<std::function<void()>> works;
        {
            const std::lock_guard lock(m_mutex);
            std::uint64_t count = 0;
            [[maybe_unused]] const auto got = ::read(m_signal.get(), &count, sizeof count);
            works.swap(m_works);
        }
        for (const auto& work : works)
            work();
    }

    std::mutex m_mutex;
    std::vector<std::function<void()>> m_works;
    FileDescriptor m_signal;
    GlibSource m_source;
};

} // namespace tarnix
