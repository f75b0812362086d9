// Text files, read and replaced as wholes.
//
// Paths are narrow texts as the user, the desktop or a file gave them. A path is opened as it stands if that
// file exists, else with its backslashes read as slashes.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tarnix {

class Files {
  public:
    /// Larger files are refused: the largest file that this program writes is far smaller.
    static constexpr std::size_t maxFileSize = std::size_t{32} << 20;

    virtual ~Files() = default;
    /// The whole file; none if it cannot be opened, is no regular file, cannot be read to its end, or is too
    /// large.
    virtual std::optional<std::string> read(const std::string& path) = 0;
    /// Replaces the file as a whole: written beside the target, flushed to the disk, renamed over it. A link
    /// stays and its target is replaced; permissions stay. Missing folders of an absolute path are created.
    /// False, with the old file untouched, when any step fails, and for what is there but no regular file or
    /// not to be written.
    virtual bool replace(const std::string& path, std::string_view text) = 0;
    /// Moves a refused file to NAME.bak beside itself, in place of an older one. True when no file is left at
    /// `path`.
    virtual bool setAside(const std::string& path) = 0;
};

/// The files of this system.
std::unique_ptr<Files> makeSystemFiles();

} // namespace tarnix
