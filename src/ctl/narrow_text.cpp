#include "ctl/narrow_text.h"

#include <iconv.h>

#include <array>
#include <cstdint>
#include <optional>

#include "profile/numbers.h"

namespace tarnix {

namespace {

constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";

class Conversion {
  public:
    explicit Conversion(const char* from) : m_conversion(iconv_open("UTF-8", from)) {}
    ~Conversion() {
        if (works()) iconv_close(m_conversion);
    }
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    /// None when a byte is no part of a character, unless such bytes are replaced.
    std::optional<std::string> convert(std::string_view text, bool replacing) {
        std::string converted;
        char* in = const_cast<char*>(text.data()); // iconv reads only
        std::size_t inLeft = works() ? text.size() : 0;
        while (inLeft > 0) {
            const std::size_t before = inLeft;
            std::array<char, 256> piece{};
            char* out = piece.data();
            std::size_t outLeft = piece.size();
            const bool whole = iconv(m_conversion, &in, &inLeft, &out, &outLeft) != failed;
            converted.append(piece.data(), out);
            if (whole || inLeft != before) continue;
            if (!replacing) return std::nullopt;
            converted += replacementCharacter;
            ++in;
            --inLeft;
        }
        return converted;
    }

  private:
    static constexpr std::size_t failed = static_cast<std::size_t>(-1);
    bool works() const { return m_conversion != reinterpret_cast<iconv_t>(-1); }

    iconv_t m_conversion;
};

} // namespace

std::string toUtf8(std::string_view narrow) {
    if (auto text = Conversion("UTF-8").convert(narrow, false)) return *text;
    return *Conversion("GB18030").convert(narrow, true);
}

std::string printable(std::string_view narrow) {
    const std::string text = toUtf8(narrow);
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<std::uint8_t>(text[i]);
        // U+0080 to U+009F are C2 80 to C2 9F.
        const bool second = byte == 0xC2 && static_cast<std::uint8_t>(text[i + 1]) < 0xA0;
        if (byte >= 0x20 && byte != 0x7F && !second) {
            result += text[i];
            continue;
        }
        appendHexByte(result.append("\\x"), second ? static_cast<std::uint8_t>(text[++i]) : byte);
    }
    return result;
}

} // namespace tarnix
