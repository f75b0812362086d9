#include "processes/wire.h"

#include <cstdio>
#include <string>

namespace tarnix::bench {

namespace {

/// The pause after a report, in milliseconds.
Span pauseAfter(const std::string& direction, unsigned report) {
    constexpr unsigned activeProfile = 5;
    constexpr unsigned keyCodes = 6;
    constexpr unsigned lighting = 7;
    constexpr unsigned macro = 8;
    if (direction == "get") return Span(report == activeProfile ? 0 : 8);
    switch (report) {
        case activeProfile:
        case lighting:
            return Span(15);
        case keyCodes:
        case macro:
            return Span(350);
        default:
            return Span(8);
    }
}

} // namespace

std::optional<WireSequence> wireSequence(const std::vector<TimedLine>& log) {
    WireSequence sequence;
    for (const TimedLine& line : log) {
        char direction[8] = "";
        unsigned report = 0;
        if (std::sscanf(line.text.c_str(), "%*d ms %7s %2x", direction, &report) != 2) continue;
        if (direction != std::string("set") && direction != std::string("get")) continue;
        if (sequence.reports++ == 0) sequence.first = line.time;
        sequence.last = line.time;
        sequence.pauses += sequence.lastPause;
        sequence.lastPause = pauseAfter(direction, report);
    }
    if (sequence.reports == 0) return std::nullopt;
    return sequence;
}

} // namespace tarnix::bench
