#include "ctl/commands.h"

#include <algorithm>
#include <array>

namespace tarnix {

namespace {

constexpr std::array showOptions{Option{"--json", false}};
constexpr std::array readOptions{Option{"--force", false}};
constexpr std::array writeOptions{Option{"--profile", true}, Option{"--macros", true}};

constexpr std::array<Command, 7> commands{{
    {"doctor",
     "",
     "finds the keyboard and says what stands in the way, and how to mend it",
     {0, 0},
     {},
     runDoctor},
    {"check", "FILE...", "says whether the program would accept these files", {1, anyNumber}, {}, runCheck},
    {"show",
     "[--json] FILE",
     "shows a profile, configuration, macro library or macro key file",
     {1, 1},
     showOptions,
     runShow},
    {"read",
     "[--force] DIR",
     "reads the keyboard's profiles and macros into files",
     {1, 1},
     readOptions,
     runRead},
    {"write",
     "FILE --profile N [--macros LIBRARY]",
     "puts a profile file onto the keyboard's profile N",
     {1, 1},
     writeOptions,
     runWrite},
    {"select", "N", "makes the keyboard's profile N, 1 to 3, the active one", {1, 1}, {}, runSelect},
    {"monitor", "", "prints what the keyboard reports, until it is interrupted", {0, 0}, {}, runMonitor},
}};

} // namespace

std::span<const Command> allCommands() {
    return commands;
}

const Command* findCommand(std::string_view name) {
    const auto* const found = std::find_if(commands.begin(), commands.end(),
                                           [name](const Command& each) { return each.name == name; });
    return found == commands.end() ? nullptr : found;
}

} // namespace tarnix
