#include "processes/process.h"

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <thread>

namespace tarnix::bench {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto longestStart = 10s;
constexpr int longestEnd = 10000; ///< ms
constexpr double kibPerMib = 1024;

std::string procFile(pid_t process, const std::string& name) {
    return "/proc/" + std::to_string(process) + "/" + name;
}

/// The number behind a name in a file of lines "name: number".
double field(const std::string& path, const std::string& name) {
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(name + ":")) return std::stod(line.substr(name.size() + 1));
    }
    return 0;
}

std::vector<std::string> commandLine(const Recipe& recipe, const std::string& stamp,
                                     const std::string& stampFile) {
    std::vector<std::string> words;
    if (!recipe.launcher.empty()) words = {recipe.launcher, "--"};
    words.insert(words.end(), {stamp, stampFile, recipe.program});
    return words;
}

[[noreturn]] void become(const std::vector<std::string>& words, const std::vector<std::string>& environment) {
    for (const std::string& variable : environment)
        ::putenv(const_cast<char*>(variable.c_str()));
    std::vector<char*> arguments;
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    ::execv(arguments[0], arguments.data());
    ::perror(arguments[0]);
    ::_exit(127);
}

} // namespace

Process::Process(const Recipe& recipe, const std::string& stamp, const std::string& folder)
    : m_stampFile(folder + "/started-" + std::to_string(Clock::now().time_since_epoch().count())) {
    const std::vector<std::string> words = commandLine(recipe, stamp, m_stampFile);
    int output[2];
    if (::pipe2(output, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    m_child = ::fork();
    if (m_child == 0) {
        ::dup2(::open("/dev/null", O_RDONLY), STDIN_FILENO);
        ::dup2(output[1], STDOUT_FILENO);
        become(words, recipe.environment);
    }
    ::close(output[1]);
    if (m_child < 0) throw std::runtime_error("no process");
    m_output.start(output[0]);
}

Process::~Process() {
    if (m_program > 0) ::kill(m_program, SIGKILL);
    ::kill(m_child, SIGTERM);
    ::waitpid(m_child, nullptr, 0);
    std::error_code ignored;
    std::filesystem::remove(m_stampFile, ignored);
}

void Process::readStamp() {
    const SteadyTime deadline = Clock::now() + longestStart;
    while (Clock::now() < deadline) {
        std::ifstream file(m_stampFile);
        long long nanoseconds = 0;
        std::string end;
        if (file >> m_program >> nanoseconds >> end && end == "end") {
            m_started = SteadyTime(std::chrono::nanoseconds(nanoseconds));
            return;
        }
        std::this_thread::sleep_for(1ms);
    }
    throw std::runtime_error("the program does not start");
}

SteadyTime Process::started() {
    if (m_program <= 0) readStamp();
    return m_started;
}

Memory Process::memory() {
    started();
    const std::string file = procFile(m_program, "smaps_rollup");
    return {field(file, "Pss") / kibPerMib, field(file, "Private_Dirty") / kibPerMib,
            field(file, "Rss") / kibPerMib};
}

Activity Process::activity() {
    started();
    Activity sum;
    for (const auto& task : std::filesystem::directory_iterator(procFile(m_program, "task"))) {
        sum.wakeUps += static_cast<long>(field(task.path() / "status", "voluntary_ctxt_switches"));
        ++sum.threads;
    }
    std::ifstream file(procFile(m_program, "stat"));
    std::string text;
    std::getline(file, text);
    // Behind the name in brackets: the state and ten numbers, then user and system time.
    long user = 0;
    long system = 0;
    std::sscanf(text.c_str() + text.rfind(')') + 1, " %*c %*d %*d %*d %*d %*d %*u %*u %*u %*u %*u %ld %ld",
                &user, &system);
    sum.cpuTicks = user + system;
    return sum;
}

std::optional<Span> Process::end() {
    started();
    const int handle = static_cast<int>(::syscall(SYS_pidfd_open, m_program, 0));
    const SteadyTime asked = Clock::now();
    ::kill(m_program, SIGTERM);
    pollfd ended{handle, POLLIN, 0};
    const bool gone = ::poll(&ended, 1, longestEnd) == 1;
    const SteadyTime now = Clock::now();
    ::close(handle);
    if (!gone) return std::nullopt;
    m_program = -1;
    return now - asked;
}

} // namespace tarnix::bench
