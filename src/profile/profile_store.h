// The one copy in memory of everything that the profiles and the configuration hold. Plain data: it checks no
// values, keeps most settings as the decimal texts that the files hold, and a text that is no number reads as
// 0.
//
// Indexes may come from files, the wire or messages: one that is out of range reads as nothing and writes
// nowhere, unless said otherwise.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "profile/key_assignment.h"

namespace tarnix {

inline constexpr int profileCount = 5;         ///< records; each has a profile file
inline constexpr int keyboardProfileCount = 3; ///< the first records are the keyboard's own profiles
inline constexpr int settingCount = 9;
inline constexpr int gKeyCount = 6;
inline constexpr int keyPositionCount = 160;
inline constexpr int configPairCount = 6;

/// Indexes of a record's settings.
inline constexpr int settingProfileName = 0;
inline constexpr int settingLightMode = 1;       ///< 0 to 15
inline constexpr int settingLightBrightness = 2; ///< 0 to 4
inline constexpr int settingLightSpeed = 3;      ///< 0 to 2
inline constexpr int settingArea1Colour = 4;     ///< areas 1 to 5 follow each other; 0 to 15

/// The main window's key buttons and G-key fields, as messages name them.
inline constexpr unsigned firstKeyButtonId = 2200;
inline constexpr int keyButtonCount = 104;
inline constexpr unsigned firstGKeyFieldId = 2078;
inline constexpr int gKeyFieldCount = 5;

/// The record that the main window shows; the selected profile tab is this same variable. Not range-checked.
inline int DisplayedProfile = 0;

struct SettingPair {
    std::string Key;
    std::string Value;
    bool operator==(const SettingPair&) const = default;
};

/// Which text of a pair.
enum class PairText { Key = 0, Value = 1 };

struct GKeySlot {
    std::string Name; ///< of a macro: its name in the macro library
    std::string Url;  ///< of a launch: what to start
    KeyAssignment Value{};
    bool operator==(const GKeySlot&) const = default;
};

using KeyCodeTable = std::array<std::uint8_t, keyPositionCount>;

/// The key code of each position of the key matrix as the keyboard leaves the factory.
extern const KeyCodeTable DefaultKeyCodes;

struct ProfileRecord {
    std::array<SettingPair, settingCount> Settings;
    std::array<GKeySlot, gKeyCount> GKeys;
    KeyCodeTable KeyCodes{};
    bool operator==(const ProfileRecord&) const = default;
};

/// Pair 0 is the current profile, pair 1 + n the path of record n's file.
using ConfigPairs = std::array<SettingPair, configPairCount>;

/// Position in KeyCodes that a key button (from 0) stands for; 10 for an index that no button has. Two
/// buttons share position 85.
int GetKeyButtonPosition(int buttonIndex);

/// A G-key slot as the keyboard leaves the factory: Ctrl with the digit of its place.
GKeySlot standardGKey(int slot);

/// The defaults of record `index`: settings, G-key names and values, key codes. The slots' URLs stay.
void resetProfileRecord(ProfileRecord& record, int index);

class ProfileStore {
  public:
    std::array<ProfileRecord, profileCount> ProfileTable;
    ConfigPairs ConfigTable;

    /// None outside 0 to 4.
    ProfileRecord* record(int index);
    const ProfileRecord* record(int index) const;

    void ResetProfile(int n);
    std::string GetSetting(int n, int pair, PairText part) const;
    /// The setting's value as a number; 0 where there is none.
    int settingNumber(int n, int pair) const;
    void setSetting(int n, int pair, std::string value);
    void SetLightMode(int n, int mode);
    void SetLightBrightness(int n, int brightness);
    void SetLightSpeed(int n, int speed);

    /// None outside the records and slots 0 to 5.
    GKeySlot* GetGKeySlot(int n, int slot);
    const GKeySlot* GetGKeySlot(int n, int slot) const;
    std::string GetGKeyName(int n, int slot) const;
    void SetGKeyName(int n, int slot, std::string name);
    std::string GetGKeyUrl(int n, int slot) const;
    void SetGKeyUrl(int n, int slot, std::string url);

    std::string GetConfig(int pair, PairText part) const;
    /// The configuration's current profile as a number, unchecked.
    int currentProfile() const;
    void SetCurrentProfileText(int profile);
    /// The path of a record's file; empty outside 0 to 4.
    std::string slotPath(int slot) const;
    /// A slot outside 1 to 4 writes slot 0.
    void SetSlotPath(int slot, std::string path);

    /// Puts a G-key's function into the current profile. A field that is none of the window's five means
    /// slot 2.
    void StoreGKey(unsigned fieldId, std::string name, const KeyAssignment& value, std::string url);
    /// Puts a key code into the current profile at a key button's position; position 10 for no key button.
    void SetKeyCode(unsigned keyButtonId, std::uint8_t code);
};

} // namespace tarnix
