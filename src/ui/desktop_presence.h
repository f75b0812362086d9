// What the main window shows of itself outside its own frame: the icon in the notification area and the
// on-screen display. Provided by the application.
#pragma once

#include "platform/window.h"

namespace tarnix {

class DesktopPresence {
  public:
    virtual ~DesktopPresence() = default;

    /// Adds the icon and the on-screen display. From now on the icon's menu sends msg::command and its
    /// activation msg::trayNotify to the window, and the display counts down on the window's timer.
    virtual void AddTrayIcon(Window& mainWindow) = 0;
    /// Takes the icon away; nothing without one.
    virtual void RemoveTrayIcon() = 0;
    /// True while the desktop shows the icon, so that a hidden window can be had back.
    virtual bool isTrayShown() const = 0;
    /// Shows what an event code of the keyboard says; unknown codes show nothing.
    virtual void OnDeviceEvent(WParam code) = 0;
    /// A tick of any timer of the main window.
    virtual void OnTimer(unsigned id) = 0;
};

} // namespace tarnix
