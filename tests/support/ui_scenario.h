// Works a dialog while it runs modally: the steps read top down and run in its event loop.
#pragma once

#include <functional>
#include <memory>

#include "platform_qt/modal_runs.h"
#include "skin/dlg_base.h"
#include "support/desktop_driver.h"

namespace tarnix {

/// Moves the pointer to a point of the window, presses and releases, as far as the window can tell.
inline void clickAt(Window& window, Point at) {
    window.OnMouseMove(0, at);
    window.OnLButtonDown(1, at);
    window.OnLButtonUp(0, at);
}

inline Point centreOf(const Rect& rect) {
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

inline void clickControl(CDlgBase& dialog, unsigned id) {
    clickAt(dialog, centreOf(dialog.GetControl(id)->GetRect()));
}

/// What the key hook posts for an event of a key at a time.
inline void hookEvent(Window& window, unsigned virtualKey, unsigned time, bool released = false) {
    window.send(0x401, virtualKey, static_cast<LParam>(time | (released ? 0x80000000U : 0U)));
}

/// Runs the dialog until the steps are over or have ended it. Answers the dialog's result.
inline int playIn(CDlgBase& dialog, const std::function<void()>& steps) {
    testing::application().mainLoop().post([&] {
        steps();
        dialog.endModal(IDCANCEL);
    });
    return dialog.DoModal();
}

/// Waits until the run of the dialog, in which this is a step, has been ended. False when it is not.
inline bool endsByItself(const Window& dialog) {
    return testing::runUntil([&] { return !runsModally(dialog); });
}

/// Does work that runs dialogs, and has each answered once it is there. True when there was one.
inline bool answered(const std::function<void()>& work, const std::function<void(CDlgBase&)>& answer) {
    const Window* const outside = modalWindow();
    bool shown = false;
    std::unique_ptr<MainLoop::Subscription> nextLook;
    const std::function<void()> look = [&] {
        auto* dialog = dynamic_cast<CDlgBase*>(modalWindow());
        if (dialog && dialog != outside) {
            shown = true;
            answer(*dialog);
        }
        nextLook = testing::application().mainLoop().after(Milliseconds(5), look);
    };
    look();
    work();
    return shown;
}

} // namespace tarnix
