#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <random>
#include <system_error>
#include <utility>

#include "file_descriptor.h"

namespace tarnix {

namespace {

namespace fs = std::filesystem;

/// The path as it stands if there is such a file, else with the program's own separator read as the system's.
/// Empty for a text that the system would cut short.
fs::path systemPath(std::string name) {
    if (name.find('\0') != std::string::npos) return {};
    std::error_code error;
    if (!fs::exists(fs::symlink_status(name, error))) std::replace(name.begin(), name.end(), '\\', '/');
    return name;
}

/// The file that a path leads to, whether it exists or not, so that replacing it leaves a link in place.
/// Empty when the links go in a circle.
fs::path linkTarget(fs::path path) {
    constexpr int longestChain = 40;
    for (int i = 0; i < longestChain; ++i) {
        std::error_code error;
        if (!fs::is_symlink(fs::symlink_status(path, error))) return path;
        const fs::path target = fs::read_symlink(path, error);
        if (error) return {};
        path = path.parent_path() / target;
    }
    return {};
}

std::optional<std::string> readAll(int descriptor, std::size_t size) {
    std::string text(size, '\0');
    std::size_t filled = 0;
    while (filled < size) {
        const ssize_t count = ::read(descriptor, text.data() + filled, size - filled);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
    }
    text.resize(filled);
    return text;
}

bool writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = ::write(descriptor, text.data(), text.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

/// A new file in the folder. Where the file system can do so it has no name while it is written, so that a
/// process that dies leaves nothing behind; else one that nobody else uses. Removed again unless it gets a
/// lasting name.
class TemporaryFile {
  public:
    TemporaryFile(const fs::path& folder, mode_t mode) : m_folder(folder), m_file(create(mode)) {}
    ~TemporaryFile() {
        if (!m_path.empty()) ::unlink(m_path.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    bool fill(std::string_view text) {
        return m_file && writeAll(m_file.get(), text) && ::fsync(m_file.get()) == 0;
    }
    /// Beyond what the process's mask lets through at creation. A file system without permissions is no
    /// failure.
    void setMode(mode_t mode) { ::fchmod(m_file.get(), mode); }

    bool rename(const fs::path& target) {
        if (m_path.empty() && !giveName()) return false;
        if (!m_file.close() || ::rename(m_path.c_str(), target.c_str()) != 0) return false;
        m_path.clear();
        return true;
    }

  private:
    int create(mode_t mode) {
        const bool canBeNamed = ::access(openFiles, X_OK) == 0;
        const int nameless =
            canBeNamed ? ::open(m_folder.c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, mode) : -1;
        if (nameless >= 0) return nameless;
        int number = -1;
        claimName([&](const char* path) {
            number = ::open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
            return number >= 0;
        });
        return number;
    }

    bool giveName() {
        const std::string file = openFiles + ('/' + std::to_string(m_file.get()));
        return claimName([&](const char* path) {
            return ::linkat(AT_FDCWD, file.c_str(), AT_FDCWD, path, AT_SYMLINK_FOLLOW) == 0;
        });
    }

    /// Tries names until one is free; whether the file has one then.
    template <class Claim>
    bool claimName(Claim claim) {
        constexpr int attempts = 100;
        std::random_device random;
        for (int i = 0; i < attempts; ++i) {
            const fs::path path = m_folder / (".tarnix-" + std::to_string(random()));
            if (claim(path.c_str())) m_path = path;
            if (!m_path.empty() || errno != EEXIST) break;
        }
        return !m_path.empty();
    }

    static constexpr const char* openFiles = "/proc/self/fd";

    fs::path m_folder;
    fs::path m_path; ///< empty without a name
    FileDescriptor m_file;
};

/// Makes renames in the folder last. File systems that cannot do so keep them in their own time.
void flushFolder(const fs::path& folder) {
    const FileDescriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened) ::fsync(opened.get());
}

class SystemFiles : public Files {
  public:
    std::optional<std::string> read(const std::string& path) override {
        const fs::path source = systemPath(path);
        // A pipe that takes its name must not be waited for.
        const FileDescriptor file(::open(source.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
        struct stat status {};
        if (!file || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
        if (static_cast<std::uintmax_t>(status.st_size) > maxFileSize) return std::nullopt;
        return readAll(file.get(), static_cast<std::size_t>(status.st_size));
    }

    bool replace(const std::string& path, std::string_view text) override {
        const fs::path target = linkTarget(systemPath(path));
        if (!target.has_filename()) return false;
        const fs::path folder = target.has_parent_path() ? target.parent_path() : ".";

        struct stat old {};
        const bool exists = ::stat(target.c_str(), &old) == 0;
        if (exists && (!S_ISREG(old.st_mode) || ::access(target.c_str(), W_OK) != 0)) return false;
        if (!exists && !makeFolder(folder)) return false;

        constexpr mode_t newFileMode = 0666;
        const mode_t mode = exists ? old.st_mode & 07777 : newFileMode;
        TemporaryFile written(folder, mode);
        if (!written.fill(text)) return false;
        if (exists) written.setMode(mode);
        if (!written.rename(target)) return false;
        flushFolder(folder);
        return true;
    }

    bool setAside(const std::string& path) override {
        const fs::path target = linkTarget(systemPath(path));
        std::error_code error;
        const fs::file_status status = fs::symlink_status(target, error);
        if (status.type() == fs::file_type::not_found) return true;
        if (!fs::is_regular_file(status)) return false;
        fs::path aside = target;
        aside += ".bak";
        return ::rename(target.c_str(), aside.c_str()) == 0;
    }

  private:
    /// A relative path may be another system's absolute one, whose folders nobody wants here.
    static bool makeFolder(const fs::path& folder) {
        std::error_code error;
        if (folder.is_absolute()) fs::create_directories(folder, error);
        return fs::is_directory(folder, error);
    }
};

} // namespace

std::unique_ptr<Files> makeSystemFiles() {
    return std::make_unique<SystemFiles>();
}

} // namespace tarnix
