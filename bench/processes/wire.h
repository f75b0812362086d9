// The virtual keyboard's log as times: how long a sequence of reports took beyond the pauses that it has to
// keep.
#pragma once

#include <optional>
#include <vector>

#include "processes/line_reader.h"

namespace tarnix::bench {

struct WireSequence {
    int reports = 0;
    Span pauses{0};    ///< to be kept before the last report
    Span lastPause{0}; ///< to be kept after it
    SteadyTime first;
    SteadyTime last;
};

/// None without a report among the lines.
std::optional<WireSequence> wireSequence(const std::vector<TimedLine>& log);

} // namespace tarnix::bench
