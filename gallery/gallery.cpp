// Photographs every page, dialog and list of the program, in the states that a user sees, into the folder
// that GALLERY_FOLDER names. Built as one test program so that it shares the window tests' hands and desktop.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "app/on_screen_display.h"
#include "app/tray_presence.h"
#include "frame_sheet.h"
#include "macro/macro_files.h"
#include "macro_manager/companion_dlgs.h"
#include "macro_manager/manager_dlg.h"
#include "macro_manager/manager_layout.h"
#include "main_window_bench.h"
#include "skin/static_text.h"
#include "ui/attention_dlg.h"
#include "ui/dialog_layouts.h"
#include "ui/edit_profile_dlg.h"
#include "ui/firmware_reset_dlg.h"
#include "ui/key_map_setting_dlg.h"
#include "ui/notices.h"
#include "ui/quick_launch_dlg.h"
#include "ui/shortcut_dlg.h"

namespace tarnix {
namespace {

void run(const std::string& command) {
    ASSERT_EQ(std::system(command.c_str()), 0) << command; // NOLINT: a tool of the developer's own
}

/// Covers the desktop with a plain colour.
class Backdrop : public Window {
  public:
    explicit Backdrop(Color color) : m_color(color) {
        createWindow({.kind = WindowKind::Overlay, .role = "Backdrop"}, workArea());
        show();
    }
    void OnPaint(Canvas& canvas, const Rect&) override { canvas.fill(clientRect(), m_color); }

