// What the window tests share: the one application of the process, and windows at known places.
#pragma once

#include <gmock/gmock.h>

#include "platform/application.h"
#include "recording_window.h"
#include "support/desktop_driver.h"

namespace tarnix::testing {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class WindowTest : public ::testing::Test {
  protected:
    static constexpr Rect mainPlace = Rect::at(100, 120, 300, 200);

    ~WindowTest() override { movePointer({1200, 1000}); }

    /// Shown, painted and active; the log is empty afterwards.
    void showMain(RecordingWindow& window, const Rect& place = mainPlace) {
        movePointer({1200, 1000});
        ASSERT_TRUE(window.createWindow({.role = "Main", .taskbarButton = true}, place));
        window.show();
        ASSERT_TRUE(
            runUntil([&] { return window.screenRect() == place && window.paints > 0 && isActive(); }));
        settle();
        m_log.clear();
    }

    /// Whether the window that was told last is the active one.
    bool isActive() const {
        const auto tells = [](const std::string& entry) { return entry.ends_with("active"); };
        const auto last = std::find_if(m_log.rbegin(), m_log.rend(), tells);
        return last != m_log.rend() && !last->ends_with("inactive");
    }
    /// On the screen, that is.
    static bool shown(const RecordingWindow& window) {
        return runUntil([&] { return window.paints > 0; });
    }
    /// Takes out of the log what does not say this.
    void keep(const std::string& word) {
        std::erase_if(m_log, [&](const std::string& entry) { return entry.find(word) == std::string::npos; });
    }
    bool logged(const std::string& entry) {
        return runUntil([&] { return std::find(m_log.begin(), m_log.end(), entry) != m_log.end(); });
    }

    Log m_log;
    RecordingWindow m_window{"", m_log};
};

} // namespace tarnix::testing
