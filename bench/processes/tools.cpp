#include "processes/tools.h"

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <stdexcept>

namespace tarnix::bench {

namespace fs = std::filesystem;

namespace {

/// Pages of a file that is not yet on the disk count as dirty memory of the program that maps it.
void flush(const fs::path& path) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0 || ::fsync(file) != 0) throw std::runtime_error("cannot flush " + path.string());
    ::close(file);
}

} // namespace

Tools::Tools(const fs::path& buildFolder) : m_build(fs::absolute(buildFolder)) {
    std::string name = fs::temp_directory_path() / "tarnix-bench.XXXXXX";
    if (!::mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
    m_folder = name;
    fs::copy(m_build / "tarnix-keyboard", m_folder);
    flush(m_folder / "tarnix-keyboard");
}

Tools::~Tools() {
    std::error_code ignored;
    fs::remove_all(m_folder, ignored);
}

Recipe Tools::beside(Recipe recipe) {
    const fs::path runtime = m_folder / ("runtime-" + std::to_string(++m_runtimeFolders));
    fs::create_directory(runtime);
    fs::permissions(runtime, fs::perms::owner_all);
    recipe.environment.push_back("XDG_RUNTIME_DIR=" + runtime.string());
    return recipe;
}

std::unique_ptr<Process> Tools::start(const Recipe& recipe) const {
    return std::make_unique<Process>(recipe, path("bench-stamp"), m_folder);
}

Recipe inGnome(Recipe recipe) {
    recipe.environment.push_back("XDG_CURRENT_DESKTOP=GNOME");
    recipe.environment.push_back("DESKTOP_SESSION=gnome");
    return recipe;
}

} // namespace tarnix::bench
