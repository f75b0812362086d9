// What a keyboard hook and the program's own windows know of each other.
#pragma once

#include <functional>
#include <memory>

namespace tarnix {

/// A key that reached one of the program's windows, by its scan code.
struct WindowKey {
    unsigned scanCode = 0; ///< the evdev key code (linux/input-event-codes.h)
    bool down = true;      ///< a release otherwise; the desktop's repetitions are not reported
};

class Window;

/// While at least one of these lives, the program's windows act on no key: Escape, Enter, Tab and Space
/// close, end and press nothing, and no field is typed into. Only a modal window over the target, a notice,
/// can be answered by keys. All keys of the program's windows are handed to the listener. The user-interface
/// thread's alone.
class KeyInterception {
  public:
    /// For the window that takes the keys. The listener may be none.
    KeyInterception(const Window& target, std::function<void(const WindowKey&)> listener);
    ~KeyInterception();
    KeyInterception(const KeyInterception&) = delete;
    KeyInterception& operator=(const KeyInterception&) = delete;

  private:
    std::function<void(const WindowKey&)> m_listener;
};

} // namespace tarnix
