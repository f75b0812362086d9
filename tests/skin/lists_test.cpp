// The scroll bar and the two lists of macros.
#include "skin/lists.h"
#include "skin/scroll_bar.h"
#include "skin_fixture.h"

namespace tarnix {
namespace {

constexpr Color listColor = 0x261005;
constexpr Color selectionColor = 0xDEA035;

/// A bar with arrows of 17 x 18 pixels whose track goes from y = 20 to y = 219.
class ScrollBarTest : public SkinTest {
  protected:
    void SetUp() override {
        SkinTest::SetUp();
        pictures.addStrip(188, 3, {17, 18});
        pictures.addStrip(187, 3, {17, 18});
        bar = &dialog.make<CVScrollBar>(0, 2115u, Rect{10, 2, 31, 236});
        ASSERT_TRUE(bar->LoadImages());
    }
    std::pair<int, int> thumb() const { return {bar->thumb().top, bar->thumb().bottom}; }

    CVScrollBar* bar = nullptr;
};

TEST_F(ScrollBarTest, ThumbStandsWhereThePositionIs) {
    const struct {
        int position, page, range;
        std::pair<int, int> thumb;
    } cases[] = {
        {50, 10, 100, {120, 139}}, {0, 11, 3, {20, 219}},          {1, 1, 3, {87, 153}},
        {95, 10, 100, {210, 219}}, {INT32_MAX, 10, 1, {220, 219}}, {-7, INT32_MAX, 1, {20, 219}},
        {3, 4, 0, {20, 219}}, // a range of 0 keeps the values
    };
    for (const auto& [position, page, range, expected] : cases) {
        bar->SetScrollState(position, page, range);
        EXPECT_EQ(thumb(), expected) << position << ' ' << page << ' ' << range;
    }
}

TEST_F(ScrollBarTest, PressTellsThePartAndMovesNothing) {
    bar->SetScrollState(50, 10, 100);
    for (const auto& [y, part] : {std::pair{5, 6u}, {225, 7u}, {130, 0u}, {119, 8u}, {139, 9u}}) {
        bar->OnLButtonDown(0, {20, y});
        bar->OnLButtonUp(0, {20, y});
        EXPECT_EQ(dialog.take(), (Notices{{2115, part, 1}, {2115, 0, 2}})) << y;
        EXPECT_EQ(thumb().first, 120);
    }
}

TEST_F(ScrollBarTest, DragTellsOnlyNewPositionsAndStopsAtTheEndsOfTheTrack) {
    bar->SetScrollState(50, 10, 100);
    bar->OnLButtonDown(0, {20, 130});
    // The first one is half a position, which is no new one.
    const std::tuple<int, int, int, bool> drags[] = {{131, 121, 50, false},
                                                     {132, 122, 51, true},
                                                     {230, 200, 90, true},
                                                     {3, 20, 0, true},
                                                     {33, 23, 1, true}};
    for (const auto& [y, top, position, told] : drags) {
        dialog.take();
        bar->OnMouseMove(0, {20, y});
        EXPECT_EQ(thumb(), std::pair(top, top + 19));
        EXPECT_EQ(bar->position(), position);
        EXPECT_EQ(dialog.take(), (told ? Notices{{2115, 0, 3}} : Notices{}));
    }
    bar->OnLButtonUp(0, {20, 33});
    EXPECT_EQ(thumb(), std::pair(22, 41)) << "the release snaps the thumb to its position, 1";
}

class ListsTest : public SkinTest {
  protected:
    void SetUp() override {
        SkinTest::SetUp();
        for (int icon = 0; icon < 3; ++icon)
            pictures.add(ResourceType::Png, 191 + icon, {12, 12}).fill({0, 0, 12, 12}, frameColor(icon));
        names = &dialog.make<CEditShowList>(0, 2109u, place, library);
        steps = &dialog.make<CImageShowList>(0, 2114u, place, library);
        ASSERT_TRUE(steps->LoadImages());
    }
    void addMacros(int count) {
        for (int i = 0; i < count; ++i)
            AddMacroKey(library.sets[0], "M" + std::to_string(i));
    }
    void clickRow(CRowList& list, int line) {
        const Point at{place.left + 30, place.top + line * 20 + 10};
        list.OnLButtonDown(0, at);
        list.OnLButtonUp(0, at);
    }
    static Color rowColor(CControlBase& list, int line) {
        return painted(list)->image().pixel({place.right - 4, place.top + line * 20 + 1});
    }

    static constexpr Rect place = Rect::at(10, 10, 117, 90); // as high as 4.5 rows
    MacroLibrary library{{{"First", {}}, {"Second", {}}}};
    CEditShowList* names = nullptr;
    CImageShowList* steps = nullptr;
};

TEST_F(ListsTest, ClickSelectsTheRowAndAScrolledListMaySelectPastItsEnd) {
    addMacros(6);
    names->SelectSet(0);
    clickRow(*names, 3);
    EXPECT_EQ(names->m_nSelected, 3);
    EXPECT_EQ(dialog.take(), (Notices{{2109, 0, 2}}));
    EXPECT_EQ(rowColor(*names, 3), selectionColor);
    EXPECT_EQ(rowColor(*names, 0), listColor);
    names->ScrollToEnd();
    EXPECT_EQ(rowColor(*names, 2), selectionColor);
    names->BeginNewName();
    EXPECT_EQ(names->m_nFirstRow, 2) << "five rows show the new name's, too";

    for (int i = 0; i < 4; ++i)
        AppendAction(library.sets[0].keys[5], MacroAction::delay(500));
    steps->ShowMacro(0, 5);
    EXPECT_EQ(steps->m_nSelected, -1);
    steps->m_nFirstRow = 3;
    for (const int line : {3, 4}) {
        clickRow(*steps, line);
        EXPECT_EQ(steps->m_nSelected, 6) << "no line below the number of steps";
    }
    EXPECT_EQ(rowColor(*steps, 3), listColor);
}

TEST_F(ListsTest, IndexesThatFitTheLibraryNoMoreShowNothing) {
    for (const auto& [set, macro] : {std::pair{2, 0}, {-1, -1}, {INT32_MAX, INT32_MAX}, {INT32_MIN, 0}}) {
        names->SelectSet(set);
        steps->ShowMacro(set, macro);
        for (CRowList* list : {static_cast<CRowList*>(names), static_cast<CRowList*>(steps)}) {
            list->m_nFirstRow = list->m_nSelected = macro;
            clickRow(*list, 0);
            EXPECT_EQ(rowColor(*list, 0), listColor);
        }
        names->ScrollToEnd();
        EXPECT_EQ(names->BeginNewName(), 1);
        EXPECT_FALSE(names->isEditing());
    }
}

TEST_F(ListsTest, StepShowsItsKeyOrItsDelayWithItsIcon) {
    addMacros(1);
    MacroKey& macro = library.sets[0].keys[0];
    AppendAction(macro, MacroAction::key(0x41, true));
    AppendAction(macro, MacroAction::key(0x41, false));
    AppendAction(macro, MacroAction{{0, 0, 1, 244}});
    steps->ShowMacro(0, 0);
    const auto surface = painted(*steps);
    for (int line = 0; line < 3; ++line) {
        const Color icon = surface->image().pixel({place.left + 2, place.top + line * 20 + 3});
        EXPECT_EQ(icon, frameColor(line)) << line;
    }
    macro.actionCount = 4000000000u;
    EXPECT_EQ(steps->rowCount(), maxActionCount) << "a file may claim more steps than there are";
}

} // namespace
} // namespace tarnix
