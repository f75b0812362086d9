// An open hidraw node.
#pragma once

#include <memory>
#include <string>

#include "platform/hid.h"
#include "platform/linux/report_descriptor.h"

namespace tarnix {

/// What of a node's input a reader gets.
struct HidInput {
    bool usesReportIds = false;    ///< else the id is put in front of what the node delivers
    std::bitset<256> reports = {}; ///< the ids to deliver; reports with others are dropped
};

/// Opens a node for reading and writing; none on failure.
std::unique_ptr<HidDevice> openHidDevice(const std::string& node, const HidInput& input);

} // namespace tarnix
