// A folder to work in, and tarnixctl run there as a process.
#pragma once

#include <gmock/gmock.h>
#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "support/temp_folder.h"

namespace tarnix {

class CtlBench : public testing::Test {
  protected:
    struct Outcome {
        int status = -1;
        std::string out;
        std::string error;
    };

    void SetUp() override {
        // The program's lock and the mocked system are this test's own.
        ::setenv("XDG_RUNTIME_DIR", folder.path().c_str(), 1);
        ::setenv("TMPDIR", folder.path().c_str(), 1);
        ::setenv("CTL", TARNIX_CTL, 1);
    }
    void TearDown() override { ::unsetenv("TMPDIR"); }

    std::string path(const std::string& name) const { return (folder / name).string(); }

    std::string fileText(const std::string& name) const {
        std::ifstream file(folder / name, std::ios::binary);
        std::ostringstream text;
        text << file.rdbuf();
        return text.str();
    }
    void writeFile(const std::string& name, const std::string& text) const {
        std::ofstream(folder / name, std::ios::binary) << text;
    }

    std::string inFolder(const std::string& line) const {
        return "cd " + folder.path().string() + " && { " + line + "; }";
    }
    /// A shell line that runs in the folder; "$CTL" is the program.
    Outcome shell(const std::string& line) const {
        const int status = std::system((inFolder(line) + " > .out 2> .error").c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, fileText(".out"), fileText(".error")};
    }
    Outcome ctl(const std::string& arguments) const { return shell("$CTL " + arguments); }

    TempFolder folder;
};

} // namespace tarnix
