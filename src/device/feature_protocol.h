// The feature-report conversation with the keyboard: one operation an exchange, each with the pauses that the
// keyboard needs. Pauses are taken after a failure too; without a handle there is neither traffic nor pause,
// only failure.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "device/macro_report.h"
#include "macro/macro_library.h"
#include "platform/clock.h"
#include "platform/hid.h"
#include "profile/profile_store.h"

namespace tarnix {

constexpr Milliseconds exchangePause{8};    ///< after a selection and after a get
constexpr Milliseconds smallSetPause{15};   ///< after lighting and the active profile
constexpr Milliseconds memorySetPause{350}; ///< after key codes and macros, which go to the keyboard's memory

/// What the keyboard was last known to be set to is not known.
constexpr int unknownProfile = -1;

/// Profiles are record indexes. One that names no record is a failure without traffic, except that
/// SetActiveProfile takes any number. All operations run on the user-interface thread.
class FeatureProtocol {
  public:
    /// `macros` is the main library: G-key macros are found in and added to its first set.
    FeatureProtocol(Clock& clock, ProfileStore& store, MacroLibrary& macros);

    /// Replaces the handle; none closes it.
    void setHandle(std::unique_ptr<HidDevice> device);
    bool hasHandle() const { return m_hFeatureDevice != nullptr; }

    /// The keyboard's active profile as last read, set or reported: normally 0 to 2, -1 when unknown.
    int deviceProfile() const { return m_nDeviceProfile; }
    void setDeviceProfile(int profile) { m_nDeviceProfile = profile; }

    /// 0 to 7; 0 too when the keyboard does not answer. -1 without a handle. No pause.
    int GetActiveProfile();
    /// The low byte of `profile` is sent. On success the device profile is `profile`.
    bool SetActiveProfile(int profile);
    bool ReadLighting(int profile);
    bool WriteLighting(int profile);
    bool ReadKeyCodes(int profile);
    bool WriteKeyCodes(int profile);

    /// Reads the slot's macro into the library, if the slot holds one, under the keyboard's name; a macro
    /// without a name gets one and is written back with it. True when the keyboard was asked, whether or not
    /// it answered: the library then counts as changed.
    bool ReadGKeyMacro(int profile, int slot);
    /// Sends the macro that the slot names; nothing where the first set has no such macro.
    bool WriteGKeyMacro(int profile, int slot);
    /// Takes a macro that the user recorded on the keyboard into the library and the slot, and writes it back
    /// with its name. True when the slot holds it now.
    bool UploadGKeyMacro(int profile, int slot);

  private:
    bool set(std::span<const std::uint8_t> report, Milliseconds pauseAfter);
    bool get(int profile, int slot, std::uint8_t id, std::span<std::uint8_t> report);
    bool storeMacro(int profile, int slot, MacroReportView report);

    Clock& m_clock;
    ProfileStore& m_store;
    MacroLibrary& m_macros;
    std::unique_ptr<HidDevice> m_hFeatureDevice;
    int m_nDeviceProfile = unknownProfile;
};

} // namespace tarnix
