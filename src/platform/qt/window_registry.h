// The program's existing windows by number. A number stands for one life of a native window and is never used
// again, so that what was meant for a window that is gone reaches no other.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

class QWindow;

namespace tarnix {

class Window;

using WindowHandle = std::uint64_t; ///< 0 is none

class WindowRegistry {
  public:
    static WindowRegistry& instance();

    WindowHandle add(Window& window);
    void remove(WindowHandle handle) { m_windows.erase(handle); }
    /// None when that window is gone.
    Window* find(WindowHandle handle) const;
    Window* find(const QWindow* native) const;
    /// Directly owned, the newest first.
    std::vector<WindowHandle> ownedBy(const Window& owner) const;
    /// Whether the owner, its owner and so on includes `ancestor`.
    static bool isOwnedBy(const Window& window, const Window& ancestor);
    /// The first window with a taskbar button; none before it is made.
    Window* mainWindow() const;
    /// The window that the given one stands over: its owner, else the main window. None for the main window.
    Window* behind(const Window& window) const;

  private:
    std::map<WindowHandle, Window*> m_windows; ///< in the order of creation
    WindowHandle m_last = 0;
};

} // namespace tarnix
