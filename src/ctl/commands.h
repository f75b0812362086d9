// The commands of tarnixctl, and what they work with.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "ctl/arguments.h"
#include "ctl/exit_status.h"
#include "ctl/poll_loop.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/hid.h"

namespace tarnix {

/// The system as commands reach it.
struct Context {
    Files& files;
    Clock& clock;
    PollLoop& loop;
    Hid& hid;
};

struct Command {
    std::string_view name;
    std::string_view synopsis; ///< what follows the name
    std::string_view summary;
    WordCount words;
    std::span<const Option> options;
    ExitStatus (*run)(const Context&, const Arguments&);
};

std::span<const Command> allCommands();
/// None for a name that is no command.
const Command* findCommand(std::string_view name);

ExitStatus runDoctor(const Context& context, const Arguments& arguments);
ExitStatus runCheck(const Context& context, const Arguments& arguments);
ExitStatus runShow(const Context& context, const Arguments& arguments);
ExitStatus runRead(const Context& context, const Arguments& arguments);
ExitStatus runWrite(const Context& context, const Arguments& arguments);
ExitStatus runSelect(const Context& context, const Arguments& arguments);
ExitStatus runMonitor(const Context& context, const Arguments& arguments);

} // namespace tarnix
