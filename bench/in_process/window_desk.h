// The main window with everything real but the keyboard, whose model is in the process: files, time, display,
// tray.
#pragma once

#include <memory>

#include "app/tray_presence.h"
#include "in_process/memory_folder.h"
#include "macro/macro_library.h"
#include "platform/application.h"
#include "platform/files.h"
#include "platform/shell.h"
#include "profile/profile_store.h"
#include "ui/pelmora_dlg.h"
#include "virtual/virtual_hid.h"
#include "virtual/virtual_keyboard.h"

namespace tarnix::bench {

/// Made in main, for the time of all measures.
Application& application();
void setApplication(Application* application);

/// The real clock, which sums up its pauses.
class PauseMeter : public Clock {
  public:
    Milliseconds now() override { return application().clock().now(); }
    void pause(Milliseconds time) override {
        m_sum += time;
        application().clock().pause(time);
    }
    Milliseconds takeSum() { return std::exchange(m_sum, Milliseconds(0)); }

  private:
    Milliseconds m_sum{0};
};

/// Knows the last event of the keyboard that the on-screen display was told of.
class ToldPresence : public TrayPresence {
  public:
    WParam last = 0;

    void OnDeviceEvent(WParam code) override {
        last = code;
        TrayPresence::OnDeviceEvent(code);
    }
};

struct WindowDesk {
    MemoryFolder folder;
    PauseMeter clock;
    VirtualKeyboard keyboard{clock};
    VirtualHid hid{keyboard};
    std::unique_ptr<Files> files = makeSystemFiles();
    std::unique_ptr<Shell> shell = makeSystemShell();
    ProfileStore store;
    MacroLibrary macros;
    ToldPresence presence;
    CPelmoraDlg window{
        {store, macros, *files, clock, hid, application().mainLoop(), *shell, presence, folder.path()}};

    /// Starts the window and shows it; `plugged` says whether there is a keyboard.
    explicit WindowDesk(bool plugged);

    /// Serves everything that waits in the event loop; the other waits for something.
    static void turn();
    static void waitTurn();
};

} // namespace tarnix::bench
