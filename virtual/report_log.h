// The wire in words: one line a report.
//
//   1250 ms  set 07 lighting profile 1: mode 2 RGB Breath, brightness 4 100%, speed 1 Normal, colours 4 4 4 4
//   4 1265 ms  get 05 active profile: 1 1301 ms  event 05 profile changed: 2
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "virtual/virtual_keyboard.h"

namespace tarnix {

/// A report in one line, whatever its bytes and its length; profiles and G-keys count from 1, as on the
/// keyboard. An event report starts with its code.
std::string describeReport(WireDirection direction, std::span<const std::uint8_t> report);

/// The same with its time in front and, where it applies, " (refused)" behind.
std::string describeRecord(const WireRecord& record);

} // namespace tarnix
