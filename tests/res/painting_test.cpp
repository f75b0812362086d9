// What the real pictures, controls and windows look like: words stand out from their ground, and nothing is
// painted beyond its rectangle.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iostream>
#include <map>

#include "../ui/main_window_bench.h"
#include "app/osd_dialog.h"
#include "macro/macro_files.h"
#include "macro_manager/companion_dlgs.h"
#include "macro_manager/manager_dlg.h"
#include "platform/resources.h"
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

constexpr double enough = 4.5;
constexpr double visible = 1.5; ///< for texts whose colours are fixed
constexpr Color plain = rgb(1, 2, 3);
constexpr int around = 30;
const std::string longText(60, 'W');

/// Relative luminance as WCAG 2.1 defines it.
double luminance(Color color) {
    const auto linear = [](int value) {
        const double share = value / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(redOf(color)) + 0.7152 * linear(greenOf(color)) + 0.0722 * linear(blueOf(color));
}

/// Of a text in an area: its ground is the commonest colour there, the text what stands out most from it.
double contrastIn(const Image& image, const Rect& area) {
    std::map<Color, int> counts;
    for (int y = std::max(area.top, 0); y < std::min(area.bottom, image.size().height); ++y)
        for (int x = std::max(area.left, 0); x < std::min(area.right, image.size().width); ++x)
            ++counts[image.pixel({x, y})];
    const auto rarer = [](const auto& a, const auto& b) { return a.second < b.second; };
    const double ground = luminance(std::max_element(counts.begin(), counts.end(), rarer)->first);
    double most = 1;
    for (const auto& [color, count] : counts) {
        const auto [dark, light] = std::minmax({luminance(color), ground});
        most = std::max(most, (light + 0.05) / (dark + 0.05));
    }
    return most;
}

std::unique_ptr<Surface> faceOf(Window& window) {
    auto surface = makeSurface(window.clientRect().size());
    window.OnPaint(surface->canvas(), window.clientRect());
    return surface;
}

/// Paints on plain ground. How many pixels around the area are no longer plain?
int stray(const std::function<void(Canvas&)>& paint, const Rect& area) {
    const Rect all{0, 0, area.right + around, area.bottom + around};
    const auto surface = makeSurface(all.size());
    surface->canvas().fill(all, plain);
    paint(surface->canvas());
    int count = 0;
    for (int y = std::max(area.top - around, 0); y < all.bottom; ++y)
        for (int x = std::max(area.left - around, 0); x < all.right; ++x)
            count += !area.contains({x, y}) && surface->image().pixel({x, y}) != plain;
    return count;
}

void expectInside(Window& window) {
    const Rect client = window.clientRect();
    EXPECT_EQ(stray([&](Canvas& canvas) { window.OnPaint(canvas, client); }, client), 0);
}

/// With texts that are too long, and in every look that the pointer can give.
void expectTidy(CDlgBase& window) {
    expectInside(window);
    window.controls().forEach([&window](CControlBase& control) {
        auto* label = dynamic_cast<CStaticText*>(&control);
        auto* field = dynamic_cast<CComboButton*>(&control);
        if (label) label->m_strLabel = longText;
        if (field) field->SetValueText(longText);
        const bool read = (label || field) && control.m_bVisible;
        const Rect place = control.GetRect();
        for (int state = mouseNormal; state <= mousePressed; ++state) {
            if (auto* button = dynamic_cast<CMouseControl*>(&control)) button->m_nMouseState = state;
            EXPECT_EQ(stray([&](Canvas& canvas) { control.Draw(canvas, place); }, place), 0) << control.m_nID;
            EXPECT_GE(read ? contrastIn(faceOf(window)->image(), place.inset(2)) : 21, enough)
                << control.m_nID;
        }
    });
}

/// Lists the contrast of a text whose colours are fixed.
void noteContrast(const std::string& name, Window& shown, const Rect& area) {
    const double found = contrastIn(faceOf(shown)->image(), area);
    EXPECT_GT(found, visible) << name << " is not there";
    std::cout << name << ": " << found << '\n';
}

class Painting : public ::testing::Test, public MainWindowBench {
  protected:
    Painting() {
        window->Create();
        MacroSet& set = macros.sets.at(0);
        for (int i = 0; i < 20; ++i)
            AddMacroKey(set, longText);
        for (int i = 0; i < 60; ++i)
            AppendAction(set.keys[0], i % 2 ? MacroAction::delay(9999999) : MacroAction::key(0x0D, true));
        SaveManagerLibrary(macros, files, "/kbd/");
    }
    template <class Popup, class... Args>
    std::unique_ptr<CListPopup> popupOf(Args&&... args) {
        auto popup = std::make_unique<Popup>(std::forward<Args>(args)...);
        EXPECT_FALSE(popup->Create(*window, Rect::at(50, 50, 169, 26), 0x7000, 0));
        return popup;
    }
};

TEST(Pictures, EveryWordInThemStandsOutFromItsGround) {
    std::ifstream table(ART_WORDS);
    std::string words;
    unsigned id;
    Rect area;
    int lines = 0;
    for (int type; table >> type >> id >> area.left >> area.top >> area.right >> area.bottom; ++lines) {
        std::getline(table, words);
        const Image* image = resources().find(static_cast<ResourceType>(type), id);
        EXPECT_GE(contrastIn(*image, area.inset(-1)), enough) << id << ":" << words;
    }
    EXPECT_GT(lines, 500);
}

TEST_F(Painting, KeepsToEveryRectangleAndIsReadable) {
    CKeyMapSettingDlg keyMap({2201, "F1", 0xC0, 0xC0}, nullptr);
    CShortcutDlg shortcut(nullptr);
    CQuickLaunchDlg launch(shell, nullptr);
    CEditProfileDlg profile(shell);
    CFirmwareResetDlg reset(dialog::reset::profileReset);
    CAttentionDlg notice(longText, longText);
    CMacroManagerDlg manager(nullptr, files, "/kbd/", 1);
    CMacroManagerAddDlg add(*window);
    CMacroManagerNoteDlg note(*window);
    for (CDlgBase* dialog : std::initializer_list<CDlgBase*>{&keyMap, &shortcut, &launch, &profile, &reset,
                                                             &notice, &manager, &add, &note}) {
        ASSERT_TRUE(dialog->Create());
        expectTidy(*dialog);
    }
    for (const unsigned tab : {id::macroPageTab, id::gKeyPageTab, id::lightingPageTab, id::keyPageTab}) {
        clickAt(*window, window->GetControl(tab)->GetRect().topLeft());
        expectTidy(*window);
    }
    noteContrast("selected list row", manager, Rect::at(27, 98, 143, 20));
    noteContrast("list row", manager, Rect::at(27, 118, 143, 20));
    for (const auto& popup :
         {popupOf<CComboPopup>(), popupOf<CDPIPopup>(), popupOf<CLightBrightnessPopup>()}) {
        expectInside(*popup);
        popup->OnMouseMove(0, popup->rows()[1].rect.topLeft());
        noteContrast("popup row", *popup, popup->rows()[0].rect);
        noteContrast("highlighted popup row", *popup, popup->rows()[1].rect);
    }
    expectInside(*popupOf<CMacroSetListPopup>(macros));
    COSDDialog display(longText);
    expectInside(display);
    noteContrast("on-screen display", display, display.clientRect());
}

} // namespace
} // namespace tarnix
