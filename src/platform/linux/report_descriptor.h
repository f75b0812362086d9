// HID report descriptors (Device Class Definition for HID 1.11, 6.2.2), as far as a host must know them to
// read a device.
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tarnix {

/// An application collection at the outermost level: one logical device behind a HID interface.
struct TopLevelCollection {
    std::uint16_t usagePage = 0;
    std::size_t inputReportLength = 0; ///< longest input report in bytes with the report id's byte; 0 if none
    std::bitset<256> inputReports;     ///< the ids of its input reports; 0 alone where reports have no id
};

struct ReportDescriptor {
    bool usesReportIds = false; ///< reports on the wire start with their id
    std::vector<TopLevelCollection> collections;
};

/// Reads a descriptor of any content: a truncated or senseless one gives what could be understood before the
/// fault. The result never holds more collections than the descriptor has bytes, and no length above
/// `maxReportLength`.
ReportDescriptor parseReportDescriptor(std::span<const std::uint8_t> bytes);

/// What the kernel takes as a report at most, in bytes (HID_MAX_BUFFER_SIZE).
inline constexpr std::size_t maxReportLength = 16384;

} // namespace tarnix
