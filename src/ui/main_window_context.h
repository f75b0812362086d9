// What the parts of the main window work with, and what they ask of the window.
#pragma once

#include <functional>
#include <string>

#include "device/device_link.h"
#include "macro/macro_library.h"
#include "platform/files.h"
#include "platform/shell.h"
#include "profile/profile_store.h"
#include "skin/dlg_base.h"

namespace tarnix {

/// Everything named here outlives the parts.
struct MainWindowContext {
    CDlgBase& window;
    ProfileStore& store;
    MacroLibrary& macros;
    Files& files;
    Shell& shell;
    DeviceLink& link;
    const std::string& programFolder; ///< with the slash at its end
    /// Makes the current profile the displayed one, shows it everywhere and repaints the window.
    std::function<void()> showCurrentProfile;

    /// The record that edits go to, as the configuration names it; unchecked.
    int currentProfile() const { return store.currentProfile(); }
    /// Marks a row of the pending writes for the current profile.
    void mark(int row) const { link.pending().mark(row, currentProfile()); }
    /// The drop-down field that a message names; none for any other number.
    CComboButton* field(WParam id) const { return window.control<CComboButton>(static_cast<unsigned>(id)); }
};

/// The control groups of the main window; all but the first are its pages.
namespace group {
inline constexpr std::size_t common = 0;
inline constexpr std::size_t keyPage = 1;
inline constexpr std::size_t macroPage = 2;
inline constexpr std::size_t gKeyPage = 3;
inline constexpr std::size_t lightingPage = 4;
} // namespace group

} // namespace tarnix
