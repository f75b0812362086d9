// Lines of the program's text files: where they end, where their value starts, and how a refusal names its
// place.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarnix {

/// Why a reader refused a file, and at which line (from 1). The reason is a text that lives for ever.
struct FileError {
    std::size_t line = 0;
    std::string_view reason;
    bool operator==(const FileError&) const = default;
};

/// The first line of profile and configuration files, and what both refuse alike.
inline constexpr std::string_view settingHeader = "[Setting]";
inline constexpr std::string_view noSettingHeader = "the first line is not [Setting]";
inline constexpr std::string_view noKeyValue = "not of the form key=value";

/// Takes lines off a text. A line ends with LF or CR LF, which are no part of it; the last one may lack its
/// end.
class LineReader {
  public:
    explicit LineReader(std::string_view text) : m_rest(text) {}

    /// None at the end of the text.
    std::optional<std::string_view> next();
    /// A refusal at the line that `next` answered last, or at the end of the text.
    FileError refuse(std::string_view reason) const { return {m_line, reason}; }

  private:
    std::string_view m_rest;
    std::size_t m_line = 0;
};

/// A line cut at its first '='. Whether an empty key or value will do is the caller's matter.
struct KeyValue {
    std::string_view key;
    std::string_view value;
};
/// None without a '='.
std::optional<KeyValue> splitAtEquals(std::string_view line);

/// Appends a line and its end. Line ends inside the text become blanks, so that the text stays one line.
void appendLine(std::string& text, std::string_view line);

} // namespace tarnix
