#include "window_fixture.h"

namespace tarnix::testing {
namespace {

/// Writes down movements, too, and captures, tracks or moves when told so.
class Hand : public RecordingWindow {
  public:
    explicit Hand(Log& log) : RecordingWindow("", log) {}
    void OnMouseMove(unsigned flags, Point at) override {
        if (tracks) trackMouse(30);
        tracks = false;
        note("move" + text(flags, at));
    }
    void OnLButtonDown(unsigned flags, Point at) override {
        RecordingWindow::OnLButtonDown(flags, at);
        if (captures) captureMouse();
        if (moves) startMove();
    }
    void OnLButtonUp(unsigned flags, Point at) override {
        RecordingWindow::OnLButtonUp(flags, at);
        if (captures) releaseMouse();
    }
    bool captures = false;
    bool moves = false;
    bool tracks = false;
};

class Mouse : public WindowTest {
  protected:
    Hand m_window{m_log};
};

TEST_F(Mouse, ButtonsMovesAndWheelArriveInClientCoordinatesAndASecondPressIsADoubleClick) {
    showMain(m_window);
    movePointer({150, 180});
    ASSERT_TRUE(logged("move 0 50,60"));
    m_log.clear();
    click({150, 180});
    doubleClick({160, 190});
    turnWheel(false);
    pressButton(3);
    releaseButton(3);
    turnWheel(true);
    ASSERT_TRUE(logged("wheel 120"));
    std::erase(m_log, "move 0 60,70");
    EXPECT_THAT(m_log, ElementsAre("down 1 50,60", "up 0 50,60", "down 1 60,70", "up 0 60,70",
                                   "double 1 60,70", "up 0 60,70", "wheel -120", "wheel 120"));
}

TEST_F(Mouse, CaptureBringsWhatHappensOutsideAndLeaveComesAfterTheRelease) {
    showMain(m_window);
    m_window.captures = m_window.tracks = true;
    movePointer({150, 180});
    ASSERT_TRUE(logged("move 0 50,60"));
    pressButton();
    movePointer({600, 700});
    ASSERT_TRUE(logged("move 1 500,580"));
    EXPECT_THAT(m_log, Not(Contains("leave")));
    releaseButton();
    ASSERT_TRUE(logged("leave"));
    EXPECT_EQ(m_log[m_log.size() - 2], "up 0 500,580");
    m_log.clear();
    movePointer({610, 710});
    settle();
    EXPECT_THAT(m_log, IsEmpty()) << "the capture is over";
}

TEST_F(Mouse, WithoutCaptureAPressedPointerThatGoesOutLeavesAndItsReleaseIsNotHeard) {
    showMain(m_window);
    m_window.tracks = true;
    movePointer({150, 180});
    ASSERT_TRUE(logged("move 0 50,60"));
    pressButton();
    movePointer({600, 700});
    ASSERT_TRUE(logged("leave"));
    releaseButton();
    movePointer({160, 190});
    ASSERT_TRUE(logged("move 0 60,70"));
    EXPECT_THAT(m_log, Not(Contains("up 0 500,580")));
}

TEST_F(Mouse, OneHoverAndOneLeaveForEachRequest) {
    showMain(m_window);
    m_window.tracks = true;
    movePointer({150, 180});
    ASSERT_TRUE(logged("hover"));
    movePointer({155, 180});
    ASSERT_TRUE(logged("move 0 55,60"));
    movePointer({900, 900});
    ASSERT_TRUE(logged("leave"));
    movePointer({150, 180});
    movePointer({900, 900});
    movePointer({170, 180});
    ASSERT_TRUE(logged("move 0 70,60"));
    EXPECT_EQ(std::count(m_log.begin(), m_log.end(), "leave"), 1);
    EXPECT_EQ(std::count(m_log.begin(), m_log.end(), "hover"), 1);
}

TEST_F(Mouse, MovingTheWindowTakesItAlongAndItsReleaseReachesNoControl) {
    showMain(m_window);
    m_window.moves = true;
    movePointer({150, 180});
    pressButton();
    ASSERT_TRUE(logged("down 1 50,60"));
    settle();
    // A window manager takes a while to begin, and then wants to see the pointer move.
    for (int wiggle = 0; wiggle < 30; ++wiggle) {
        movePointer({250, 260 + wiggle % 2});
        settle();
    }
    releaseButton();
    m_window.moves = false;
    ASSERT_TRUE(runUntil([&] { return m_window.screenRect().left == 200; }));
    settle();
    const Rect place = m_window.screenRect();
    click({place.left + 60, place.top + 70});
    ASSERT_TRUE(logged("up 0 60,70"));
    std::erase_if(m_log, [](const std::string& entry) {
        return entry.starts_with("move") || entry.ends_with("active");
    });
    EXPECT_THAT(m_log, ElementsAre("down 1 50,60", "down 1 60,70", "up 0 60,70"));
}

TEST_F(Mouse, PixelsOutsideTheShapeAreNotHit) {
    showMain(m_window);
    const Rect outline[] = {Rect::at(0, 0, 300, 50), Rect::at(100, 50, 100, 1), Rect::at(101, 51, 98, 149)};
    m_window.setShape(outline);
    settle();
    movePointer({150, 180});
    movePointer({250, 180});
    ASSERT_TRUE(logged("move 0 150,60"));
    EXPECT_THAT(m_log, Not(Contains("move 0 50,60")));
}

} // namespace
} // namespace tarnix::testing
