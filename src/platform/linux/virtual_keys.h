// From the keys of the system to Win32 virtual-key codes.
#pragma once

#include <cstdint>

namespace tarnix {

/// The virtual-key code of a key by its evdev code (linux/input-event-codes.h), as its position on a US or
/// ISO keyboard has it, whatever the layout and the locks are; 0 for a key that has none. Left and right
/// modifiers are told apart, and keys that Windows gives no code of their own have this system's: keypad
/// Enter 0x0E, power and the international keys 0xF0 to 0xFB.
std::uint8_t virtualKeyOf(unsigned evdevCode);

} // namespace tarnix
