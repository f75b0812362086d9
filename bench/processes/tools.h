// The programs that are measured, and a folder for what they leave behind.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "processes/process.h"

namespace tarnix::bench {

class Tools {
  public:
    /// The programs lie in the given folder of the build tree. The program itself is copied, so that it keeps
    /// its files in a folder of its own.
    explicit Tools(const std::filesystem::path& buildFolder);
    ~Tools();
    Tools(const Tools&) = delete;
    Tools& operator=(const Tools&) = delete;

    Recipe bareXWindow() const { return {path("bench-bare-x-window"), {}, {}}; }
    Recipe bareWindow() const { return {path("bench-bare-window"), {}, {}}; }
    Recipe program() const { return {m_folder / "tarnix-keyboard", {}, {}}; }
    Recipe programWithKeyboard() const {
        return {m_folder / "tarnix-keyboard", {}, path("tarnix-virtual-keyboard")};
    }
    /// A runtime folder of its own lets a program run beside others of its kind.
    Recipe beside(Recipe recipe);

    std::unique_ptr<Process> start(const Recipe& recipe) const;

  private:
    std::string path(const char* name) const { return m_build / name; }

    std::filesystem::path m_build;
    std::filesystem::path m_folder;
    int m_runtimeFolders = 0;
};

/// As in a GNOME session.
Recipe inGnome(Recipe recipe);

} // namespace tarnix::bench
