// The program outside its main window: the notification-area icon with its menu, and the on-screen display.
#pragma once

#include <memory>
#include <optional>

#include "app/on_screen_display.h"
#include "platform/shell.h"
#include "ui/desktop_presence.h"

namespace tarnix {

class TrayPresence : public DesktopPresence {
  public:
    void AddTrayIcon(Window& mainWindow) override;
    void RemoveTrayIcon() override { m_icon.reset(); }
    bool isTrayShown() const override { return m_icon && m_icon->available(); }
    void OnDeviceEvent(WParam code) override;
    void OnTimer(unsigned id) override;

  private:
    std::unique_ptr<TrayIcon> m_icon;
    std::optional<OnScreenDisplay> m_display;
};

} // namespace tarnix
