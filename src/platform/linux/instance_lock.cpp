#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <vector>

#include "platform/linux/file_descriptor.h"
#include "platform/shell.h"

namespace tarnix {
namespace {

/// The lock belongs to the open file, so the kernel releases it however the process ends.
class FileLock final : public InstanceLock {
  public:
    explicit FileLock(FileDescriptor file) : m_file(std::move(file)) {}

  private:
    FileDescriptor m_file;
};

/// A folder that nobody but this user can put files in.
bool isPrivate(const std::string& folder) {
    struct stat status {};
    return ::lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::geteuid() &&
           (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

std::string environment(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr || *value != '/' ? std::string() : value;
}

/// Where the lock may lie, the best place first.
std::vector<std::string> lockFolders() {
    std::vector<std::string> folders;
    const std::string session = environment("XDG_RUNTIME_DIR");
    if (!session.empty() && isPrivate(session)) folders.push_back(session);
    const std::string temporary = environment("TMPDIR");
    const std::string own =
        (temporary.empty() ? "/tmp" : temporary) + "/tarnix-keyboard-" + std::to_string(::geteuid());
    ::mkdir(own.c_str(), S_IRWXU);
    if (isPrivate(own)) folders.push_back(own);
    return folders;
}

std::string fileName(std::string name) {
    const auto plain = [](unsigned char c) { return std::isalnum(c) != 0 || c == '-' || c == '_'; };
    std::replace_if(
        name.begin(), name.end(), [&](char c) { return !plain(static_cast<unsigned char>(c)); }, '-');
    return "/" + name + ".lock";
}

} // namespace

std::unique_ptr<InstanceLock> acquireInstanceLock(const std::string& name) {
    for (const std::string& folder : lockFolders()) {
        const std::string path = folder + fileName(name);
        FileDescriptor file(
            ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, S_IRUSR | S_IWUSR));
        if (!file) continue;
        // The sticky bit keeps the clean-up of the session's folder from taking the file away.
        ::fchmod(file.get(), S_IRUSR | S_IWUSR | S_ISVTX);
        if (::flock(file.get(), LOCK_EX | LOCK_NB) == 0) return std::make_unique<FileLock>(std::move(file));
        if (errno == EWOULDBLOCK) return nullptr;
    }
    // With no place for a lock nobody can say that another process holds it.
    return std::make_unique<FileLock>(FileDescriptor());
}

} // namespace tarnix
