// The launcher's command line.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/clock.h"

namespace tarnix {

struct LauncherOptions {
    std::vector<std::string> program; ///< with its arguments; empty: none is started
    std::string commandFile;          ///< its commands come before those of the standard input
    std::string logFile;              ///< gets what is printed, too
    std::vector<std::string>
        seeds; ///< arguments of "seed" commands, carried out before anything is plugged in
    bool extraMouse = false;
    bool unplugged = false; ///< starts without the keyboard
    bool kernel = false;    ///< lend it through the kernel, to every program of the system
    bool day = false;
    Milliseconds dayPause{3000}; ///< between two of the user's actions, on average
    bool help = false;
};

/// The options, or what is wrong with them.
struct ParsedOptions {
    LauncherOptions options;
    std::string error;
};

ParsedOptions parseLauncherOptions(std::span<char* const> arguments);

extern const char* const launcherUsage;

} // namespace tarnix
