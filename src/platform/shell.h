// What the program asks of the desktop shell.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/canvas.h"

namespace tarnix {

class Window;

/// An open or save dialog. `filter` is text and pattern with a bar between, e.g. "psf file(*.psf)|*.psf";
/// "All files (*)" is offered after it.
struct FileDialog {
    std::string title;
    std::string filter;
    std::string defaultExtension; ///< appended to a new name without one
    std::string fileName;
};

class Shell {
  public:
    virtual ~Shell() = default;
    /// A plain box with one text and OK.
    virtual void messageBox(const std::string& text) = 0;
    /// The full path of a file that exists; none on Cancel. Starts in the process's current folder.
    virtual std::optional<std::string> openFile(const FileDialog& dialog, Window& owner) = 0;
    /// The full path of a file to write, replacing confirmed; none on Cancel.
    virtual std::optional<std::string> saveFile(const FileDialog& dialog, Window& owner) = 0;
    /// Hands an http, https or mailto address to the desktop's opener.
    virtual void openLink(const std::string& address) = 0;
    /// Starts what a G-key names: an executable regular file by absolute path, without arguments and without
    /// a shell; another existing absolute path or an http(s) address through the desktop's opener; anything
    /// else does nothing.
    virtual void launch(const std::string& target) = 0;
};

std::unique_ptr<Shell> makeSystemShell();

/// An entry of the notification-area menu; an empty text is a separator.
struct MenuItem {
    std::string text;
    unsigned command = 0;
};

/// The icon in the notification area; taken away when destroyed. It is added again by itself when the
/// desktop's notification area starts after the program.
class TrayIcon {
  public:
    struct Callbacks {
        std::function<void()> activated;                ///< double-click, or the tray host's "activate"
        std::function<void(unsigned command)> selected; ///< a menu entry was chosen
        /// The notification area has gone, and not come back for some seconds.
        std::function<void()> vanished;
    };
    virtual ~TrayIcon() = default;
    /// True while the desktop has a notification area that shows icons.
    virtual bool available() const = 0;
};

std::unique_ptr<TrayIcon> makeTrayIcon(const Image& icon, const std::string& tip,
                                       const std::vector<MenuItem>& menu, TrayIcon::Callbacks callbacks);

/// A named lock of this user's session, released when destroyed and by the end of the process, however it
/// ends.
class InstanceLock {
  public:
    virtual ~InstanceLock() = default;
};

/// None when another process holds the lock.
std::unique_ptr<InstanceLock> acquireInstanceLock(const std::string& name);

/// The folder that holds the program's `config` folder, with a trailing slash: the executable's own folder
/// where the user may write there and it is no installation's bin folder, else the per-user folder below the
/// XDG configuration home.
std::string programFolder();

} // namespace tarnix
