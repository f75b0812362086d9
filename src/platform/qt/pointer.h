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

    void capture();
    void release();
    bool track(int hoverTime);
    void startMove();

    void pressed();
    /// False when the window does not hear of the movement.
    bool moved(const QMouseEvent& event);
    /// False when the window does not hear of the release.
    bool releasing(const QMouseEvent& event);
    /// After the window has heard of the release.
    void released();
    void left();
    void windowHidden();

  private:
    enum class Moving { No, BySystem, BySelf };

    bool isInside() const;
    void grabIfFree();
    void leave();
    void hover();

    WindowWidget& m_widget;
    QTimer m_hoverTimer;
    bool m_captured = false;
    bool m_tracking = false;
    bool m_hoverWanted = false;
    Moving m_moving = Moving::No;
    QPoint m_grip; ///< where the pointer holds the window that it moves
};

} // namespace tarnix
