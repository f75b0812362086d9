// A folder of a test's own, gone with the test.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace tarnix {

class TempFolder {
  public:
    TempFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "tarnix_test.XXXXXX").string();
        if (::mkdtemp(pattern.data()) != nullptr) m_path = pattern;
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    std::filesystem::path operator/(const std::string& name) const { return m_path / name; }

  private:
    std::filesystem::path m_path;
};

} // namespace tarnix
