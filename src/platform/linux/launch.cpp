#include "platform/linux/launch.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <string_view>

#include "platform/linux/file_descriptor.h"

namespace tarnix {
namespace {

enum class TargetKind { Nothing, Program, Document };

bool hasScheme(std::string_view text, std::string_view scheme) {
    if (text.size() <= scheme.size()) return false;
    return std::equal(scheme.begin(), scheme.end(), text.begin(),
                      [](char a, char b) { return a == (b >= 'A' && b <= 'Z' ? b - 'A' + 'a' : b); });
}

TargetKind classify(const std::string& target) {
    if (isWebAddress(target)) return TargetKind::Document;
    // A name with a null byte would be looked up by its front part alone.
    if (!target.starts_with('/') || target.find('\0') != std::string::npos) return TargetKind::Nothing;
    struct stat status {};
    if (::stat(target.c_str(), &status) != 0) return TargetKind::Nothing;
    if (S_ISREG(status.st_mode) && ::access(target.c_str(), X_OK) == 0) return TargetKind::Program;
    return TargetKind::Document;
}

void resetSignals() {
    for (int number = 1; number < NSIG; ++number)
        ::signal(number, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

/// In the forked process: makes a grandchild that becomes the program, so that nobody here has to wait for
/// it. Only calls that are safe after a fork of a process with threads.
[[noreturn]] void becomeProgram(const char* path, int report) {
    ::setsid();
    const pid_t program = ::fork();
    if (program == 0) {
        resetSignals();
        const int null = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
        if (null >= 0) ::dup2(null, STDIN_FILENO);
        ::close_range(STDERR_FILENO + 1, ~0u, CLOSE_RANGE_CLOEXEC);
        const std::array<char*, 2> arguments{const_cast<char*>(path), nullptr};
        ::execv(path, arguments.data());
    }
    if (program <= 0) {
        const int failure = errno;
        if (::write(report, &failure, sizeof failure) < 0) ::_exit(1);
    }
    ::_exit(0);
}

/// 0, or why the program did not start.
int startProgram(const std::string& path) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) return errno;
    const FileDescriptor reader(ends[0]);
    FileDescriptor writer(ends[1]);
    const pid_t child = ::fork();
    if (child == 0) becomeProgram(path.c_str(), writer.get());
    if (child < 0) return errno;
    writer = {};
    while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    // A program that started has closed its copy of the pipe without a word.
    int failure = 0;
    while (::read(reader.get(), &failure, sizeof failure) < 0 && errno == EINTR) {
    }
    return failure;
}

} // namespace

bool isWebAddress(const std::string& text) {
    if (!hasScheme(text, "http://") && !hasScheme(text, "https://")) return false;
    return std::none_of(text.begin(), text.end(), [](unsigned char c) {
        return c <= ' ' || c == '\x7F' || c == '"' || c == '<' || c == '>';
    });
}

void launchTarget(const std::string& target, const std::function<void(const std::string&)>& opener) {
    switch (classify(target)) {
        case TargetKind::Nothing:
            return;
        case TargetKind::Program:
            // Some file systems mark every file executable; those that are no program have an application.
            if (startProgram(target) == ENOEXEC) opener(target);
            return;
        case TargetKind::Document:
            opener(target);
            return;
    }
}

} // namespace tarnix
