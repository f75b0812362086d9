// A process under measurement: started, looked at through /proc, ended.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

#include "figures.h"
#include "processes/line_reader.h"

namespace tarnix::bench {

struct Memory {
    double pss = 0; ///< MB (2^20 bytes), here and below
    double privateDirty = 0;
    double resident = 0;
};

/// What a process has used since it started.
struct Activity {
    long wakeUps = 0;  ///< voluntary context switches of all threads
    long cpuTicks = 0; ///< of user and system time
    int threads = 0;
};

/// How a program is started.
struct Recipe {
    std::string program;
    std::vector<std::string> environment; ///< NAME=VALUE beside what this process has
    std::string launcher;                 ///< a virtual keyboard that starts it; or none
};

class Process {
  public:
    /// The folder takes the time of the start; `stamp` notes it and becomes the program.
    Process(const Recipe& recipe, const std::string& stamp, const std::string& folder);
    /// Ends what still runs.
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    /// Just before the program's exec. Waits for it.
    SteadyTime started();
    Memory memory();
    Activity activity();
    /// Asks it to end (SIGTERM); the time until it has ended, none if it does not.
    std::optional<Span> end();

    /// What the program, or its launcher, has printed.
    LineReader& output() { return m_output; }

  private:
    void readStamp();

    std::string m_stampFile;
    pid_t m_child = -1;   ///< the program or its launcher
    pid_t m_program = -1; ///< known from the stamp
    SteadyTime m_started;
    LineReader m_output;
};

} // namespace tarnix::bench
