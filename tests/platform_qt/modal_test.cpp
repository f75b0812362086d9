#include "window_fixture.h"

namespace tarnix::testing {
namespace {

constexpr Rect dialogPlace = Rect::at(420, 400, 200, 120);
constexpr Rect innerPlace = Rect::at(640, 400, 200, 120);

/// Its button, the whole face, ends it with the answer.
class Dialog : public RecordingWindow {
  public:
    using RecordingWindow::RecordingWindow;
    bool open(Window& owner, const Rect& place) {
        return createWindow({.owner = &owner, .role = "Dialog"}, place);
    }
    void OnLButtonUp(unsigned flags, Point at) override {
        RecordingWindow::OnLButtonUp(flags, at);
        if (answer) endModal(answer);
    }
    int answer = 0;
};

class ModalRun : public WindowTest {
  protected:
    void SetUp() override {
        showMain(m_main);
        ASSERT_TRUE(m_dialog.open(m_main, dialogPlace));
    }
    /// Runs the steps from the event loop, once the run has begun.
    void then(std::function<void()> steps) {
        application().mainLoop().post([this, steps = std::move(steps)] {
            steps();
            if (HasFatalFailure()) m_dialog.endModal(-1);
        });
    }
    int count(const std::string& entry) const {
        return static_cast<int>(std::count(m_log.begin(), m_log.end(), entry));
    }

    RecordingWindow m_main{"main", m_log};
    Dialog m_dialog{"dialog", m_log};
    Dialog m_inner{"inner", m_log};
};

TEST_F(ModalRun, TheDialogAndItsPopupsAloneTakeInputAndTheAnswerComesBack) {
    RecordingWindow popup("popup", m_log);
    then([&] {
        ASSERT_TRUE(shown(m_dialog));
        ASSERT_TRUE(popup.createWindow({.kind = WindowKind::Popup, .owner = &m_dialog}, innerPlace));
        popup.show();
        ASSERT_TRUE(shown(popup));
        click({110, 130});
        tapKey("a");
        click({650, 410});
        ASSERT_TRUE(logged("popup up 0 10,10"));
        m_dialog.answer = 7;
        click({430, 410});
    });
    EXPECT_EQ(m_dialog.runModal(), 7);
    EXPECT_FALSE(m_dialog.exists());
    EXPECT_FALSE(popup.exists());
    EXPECT_EQ(count("main down 1 10,10") + count("main up 0 10,10") + count("main key other"), 0);
    settle();
    click({110, 130});
    EXPECT_TRUE(logged("main up 0 10,10")) << "the main window works again";
}

TEST_F(ModalRun, EscapeCancelsUnlessTheWindowSwallowsItAndEnterDoesNothing) {
    m_dialog.swallowsKeys = true;
    then([&] {
        ASSERT_TRUE(shown(m_dialog));
        click({430, 410});
        ASSERT_TRUE(logged("dialog up 0 10,10"));
        tapKey("Escape");
        ASSERT_TRUE(logged("dialog key up Escape"));
        m_dialog.swallowsKeys = false;
        tapKey("Return");
        ASSERT_TRUE(logged("dialog key up Enter"));
        ASSERT_TRUE(m_dialog.exists());
        tapKey("Escape");
    });
    EXPECT_EQ(m_dialog.runModal(), IDCANCEL);
}

TEST_F(ModalRun, EndingAnOuterRunCancelsTheInnerOnesFirst) {
    ASSERT_TRUE(m_inner.open(m_dialog, innerPlace));
    then([&] {
        then([&] { m_dialog.endModal(IDOK); });
        m_log.push_back("inner answers " + std::to_string(m_inner.runModal()));
        Dialog late("late", m_log);
        ASSERT_TRUE(late.open(m_dialog, innerPlace));
        m_log.push_back("late answers " + std::to_string(late.runModal()));
    });
    m_log.push_back("outer answers " + std::to_string(m_dialog.runModal()));
    keep("answers");
    EXPECT_THAT(m_log, ElementsAre("inner answers 2", "late answers 2", "outer answers 1"));
}

} // namespace
} // namespace tarnix::testing
