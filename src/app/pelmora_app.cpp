#include "app/pelmora_app.h"

#include "app/tray_presence.h"
#include "macro/macro_library.h"
#include "platform/files.h"
#include "platform/hid.h"
#include "platform/shell.h"
#include "profile/profile_store.h"
#include "ui/pelmora_dlg.h"

namespace tarnix {

int CPelmoraApp::InitInstance() {
    const auto shell = makeSystemShell();
    const auto lock = acquireInstanceLock(programTitle);
    if (!lock) {
        shell->messageBox("you had run one app!");
        return 0;
    }

    ProfileStore store;
    MacroLibrary macros;
    TrayPresence presence;
    const auto files = makeSystemFiles();
    const auto hid = makeSystemHid(m_application.mainLoop());
    CPelmoraDlg mainWindow({.store = store,
                            .macros = macros,
                            .files = *files,
                            .clock = m_application.clock(),
                            .hid = *hid,
                            .loop = m_application.mainLoop(),
                            .shell = *shell,
                            .presence = presence,
                            .programFolder = programFolder()});
    m_application.onQuitRequest([&mainWindow] { mainWindow.exitProgram(); });
    mainWindow.DoModal();
    m_application.onQuitRequest({});
    return 0;
}

} // namespace tarnix
