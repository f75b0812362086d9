// What a popup list or an editing dialog answers with.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/window.h"
#include "profile/key_assignment.h"

namespace tarnix {

/// A chosen name and the bytes of a key assignment value: type, parameter 1, parameter 2, and a fourth one.
struct SelectionRecord {
    std::string text;
    std::array<std::uint8_t, 4> bytes{};

    KeyAssignment value() const { return {bytes[0], bytes[1], bytes[2]}; }
};

/// Sends a message with the record's address as its lParam.
LResult sendSelection(Window& to, Message message, WParam tag, const SelectionRecord& record);
/// The record of a message that is being handled; none when lParam is no record's address.
const SelectionRecord* receivedSelection(LParam lParam);

} // namespace tarnix
