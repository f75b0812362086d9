// Real pointer and key events on real windows.
#include <algorithm>

#include "skin/list_popup.h"
#include "skin_fixture.h"

namespace tarnix {
namespace {

using testing::movePointer;
using testing::pressButton;
using testing::releaseButton;
using testing::runUntil;

class PointerTest : public SkinTest {
  protected:
    void SetUp() override {
        SkinTest::SetUp();
        button = &dialog.make<CImageButton>(0, 2001u, Rect::at(380, 10, 20, 20));
        showDialog();
    }
    static Point on(const Window& window, Point at) {
        const Rect rect = window.screenRect();
        return {rect.left + at.x, rect.top + at.y};
    }
    CImageButton* button = nullptr;
};

TEST_F(PointerTest, PressOfAButtonIsCapturedUntilItIsReleasedOutsideTheWindow) {
    const auto state = [this](int wanted) { return [=, this] { return button->m_nMouseState == wanted; }; };
    movePointer(on(dialog, {390, 20}));
    EXPECT_TRUE(runUntil(state(mouseHover)));
    pressButton();
    EXPECT_TRUE(runUntil(state(mousePressed)));
    movePointer(on(dialog, {450, 20}));
    releaseButton();
    EXPECT_TRUE(runUntil(state(mouseNormal)));
    testing::click(on(dialog, {390, 20}));
    EXPECT_TRUE(runUntil([this] { return dialog.notices.size() == 3; }));
    EXPECT_EQ(dialog.take(), (Notices{{2001, 0, 1}, {2001, 0, 1}, {2001, 0, 2}}));
}

TEST_F(PointerTest, BackgroundDragsTheWindowWithoutAWordToTheControls) {
    const Rect before = dialog.screenRect();
    const auto dragged = [&] {
        movePointer(on(dialog, {390, 20}));
        return dialog.screenRect().left > before.left && dialog.mouse().hot() == button;
    };
    // The window manager tells where the window is when the move is over, and may start after our release.
    for (int attempt = 0; attempt < 5 && !dragged(); ++attempt) {
        const Point start = on(dialog, {100, 150});
        movePointer(start);
        pressButton();
        for (int step = 0; step < 40; ++step) {
            movePointer({start.x + step, start.y});
            testing::settle();
        }
        releaseButton();
        runUntil(dragged, std::chrono::seconds{2});
    }
    EXPECT_TRUE(dragged());
    testing::click(on(dialog, {390, 20}));
    EXPECT_TRUE(runUntil([this] { return dialog.notices.size() >= 2; }));
    EXPECT_EQ(dialog.take(), (Notices{{2001, 0, 1}, {2001, 0, 2}}));
}

TEST_F(PointerTest, ListFollowsThePointerAnswersAndIsFreedWhenItsOwnerClosesIt) {
    struct Counted : CLightSpeedPopup {
        explicit Counted(int& count) : alive(count) { ++alive; }
        ~Counted() override { --alive; }
        int& alive;
    };
    int alive = 0;
    CListPopup* list = nullptr;
    const auto open = [&] {
        auto popup = std::make_unique<Counted>(alive);
        list = popup.get();
        dialog.popups().open(PopupPlace::LightSpeed, std::move(popup), Rect::at(50, 80, 169, 0), 0x431, 2093);
    };
    bool chosen = false;
    dialog.m_messages.on(0x431, [&](WParam tag, LParam) { chosen = chosen || tag == 2093; });
    dialog.m_messages.on(1072, [&] { dialog.popups().close(PopupPlace::LightSpeed); });
    open();
    movePointer(on(*list, {40, 25}));
    EXPECT_TRUE(runUntil([&] { return list->hotRow() == 1 && list->pointerInside(); }));
    testing::click(on(*list, {40, 25}));
    EXPECT_TRUE(runUntil([&] { return chosen; }));
    testing::click(on(dialog, {20, 20}));
    EXPECT_TRUE(runUntil([&] { return alive == 0; }));
    open();
    testing::tapKey("Escape");
    EXPECT_TRUE(runUntil([&] { return alive == 0; }));
    testing::tapKey("Escape");
    EXPECT_TRUE(runUntil([&] { return dialog.cancels == 1; }));
    const Notices all = dialog.take();
    EXPECT_EQ(std::count(all.begin(), all.end(), Notice{CWndPopup::closingMessage, 0, 0}), 2);
}

} // namespace
} // namespace tarnix
