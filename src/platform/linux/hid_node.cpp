#include "platform/hid_node.h"

#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "platform/linux/file_descriptor.h"
#include "platform/linux/hid_path.h"

namespace tarnix {

namespace {

std::string permissionsOf(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return std::strerror(errno);
    std::array<char, 8> mode{};
    std::snprintf(mode.data(), mode.size(), "%04o", static_cast<unsigned>(status.st_mode & 07777));
    const passwd* const user = ::getpwuid(status.st_uid);
    const group* const owners = ::getgrgid(status.st_gid);
    return std::string(mode.data()) + ' ' +
           (user != nullptr ? user->pw_name : std::to_string(status.st_uid)) + ':' +
           (owners != nullptr ? owners->gr_name : std::to_string(status.st_gid));
}

HidOpening resultOf(int error) {
    switch (error) {
        case EACCES:
        case EPERM:
            return HidOpening::Denied;
        case EBUSY:
            return HidOpening::Busy;
        default:
            return HidOpening::Gone;
    }
}

} // namespace

HidNode examineHidNode(const HidInterface& interface) {
    const std::string path = nodeOfHidPath(interface.path);
    return {path, permissionsOf(path), ::access(path.c_str(), R_OK) == 0};
}

HidOpeningTrial tryHidNode(const HidInterface& interface) {
    const std::string path = nodeOfHidPath(interface.path);
    const FileDescriptor opened(::open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    if (opened) return {};
    return {resultOf(errno), std::strerror(errno)};
}

} // namespace tarnix
