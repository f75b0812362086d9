// What the keyboard says, shown for five to six seconds after the last event.
#pragma once

#include <memory>

#include "app/osd_dialog.h"

namespace tarnix {

class OnScreenDisplay {
  public:
    /// The display counts down on a timer of `owner`.
    explicit OnScreenDisplay(Window& owner) : m_owner(owner) {}

    /// Shows the text of an event code 1 to 7; other codes show nothing.
    void OnDeviceEvent(WParam code);
    /// A tick of any timer of the owner.
    void OnTimer(unsigned id);

  private:
    void ShowOSD(const char* text);

    Window& m_owner;
    std::unique_ptr<COSDDialog> m_pOSD;
    int m_secondsLeft = 0;
};

} // namespace tarnix
