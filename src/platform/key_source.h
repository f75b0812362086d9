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

/// While at least one of these lives, the program's windows act on no key: Escape, Enter, Tab and Space
/// close, end and press nothing, and no field is typed into. The keys that the windows would have got are
/// handed to the listener. The user-interface thread's alone.
class KeyInterception {
  public:
    /// The listener may be none.
    explicit KeyInterception(std::function<void(const WindowKey&)> listener);
    ~KeyInterception();
    KeyInterception(const KeyInterception&) = delete;
    KeyInterception& operator=(const KeyInterception&) = delete;

  private:
    std::function<void(const WindowKey&)> m_listener;
};

} // namespace tarnix
