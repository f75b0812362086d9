#include "processes/line_reader.h"

#include <unistd.h>

#include <array>
#include <utility>

namespace tarnix::bench {

LineReader::~LineReader() {
    if (m_thread.joinable()) m_thread.join();
}

void LineReader::start(int pipe) {
    m_thread = std::thread([this, pipe] { run(pipe); });
}

std::vector<TimedLine> LineReader::take() {
    const std::lock_guard guard(m_lock);
    return std::exchange(m_lines, {});
}

void LineReader::run(int pipe) {
    std::array<char, 4096> bytes{};
    std::string rest;
    for (ssize_t got = 0; (got = ::read(pipe, bytes.data(), bytes.size())) > 0;) {
        const SteadyTime now = std::chrono::steady_clock::now();
        rest.append(bytes.data(), static_cast<std::size_t>(got));
        const std::lock_guard guard(m_lock);
        for (std::size_t end = 0; (end = rest.find('\n')) != std::string::npos; rest.erase(0, end + 1))
            m_lines.push_back({now, rest.substr(0, end)});
    }
    ::close(pipe);
}

} // namespace tarnix::bench
