// Which of the program's windows is the active one. Popups never have the desktop's keyboard focus, so the
// layer keeps this itself: at most one window is active, and it hears of the change before the caller goes
// on.
#pragma once

#include "window_registry.h"

namespace tarnix {

class Activation {
  public:
    static Activation& instance();

    /// Deactivates the one before, then activates the window, or none.
    void activate(Window* window);
    /// A button went down in the window.
    void pressed(Window& window);
    /// The window is about to be hidden, minimised or destroyed: it and what it owns cannot stay active.
    void withdraw(Window& window);
    /// The desktop gave its focus to another window, perhaps none of ours.
    void focusMoved();

  private:
    WindowHandle m_active = 0;
};

} // namespace tarnix
