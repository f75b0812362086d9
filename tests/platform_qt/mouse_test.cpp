#include "window_fixture.h"

namespace tarnix::testing {
namespace {

/// Writes down movements, too, and captures or tracks when told so.
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
    bool tracks = false;
    bool moves = false;
};

struct Mouse : WindowTest {
    void SetUp() override { showMain(m_window); }
    Hand m_window{m_log};
};

TEST_F(Mouse, ButtonsMovesAndWheelArriveInClientCoordinatesAndASecondPressIsADoubleClick) {
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

TEST_F(Mouse, AWindowFollowsThePointerThatStartedToMoveItUntilTheRelease) {
    m_window.startMove();
    movePointer({150, 180});
    ASSERT_TRUE(logged("move 0 50,60")) << "with no button down there is nothing to move";
    m_window.moves = true;
    pressButton();
    ASSERT_TRUE(logged("down 1 50,60"));
    // A window manager takes the keyboard when it takes over, and tells the place at the end.
    ASSERT_TRUE(runUntil([&] {
        movePointer({170, 200});
        return m_window.screenRect() != mainPlace || m_log.back() == "inactive";
    }));
    movePointer({350, 380});
    releaseButton();
    EXPECT_TRUE(runUntil([&] { return m_window.screenRect() == mainPlace.moved(200, 200); }));
    m_window.moves = false;
    settle();
    click({360, 390});
    ASSERT_TRUE(logged("up 0 60,70"));
    keep("up");
    EXPECT_THAT(m_log, ElementsAre("up 0 60,70"));
}

TEST_F(Mouse, WhatTheOutlineLeavesOutIsNoPartOfTheWindow) {
    const Rect outline[] = {Rect::at(0, 0, 150, 200), Rect::at(150, 100, 150, 100)};
    m_window.setShape(outline);
    settle();
    for (const Point at : {Point{300, 150}, {200, 150}, {300, 250}})
        click(at);
    ASSERT_TRUE(logged("up 0 200,130"));
    keep("up");
    EXPECT_THAT(m_log, ElementsAre("up 0 100,30", "up 0 200,130"));
}

} // namespace
} // namespace tarnix::testing
