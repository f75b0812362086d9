// Letting the user choose a program file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/shell.h"

namespace tarnix {

/// The full path of the chosen file; none on Cancel. `proposedName` stands in the dialog at first.
std::optional<std::string> chooseProgram(Shell& shell, Window& owner, const std::string& proposedName);

/// What follows the last slash or backslash.
std::string_view fileNameOf(std::string_view path);

} // namespace tarnix
