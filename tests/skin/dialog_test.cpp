// The dialog base: routing, painting, backgrounds, outlines, keys and messages.
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
    /// The rectangles painted since the last call, as one.
    Rect repainted() {
        dialog.update();
        Rect all{400, 300, 0, 0};
        for (const Rect& part : dialog.takePaints())
            all = {std::min(all.left, part.left), std::min(all.top, part.top),
                   std::max(all.right, part.right), std::max(all.bottom, part.bottom)};
        return all;
    }
    CImageButton* a = nullptr;
    CImageButton* b = nullptr;
};

TEST_F(RoutingTest, PressedControlKeepsThePointerUntilTheRelease) {
    dialog.OnLButtonDown(0, onLeft); // the first one, without a movement before
    dialog.OnMouseMove(0, onRight);
    dialog.OnMouseLeave();
    EXPECT_EQ(a->m_nMouseState, mousePressed);
    EXPECT_EQ(b->m_nMouseState, mouseNormal) << "nothing else lights up while a control is pressed";
    dialog.OnLButtonUp(0, onRight);
    EXPECT_EQ(dialog.take(), (Notices{{2100, 0, 1}}));
    EXPECT_EQ(a->m_nMouseState, mouseNormal);
    EXPECT_EQ(dialog.mouse().hot(), nullptr);
    dialog.OnMouseMove(0, onRight);
    EXPECT_EQ(b->m_nMouseState, mouseHover);
}

TEST_F(RoutingTest, ClicksGoToTheLastVisibleControlUnderThePointerThatMayBeDroppedByThem) {
    auto& over = dialog.make<CImageButton>(4, 2102u, left);
    clickAt(dialog, onLeft);
    dialog.OnLButtonDblClk(0, onLeft);
    dialog.OnLButtonUp(0, onLeft);
    EXPECT_EQ(dialog.take(), (Notices{{2102, 0, 1}, {2102, 0, 2}, {2102, 0, 2}}));
    over.SetVisible(false);
    dialog.m_messages.onClick(2100, [this] { dialog.OnMouseLeave(); });
    clickAt(dialog, onLeft);
    EXPECT_EQ(dialog.take(), (Notices{{2100, 0, 1}, {2100, 0, 2}}));
    EXPECT_EQ(dialog.mouse().hot(), nullptr);
    EXPECT_EQ(a->m_nMouseState, mouseNormal);
    a->m_bDisabled = true;
    clickAt(dialog, onLeft);
    EXPECT_EQ(dialog.take(), Notices{});
}

TEST_F(RoutingTest, OnlyWhatChangedIsPaintedAndATabPaintsTheWholeFace) {
    testing::movePointer({0, 0});
    dialog.show();
    ASSERT_TRUE(testing::runUntil([this] { return !dialog.paints.empty(); }));
    testing::settle();
    dialog.takePaints();
    dialog.OnMouseMove(0, onLeft);
    EXPECT_EQ(repainted(), left);
    dialog.OnMouseMove(0, onRight);
    EXPECT_EQ(repainted(), (Rect{left.left, left.top, right.right, right.bottom}));
    dialog.OnMouseLeave();
    EXPECT_EQ(repainted(), right);
    a->SetText("Caption");
    EXPECT_EQ(repainted(), left);
    a->SetText("Caption");
    EXPECT_TRUE(repainted().empty());
    auto& check = dialog.make<CCheckButton>(0, 2112u, Rect::at(120, 150, 30, 30));
    clickAt(dialog, {125, 155});
    repainted();
    dialog.OnLButtonDblClk(0, {125, 155});
    dialog.OnLButtonUp(0, {125, 155});
    EXPECT_EQ(repainted(), check.GetRect()) << "its mark, though the pointer's state stays";
    dialog.make<CTabControl>(0, 2003u, Rect::at(200, 150, 30, 30));
    clickAt(dialog, {205, 155});
    EXPECT_EQ(repainted(), dialog.clientRect());
}

TEST_F(RoutingTest, HiddenControlsAndThoseOutsideTheClipAreNotPainted) {
    pictures.addStrip(500, 3, left.size());
    ASSERT_TRUE(a->LoadImage(500));
    const std::tuple<Rect, bool, bool> cases[] = {
        {left, true, true}, {right, true, false}, {left, false, false}};
    for (const auto& [clip, visible, painted] : cases) {
        const auto surface = makeSurface({400, 300});
        a->SetVisible(visible);
        dialog.controls().draw(surface->canvas(), clip);
        EXPECT_EQ(surface->image().pixel(onLeft) == frameColor(0), painted);
    }
}

TEST(BackgroundTest, TheOutlineLeavesYellowOut) {
    const auto bitmap = makeSurface({6, 3});
    for (const Rect& yellow : {Rect{0, 0, 1, 1}, {3, 0, 4, 1}, {5, 0, 6, 1}, {0, 1, 6, 2}})
        bitmap->canvas().fill(yellow, rgb(255, 255, 0));
    EXPECT_EQ(outlineOf(bitmap->image()), (std::vector<Rect>{{1, 0, 3, 1}, {4, 0, 5, 1}, {0, 2, 6, 3}}));
}

TEST(BackgroundTest, EdgesFadeToTheAverageColourWhereTheWindowIsLargerThanTheBitmap) {
    const std::pair<Size, int> fades[] = {
        {{805, 588}, 0}, {{806, 600}, 0}, {{80, 600}, 80}, {{804, 588}, 100}, {{300, 40}, 40}};
    for (const auto& [bitmap, fade] : fades)
        EXPECT_EQ(fadeWidthFor({805, 588}, bitmap), fade) << bitmap.width;

    const auto bitmap = makeSurface({300, 200});
    bitmap->canvas().fill({0, 0, 300, 100}, rgb(200, 100, 0));
    EXPECT_EQ(averageColor(bitmap->image()), rgb(100, 50, 0));
    Background background;
    background.load(bitmap->image(), {400, 400});
    const auto window = makeSurface({400, 400});
    background.draw(window->canvas(), {0, 0, 400, 400});
    const std::pair<Point, int> reds[] = {{{199, 99}, 200}, {{200, 50}, 200}, {{250, 50}, 150},
                                          {{299, 50}, 101}, {{50, 150}, 50},  {{250, 150}, 71}};
    for (const auto& [at, red] : reds)
        EXPECT_NEAR(redOf(window->image().pixel(at)), red, 2) << at.x << ',' << at.y;
}

} // namespace
} // namespace tarnix
