// The lines of a pipe, each with the time at which it came.
#pragma once

#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "figures.h"

namespace tarnix::bench {

struct TimedLine {
    SteadyTime time;
    std::string text;
};

class LineReader {
  public:
    LineReader() = default;
    ~LineReader();
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

    /// Reads to the end of the pipe, which it takes over.
    void start(int pipe);
    /// What has come since the last call.
    std::vector<TimedLine> take();

  private:
    void run(int pipe);

    std::mutex m_lock;
    std::vector<TimedLine> m_lines;
    std::thread m_thread;
};

} // namespace tarnix::bench
