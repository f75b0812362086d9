// What the device link reads from and saves to: the store, the main macro library and their files.
#pragma once

#include <string>

#include "macro/macro_library.h"
#include "platform/files.h"
#include "profile/profile_store.h"

namespace tarnix {

/// Everything named here must outlive its user.
struct DeviceStorage {
    ProfileStore& store;
    MacroLibrary& macros;
    Files& files;
    const std::string& programFolder; ///< with the slash at its end
};

} // namespace tarnix
