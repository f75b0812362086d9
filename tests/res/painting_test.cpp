// What windows and controls paint with the real pictures: nothing beyond their rectangles, and texts in fixed
// colours on fixed grounds, whose contrast is noted.
#include <gtest/gtest.h>

#include <array>
#include <iostream>

#include "../ui/main_window_bench.h"
#include "app/osd_dialog.h"
#include "contrast.h"
#include "macro/macro_files.h"
#include "macro_manager/companion_dlgs.h"
#include "macro_manager/manager_dlg.h"
#include "skin/static_text.h"
#include "ui/attention_dlg.h"
#include "ui/dialog_layouts.h"
#include "ui/edit_profile_dlg.h"
#include "ui/firmware_reset_dlg.h"
#include "ui/key_map_setting_dlg.h"
#include "ui/quick_launch_dlg.h"
#include "ui/shortcut_dlg.h"

namespace tarnix {
namespace {

constexpr Color ground = rgb(1, 2, 3);
constexpr int around = 30;
const std::string longText(60, 'W');

/// How many pixels around an area have lost the ground's colour.
int stray(const std::function<void(Canvas&)>& paint, const Rect& area) {
    const auto surface = makeSurface({area.right + around, area.bottom + around});
    const Rect all = Rect::at(0, 0, area.right + around, area.bottom + around);
    surface->canvas().fill(all, ground);
    paint(surface->canvas());
    int count = 0;
    for (int y = std::max(area.top - around, 0); y < all.bottom; ++y)
        for (int x = std::max(area.left - around, 0); x < all.right; ++x)
            count += !area.contains({x, y}) && surface->image().pixel({x, y}) != ground;
    return count;
}

/// Texts that are too long, and every look that the pointer can give.
void expectControlsInside(CDlgBase& window) {
    window.controls().forEach([](CControlBase& control) {
        if (auto* label = dynamic_cast<CStaticText*>(&control)) label->m_strLabel = longText;
        if (auto* field = dynamic_cast<CComboButton*>(&control)) field->SetValueText(longText);
        for (int state = mouseNormal; state <= mousePressed; ++state) {
            if (auto* button = dynamic_cast<CMouseControl*>(&control)) button->m_nMouseState = state;
            const auto paint = [&](Canvas& canvas) { control.Draw(canvas, control.GetRect()); };
            EXPECT_EQ(stray(paint, control.GetRect()), 0) << control.m_nID << " in state " << state;
        }
    });
}

void expectInside(Window& window) {
    const Rect client = window.clientRect();
    EXPECT_EQ(stray([&](Canvas& canvas) { window.OnPaint(canvas, client); }, client), 0);
}

class Painting : public ::testing::Test {
  protected:
    Painting() {
        bench.window->Create();
        MacroSet& set = bench.macros.sets.at(0);
        for (int i = 0; i < 20; ++i)
            AddMacroKey(set, longText);
        for (int i = 0; i < 60; ++i)
            AppendAction(set.keys[0], i % 2 ? MacroAction::delay(9999999) : MacroAction::key(0x0D, true));
        SaveManagerLibrary(bench.macros, bench.files, "/kbd/");
    }
    template <class Popup, class... Args>
    std::unique_ptr<CListPopup> list(Args&&... args) {
        auto popup = std::make_unique<Popup>(std::forward<Args>(args)...);
        EXPECT_FALSE(popup->Create(*bench.window, Rect::at(50, 50, 169, 26), 0x7000, 0));
        return popup;
    }
    MainWindowBench bench;
};

TEST_F(Painting, StaysWithinTheRectangleOfEveryControlAndWindow) {
    CKeyMapSettingDlg keyMap({2201, "F1", 0xC0, 0xC0}, nullptr);
    CShortcutDlg shortcut(nullptr);
    CQuickLaunchDlg launch(bench.shell, nullptr);
    CEditProfileDlg profile(bench.shell);
    CFirmwareResetDlg reset(dialog::reset::profileReset);
    CAttentionDlg notice(longText, longText);
    CMacroManagerDlg manager(nullptr, bench.files, "/kbd/", 1);
    CMacroManagerAddDlg add(*bench.window);
    CMacroManagerNoteDlg note(*bench.window);
    for (CDlgBase* dialog : std::initializer_list<CDlgBase*>{&keyMap, &shortcut, &launch, &profile, &reset,
                                                             &notice, &manager, &add, &note}) {
        ASSERT_TRUE(dialog->Create());
        expectControlsInside(*dialog);
        expectInside(*dialog);
    }
    for (const unsigned tab : {id::macroPageTab, id::gKeyPageTab, id::lightingPageTab, id::keyPageTab}) {
        clickAt(*bench.window, bench.window->GetControl(tab)->GetRect().topLeft());
        expectInside(*bench.window);
    }
    expectControlsInside(*bench.window);
    for (const auto& popup : {list<CComboPopup>(), list<CMacroLibraryPopup>(bench.macros),
                              list<CMacroSetListPopup>(bench.macros), list<CLightModePopup>()})
        expectInside(*popup);
    COSDDialog display(longText);
    expectInside(display);
}

TEST_F(Painting, NotesTheContrastOfTextsWhoseColoursAreFixed) {
    const auto note = [this](const std::string& name, Window& window, const Rect& area) {
        const auto surface = makeSurface(window.clientRect().size());
        window.OnPaint(surface->canvas(), window.clientRect());
        const double found = contrastIn(surface->image(), area);
        EXPECT_GT(found, 1.5) << name << " is not there";
        std::cout << name << ": " << found << '\n';
    };
    const auto functions = list<CDPIPopup>();
    const auto brightness = list<CLightBrightnessPopup>();
    for (const auto& [popup, text] :
         {std::pair(functions.get(), "white"), std::pair(brightness.get(), "black")}) {
        popup->OnMouseMove(0, popup->rows()[1].rect.topLeft());
        note(std::string("popup row, ") + text, *popup, popup->rows()[0].rect);
        note(std::string("highlighted popup row, ") + text, *popup, popup->rows()[1].rect);
    }
    CMacroManagerDlg manager(nullptr, bench.files, "/kbd/", 1);
    manager.Create();
    note("selected list row", manager, Rect::at(27, 98, 143, 20));
    note("list row", manager, Rect::at(27, 118, 143, 20));
    COSDDialog display("Current Profile:1");
    note("on-screen display", display, display.clientRect());
}

} // namespace
} // namespace tarnix
