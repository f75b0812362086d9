#include "virtual/launcher_child.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace tarnix {
namespace {

constexpr Milliseconds graceTime{5000};
constexpr int notStarted = 127;

[[noreturn]] void becomeProgram(char* const* arguments, pid_t launcher) {
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (::getppid() != launcher) ::_exit(notStarted);
    // The standard input is the launcher's, for commands.
    const int null = ::open("/dev/null", O_RDONLY);
    if (null >= 0) ::dup2(null, STDIN_FILENO);
    ::execvp(arguments[0], arguments);
    ::perror(arguments[0]);
    ::_exit(notStarted);
}

} // namespace

LauncherChild::LauncherChild(const std::vector<std::string>& program, std::function<void(int)> ended)
    : m_ended(std::move(ended)) {
    std::vector<char*> arguments;
    arguments.reserve(program.size() + 1);
    for (const std::string& word : program)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    const pid_t launcher = ::getpid();
    m_pid = ::fork();
    if (m_pid == 0) becomeProgram(arguments.data(), launcher);
    if (m_pid > 0) m_watch = g_child_watch_add(m_pid, onExit, this);
}

LauncherChild::~LauncherChild() {
    if (m_watch == 0) return;
    g_source_remove(m_watch);
    ::kill(m_pid, SIGKILL);
    ::waitpid(m_pid, nullptr, 0);
}

void LauncherChild::terminate() {
    if (m_watch == 0) return;
    ::kill(m_pid, SIGTERM);
    m_force = GlibSource::every(graceTime, [this] {
        ::kill(m_pid, SIGKILL);
        return false;
    });
}

void LauncherChild::onExit(int, int status, void* self) {
    auto& child = *static_cast<LauncherChild*>(self);
    child.m_watch = 0;
    child.m_force = {};
    child.m_ended(WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status));
}

} // namespace tarnix
