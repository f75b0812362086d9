// The program that the keyboard is lent to.
#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

#include "virtual/glib_source.h"

namespace tarnix {

/// A child process of the launcher's. It is asked to end when the launcher dies.
class LauncherChild {
  public:
    /// Starts the program with this process's environment. `ended` is called from the main loop with the exit
    /// status, 128 and the signal's number after a signal, or 127 when there is no such program.
    LauncherChild(const std::vector<std::string>& program, std::function<void(int)> ended);
    ~LauncherChild();
    LauncherChild(const LauncherChild&) = delete;
    LauncherChild& operator=(const LauncherChild&) = delete;

    bool running() const { return m_watch != 0; }
    /// Asks it to end, and ends it by force when it has not after five seconds.
    void terminate();

  private:
    static void onExit(int pid, int status, void* self);

    std::function<void(int)> m_ended;
    pid_t m_pid = -1;
    unsigned m_watch = 0;
    GlibSource m_force;
};

} // namespace tarnix
