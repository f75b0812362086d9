// What the steps of a macro are called beside their signs.
#pragma once

namespace tarnix::stepWords {

inline constexpr const char* press = "Key pressed";
inline constexpr const char* release = "Key released";
inline constexpr const char* delay = "Delay";

} // namespace tarnix::stepWords
