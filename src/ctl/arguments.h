// A command's words and options, as the command line gives them.
#pragma once

#include <cstddef>
#include <limits>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnix {

struct Option {
    std::string_view name; ///< with its dashes
    bool takesValue = false;
};

/// How many words a command takes.
struct WordCount {
    std::size_t least = 0;
    std::size_t most = 0;
};
inline constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

struct Arguments {
    std::vector<std::string> words;
    std::map<std::string, std::string, std::less<>> options; ///< by name; empty for one without a value

    bool has(std::string_view option) const { return options.find(option) != options.end(); }
    std::optional<std::string> value(std::string_view option) const;
};

struct ParsedArguments {
    Arguments arguments;
    std::string error; ///< empty when all is well
};

/// Options may stand anywhere before a "--", their values as the next word or after a '='.
ParsedArguments parseArguments(std::span<char* const> line, std::span<const Option> options, WordCount words);

/// Index of a keyboard profile from its number, 1 to 3.
std::optional<int> keyboardProfileIndex(std::string_view number);

} // namespace tarnix
