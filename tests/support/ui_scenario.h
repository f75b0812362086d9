// Plays a scenario against a dialog while it runs modally: the scenario has a thread of its own and reads top
// down, everything that it does to windows happens on the user-interface thread, keys come from the X server.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <thread>

#include "skin/dlg_base.h"
#include "support/desktop_driver.h"

namespace tarnix {

/// Moves the pointer to a point of the window, presses and releases, as far as the window can tell.
inline void clickAt(Window& window, Point at) {
    window.OnMouseMove(0, at);
    window.OnLButtonDown(1, at);
    window.OnLButtonUp(0, at);
}

inline void clickControl(CDlgBase& dialog, unsigned id) {
    const Rect rect = dialog.GetControl(id)->GetRect();
    clickAt(dialog, {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2});
}

/// What the key hook posts for an event of a key at a time.
inline void hookEvent(Window& window, unsigned virtualKey, unsigned time, bool released = false) {
    window.send(0x401, virtualKey, static_cast<LParam>(time | (released ? 0x80000000U : 0U)));
}

class UiScenario {
  public:
    /// Hands work to the user-interface thread; for work that opens a dialog and comes back when that is
    /// closed.
    void start(std::function<void()> work) {
        testing::application().mainLoop().post([work = std::move(work), over = m_over] {
            if (!*over) work();
        });
    }
    /// The same, and waits for its end. False when the dialog's run ended before.
    bool run(const std::function<void()>& work) {
        auto done = std::make_shared<std::promise<void>>();
        auto future = done->get_future();
        start([work, done] {
            work();
            done->set_value();
        });
        while (future.wait_for(std::chrono::milliseconds(5)) != std::future_status::ready)
            if (*m_over) return false;
        return true;
    }
    /// Waits until the condition holds on the user-interface thread. False after ten seconds without.
    bool until(const std::function<bool()>& condition) {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        for (bool held = false; std::chrono::steady_clock::now() < deadline;) {
            if (!run([&] { held = condition(); })) return false;
            if (held) return true;
        }
        return false;
    }
    /// Waits until the dialog has ended by itself. False after ten seconds without.
    bool untilOver() {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (!*m_over && std::chrono::steady_clock::now() < deadline)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        return *m_over;
    }
    /// Key names as X has them, separated by spaces; they go to the window that has the keyboard.
    static bool keys(const std::string& names) { return std::system(("xdotool key " + names).c_str()) == 0; }
    static bool type(const std::string& text) {
        return std::system(("xdotool type '" + text + "'").c_str()) == 0;
    }

    /// Waits until the window that has the keyboard has this role, which is its class's name, and this size.
    static bool windowShown(const std::string& role, Size size) {
        const std::string geometry = std::to_string(size.width) + "x" + std::to_string(size.height);
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (std::chrono::steady_clock::now() < deadline)
            if (withFocused(role, "xdotool getwindowgeometry $w | grep -q 'Geometry: " + geometry + "$'"))
                return true;
        return false;
    }
    /// Clicks with the pointer in the window that has the keyboard, in client coordinates. False when it has
    /// another role.
    static bool clickWindow(const std::string& role, Point at) {
        return withFocused(role, "xdotool mousemove --window $w " + std::to_string(at.x) + ' ' +
                                     std::to_string(at.y) + " click 1");
    }

    void end() { *m_over = true; }

  private:
    /// Runs a shell command on the window $w. False when that has another role, or the command fails.
    static bool withFocused(const std::string& role, const std::string& command) {
        return std::system(("{ w=$(xdotool getwindowfocus) && xprop -id $w WM_WINDOW_ROLE | grep -q '\"" +
                            role + "\"' && " + command + "; } 2>/dev/null")
                               .c_str()) == 0;
    }

    std::shared_ptr<std::atomic<bool>> m_over = std::make_shared<std::atomic<bool>>(false);
};

/// Runs the dialog until the scenario or the dialog itself ends it. Answers the dialog's result.
inline int playIn(CDlgBase& dialog, const std::function<void(UiScenario&)>& scenario) {
    UiScenario ui;
    std::thread player([&] {
        scenario(ui);
        ui.run([&] { dialog.endModal(IDCANCEL); });
    });
    const int result = dialog.DoModal();
    ui.end();
    player.join();
    return result;
}

/// Plays steps that need no keys of the X server and no inner dialogs.
inline int playIn(CDlgBase& dialog, const std::function<void()>& steps) {
    return playIn(dialog, [&](UiScenario& ui) { ui.run(steps); });
}

} // namespace tarnix
