#include "virtual/launcher_options.h"

#include <charconv>
#include <string_view>

namespace tarnix {

const char* const launcherUsage = R"(Usage: tarnix-virtual-keyboard [options] -- PROGRAM [arguments]

Lends a model of the keyboard to PROGRAM, prints every report that goes over the wire, and takes commands from the
standard input, one a line ("help" lists them). Ends with the program's exit status.

  --commands FILE    carry out the commands of FILE first
  --log FILE         write what is printed to FILE, too
  --seed-macro MACRO a macro that the keyboard holds at the start; MACRO as after the command "seed"
  --extra-mouse      another HID device is plugged in
  --unplugged        the keyboard is not plugged in at the start
  --day              a person uses the keyboard, at times of his own
  --day-pause MS     the average time between two of his actions (3000)
  --kernel           lend the keyboard through /dev/uhid to every program; PROGRAM may be left out
  --help             show this text
)";

namespace {

/// Takes the options off the front of the arguments.
class OptionReader {
  public:
    explicit OptionReader(std::span<char* const> arguments) : m_rest(arguments) {}

    ParsedOptions read() {
        while (!m_rest.empty() && m_parsed.error.empty()) {
            const std::string_view option = next();
            if (option == "--") break;
            take(option);
        }
        for (const char* word : m_rest)
            m_parsed.options.program.emplace_back(word);
        const LauncherOptions& options = m_parsed.options;
        if (m_parsed.error.empty() && options.program.empty() && !options.kernel && !options.help)
            m_parsed.error = "no program to start";
        return std::move(m_parsed);
    }

  private:
    std::string_view next() {
        const std::string_view word = m_rest.front();
        m_rest = m_rest.subspan(1);
        return word;
    }

    void take(std::string_view option) {
        LauncherOptions& options = m_parsed.options;
        if (option == "--commands")
            options.commandFile = value(option);
        else if (option == "--log")
            options.logFile = value(option);
        else if (option == "--seed-macro")
            options.seeds.push_back(value(option));
        else if (option == "--extra-mouse")
            options.extraMouse = true;
        else if (option == "--unplugged")
            options.unplugged = true;
        else if (option == "--kernel")
            options.kernel = true;
        else if (option == "--day")
            options.day = true;
        else if (option == "--day-pause")
            options.dayPause = milliseconds(option);
        else if (option == "--help")
            options.help = true;
        else
            m_parsed.error = "unknown option " + std::string(option);
    }

    std::string value(std::string_view option) {
        if (m_rest.empty()) {
            m_parsed.error = std::string(option) + " needs a value";
            return {};
        }
        return std::string(next());
    }

    Milliseconds milliseconds(std::string_view option) {
        const std::string text = value(option);
        unsigned number = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error != std::errc() || end != text.data() + text.size() || number == 0)
            m_parsed.error = std::string(option) + " needs a number of milliseconds";
        return Milliseconds(number);
    }

    std::span<char* const> m_rest;
    ParsedOptions m_parsed;
};

} // namespace

ParsedOptions parseLauncherOptions(std::span<char* const> arguments) {
    return OptionReader(arguments).read();
}

} // namespace tarnix
