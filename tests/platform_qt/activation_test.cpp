#include "window_fixture.h"

namespace tarnix::testing {
namespace {

class Activation : public WindowTest {
  protected:
    static constexpr Rect popupPlace = Rect::at(150, 300, 120, 90);
    void SetUp() override { showMain(m_main); }

    void showPopup(RecordingWindow& popup, Window& owner, const Rect& place = popupPlace) {
        ASSERT_TRUE(popup.createWindow({.kind = WindowKind::Popup, .owner = &owner, .role = "Popup"}, place));
        popup.show();
    }
    /// The log without what the pointer and the keys did.
    Log changes() {
        keep("active");
        return m_log;
    }

    RecordingWindow m_main{"main", m_log};
    RecordingWindow m_popup{"popup", m_log};
};

TEST_F(Activation, ShowingAPopupDeactivatesItsOwnerBeforeTheCallReturns) {
    showPopup(m_popup, m_main);
    EXPECT_THAT(m_log, ElementsAre("main inactive", "popup active"));
    RecordingWindow second("second", m_log);
    showPopup(second, m_main, Rect::at(280, 300, 120, 90));
    EXPECT_THAT(changes(), ElementsAre("main inactive", "popup active", "popup inactive", "second active"));
    m_log.clear();
    m_popup.raise();
    settle();
    EXPECT_THAT(changes(), ElementsAre("second inactive", "popup active"));
}

TEST_F(Activation, APressElsewhereInTheProgramMovesItAndOneInThePopupDoesNot) {
    showPopup(m_popup, m_main);
    ASSERT_TRUE(runUntil([&] { return m_popup.screenRect() == popupPlace; }));
    click({160, 310});
    ASSERT_TRUE(logged("popup up 0 10,10"));
    EXPECT_THAT(changes(), ElementsAre("main inactive", "popup active"));
    m_log.clear();
    click({110, 130});
    ASSERT_TRUE(logged("main up 0 10,10"));
    std::erase_if(m_log, [](const std::string& entry) { return entry.starts_with("main move"); });
    EXPECT_THAT(m_log, ElementsAre("popup inactive", "main active", "main down 1 10,10", "main up 0 10,10"))
        << "the change comes before the press";
}

TEST_F(Activation, ThePopupIsDeactivatedWhenTheProgramLosesTheFocusOrTheOwnerGoesFromTheScreen) {
    tapKey("a");
    ASSERT_TRUE(logged("main key other")) << "the main window has the focus";
    showPopup(m_popup, m_main);
    m_log.clear();
    auto other = anotherProgram();
    EXPECT_TRUE(logged("popup inactive"));
    other.reset();
    settle();

    for (const bool hidden : {true, false}) {
        m_main.show();
        m_popup.raise();
        m_log.clear();
        hidden ? m_main.hide() : m_main.minimise();
        EXPECT_THAT(changes(), ElementsAre("popup inactive"));
    }
}

TEST_F(Activation, KeysGoToTheOwnerWhileThePopupIsOpenAndClosingItActivatesTheOwner) {
    showPopup(m_popup, m_main);
    settle();
    click({160, 310});
    tapKey("Return");
    ASSERT_TRUE(logged("main key up Enter"));
    EXPECT_THAT(m_log, Not(Contains("popup key Enter")));
    m_log.clear();
    m_popup.destroyWindow();
    EXPECT_THAT(m_log, ElementsAre("popup inactive", "main active", "popup destroy"));
}

/// Deletes itself with its window; asks to be closed in the handler of a press, which then goes on.
class Passing : public RecordingWindow {
  public:
    using RecordingWindow::RecordingWindow;
    void OnLButtonDown(unsigned flags, Point at) override {
        RecordingWindow::OnLButtonDown(flags, at);
        postClose();
        runUntil([this] { return !isVisible(); });
        note(exists() ? "goes on" : "is gone");
    }
    void OnDestroy() override {
        RecordingWindow::OnDestroy();
        delete this;
    }
};

TEST_F(Activation, APopupThatIsClosedInItsHandlerVanishesAtOnceAndIsDestroyedAfterIt) {
    auto* passing = new Passing("popup", m_log);
    showPopup(*passing, m_main);
    settle();
    click({160, 310});
    ASSERT_TRUE(logged("popup destroy"));
    std::erase_if(m_log, [](const std::string& entry) { return entry.ends_with("active"); });
    EXPECT_THAT(m_log, ElementsAre("popup down 1 10,10", "popup goes on", "popup destroy"));
}

} // namespace
} // namespace tarnix::testing
