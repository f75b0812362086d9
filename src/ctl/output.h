// The two streams: what was asked for, and what there is to say about it.
#pragma once

#include <string_view>

namespace tarnix {

/// A line on the standard output. It is there at once, for readers that follow a monitor.
void printLine(std::string_view line);
/// A line on the standard error, after the program's name.
void complain(std::string_view message);
/// Flushes the standard output; false when something that was printed did not get out.
bool finishOutput();

/// The steps of a transfer on the standard error: one line that is written over on a terminal, else a line a
/// step.
class Progress {
  public:
    explicit Progress(int stepCount);
    ~Progress() { end(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void step(std::string_view name);
    /// What comes next gets a line of its own.
    void end();

  private:
    int m_stepCount;
    int m_step = 0;
    bool m_terminal;
    bool m_lineOpen = false;
};

} // namespace tarnix
