// Where the program keeps its files.
#pragma once

#include <string>

namespace tarnix {

/// The folder for an executable at `executable`: its own where the user may write there and it is no
/// installation's bin folder, else `configHome` with this program's folder in it, which is made. With a
/// trailing slash.
std::string programFolderOf(const std::string& executable, const std::string& configHome);

} // namespace tarnix
