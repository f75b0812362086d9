// A main window on the bench: the virtual keyboard below it, files in memory, a clock that does not wait, and
// one journal of what goes to files, keyboard and desktop.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "skin/list_popup.h"
#include "support/fake_clock.h"
#include "support/memory_files.h"
#include "support/prepared_shell.h"
#include "support/ui_scenario.h"
#include "ui/main_window_layout.h"
#include "ui/pelmora_dlg.h"
#include "virtual/virtual_hid.h"
#include "virtual/virtual_keyboard.h"

namespace tarnix {

using Journal = std::vector<std::string>;

class NotingPresence : public DesktopPresence {
  public:
    explicit NotingPresence(Journal& journal) : m_journal(journal) {}

    void AddTrayIcon(Window&) override { m_journal.push_back("tray added"); }
    void RemoveTrayIcon() override { m_journal.push_back("tray removed"); }
    bool isTrayShown() const override { return true; }
    void OnDeviceEvent(WParam) override {}
    void OnTimer(unsigned) override {}

  private:
    Journal& m_journal;
};

class MainWindowBench {
  public:
    MainWindowBench();

    FakeClock clock;
    VirtualKeyboard keyboard{clock};
    VirtualHid hid{keyboard};
    MemoryFiles files; ///< its log is the journal
    ProfileStore store;
    MacroLibrary macros;
    PreparedShell shell;
    NotingPresence presence{files.log};
    std::unique_ptr<CPelmoraDlg> window;

    /// What the journal holds but for reading; it is empty afterwards.
    Journal changes();

    void click(unsigned control) { clickControl(*window, control); }
    /// Clicks a control, which runs a dialog, and another one in that. True when there was one.
    bool clickAndAnswer(unsigned control, unsigned inDialog);
    CListPopup& list(PopupPlace place);
    bool isOpen(PopupPlace place) const { return window->popups().at(place) != nullptr; }
    /// Moves over a row of an open list, or chooses it.
    void point(PopupPlace place, std::size_t row);
    void choose(PopupPlace place, std::size_t row);
    const CComboButton& field(unsigned id) const { return *window->control<CComboButton>(id); }
    const CKeyboardButton& cap(unsigned id) const { return *window->control<CKeyboardButton>(id); }

    static std::string file(const std::string& name) { return "/kbd/config\\" + name; }
};

/// Tests of the window as it is after its start, with an empty journal.
class MainWindowTest : public ::testing::Test, public MainWindowBench {
  protected:
    void SetUp() override {
        window->Create();
        window->show();
        EXPECT_TRUE(testing::hasKeyboard(*window));
        files.log.clear();
    }
};

} // namespace tarnix
