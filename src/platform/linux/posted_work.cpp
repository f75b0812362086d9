#include "platform/posted_work.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>
#include <utility>

namespace tarnix {

PostedWork::PostedWork() : m_signal(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

PostedWork::~PostedWork() {
    ::close(m_signal);
}

void PostedWork::post(Work work) {
    const std::lock_guard lock(m_mutex);
    m_work.push_back(std::move(work));
    constexpr std::uint64_t one = 1;
    // A counter that is full is readable all the same.
    [[maybe_unused]] const ssize_t written = ::write(m_signal, &one, sizeof one);
}

std::vector<PostedWork::Work> PostedWork::take() {
    const std::lock_guard lock(m_mutex);
    std::uint64_t count = 0;
    [[maybe_unused]] const ssize_t taken = ::read(m_signal, &count, sizeof count);
    return std::exchange(m_work, {});
}

} // namespace tarnix
