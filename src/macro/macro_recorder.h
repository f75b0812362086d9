// Turns the keyboard hook's messages into the actions of a macro.
#pragma once

#include <cstdint>
#include <string_view>

#include "macro/macro_library.h"

namespace tarnix {

/// What the two places that record do differently.
struct RecordingRules {
    std::uint32_t longestDelay = 0; ///< milliseconds; longer pauses are recorded as this
    /// Counts the entries that the macro takes in the keyboard, and ends the recording when they would exceed
    /// 100.
    bool countsCommands = false;
};

inline constexpr RecordingRules macroPageRecording{65535, true};
inline constexpr RecordingRules managerRecording{MacroAction::longestDelay, false};

class MacroRecorder {
  public:
    struct Answer {
        /// False for a message that says nothing new: a mouse button, a repeated press, no macro. Else the
        /// macro counts as changed, full or not.
        bool taken = false;
        /// Not empty when the macro has no room for the event, which was then left out: the notice to show,
        /// and to pass the event over after it.
        std::string_view fullNotice;
    };

    explicit MacroRecorder(const RecordingRules& rules) : m_rules(rules) {}

    /// Empties the macro for a new recording and forgets the last key.
    void start(MacroKey& macro);
    /// One message of the hook (see CKeyboardHook): virtual-key code in the low byte of `key`, milliseconds
    /// in bits 0 to 30 of `time`, bit 31 set for a release. `macro` may be none.
    Answer record(MacroKey* macro, std::uintptr_t key, std::intptr_t time, bool recordDelays);
    /// Later delays and repeats count from this message, which was refused. While its notice is open they
    /// count from the last one that was recorded, so that the release of a refused key finds no room either.
    void passOver(std::uintptr_t key, std::intptr_t time);

  private:
    std::uint32_t delaySinceLast(std::uint32_t time) const;
    std::string_view appendKey(MacroKey& macro, const MacroAction& key) const;
    std::string_view appendDelayedKey(MacroKey& macro, std::uint32_t delay, const MacroAction& key) const;

    RecordingRules m_rules;
    std::uint8_t m_lastKey = 0;
    std::uint32_t m_lastTime = 0;
};

} // namespace tarnix
