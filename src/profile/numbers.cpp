#include "profile/numbers.h"

#include <algorithm>
#include <limits>

namespace tarnix {

namespace {

constexpr std::int64_t largest = std::numeric_limits<std::uint32_t>::max();
constexpr std::int64_t smallest = std::numeric_limits<int>::min();

/// Saturates at the ends of what the callers can hold, so that no length of digits overflows.
std::int64_t readDecimal(std::string_view text) {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    std::int64_t number = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') break;
        number = std::min(number * 10 + (c - '0'), largest);
    }
    return negative ? std::max(-number, smallest) : number;
}

int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

} // namespace

int toNumber(std::string_view text) {
    return static_cast<int>(std::min<std::int64_t>(readDecimal(text), std::numeric_limits<int>::max()));
}

std::uint32_t toUnsigned(std::string_view text) {
    return static_cast<std::uint32_t>(readDecimal(text));
}

std::uint8_t toHexByte(std::string_view text) {
    int number = 0;
    for (const char c : text.substr(0, 2)) {
        const int digit = hexDigit(c);
        if (digit < 0) break;
        number = number * 16 + digit;
    }
    return static_cast<std::uint8_t>(number);
}

std::string toText(int number) {
    return std::to_string(number);
}

void appendHexByte(std::string& text, std::uint8_t byte) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    text += digits[byte >> 4];
    text += digits[byte & 0x0F];
}

} // namespace tarnix
