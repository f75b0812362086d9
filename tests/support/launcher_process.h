// The launcher of the virtual keyboard as a process, for tests of it and of programs that talk to the
// keyboard.
#pragma once

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <string>
#include <utility>
#include <vector>

#include "platform/linux/file_descriptor.h"

namespace tarnix {

/// A launcher with a program beside it, both writing to one socket.
class LauncherProcess {
  public:
    LauncherProcess(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), TARNIX_LAUNCHER);
        std::vector<char*> words;
        for (std::string& word : arguments)
            words.push_back(word.data());
        words.push_back(nullptr);
        int ends[2];
        if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return;
        m_pid = ::fork();
        if (m_pid == 0 && ::dup2(ends[1], STDIN_FILENO) >= 0 && ::dup2(ends[1], STDOUT_FILENO) >= 0)
            ::execv(words[0], words.data());
        if (m_pid == 0) ::_exit(127);
        ::close(ends[1]);
        m_socket = FileDescriptor(ends[0]);
    }
    ~LauncherProcess() {
        if (m_pid > 0) signal(SIGTERM), static_cast<void>(status());
    }
    LauncherProcess(const LauncherProcess&) = delete;
    LauncherProcess& operator=(const LauncherProcess&) = delete;

    void command(const std::string& line) {
        EXPECT_GT(::write(m_socket.get(), (line + '\n').c_str(), line.size() + 1), 0);
    }
    void signal(int number) { ::kill(m_pid, number); }

    /// What came since the last call, up to and with the text; the whole rest when that ends first.
    std::string until(const std::string& text) {
        std::size_t found = 0;
        pollfd wait{m_socket.get(), POLLIN, 0};
        char bytes[4096];
        while ((found = m_pending.find(text)) == std::string::npos && ::poll(&wait, 1, 20000) > 0) {
            const ssize_t length = ::read(m_socket.get(), bytes, sizeof bytes);
            if (length <= 0) return std::exchange(m_pending, {});
            m_pending.append(bytes, static_cast<std::size_t>(length));
        }
        found = found == std::string::npos ? m_pending.size() : found + text.size();
        return std::exchange(m_pending, m_pending.substr(found)).substr(0, found);
    }
    std::string rest() { return until(std::string(1, '\0')); }

    int status() {
        int status = -1;
        ::waitpid(std::exchange(m_pid, -1), &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }

  private:
    pid_t m_pid = -1;
    FileDescriptor m_socket;
    std::string m_pending;
};

} // namespace tarnix
