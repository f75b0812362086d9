// Photographs every page, list and dialog of the program, in the states that a user sees, into the folder
// that GALLERY_FOLDER names. Built as one test program so that it shares the window tests' hands and desktop.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "app/on_screen_display.h"
#include "macro/macro_files.h"
#include "macro_manager/manager_dlg.h"
#include "main_window_bench.h"
#include "skin/tab_control.h"
#include "ui/attention_dlg.h"
#include "ui/dialog_layouts.h"
#include "ui/notices.h"

namespace tarnix {
namespace {

using tarnix::testing::settle;

class Gallery : public ::testing::Test {
  public:
    /// Photographs the whole screen.
    static void shot(const std::string& name) {
        settle();
        const char* folder = std::getenv("GALLERY_FOLDER");
        const std::string command =
            "import -window root '" + std::string(folder ? folder : ".") + "/" + name + ".png'";
        ASSERT_EQ(std::system(command.c_str()), 0); // NOLINT: a tool of the developer's own
    }

    /// The hidden pages are reached through their hidden tabs.
    void showPage(unsigned tabId) {
        CControlBase* tab = bench.window->GetControl(tabId);
        const Point at = tab->GetRect().topLeft();
        tab->OnLButtonDown(1, at);
        tab->OnLButtonUp(0, at);
        bench.window->invalidate();
        settle();
    }

    void moveTo(unsigned control) {
        const Rect rect = bench.window->toScreen(bench.window->GetControl(control)->GetRect());
        testing::movePointer({(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2});
        settle();
    }

    void addMacros() {
        MacroSet& set = bench.macros.sets[0];
        for (const char* name : {"Fire", "Reload", "Build wall", "Sprint"})
            AddMacroKey(set, name);
        MacroKey& macro = set.keys[0];
        for (const std::uint8_t key : std::initializer_list<std::uint8_t>{0x57, 0x41, 0x53, 0xA0}) {
            AppendAction(macro, MacroAction::key(key, false));
            AppendAction(macro, MacroAction::delay(120));
            AppendAction(macro, MacroAction::key(key, true));
        }
        bench.store.StoreGKey(id::gKeyField1, "Fire", {1, 0, 0}, "");
    }

    /// Photographs the dialog that the work opens, then closes it: with Escape, or by a click where it
    /// captures keys.
    void photograph(
        const std::string& name, const std::function<void()>& work,
        const std::function<void()>& close = [] { testing::tapKey("Escape"); }) {
        const auto taken = std::make_shared<bool>(false);
        bench.answered(work, [name, close, taken] {
            if (!std::exchange(*taken, true)) {
                testing::runUntil([] { return false; }, Milliseconds(400)); // until the desktop shows it
                shot(name);
            }
            close();
        });
        settle();
    }

    MainWindowBench bench;
};

constexpr Point wideCancel{298, 208};

TEST_F(Gallery, Pages) {
    bench.run([&] {
        shot("key-page");
        moveTo(id::firstKeyCap + 60);
        shot("key-page-hover");
        testing::pressButton();
        shot("key-page-pressed");
        testing::movePointer(bench.window->screenRect().topLeft());
        testing::releaseButton();
        bench.window->send(msg::keyCodeChosen, 2201, 62);
        bench.window->send(msg::keyCodeChosen, 2259, 0xD6);
        shot("key-page-remapped");
        showPage(id::lightingPageTab);
        shot("lighting-page");
        const std::pair<unsigned, PopupPlace> fields[] = {
            {id::lightModeField, PopupPlace::LightMode},
            {id::brightnessField, PopupPlace::LightBrightness},
            {id::speedField, PopupPlace::LightSpeed},
        };
        for (const auto& [field, place] : fields) {
            bench.click(field);
            settle();
            bench.point(place, 1);
            shot("lighting-popup-" + std::to_string(field));
            bench.window->popups().dismiss();
        }
    });
}

TEST_F(Gallery, HiddenPages) {
    bench.run([&] {
        addMacros();
        showPage(id::gKeyPageTab);
        bench.window->ShowCurrentProfile();
        shot("gkey-page");
        bench.click(id::gKeyField1);
        settle();
        for (std::size_t row = 0; row < 4; ++row) {
            bench.point(PopupPlace::Category, row);
            shot("gkey-menu-" + std::to_string(row));
        }
        bench.window->popups().dismiss();
        showPage(id::macroPageTab);
        bench.window->send(id::macroPageTab, 0, NOTIFY_CLICK);
        bench.window->send(id::macroList, 0, NOTIFY_CLICK);
        shot("macro-page");
        bench.click(id::macroButton1);
        testing::typeText("New one");
        shot("macro-page-naming");
    });
}

TEST_F(Gallery, Dialogs) {
    bench.run([&] {
        photograph(
            "key-map", [&] { bench.click(id::firstKeyCap + 1); },
            bench.clicksIn(dialog::wideSize, {{298, 208}}));
        photograph(
            "shortcut", [&] { bench.window->send(msg::runShortcut); },
            bench.clicksIn(dialog::shortcut::size, {{150, 176}}));
        photograph("reset-profile", [&] { bench.click(id::resetButton); });
        photograph("restore-all", [&] { bench.click(id::restoreButton); });
        photograph("quick-launch", [&] { bench.window->send(msg::runQuickLaunch); });
        photograph("edit-profile", [&] { bench.window->send(id::editProfileButton, 0, NOTIFY_CLICK); });
        photograph("notice", [&] { showNotice(notices::keyboardGone); });
        photograph("notice-long", [&] { showNotice(notices::noMacroSet); });
    });
}

TEST_F(Gallery, MacroManager) {
    bench.run([&] {
        addMacros();
        SaveManagerLibrary(bench.macros, bench.files, "/kbd/");
        photograph("macro-manager", [&] { bench.window->send(msg::runMacroManager, 0, 1); });
    });
}

TEST_F(Gallery, OnScreenDisplay) {
    bench.run([&] {
        OnScreenDisplay display(*bench.window);
        for (const WParam code : {1, 4, 5, 7}) {
            display.OnDeviceEvent(code);
            shot("display-" + std::to_string(code));
        }
    });
}

} // namespace
} // namespace tarnix
