// Feature report 8: one G-key's macro with its name, 226 bytes in both directions.
//
//   byte    host to keyboard                      keyboard to host
//   0       08                                    08
//   1       E2, the report's length               -
//   2       profile, low two bits                 -
//   3       G-key slot, 0 to 5                    -
//   4-7     0                                     -
//   8-31    name, zero filled; a name of 24       name, up to its first zero byte; FF FF in its first two
//           bytes has no terminator               bytes: the keyboard holds none
//   32      loop count, 0 where it does not loop  the same
//   33      number of steps as the macro keeps it the same
//   34-225  room for 96 steps of two bytes:       the same
//           code, parameter
//
// Step codes 0 to 3 are delays: (parameter & 7F) x 8, parameter x 64, x 128 and x 256 ms. Any other code is a
// key of the keyboard's own numbering (the HID usage tables' keyboard page for most keys); bit 7 of its
// parameter is set for a release, bits 0 to 6 are a delay before the key in units of 8 ms.
//
// Example: A down, 120 ms, A up, once, as "Tap" for G2 of the first profile:
//   08 E2 00 01 00 00 00 00  54 61 70 00 ... 00  01  02  04 00  04 8F  00 ...
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "macro/macro_library.h"

namespace tarnix {

namespace macroReport {
constexpr std::uint8_t id = 8;
constexpr std::size_t length = 226;
constexpr std::size_t lengthByte = 1;
constexpr std::size_t profileByte = 2;
constexpr std::size_t slotByte = 3;
constexpr std::size_t name = 8;
constexpr std::size_t nameLength = 24;
constexpr std::size_t loopCount = 32;
constexpr std::size_t stepCount = 33;
constexpr std::size_t steps = 34;
constexpr std::size_t stepLength = 2;
constexpr std::size_t maxSteps = (length - steps) / stepLength;
static_assert(name + nameLength == loopCount && maxSteps == 96);
} // namespace macroReport

using MacroReport = std::array<std::uint8_t, macroReport::length>;
using MacroReportView = std::span<const std::uint8_t, macroReport::length>;

/// The name that the keyboard holds, or none where it holds none: FF FF, or an empty name, which no library
/// could keep.
std::optional<std::string> macroReportName(MacroReportView report);

/// Replaces the macro's actions, loop setting and step count, not its name, with the report's. Steps that the
/// report has no room for do not exist, whatever its count byte says; delays after the last key are dropped.
void DecodeMacroReport(MacroKey& macro, MacroReportView report);

/// The report that gives this macro to a G-key. The count byte is the macro's own; at most 96 steps are
/// written.
MacroReport encodeMacroReport(const MacroKey& macro, int profile, int slot);

} // namespace tarnix
