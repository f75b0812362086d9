// The dialog base: routing, painting, backgrounds, outlines, keys and messages.
#include "platform/edit_field.h"
#include "skin/lists.h"
#include "skin/tab_control.h"
#include "skin_fixture.h"

namespace tarnix {
namespace {

constexpr Rect left = Rect::at(10, 10, 40, 20);
constexpr Rect right = Rect::at(70, 10, 40, 20);
constexpr Point onLeft{15, 15};
constexpr Point onRight{75, 15};
constexpr Point nowhere{200, 200};

class RoutingTest : public SkinTest {
  protected:
    void SetUp() override {
        SkinTest::SetUp();
        a = &dialog.make<CImageButton>(0, 2100u, left);
        b = &dialog.make<CImageButton>(2, 2101u, right);
    }
    void click(Point at) {
        dialog.OnMouseMove(0, at);
        dialog.OnLButtonDown(0, at);
        dialog.OnLButtonUp(0, at);
    }
    /// The rectangles painted since the last call, as one.
    Rect repainted() {
        dialog.update();
        Rect all;
        for (const Rect& part : dialog.takePaints()) {
            if (all.empty()) all = part;
            all = {std::min(all.left, part.left), std::min(all.top, part.top),
                   std::max(all.right, part.right), std::max(all.bottom, part.bottom)};
        }
        return all;
    }
    CImageButton* a = nullptr;
    CImageButton* b = nullptr;
};

TEST_F(RoutingTest, PressedControlKeepsThePointerUntilTheRelease) {
    dialog.OnMouseMove(0, onLeft);
    EXPECT_EQ(dialog.mouse().hot(), a);
    dialog.OnLButtonDown(0, onLeft);
    dialog.OnMouseMove(0, onRight);
    dialog.OnMouseLeave();
    EXPECT_EQ(a->m_nMouseState, mousePressed);
    EXPECT_EQ(b->m_nMouseState, mouseNormal) << "nothing else lights up while a control is pressed";
    dialog.OnLButtonUp(0, onRight);
    EXPECT_EQ(dialog.take(), (Notices{{2100, 0, 1}}));
    EXPECT_EQ(a->m_nMouseState, mouseNormal);
    EXPECT_EQ(dialog.mouse().hot(), nullptr);
    EXPECT_EQ(dialog.mouse().lastPoint(), (Point{-1, -1}));
    dialog.OnMouseMove(0, onRight);
    EXPECT_EQ(b->m_nMouseState, mouseHover);
}

TEST_F(RoutingTest, DoubleClickClicksTwiceAndPressesOnce) {
    click(onLeft);
    dialog.OnLButtonDblClk(0, onLeft);
    dialog.OnLButtonUp(0, onLeft);
    EXPECT_EQ(dialog.take(), (Notices{{2100, 0, 1}, {2100, 0, 2}, {2100, 0, 2}}));
}

TEST_F(RoutingTest, LastControlUnderThePointerWinsAndHiddenOnesAreNotThere) {
    auto& over = dialog.make<CImageButton>(4, 2102u, left);
    dialog.OnMouseMove(0, onLeft);
    EXPECT_EQ(dialog.mouse().hot(), &over);
    EXPECT_EQ(dialog.GetControl(2102), &over);
    over.SetVisible(false);
    click(onLeft);
    EXPECT_EQ(dialog.take(), (Notices{{2100, 0, 1}, {2100, 0, 2}}));
    a->m_bDisabled = true;
    click(onLeft);
    EXPECT_EQ(dialog.take(), Notices{});
    EXPECT_EQ(dialog.GetControl(2102), &over) << "hidden controls are found";
    EXPECT_EQ(dialog.GetControl(9), nullptr);
}

TEST_F(RoutingTest, OnlyWhatChangedIsPaintedAndATabPaintsTheWholeFace) {
    showDialog();
    dialog.OnMouseMove(0, onLeft);
    EXPECT_EQ(repainted(), left);
    dialog.OnMouseMove(0, onRight);
    EXPECT_EQ(repainted(), (Rect{left.left, left.top, right.right, right.bottom}));
    dialog.OnMouseLeave();
    EXPECT_EQ(b->m_nMouseState, mouseNormal) << "leaving the window puts the button back at once";
    EXPECT_EQ(repainted(), right);
    a->SetText("Caption");
    EXPECT_EQ(repainted(), left);
    a->SetText("Caption");
    EXPECT_EQ(repainted(), Rect{});
    a->SetText("caption");
    EXPECT_EQ(repainted(), left);
    dialog.make<CTabControl>(0, 2003u, Rect::at(200, 150, 30, 30));
    click({205, 155});
    EXPECT_EQ(repainted(), dialog.clientRect());
}

TEST_F(RoutingTest, FirstPressWithoutAMovementFindsItsControl) {
    dialog.OnLButtonDown(0, onRight);
    dialog.OnLButtonUp(0, onRight);
    EXPECT_EQ(dialog.take(), (Notices{{2101, 0, 1}, {2101, 0, 2}}));
}

TEST_F(RoutingTest, ClickHandlerMayDropTheHotControl) {
    dialog.m_messages.onClick(2100, [this] { dialog.OnMouseLeave(); });
    click(onLeft);
    EXPECT_EQ(dialog.mouse().hot(), nullptr);
    EXPECT_EQ(a->m_nMouseState, mouseNormal);
    click(onRight);
    EXPECT_EQ(dialog.take().back(), (Notice{2101, 0, 2}));
}

TEST_F(RoutingTest, EscapeClosesANameFieldBeforeItCancels) {
    MacroLibrary library{{{"Set", {}}}};
    auto& list = dialog.make<CEditShowList>(2, 2109u, Rect::at(100, 100, 100, 100), library);
    list.SelectSet(0);
    list.BeginNewName();
    const KeyPress escape{KeyPress::Key::Escape, true};
    EXPECT_TRUE(dialog.OnKey(escape));
    EXPECT_FALSE(list.isEditing());
    EXPECT_EQ(dialog.cancels, 0);
    EXPECT_TRUE(dialog.OnKey({KeyPress::Key::Escape, false}));
    EXPECT_TRUE(dialog.OnKey(escape));
    EXPECT_EQ(dialog.cancels, 1);
    EXPECT_TRUE(dialog.OnKey({KeyPress::Key::Enter, true}));
    EXPECT_FALSE(dialog.OnKey({KeyPress::Key::Space, true})) << "a name may hold blanks";
    EXPECT_EQ(dialog.cancels, 1);
}

TEST(MessageMapTest, ClickRowsIgnoreOtherCodesAndAllRowsOfANumberRunInOrder) {
    MessageMap map;
    std::string log;
    map.onClick(2003, [&] { log += 'c'; })
        .on(2003, [&](WParam, LParam code) { log += static_cast<char>('0' + code); })
        .onClick(2200, 2203, [&](WParam id, LParam) { log += std::to_string(id); });
    for (LParam code : {1, 2})
        EXPECT_EQ(map.dispatch(2003, 0, code), 0);
    map.dispatch(2203, 2203, NOTIFY_CLICK);
    map.dispatch(2204, 0, NOTIFY_CLICK);
    EXPECT_EQ(log, "1c22203");
    EXPECT_EQ(map.registered(), (std::vector<Message>{2003, 2200, 2201, 2202, 2203}));
    EXPECT_TRUE(map.handles(2201));
    EXPECT_FALSE(map.handles(2204));
}

TEST(BackgroundTest, EdgesFadeToTheAverageColourWhereTheWindowIsLargerThanTheBitmap) {
    const struct {
        Size window, bitmap;
        int fade;
    } cases[] = {
        {{805, 588}, {805, 588}, 0},   {{805, 588}, {806, 600}, 0}, {{805, 588}, {80, 600}, 80},
        {{805, 588}, {804, 588}, 100}, {{805, 588}, {300, 40}, 40},
    };
    for (const auto& [window, bitmap, fade] : cases)
        EXPECT_EQ(fadeWidthFor(window, bitmap), fade) << bitmap.width;

    const auto bitmap = makeSurface({300, 200});
    bitmap->canvas().fill({0, 0, 300, 100}, rgb(200, 0, 0));
    Background background;
    background.load(bitmap->image(), {400, 400});
    EXPECT_EQ(background.fadeWidth(), 100);
    const auto window = makeSurface({400, 400});
    background.draw(window->canvas(), {0, 0, 400, 400});
    const auto red = [&](int x, int y) { return redOf(window->image().pixel({x, y})); };
    EXPECT_EQ(red(199, 99), 200);
    EXPECT_NEAR(red(200, 50), 200, 1);
    EXPECT_NEAR(red(250, 50), 150, 2);
    EXPECT_NEAR(red(299, 50), 101, 2);
    EXPECT_NEAR(red(50, 150), 50, 2);
    EXPECT_NEAR(red(250, 150), 71, 2);
}

TEST(BackgroundTest, OutlineIsEverythingButPureYellow) {
    const auto bitmap = makeSurface({6, 3});
    Canvas& canvas = bitmap->canvas();
    canvas.fill({0, 0, 2, 1}, rgb(255, 255, 0));
    canvas.fill({4, 0, 5, 1}, rgb(255, 255, 0));
    canvas.fill({0, 1, 6, 2}, rgb(255, 255, 0));
    canvas.fill({0, 2, 1, 3}, rgb(255, 254, 0));
    EXPECT_EQ(outlineOf(bitmap->image()), (std::vector<Rect>{{2, 0, 4, 1}, {5, 0, 6, 1}, {0, 2, 6, 3}}));
}

} // namespace
} // namespace tarnix
