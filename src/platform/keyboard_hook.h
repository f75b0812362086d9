// System-wide key events for recording and key capture.
#pragma once

#include <memory>

namespace tarnix {

class Window;

/// The message that a hook posts: wParam the Win32 virtual-key code, lParam the time in milliseconds in bits
/// 0 to 30, bit 31 set for a release. Keypad Enter is 0x0E; left and right modifiers are told apart (0xA0 to
/// 0xA5).
inline constexpr unsigned WM_KEYHOOK = 0x401;

/// Reports every key press and release of the session to one window while it runs; the keys reach other
/// programs too. Where the session gives no system-wide keys, those that reach the program's own windows.
/// While a hook runs, the program's own windows do not act on keys, but for a modal window over its target.
class CKeyboardHook {
  public:
    CKeyboardHook();
    ~CKeyboardHook();
    CKeyboardHook(const CKeyboardHook&) = delete;
    CKeyboardHook& operator=(const CKeyboardHook&) = delete;

    /// Starts posting to the window, which must outlive the hook's run. Nonzero on success.
    int StartHook(Window& target);
    int StopHook();

    struct Native;

  private:
    std::unique_ptr<Native> m_native;
};

} // namespace tarnix
