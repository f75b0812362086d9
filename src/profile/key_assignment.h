// What a G-key does, in three bytes: the function's type and two parameters. Files and the wire carry it in
// this order.
#pragma once

#include <array>
#include <cstdint>

namespace tarnix {

using KeyAssignment = std::array<std::uint8_t, 3>;

/// Byte 0 of an assignment. Other values are kept as they are and mean nothing.
enum class FunctionType : std::uint8_t {
    None = 0x00,
    Macro = 0x01,       ///< the macro that the slot's name names; bytes 1 and 2 are 0
    Media = 0x02,       ///< byte 1: 0xA0 to 0xA7 multimedia, 0xA8 to 0xB1 web
    MouseButton = 0x03, ///< byte 1: 0x01 left, 0x02 right, 0x04 middle, 0x08 back, 0x10 forward
    DoubleClick = 0x04,
    Fire = 0x05,
    KeyCombination = 0x06, ///< byte 1: 0x01 Ctrl, 0x02 Shift, 0x04 Alt, 0x08 Win; byte 2: key code
    Launch = 0x07          ///< the slot's URL is started by the program
};

constexpr KeyAssignment keyAssignment(FunctionType type, std::uint8_t first = 0, std::uint8_t second = 0) {
    return {static_cast<std::uint8_t>(type), first, second};
}

constexpr FunctionType functionType(const KeyAssignment& value) {
    return static_cast<FunctionType>(value[0]);
}

} // namespace tarnix
