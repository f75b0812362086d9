#include "ctl/output.h"

#include <unistd.h>

#include <cstdio>
#include <utility>

namespace tarnix {

namespace {

void writeText(std::FILE* stream, std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stream);
}

} // namespace

void printLine(std::string_view line) {
    writeText(stdout, line);
    writeText(stdout, "\n");
    std::fflush(stdout);
}

void complain(std::string_view message) {
    writeText(stderr, "tarnixctl: ");
    writeText(stderr, message);
    writeText(stderr, "\n");
}

bool finishOutput() {
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

Progress::Progress(int stepCount) : m_stepCount(stepCount), m_terminal(::isatty(STDERR_FILENO) == 1) {}

void Progress::end() {
    if (std::exchange(m_lineOpen, false)) writeText(stderr, "\n");
}

void Progress::step(std::string_view name) {
    constexpr const char* clearedLine = "\r\033[K";
    if (m_terminal) writeText(stderr, clearedLine);
    std::fprintf(stderr, "[%d/%d] ", ++m_step, m_stepCount);
    writeText(stderr, name);
    m_lineOpen = true;
    if (!m_terminal) end();
}

} // namespace tarnix
