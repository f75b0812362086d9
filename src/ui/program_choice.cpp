#include "ui/program_choice.h"

namespace tarnix {

std::optional<std::string> chooseProgram(Shell& shell, Window& owner, const std::string& proposedName) {
    return shell.openFile({.title = "Open",
                           .filter = "exe file(*.exe)|*.exe",
                           .defaultExtension = "exe",
                           .fileName = proposedName},
                          owner);
}

std::string_view fileNameOf(std::string_view path) {
    const auto slash = path.find_last_of("/\\");
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

} // namespace tarnix
