#include "app/tray_presence.h"

#include "platform/resources.h"
#include "skin/dlg_base.h"
#include "ui/messages.h"

namespace tarnix {

void TrayPresence::AddTrayIcon(Window& mainWindow) {
    m_display.emplace(mainWindow);
    const Image* icon = resources().find(ResourceType::Icon, CDlgBase::iconId);
    if (!icon) return;
    // A window that is hidden when the area goes would have no way back.
    const auto minimiseHidden = [&mainWindow] {
        if (!mainWindow.isVisible()) mainWindow.minimise();
    };
    m_icon = makeTrayIcon(
        *icon, programTitle, {{"Config Tarnix Keyboard", command::showWindow}, {}, {"Exit", command::exit}},
        {.activated = [&mainWindow] { mainWindow.send(msg::trayNotify, CDlgBase::iconId, trayDoubleClick); },
         .selected = [&mainWindow](unsigned chosen) { mainWindow.send(msg::command, chosen); },
         .vanished = minimiseHidden});
}

void TrayPresence::OnDeviceEvent(WParam code) {
    if (m_display) m_display->OnDeviceEvent(code);
}

void TrayPresence::OnTimer(unsigned id) {
    if (m_display) m_display->OnTimer(id);
}

} // namespace tarnix
