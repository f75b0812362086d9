// What assistive technology is told of a dialog's controls.
#include <gmock/gmock.h>

#include "skin/lists.h"
#include "skin/scroll_bar.h"
#include "skin/static_text.h"
#include "skin/tab_control.h"
#include "skin_fixture.h"

namespace tarnix {
namespace {

using ::testing::ElementsAre;

constexpr Rect place = Rect::at(20, 30, 40, 16);

/// "name, value: states"; a row begins with a dash. The states by their first letters.
void write(std::vector<std::string>& lines, const std::vector<AccessibleItem>& items,
           const char* before = "") {
    for (const AccessibleItem& item : items) {
        lines.push_back(before + item.name + (item.value.empty() ? ":" : ", " + item.value + ":"));
        const bool states[] = {item.disabled, item.checked, item.selected, item.expanded};
        for (std::size_t i = 0; i < std::size(states); ++i)
            if (states[i]) lines.back() += "dcse"[i];
        write(lines, item.rows, "- ");
    }
}

class AccessibleFaceTest : public SkinTest {
  protected:
    std::vector<std::string> told() const {
        std::vector<std::string> lines;
        write(lines, dialog.accessibleFace().items);
        return lines;
    }
    template <class T>
    T& make(unsigned id, const char* caption) {
        return dialog.make<T>(0, id, place, caption);
    }
};

TEST_F(AccessibleFaceTest, ControlsTellWhatTheyShow) {
    g_nRadioMask = 0xAA;
    g_nSubPage = 1;
    make<CImageButton>(2046, "Hidden").SetVisible(false);
    make<CImageButton>(2046, "Outside").SetRect(Rect::at(400, 0, 10, 10));
    make<CCheckButton>(2111, "Check").m_bDisabled = true;
    make<CRadioButton>(2013, "First");
    make<CRadioButton>(2014, "Second");
    make<CTabControl>(2050, "Tab");
    auto& combo = dialog.make<CComboButton>(0, Message{0x404}, 2078u, place, "Field", true, false, "CTRL+1");
    dialog.make<CStaticText>(0, 2u, place, Color{}, 0u);
    dialog.make<CStaticText>(0, 3u, place, Color{}, 0u).m_strLabel = "Text";
    dialog.make<CStaticText>(0, 4u, place, Color{}, 0u, "Key").m_strLabel = "A";
    auto& cap = make<CKeyboardButton>(2201, "");
    cap.SetKey("F1", 0xC0, 0xC0);
    EXPECT_THAT(told(), ElementsAre("Check:d", "First:c", "Second:", "Tab:s",
                                    "Field, CTRL+1:", "Text:", "Key, A:", "Key F1:"));
    selectRadio(2014);
    combo.m_bOpen = combo.m_bInactive = combo.m_bDisable = true;
    cap.SetCurrentCode(0xD6);
    EXPECT_THAT(told(), ElementsAre("Check:d", "First:", "Second:c", "Tab:s", "Field, Disable:de",
                                    "Text:", "Key, A:", "Key F1, assigned Fire, changed:"));
}

TEST_F(AccessibleFaceTest, AListTellsTheRowsOnTheScreenAndItsBarMovesThem) {
    MacroLibrary library;
    MacroSet& set = AddMacroSet(library, "Set");
    for (const char* name : {"One", "Two", "Three", "Four"})
        AddMacroKey(set, name);
    AppendAction(set.keys[0], MacroAction::key(0x41, false));
    AppendAction(set.keys[0], MacroAction::delay(20));
    auto& macros = dialog.make<CEditShowList>(0, 2109u, Rect::at(0, 0, 100, 40), library, "Macros");
    auto& steps = dialog.make<CImageShowList>(0, 2114u, Rect::at(100, 0, 100, 60), library, "Steps");
    auto& bar = dialog.make<CVScrollBar>(0, 2115u, Rect::at(200, 0, 20, 200), "Bar");
    bar.SetScrollState(0, 2, 4);
    macros.SelectSet(0);
    macros.m_nFirstRow = 2;
    macros.m_nSelected = 3;
    steps.ShowMacro(0, 0);
    EXPECT_THAT(told(),
                ElementsAre("Macros:", "- Three:", "- Four:s", "Steps:", "- A Press:", "- 20ms:", "Bar:"));
    const AccessibleItem row = dialog.accessibleFace().items[0].rows[1];
    EXPECT_EQ(std::pair(row.number, row.rect), std::pair(3u, Rect::at(2, 20, 96, 20)));
    EXPECT_EQ(dialog.accessibleFace().items[2].range, (AccessibleRange{0, 2}));

    dialog.take();
    dialog.OnAccessibleValue(2, 0);
    EXPECT_TRUE(dialog.take().empty());
    dialog.OnAccessibleValue(2, 2);
    EXPECT_EQ(dialog.take(), (Notices{{2115, 0, NOTIFY_DRAG}}));
    EXPECT_EQ(bar.position(), 2);
    bar.m_bDisabled = true;
    dialog.OnAccessibleValue(2, 1);
    EXPECT_EQ(bar.position(), 2);
}

} // namespace
} // namespace tarnix
