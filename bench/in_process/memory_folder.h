// A folder without a disk below it: files are read and replaced by the system's own means, and only the flush
// costs nothing.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace tarnix::bench {

class MemoryFolder {
  public:
    MemoryFolder() {
        std::string name = "/dev/shm/tarnix-bench.XXXXXX";
        if (!::mkdtemp(name.data())) throw std::runtime_error("no folder in /dev/shm");
        m_path = name;
    }
    ~MemoryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    MemoryFolder(const MemoryFolder&) = delete;
    MemoryFolder& operator=(const MemoryFolder&) = delete;

    /// With the slash at its end.
    std::string path() const { return m_path + "/"; }

  private:
    std::string m_path;
};

} // namespace tarnix::bench
