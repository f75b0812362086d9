#include "profile/text_lines.h"

#include <algorithm>

namespace tarnix {

std::optional<std::string_view> LineReader::next() {
    ++m_line;
    if (m_rest.empty()) return std::nullopt;
    const std::size_t end = m_rest.find('\n');
    std::string_view line = m_rest.substr(0, end);
    if (end == std::string_view::npos) {
        m_rest = {};
        return line;
    }
    m_rest.remove_prefix(end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

std::optional<KeyValue> splitAtEquals(std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) return std::nullopt;
    return KeyValue{line.substr(0, equals), line.substr(equals + 1)};
}

void appendLine(std::string& text, std::string_view line) {
    const auto start = static_cast<std::ptrdiff_t>(text.size());
    text += line;
    const auto isLineEnd = [](char c) { return c == '\n' || c == '\r'; };
    std::replace_if(text.begin() + start, text.end(), isLineEnd, ' ');
    text += '\n';
}

} // namespace tarnix
