// tarnixctl: the keyboard and its files from the command line.
#include <cstdlib>
#include <memory>
#include <string>

#include "ctl/commands.h"
#include "ctl/output.h"

namespace {

using namespace tarnix;

constexpr const char* exitStatuses = R"(
Exit status: 0 done, 1 a file or the output cannot be written, 2 wrong usage, 3 no keyboard, 4 no permission,
5 the keyboard is in use, 6 a file is refused, 7 a transfer failed.)";

std::string usageOf(const Command& command) {
    std::string text("tarnixctl ");
    text += command.name;
    if (!command.synopsis.empty()) text.append(" ").append(command.synopsis);
    return text;
}

void printHelp() {
    printLine("Usage: tarnixctl COMMAND [argument...]\n\nThe Tarnix keyboard and its files.\n");
    for (const Command& command : allCommands())
        printLine("  " + usageOf(command) + "\n      " + std::string(command.summary));
    printLine(exitStatuses);
}

ExitStatus refuseUsage(const std::string& error, const std::string& usage) {
    complain(error);
    complain("usage: " + usage);
    return ExitStatus::Usage;
}

ExitStatus runCommand(const Command& command, std::span<char* const> line) {
    const ParsedArguments parsed = parseArguments(line, command.options, command.words);
    if (!parsed.error.empty()) return refuseUsage(parsed.error, usageOf(command));
    const std::unique_ptr<Files> files = makeSystemFiles();
    SleepingClock clock;
    PollLoop loop;
    const std::unique_ptr<Hid> hid = makeSystemHid(loop);
    return command.run({*files, clock, loop, *hid}, parsed.arguments);
}

ExitStatus run(std::span<char* const> line) {
    const std::string first = line.empty() ? "" : line.front();
    if (first == "--version") {
        printLine("tarnixctl " TARNIX_VERSION);
        return ExitStatus::Done;
    }
    for (const std::string_view word : line) {
        if (word == "--") break;
        if (word != "--help" && word != "-h") continue;
        printHelp();
        return ExitStatus::Done;
    }
    const Command* const command = findCommand(first);
    if (command == nullptr)
        return refuseUsage(line.empty() ? "no command" : "unknown command " + first,
                           "tarnixctl COMMAND [argument...]; tarnixctl --help lists the commands");
    return runCommand(*command, line.subspan(1));
}

} // namespace

int main(int argc, char** argv) {
    const ExitStatus status = run({argv + 1, static_cast<std::size_t>(argc > 0 ? argc - 1 : 0)});
    if (finishOutput()) return static_cast<int>(status);
    complain("the output cannot be written");
    return static_cast<int>(ExitStatus::NotWritten);
}
