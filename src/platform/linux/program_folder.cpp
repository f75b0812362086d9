#include "platform/linux/program_folder.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>

#include "platform/shell.h"

namespace tarnix {
namespace {

namespace fs = std::filesystem;

/// Folders whose programs belong to an installation, even where the user may write there.
bool holdsInstalledPrograms(const fs::path& folder) {
    for (const char* name : {"bin", "sbin", "games", "libexec"}) {
        if (folder.filename() == name) return true;
    }
    return false;
}

std::string configHome() {
    const char* const set = std::getenv("XDG_CONFIG_HOME");
    if (set != nullptr && *set == '/') return set;
    const char* home = std::getenv("HOME");
    if (home == nullptr || *home != '/') {
        const passwd* const user = ::getpwuid(::geteuid());
        home = user != nullptr ? user->pw_dir : "/";
    }
    return std::string(home) + "/.config";
}

} // namespace

std::string programFolderOf(const std::string& executable, const std::string& configHome) {
    const fs::path own = fs::path(executable).parent_path();
    if (own.is_absolute() && !holdsInstalledPrograms(own) && ::access(own.c_str(), W_OK | X_OK) == 0)
        return (own / "").string();
    const fs::path folder = fs::path(configHome) / "tarnix-keyboard";
    std::error_code ignored; // the files in it are then not written, as with a full disk
    fs::create_directories(folder, ignored);
    return (folder / "").string();
}

std::string programFolder() {
    std::error_code error;
    return programFolderOf(fs::read_symlink("/proc/self/exe", error).string(), configHome());
}

} // namespace tarnix
