// What can be asked of a running launcher, one command a line.
#pragma once

#include <deque>
#include <string>

#include "virtual/glib_source.h"

namespace tarnix {

class Launcher;

/// Carries out commands in the order in which they came. Every command is answered by a line, "ok" or
/// "error:" with the command behind it; "wait" holds back those after it.
class CommandQueue {
  public:
    explicit CommandQueue(Launcher& launcher) : m_launcher(launcher) {}

    void add(const std::string& line);
    /// Before this, commands are kept.
    void start();
    /// Carries out one command now, without an answer. False when it is none or cannot be done.
    bool execute(const std::string& line);

  private:
    void run();
    bool hold(const std::string& time);

    Launcher& m_launcher;
    std::deque<std::string> m_lines;
    bool m_started = false;
    bool m_waiting = false;
    GlibSource m_wait;
};

} // namespace tarnix
