#include "macro/macro_recorder.h"

#include <algorithm>

namespace tarnix {

namespace {

constexpr std::uint32_t releaseFlag = 0x80000000;
constexpr std::uint32_t timeMask = 0x7FFFFFFF;

/// The keyboard carries a shorter delay inside the key event that follows it.
constexpr std::uint32_t shortestOwnDelay = 1016;

// Spelt as users have always seen them.
constexpr std::string_view fullWithoutDelays = "The number of action if full!";
constexpr std::string_view fullAtShortDelay = "The Number of Action is full!";
constexpr std::string_view fullAtLongDelay = "The number of action is full!";

} // namespace

void MacroRecorder::start(MacroKey& macro) {
    m_lastKey = 0;
    m_lastTime = 0;
    macro.actionCount = 0;
    if (m_rules.countsCommands) macro.commandCount = 0;
}

MacroRecorder::Answer MacroRecorder::record(MacroKey* macro, std::uintptr_t key, std::intptr_t time,
                                            bool recordDelays) {
    const auto virtualKey = static_cast<std::uint8_t>(key);
    const auto stamp = static_cast<std::uint32_t>(time);
    const bool repeated = virtualKey == m_lastKey && ((stamp ^ m_lastTime) & releaseFlag) == 0;
    if (!macro || virtualKey < MacroAction::firstVirtualKey || repeated) return {};

    const MacroAction action = MacroAction::key(virtualKey, (stamp & releaseFlag) != 0);
    const bool delayed = recordDelays && macro->actionCount != 0;
    const Answer answer{
        true, delayed ? appendDelayedKey(*macro, delaySinceLast(stamp), action) : appendKey(*macro, action)};
    if (answer.fullNotice.empty()) passOver(key, time);
    return answer;
}

void MacroRecorder::passOver(std::uintptr_t key, std::intptr_t time) {
    m_lastKey = static_cast<std::uint8_t>(key);
    m_lastTime = static_cast<std::uint32_t>(time);
}

/// The counter has 31 bits and may have run over since.
std::uint32_t MacroRecorder::delaySinceLast(std::uint32_t time) const {
    return std::min((time - m_lastTime) & timeMask, m_rules.longestDelay);
}

std::string_view MacroRecorder::appendKey(MacroKey& macro, const MacroAction& key) const {
    if (m_rules.countsCommands) {
        if (macro.actionCount != 0 && macro.commandCount >= maxCommandCount) return fullWithoutDelays;
        ++macro.commandCount;
    }
    AppendAction(macro, key);
    return {};
}

std::string_view MacroRecorder::appendDelayedKey(MacroKey& macro, std::uint32_t delay,
                                                 const MacroAction& key) const {
    if (m_rules.countsCommands) {
        const bool ownEntry = delay >= shortestOwnDelay;
        const int needed = ownEntry ? 2 : 1;
        if (macro.commandCount + needed > maxCommandCount)
            return ownEntry ? fullAtLongDelay : fullAtShortDelay;
        macro.commandCount = static_cast<std::uint8_t>(macro.commandCount + needed);
    }
    AppendAction(macro, MacroAction::delay(delay));
    AppendAction(macro, key);
    return {};
}

} // namespace tarnix