  private:
    Color m_color;
};

/// Photographs the whole screen once the desktop shows what there is.
void shot(const std::string& name) {
    testing::runUntil([] { return false; }, Milliseconds(250));
    testing::settle();
    const char* folder = std::getenv("GALLERY_FOLDER");
    run("import -window root '" + std::string(folder ? folder : ".") + "/" + name + ".png'");
}

Point middleOf(CDlgBase& window, unsigned control) {
    const Rect rect = window.GetControl(control)->GetRect();
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

// The pointer as the window sees it; the desktop's own stays in its corner.

void hover(CDlgBase& window, unsigned control) {
    window.OnMouseMove(0, middleOf(window, control));
}

void press(CDlgBase& window, unsigned control) {
    hover(window, control);
    window.OnLButtonDown(1, middleOf(window, control));
}

void releaseAway(CDlgBase& window) {
    window.OnLButtonUp(0, {1, 1});
    window.OnMouseMove(0, {1, 1});
    testing::runUntil([] { return false; },
                      Milliseconds(100)); // until the desktop has taken the pointer back
}

class Gallery : public ::testing::Test {
  protected:
    void SetUp() override {
        run("xsetroot -solid '#5a6472'");
        testing::movePointer({0, 0});
    }

    /// Runs the window, and the scenario in it once the window is active.
    void play(const std::function<void()>& scenario) {
        testing::application().mainLoop().post([&] {
            EXPECT_TRUE(testing::hasKeyboard(*bench.window));
            scenario();
            bench.window->endModal(IDCANCEL);
        });
        bench.window->DoModal();
    }

    /// The hidden pages are reached through their hidden tabs.
    void showPage(unsigned tabId) {
        CControlBase* tab = bench.window->GetControl(tabId);
        const Point at = tab->GetRect().topLeft();
        tab->OnLButtonDown(1, at);
        tab->OnLButtonUp(0, at);
        bench.window->ShowCurrentProfile();
    }

    void photographHover(const std::string& name, unsigned control) {
        hover(*bench.window, control);
        shot(name);
        bench.window->OnMouseMove(0, {1, 1});
    }

    void photographPress(const std::string& name, unsigned control) {
        press(*bench.window, control);
        shot(name);
        releaseAway(*bench.window);
    }

    /// Opens a field's list and photographs it with a row highlighted.
    void photographList(const std::string& name, unsigned field, PopupPlace place, std::size_t row) {
        bench.click(field);
        bench.point(place, row);
        shot(name);
        bench.window->popups().dismiss();
    }

    /// Enough of everything to fill lists and to scroll them.
    void addMacros() {
        MacroSet& set = bench.macros.sets.at(0);
        for (const char* name : {"Fire", "Reload", "Build wall", "Sprint", "Heal squad", "Crouch", "Map"})
            AddMacroKey(set, name);
        for (int i = 1; i <= 9; ++i)
            AddMacroKey(set, "Combo " + std::to_string(i));
        MacroKey& macro = set.keys[0];
        macro.loopEnable = 1;
        macro.loopCount = 25;
        for (const std::uint8_t key :
             std::initializer_list<std::uint8_t>{0x57, 0x41, 0x53, 0x44, 0xA0, 0x0D}) {
            AppendAction(macro, MacroAction::key(key, false));
            AppendAction(macro, MacroAction::delay(120));
            AppendAction(macro, MacroAction::key(key, true));
        }
    }

    MainWindowBench bench;
};

/// A dialog over the main window for as long as the object lives.
template <class Dialog>
class Opened {
  public:
    template <class... Args>
    explicit Opened(Args&&... args) : m_dialog(std::forward<Args>(args)...) {
        m_dialog.Create();
        m_dialog.show();
    }
    ~Opened() {
        m_dialog.popups().destroyAll();
        m_dialog.destroyWindow();
    }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;
    Dialog* operator->() { return &m_dialog; }
    Dialog& operator*() { return m_dialog; }

  private:
    Dialog m_dialog;
};

void setLabel(CDlgBase& dialog, unsigned id, const std::string& text) {
    dialog.control<CStaticText>(id)->m_strLabel = text;
    dialog.invalidate();
}

TEST_F(Gallery, KeyPage) {
    play([&] {
        shot("main-key-page");
        photographHover("main-hover-letter", id::firstKeyCap + 60);
        photographHover("main-hover-modifier", id::firstKeyCap + 74);
        photographHover("main-hover-function", id::firstKeyCap + 4);
        photographPress("main-pressed-letter", id::firstKeyCap + 60);
        for (const WParam cap : {2202, 2229, 2239, 2259, 2260, 2274, 2294, 2270, 2286, 2254, 2290})
            bench.window->send(msg::keyCodeChosen, cap, 0xD6);
        shot("main-remapped");
        photographHover("main-remapped-hover", 2259);
        photographHover("main-hover-apply", id::applyButton);
        photographPress("main-pressed-apply", id::applyButton);
        photographHover("main-hover-cancel", id::cancelButton);
        photographHover("main-hover-reset", id::resetButton);
        photographPress("main-pressed-restore", id::restoreButton);
        photographHover("main-hover-tab", id::lightingPageTab);
        photographHover("main-hover-close", id::closeButton);
        photographPress("main-pressed-minimise", id::minimiseButton);
        bench.click(id::profileTab2);
        shot("main-profile-2");
    });
}

TEST_F(Gallery, LightingPage) {
    play([&] {
        bench.click(id::lightingPageTab);
        bench.window->OnMouseMove(0, {1, 1});
        shot("lighting");
        photographHover("lighting-hover-field", id::lightModeField);
        photographList("lighting-list-mode", id::lightModeField, PopupPlace::LightMode, 1);
        photographList("lighting-list-brightness", id::brightnessField, PopupPlace::LightBrightness, 3);
        photographList("lighting-list-speed", id::speedField, PopupPlace::LightSpeed, 1);
    });
}

TEST_F(Gallery, GKeyPage) {
    play([&] {
        addMacros();
        bench.store.StoreGKey(id::gKeyField1, "Fire", {1, 0, 0}, "");
        bench.store.StoreGKey(id::gKeyField3, "\xC4\xAC\xC8\xCF\xB9\xA6\xC4\xDC", {6, 1, 0}, "");
        bench.store.StoreGKey(id::gKeyField4, "a-program-with-a-long-name.AppImage", {7, 0, 0}, "");
        showPage(id::gKeyPageTab);
        shot("gkeys");
        bench.click(id::gKeyField1);
        for (std::size_t row = 0; row < 8; ++row) {
            bench.point(PopupPlace::Category, row);
            shot("gkeys-list-category-" + std::to_string(row));
        }
        for (const auto& [row, place] :
             {std::pair{0, PopupPlace::MacroLibrary}, std::pair{1, PopupPlace::Multimedia},
              std::pair{2, PopupPlace::Web}, std::pair{3, PopupPlace::Mouse}}) {
            bench.point(PopupPlace::Category, static_cast<std::size_t>(row));
            bench.point(place, 2);
            shot("gkeys-list-functions-" + std::to_string(row));
        }
        bench.window->popups().dismiss();
        bench.window->popups().openMacroSet(std::make_unique<CMacroSetPopup>(bench.macros, 0U),
                                            Rect::at(161, 265, 169, 0), 0, 0);
        shot("gkeys-list-macro-set");
        bench.window->popups().closeAll();
        bench.macros.sets[0].keys.clear();
        bench.click(id::gKeyField1);
        bench.point(PopupPlace::Category, 0);
        shot("gkeys-list-no-macros");
        bench.window->popups().dismiss();
        bench.window->control<CComboButton>(id::gKeyField2)->m_bInactive = true;
        bench.window->control<CComboButton>(id::gKeyField5)->m_bDisable = true;
        bench.window->invalidate();
        shot("gkeys-inactive");
    });
}

TEST_F(Gallery, MacroPage) {
    play([&] {
        addMacros();
        showPage(id::macroPageTab);
        bench.window->send(id::macroPageTab, 0, NOTIFY_CLICK);
        bench.window->control<CEditShowList>(id::macroList)->SelectSet(0);
        bench.window->send(id::macroList, 0, NOTIFY_CLICK);
        shot("macros");
        photographHover("macros-hover-thumb", id::macroScrollBar);
        photographHover("macros-hover-new", id::macroButton1);
        photographHover("macros-hover-delete", id::macroButton2);
        bench.window->control<CImageShowList>(id::actionList)->m_nSelected = 3;
        bench.click(id::recordSwitch);
        bench.window->OnMouseMove(0, {1, 1});
        shot("macros-recording");
        bench.click(id::recordSwitch);
        bench.click(id::macroButton1);
        testing::typeText("New one");
        testing::runUntil(
            [&] { return bench.window->control<CEditShowList>(id::macroList)->editorText() == "New one"; });
        bench.window->OnMouseMove(0, {1, 1});
        shot("macros-naming");
    });
}

TEST_F(Gallery, KeyMap) {
    play([&] {
        {
            Opened<CKeyMapSettingDlg> dialog(KeyToMap{2201, "F1", 0xC0, 0xC0}, bench.window.get());
            shot("key-map");
            hover(*dialog, dialog::keymap::ownFunction);
            shot("key-map-hover-default");
        }
        Opened<CKeyMapSettingDlg> dialog(KeyToMap{2290, "Keypad Enter", 0x58, 0xD3}, bench.window.get());
        hover(*dialog, dialog::keymap::keyRadio);
        shot("key-map-mouse");
        clickControl(*dialog, dialog::keymap::mouseField);
        CWndPopup* list = dialog->popups().at(PopupPlace::Mouse);
        list->OnMouseMove(0, {20, 10});
        shot("key-map-list");
    });
}

TEST_F(Gallery, Shortcut) {
    play([&] {
        Opened<CShortcutDlg> dialog(bench.window.get());
        shot("shortcut");
        clickControl(*dialog, dialog::shortcut::ctrl);
        clickControl(*dialog, dialog::shortcut::shift);
        setLabel(*dialog, dialog::shortcut::keyName, "Keypad Enter");
        shot("shortcut-modifiers");
        clickControl(*dialog, dialog::shortcut::singleKey);
        dialog->invalidate();
        shot("shortcut-single");
    });
}

TEST_F(Gallery, QuickLaunch) {
    play([&] {
        Opened<CQuickLaunchDlg> dialog(bench.shell, bench.window.get());
        shot("quick-launch");
        setLabel(*dialog, dialog::launch::path, "/usr/share/games/a-game/bin/a-game-with-a-long-name");
        hover(*dialog, dialog::launch::browse);
        shot("quick-launch-path");
    });
}

TEST_F(Gallery, NoticesAndConfirmations) {
    play([&] {
        for (const auto& question : {dialog::reset::profileReset, dialog::reset::factoryReset}) {
            Opened<CFirmwareResetDlg> dialog(question, bench.window.get());
            shot("reset-" + std::to_string(question.background));
            press(*dialog, dialog::okButton);
            shot("reset-" + std::to_string(question.background) + "-pressed-ok");
        }
        for (const std::string_view text :
             {notices::keyboardGone, notices::noMacroSet, notices::macroInUse, notices::nameTaken}) {
            Opened<CAttentionDlg> dialog("Attention!", std::string(text), bench.window.get());
            shot("notice-" + std::to_string(text.size()));
        }
        Opened<CAttentionDlg> dialog("Attention!", std::string(notices::importFailed), bench.window.get());
        for (const unsigned control : {dialog::closeButton, dialog::okButton, dialog::cancelButton}) {
            hover(*dialog, control);
            shot("notice-hover-" + std::to_string(control));
        }
        press(*dialog, dialog::closeButton);
        shot("notice-pressed-close");
    });
}

TEST_F(Gallery, EditProfile) {
    play([&] {
        Opened<CEditProfileDlg> dialog(bench.shell, bench.window.get());
        shot("edit-profile");
        setLabel(*dialog, dialog::profile::path1, "/usr/bin/gimp");
        setLabel(*dialog, dialog::profile::path2,
                 "/usr/share/games/a-game/bin/a-game-with-a-rather-long-name");
        hover(*dialog, dialog::profile::browse2);
        shot("edit-profile-paths");
    });
}

TEST_F(Gallery, MacroManager) {
    play([&] {
        addMacros();
        AddMacroSet(bench.macros, "Second set");
        SaveManagerLibrary(bench.macros, bench.files, "/kbd/");
        Opened<CMacroManagerDlg> dialog(bench.window.get(), bench.files, "/kbd/", 1);
        shot("manager");
        clickControl(*dialog, manager::recordSwitch);
        dialog->OnMouseMove(0, {1, 1});
        shot("manager-recording");
        clickControl(*dialog, manager::recordSwitch);
        clickControl(*dialog, manager::setField);
        dialog->popups().at(PopupPlace::MacroSetList)->OnMouseMove(0, {20, 10});
        shot("manager-list-sets");
        dialog->popups().dismiss();
        clickControl(*dialog, manager::newMacroButton);
        dialog->OnMouseMove(0, {1, 1});
        shot("manager-naming");
    });
}

TEST_F(Gallery, ManagerCompanions) {
    play([&] {
        Opened<CMacroManagerDlg> dialog(bench.window.get(), bench.files, "/kbd/", 0);
        shot("manager-no-set");
        {
            Opened<CMacroManagerAddDlg> companion(*dialog);
            shot("manager-add-set");
        }
        {
            Opened<CMacroManagerDelSetDlg> companion(*dialog);
            shot("manager-delete-set");
        }
        {
            Opened<CMacroManagerNoteDlg> companion(*dialog);
            shot("manager-note");
        }
        Opened<CMacroManagerAttentionDlg> companion(*dialog);
        shot("manager-attention");
    });
}

TEST_F(Gallery, Tray) {
    play([&] {
        for (const std::string color : {"0x202428", "0xf0f0f0"}) {
            const std::string pid = "\"$XDG_RUNTIME_DIR/trayer\"";
            run("trayer --edge top --align right --expand false --widthtype request --height 24 "
                "--SetDockType true "
                "--transparent true --alpha 0 --tint " +
                color + " & echo $! > " + pid);
            TrayPresence presence;
            presence.AddTrayIcon(*bench.window);
            EXPECT_TRUE(testing::runUntil([&] { return presence.isTrayShown(); }));
            testing::runUntil([] { return false; }, Milliseconds(500));
            shot("tray-" + color);
            testing::movePointer({992, 9});
            testing::pressButton(3);
            testing::releaseButton(3);
            shot("tray-menu-" + color);
            testing::tapKey("Escape");
            run("kill $(cat " + pid + ")");
            testing::movePointer({0, 0});
        }
    });
}

TEST_F(Gallery, Frames) {
    FrameSheet sheet;
    shot("frames");
}

/// Run with a compositor and without.
TEST_F(Gallery, OnScreenDisplay) {
    const char* suffix = std::getenv("GALLERY_COMPOSITED");
    play([&] {
        for (const int gray : {250, 128, 20}) {
            Backdrop desktop(rgb(gray, gray, gray));
            OnScreenDisplay display(*bench.window);
            for (WParam code = 1; code <= 7; code += code < 3 ? 2 : 1) {
                display.OnDeviceEvent(code);
                shot("display-" + std::to_string(gray) + "-" + std::to_string(code) + (suffix ? suffix : ""));
            }
        }
    });
}

} // namespace
} // namespace tarnix
