// The main window: a hub that owns the device link, the pages and the commands, and routes messages to them.
#pragma once

#include <string>

#include "device/device_link.h"
#include "ui/desktop_presence.h"
#include "ui/gkey_page.h"
#include "ui/key_page.h"
#include "ui/lighting_page.h"
#include "ui/macro_page.h"
#include "ui/main_window_context.h"
#include "ui/profile_commands.h"
#include "ui/spare_controls.h"

namespace tarnix {

/// What the main window is given; everything referred to outlives it.
struct MainWindowSurroundings {
    ProfileStore& store;
    MacroLibrary& macros;
    Files& files;
    Clock& clock;
    Hid& hid;
    MainLoop& loop;
    Shell& shell;
    DesktopPresence& presence;
    std::string programFolder; ///< with the slash at its end
};

/// Run with DoModal: it loads the files, finds and reads the keyboard, and then appears; it ends when the
/// user exits.
class CPelmoraDlg : public CDlgBase, private DeviceObserver {
  public:
    explicit CPelmoraDlg(const MainWindowSurroundings& surroundings);
    ~CPelmoraDlg() override;

    // The displayed profile.
    /// Shows record n's G-key names and light settings.
    void ShowLighting(int n);
    /// Sets the key caps to record n's codes; does not repaint.
    void ShowKeyCodes(int n);
    /// Makes the current profile the displayed one, shows it and repaints the window.
    void ShowCurrentProfile() override;

    /// Hides the window, or minimises it where nothing else could bring it back.
    void hideWindow();
    /// Ends the program: popups and dialogs close, then the window's modal run ends.
    void exitProgram();

    DeviceLink& link() { return m_link; }

    void OnPaint(Canvas& canvas, const Rect& dirty) override;
    void OnLButtonDown(unsigned flags, Point at) override;
    void OnMouseWheel(int delta, Point at) override;
    void OnTimer(unsigned id) override;
    void OnEditChange(unsigned id) override;
    void OnDestroy() override;
    AccessibleFace accessibleFace() const override;

  protected:
    void OnInitDialog() override;
    void BuildControls(const Rect& client) override;
    void DrawWindow(Canvas& canvas, const Rect& dirty) override;
    void OnCancel() override;
    void OnEnter() override;

  private:
    void registerHandlers();
    void registerPageTabs();
    /// Shows one of the page groups and hides the other three.
    void ShowPage(std::size_t page);
    void minimiseWindow();
    void closePopups();
    void onCommand(WParam chosen);
    void repaintHoverPictures(LParam code);
    void runMacroManager(LParam set);
    void OnTrayNotify(WParam icon, LParam mouseMessage);

    // What the device link tells.
    void onDeviceEvent(DeviceEvent event) override;
    void launchGKeyUrl(const std::string& url) override;
    void onMacrosChanged() override;
    void showDisconnectedNotice() override;

    MainWindowSurroundings m_surroundings;
    const std::string m_strAppDir;
    DeviceLink m_link;
    MainWindowContext m_context;
    KeyPage m_keyPage;
    MacroPage m_macroPage;
    GKeyPage m_gKeyPage;
    LightingPage m_lightingPage;
    ProfileCommands m_profileCommands;
    SpareControls m_spareControls;
    /// A bitmap over half of the keyboard picture; 0 is none. Nothing asks for one on this model of the
    /// keyboard.
    unsigned m_nHoverPicture = 0;
};

} // namespace tarnix
