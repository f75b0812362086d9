#include "window_fixture.h"

namespace tarnix::testing {
namespace {

class Messages : public WindowTest {
  protected:
    bool make(Window& window) { return window.createWindow({.role = "Main"}, mainPlace); }
    RecordingWindow m_other{"b", m_log};
};

TEST_F(Messages, SendAnswersAtOnceAndPostsArriveInTheOrderInWhichTheyWerePostedWhateverTheWindow) {
    EXPECT_EQ(m_window.send(5, 2, 3), 0) << "no window yet";
    ASSERT_TRUE(make(m_window) && make(m_other));
    m_window.post(1, 10, -1);
    m_other.post(2);
    application().mainLoop().post([&] { m_log.push_back("work"); });
    m_window.post(3);
    EXPECT_EQ(m_window.send(5, 2, 3), 5);
    settle();
    EXPECT_THAT(m_log,
                ElementsAre("message 5 2 3", "message 1 10 -1", "b message 2 0 0", "work", "message 3 0 0"));
}

TEST_F(Messages, WhatIsPostedToAWindowThatIsGoneReachesNeitherItNorItsSuccessor) {
    ASSERT_TRUE(make(m_window) && make(m_other));
    m_window.post(1);
    m_window.postClose();
    m_window.startTimer(1, 0);
    m_window.destroyWindow();
    m_window.post(2);
    ASSERT_TRUE(make(m_window));
    m_window.post(3);
    {
        RecordingWindow passing("passing", m_log);
        ASSERT_TRUE(make(passing));
        passing.post(4);
    }
    m_other.post(5);
    ASSERT_TRUE(logged("b message 5 0 0"));
    EXPECT_THAT(m_log, ElementsAre("destroy", "message 3 0 0", "b message 5 0 0"));
}

} // namespace
} // namespace tarnix::testing
