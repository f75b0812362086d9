// Words for what the keyboard and its files hold.
#pragma once

#include <cstdint>
#include <string>

#include "profile/key_assignment.h"

namespace tarnix {

/// A G-key's function without the macro's or program's name, e.g. "CTRL+SHIFT+A", "Volume Up", "macro".
std::string describeAssignment(const KeyAssignment& value);

/// An event report, e.g. "profile 2", "light mode RGB Full".
std::string describeEvent(std::uint8_t code, std::uint8_t value);

} // namespace tarnix
