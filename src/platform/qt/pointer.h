// What the pointer does in one window, in the manner of Win32: capture, leave and hover notices, moving the
// window.
#pragma once

#include <QPoint>
#include <QTimer>

#include "platform/geometry.h"

class QMouseEvent;

namespace tarnix {

class WindowWidget;

/// Key and button flags of the Win32 mouse messages.
unsigned mouseFlags(Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers);

class Pointer {
  public:
    explicit Pointer(WindowWidget& widget);

    /// False when the button's release has been cancelled since the press.
    bool capture();
    void release();
    bool track(int hoverTime);
    void startMove();

    void pressed(const QMouseEvent& event);
    /// False when the window does not hear of the movement.
    bool moved(const QMouseEvent& event);
    /// False when the window does not hear of the release.
    bool releasing(const QMouseEvent& event);
    /// The release goes to nobody. False when the window waits for none.
    bool cancel();
    /// After the window has heard of the release, or of its cancelling.
    void released();
    void left();
    void windowHidden();

  private:
    enum class Moving { No, BySystem, BySelf };
    enum class Button { Up, Down, Lost };

    bool isInside() const;
    void leave();
    void hover();

    WindowWidget& m_widget;
    QTimer m_hoverTimer;
    Button m_button = Button::Up; ///< the left one; lost when its release was cancelled
    bool m_captured = false;
    bool m_tracking = false;
    bool m_hoverWanted = false;
    Moving m_moving = Moving::No;
    QPoint m_grip; ///< where the pointer holds the window that it moves
};

} // namespace tarnix
