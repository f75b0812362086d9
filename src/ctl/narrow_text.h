// Narrow texts of files and the wire for the standard output.
#pragma once

#include <string>
#include <string_view>

namespace tarnix {

/// UTF-8 where the whole text is that, else read as GB18030; what is no character becomes U+FFFD.
std::string toUtf8(std::string_view narrow);

/// The same for people: control characters, which would steer a terminal, become \xNN.
std::string printable(std::string_view narrow);

} // namespace tarnix
