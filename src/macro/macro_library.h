// Macros: named lists of key presses, key releases and delays, grouped in named sets.
//
// Sets and macros are found by index along their order in the library. References and pointers to a set or a
// macro last until one is added to or removed from the same list; who keeps a macro for longer keeps its
// indexes.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnix {

class ProfileStore;

inline constexpr int maxActionCount = 200;    ///< actions of a macro
inline constexpr int maxCommandCount = 100;   ///< entries of a macro in the keyboard's macro memory
inline constexpr int maxMacroNameLength = 12; ///< bytes, when a macro is named; files may hold more
inline constexpr std::string_view defaultMacroSetName = "Keyboard Macro Set";

/// One step of a macro, in four bytes, in this order in memory and in files:
///     key event: virtual-key code (8 or more), 0x00 press or 0x80 release (bit 7 alone counts), 0, 0
///     delay:     3 (0 to 7 are taken for a delay), milliseconds as 24 bits, high byte first
struct MacroAction {
    std::array<std::uint8_t, 4> bytes{};

    static constexpr std::uint8_t delayMark = 0x03;
    static constexpr std::uint8_t releaseBit = 0x80;
    static constexpr std::uint8_t firstVirtualKey = 8;
    static constexpr std::uint32_t longestDelay = 0xFFFFFF;

    static constexpr MacroAction key(std::uint8_t virtualKey, bool released) {
        return {{virtualKey, released ? releaseBit : std::uint8_t{0}, 0, 0}};
    }
    /// Takes the low 24 bits.
    static constexpr MacroAction delay(std::uint32_t milliseconds) {
        return {{delayMark, static_cast<std::uint8_t>(milliseconds >> 16),
                 static_cast<std::uint8_t>(milliseconds >> 8), static_cast<std::uint8_t>(milliseconds)}};
    }

    constexpr bool isDelay() const { return bytes[0] < firstVirtualKey; }
    constexpr bool isRelease() const { return (bytes[1] & releaseBit) != 0; }
    constexpr std::uint8_t virtualKey() const { return bytes[0]; }
    constexpr std::uint32_t milliseconds() const {
        return static_cast<std::uint32_t>(bytes[1]) << 16 | static_cast<std::uint32_t>(bytes[2]) << 8 |
               bytes[3];
    }
    bool operator==(const MacroAction&) const = default;
};
static_assert(sizeof(MacroAction) == 4);

struct MacroKey {
    std::string name;
    std::uint32_t actionCount = 0; ///< as kept; a file may claim more than there is room for
    std::array<MacroAction, maxActionCount> actions{};
    std::uint32_t loopEnable = 1; ///< 0: the macro plays once
    std::uint8_t loopCount = 1;
    std::uint8_t commandCount = 0; ///< entries that the macro takes in the keyboard, as recording kept it

    /// The actions in use: `actionCount` of them, 200 at most.
    std::span<const MacroAction> usedActions() const;
    bool operator==(const MacroKey&) const = default;
};

struct MacroSet {
    std::string name;
    std::vector<MacroKey> keys;
    bool operator==(const MacroSet&) const = default;
};

struct MacroLibrary {
    std::vector<MacroSet> sets;
    bool saveFailed = false; ///< the disk refused the main library: to be saved with the next that is saved
    bool operator==(const MacroLibrary&) const = default;
};

MacroSet& AddMacroSet(MacroLibrary& library, std::string name);
/// None outside the library.
MacroSet* GetMacroSet(MacroLibrary& library, int index);
const MacroSet* GetMacroSet(const MacroLibrary& library, int index);
/// False outside the library.
bool RemoveMacroSet(MacroLibrary& library, int index);
void ClearMacroLibrary(MacroLibrary& library);
/// Makes it the library that a missing file stands for: one set without macros.
void resetMacroLibrary(MacroLibrary& library);

MacroKey& AddMacroKey(MacroSet& set, std::string name);
/// None outside the set.
MacroKey* GetMacroKey(MacroSet& set, int index);
const MacroKey* GetMacroKey(const MacroSet& set, int index);
/// False outside the set.
bool RemoveMacroKey(MacroSet& set, int index);
/// The macro at a set's and a macro's index; none outside the library.
MacroKey* findMacro(MacroLibrary& library, int setIndex, int keyIndex);
/// Index of the first macro of that exact name, or -1.
int findMacroName(const MacroSet& set, std::string_view name);

/// Entry 0 for an index outside 0 to 199.
MacroAction GetAction(const MacroKey& macro, int index);
/// False outside 0 to 199. The action count stays.
bool SetAction(MacroKey& macro, int index, const MacroAction& action);
/// Puts the action before the one at the index, or at the end when the index is beyond it. False when the
/// macro is full.
bool InsertAction(MacroKey& macro, std::uint32_t index, const MacroAction& action);
bool AppendAction(MacroKey& macro, const MacroAction& action);

/// True when a G-key of one of the keyboard's profiles plays the macro of that name.
bool IsMacroInUse(const ProfileStore& store, std::string_view name);

} // namespace tarnix
