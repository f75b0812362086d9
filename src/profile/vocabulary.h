// The fixed names and conversions: keys, lighting settings and key functions.
//
// Keys are numbered in two ways. A virtual-key code is Win32's (what the keyboard hook delivers and a macro
// action stores); codes that Win32 leaves free are given to keys it does not tell apart: 0x0E keypad Enter,
// 0xF0 to 0xFB power, wake-up and the international keys. A key code is the keyboard's own: the USB HID usage
// id of the keyboard page for most keys, and 0x81 to 0x83 and 0xC0 to 0xF5 for what the keyboard adds.
#pragma once

#include <cstdint>
#include <string_view>

#include "profile/key_assignment.h"

namespace tarnix {

std::string_view VirtualKeyName(std::uint8_t virtualKey);
std::string_view KeyCodeName(std::uint8_t keyCode);

/// Key codes that stand for a mouse function: "Click" to "Fire".
inline constexpr std::uint8_t firstMouseCode = 0xD0;
inline constexpr std::uint8_t lastMouseCode = 0xD6;
/// The name of a key code of either sort.
std::string_view keyFunctionName(std::uint8_t keyCode);

/// The two conversions are no inverses of each other. 0 where there is nothing to convert to.
std::uint8_t ToKeyCode(std::uint8_t virtualKey);
std::uint8_t ToVirtualKey(std::uint8_t keyCode);

/// The key code to store when `code` is chosen for a key button (its index counts from the first key button):
/// keys with a code of their own get that one, all others keep `code`.
std::uint8_t ownFunctionCode(int buttonIndex, std::uint8_t code);

inline constexpr int lightModeCount = 16;
inline constexpr int brightnessCount = 5;
inline constexpr int speedCount = 3;
inline constexpr int colourCount = 7;

/// Names by stored value, from 0; an empty text outside the list.
std::string_view LightModeName(int mode);
std::string_view BrightnessName(int brightness);
std::string_view SpeedName(int speed);
std::string_view ColourName(int colour);

/// Names and values of the function popups by item number, from 1. A name outside the list is an empty text;
/// a value outside the popup's own items is the popup's fallback.
std::string_view WebFunctionName(int item);
std::string_view MouseFunctionName(int item);
std::string_view MultimediaFunctionName(int item);
KeyAssignment webFunctionValue(int item);        ///< items 21 to 30, else the value of 21
KeyAssignment mouseFunctionValue(int item);      ///< items 24 to 30, else no function
KeyAssignment multimediaFunctionValue(int item); ///< items 18 to 25, else the value of 25

} // namespace tarnix
