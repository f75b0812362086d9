// Files in memory, with a log of what was asked and faults on demand.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace tarnix {

class MemoryFiles : public Files {
  public:
    std::map<std::string, std::string> contents;
    /// "read PATH", "replace PATH", "set aside PATH" in the order of the calls, failed ones with " failed" at
    /// the end.
    std::vector<std::string> log;
    int failWriteNumber = 0; ///< this write (from 1, counted from now) fails; 0: none

    std::optional<std::string> read(const std::string& path) override {
        const auto found = contents.find(path);
        note("read", path, found != contents.end());
        if (found == contents.end()) return std::nullopt;
        return found->second;
    }

    bool replace(const std::string& path, std::string_view text) override {
        const bool done = !path.empty() && (failWriteNumber == 0 || --failWriteNumber != 0);
        note("replace", path, done);
        if (done) contents[path] = std::string(text);
        return done;
    }

    bool setAside(const std::string& path) override {
        const auto found = contents.find(path);
        note("set aside", path, true);
        if (found != contents.end()) {
            contents[path + ".bak"] = found->second;
            contents.erase(path);
        }
        return true;
    }

  private:
    void note(const char* what, const std::string& path, bool done) {
        log.push_back(std::string(what) + ' ' + path + (done ? "" : " failed"));
    }
};

} // namespace tarnix
