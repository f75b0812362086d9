// The measures that are taken on whole processes. Each prints its table.
#pragma once

#include <chrono>

#include "processes/screen.h"
#include "processes/tools.h"

namespace tarnix::bench {

struct Extent {
    int rounds = 15; ///< starts of each program
    std::chrono::seconds idle{60};
};

/// Start to the first complete frame, memory, the full read and the exit, of all programs in turn.
void measureStarts(Screen& screen, Tools& tools, int rounds);
/// From a press on a key cap to the frame that shows it.
void measurePress(Screen& screen, Tools& tools, int rounds);
/// A changed key and Apply, beyond the pauses.
void measureApply(Screen& screen, Tools& tools, int rounds);
/// Wake-ups and processor time of programs with which nothing happens.
void measureIdle(Screen& screen, Tools& tools, std::chrono::seconds time);

} // namespace tarnix::bench
