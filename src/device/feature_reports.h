// Feature reports 4 to 7: the selection of what a get returns, the active profile, the key codes and the
// lighting. Lengths count the report id, byte 0. A profile's number on the wire is its index, 0 to 2, masked
// with 3.
//
//   id  direction  length  content
//   4   set        3       04 profile slot: what the next get of report 6, 7 or 8 is about
//   5   get        3       byte 2, low three bits: the active profile
//   5   set        3       05 03 profile: makes it active; 7 says that the program ends
//   6   set        192     06 B8 profile 00 00 00 00 00, then 160 key codes, then three bytes
//                          for each of six G-keys, then zeros;
//                          a get answers the same from byte 8 on
//   7   set        8       07 08 profile 00, then eight fields of four bits, high one first:
//                          brightness, mode; speed, area 1; area 2, area 3; area 4, area 5;
//                          a get answers the same from byte 4 on
//
// Example: profile 2 (index 1) in "RGB Breath" (2) at full brightness (4), normal speed (1), all areas in
// colour 4:
//   07 08 01 00 42 14 44 44
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "profile/profile_store.h"

namespace tarnix {

namespace selectReport {
constexpr std::uint8_t id = 4;
constexpr std::size_t length = 3;
constexpr std::size_t profileByte = 1;
constexpr std::size_t slotByte = 2;
} // namespace selectReport

namespace activeProfileReport {
constexpr std::uint8_t id = 5;
constexpr std::size_t length = 3;
constexpr std::size_t commandByte = 1;
constexpr std::uint8_t command = 0x03;
constexpr std::size_t profileByte = 2;
constexpr std::uint8_t profileMask = 7;
/// Sent in place of a profile when the program ends.
constexpr int closing = 7;
} // namespace activeProfileReport

namespace keyCodeReport {
constexpr std::uint8_t id = 6;
constexpr std::size_t length = 192;
constexpr std::size_t lengthByte = 1;
constexpr std::uint8_t contentLength = 0xB8; ///< bytes 8 to 191
constexpr std::size_t profileByte = 2;
constexpr std::size_t keyCodes = 8;
constexpr std::size_t gKeys = keyCodes + keyPositionCount;
constexpr std::size_t gKeyLength = 3;
static_assert(keyCodes + contentLength == length && gKeys == 168);
} // namespace keyCodeReport

namespace lightingReport {
constexpr std::uint8_t id = 7;
constexpr std::size_t length = 8;
constexpr std::size_t lengthByte = 1;
constexpr std::size_t profileByte = 2;
constexpr std::size_t fields = 4;
} // namespace lightingReport

/// The two bits of a profile index that go on the wire.
constexpr std::uint8_t wireProfile(int profile) {
    return static_cast<std::uint8_t>(profile & 3);
}

using SelectReport = std::array<std::uint8_t, selectReport::length>;
using ActiveProfileReport = std::array<std::uint8_t, activeProfileReport::length>;
using KeyCodeReport = std::array<std::uint8_t, keyCodeReport::length>;
using LightingReport = std::array<std::uint8_t, lightingReport::length>;

SelectReport packSelection(int profile, int slot);
ActiveProfileReport packActiveProfile(int profile);
int unpackActiveProfile(std::span<const std::uint8_t, activeProfileReport::length> report);

/// Settings are texts; each gives the low four bits of its number.
LightingReport packLighting(const ProfileRecord& record, int profile);
void unpackLighting(ProfileRecord& record, std::span<const std::uint8_t, lightingReport::length> report);

/// Key codes and the values of the G-key slots; their names and addresses do not travel.
KeyCodeReport packKeyCodes(const ProfileRecord& record, int profile);
void unpackKeyCodes(ProfileRecord& record, std::span<const std::uint8_t, keyCodeReport::length> report);

} // namespace tarnix
