// Numbers as text: the one way in which settings are turned into numbers and back.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnix {

/// Base 10, an optional sign, up to the first character that is no digit; 0 without a digit. Saturates at the
/// ends of int.
int toNumber(std::string_view text);
/// The same for 32-bit fields without a sign: a negative number wraps as a conversion to unsigned does.
std::uint32_t toUnsigned(std::string_view text);
/// Base 16 (either case) up to the first character that is no digit; 0 without a digit. Takes the first two
/// characters at most, so the result is one byte.
std::uint8_t toHexByte(std::string_view text);

std::string toText(int number);
/// Appends the byte as two upper-case hexadecimal digits.
void appendHexByte(std::string& text, std::uint8_t byte);

} // namespace tarnix
