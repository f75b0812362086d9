#include "ctl/arguments.h"

#include <algorithm>

#include "profile/profile_store.h"

namespace tarnix {

namespace {

/// Takes the option off the line, with its value if it has one; the answer is what is wrong with it.
std::string takeOption(std::string_view word, std::span<char* const>& rest, std::span<const Option> options,
                       Arguments& arguments) {
    const std::size_t equals = word.find('=');
    const std::string name(word.substr(0, equals));
    const bool valueAttached = equals != std::string_view::npos;
    const auto option = std::find_if(options.begin(), options.end(),
                                     [&name](const Option& each) { return each.name == name; });
    if (option == options.end()) return "unknown option " + name;
    if (arguments.has(name)) return name + " is given twice";
    if (!option->takesValue && valueAttached) return name + " takes no value";
    if (option->takesValue && !valueAttached && rest.empty()) return name + " needs a value";
    std::string& value = arguments.options[name];
    if (valueAttached) value = word.substr(equals + 1);
    if (!option->takesValue || valueAttached) return {};
    value = rest.front();
    rest = rest.subspan(1);
    return {};
}

} // namespace

std::optional<std::string> Arguments::value(std::string_view option) const {
    const auto found = options.find(option);
    if (found == options.end()) return std::nullopt;
    return found->second;
}

ParsedArguments parseArguments(std::span<char* const> line, std::span<const Option> options,
                               WordCount words) {
    ParsedArguments parsed;
    bool optionsEnded = false;
    while (!line.empty() && parsed.error.empty()) {
        const std::string_view word = line.front();
        line = line.subspan(1);
        if (!optionsEnded && word == "--")
            optionsEnded = true;
        else if (!optionsEnded && word.size() > 1 && word.front() == '-')
            parsed.error = takeOption(word, line, options, parsed.arguments);
        else
            parsed.arguments.words.emplace_back(word);
    }
    if (!parsed.error.empty()) return parsed;
    if (parsed.arguments.words.size() < words.least) parsed.error = "something is missing";
    if (parsed.arguments.words.size() > words.most)
        parsed.error = "unexpected " + parsed.arguments.words[words.most];
    return parsed;
}

std::optional<int> keyboardProfileIndex(std::string_view number) {
    if (number.size() != 1 || number[0] < '1' || number[0] >= '1' + keyboardProfileCount) return std::nullopt;
    return number[0] - '1';
}

} // namespace tarnix
