#include "pointer.h"

#include <QCursor>
#include <QMouseEvent>
#include <QPointer>
#include <QWindow>
#include <utility>

#include "event_gate.h"
#include "window_widget.h"
#include "x11.h"

namespace tarnix {

unsigned mouseFlags(Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers) {
    unsigned flags = 0;
    if (buttons.testFlag(Qt::LeftButton)) flags |= 0x01;
    if (buttons.testFlag(Qt::RightButton)) flags |= 0x02;
    if (modifiers.testFlag(Qt::ShiftModifier)) flags |= 0x04;
    if (modifiers.testFlag(Qt::ControlModifier)) flags |= 0x08;
    if (buttons.testFlag(Qt::MiddleButton)) flags |= 0x10;
    return flags;
}

Pointer::Pointer(WindowWidget& widget) : m_widget(widget) {
    m_hoverTimer.setSingleShot(true);
    m_hoverTimer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_hoverTimer, &QTimer::timeout, &widget, [this] { hover(); });
}

// A button that is down holds the pointer already, and its release lets go of it. A grab of our own would
// outlive a release that another window keeps from this one.
bool Pointer::capture() {
    m_captured = m_button != Button::Lost;
    return m_captured;
}

void Pointer::release() {
    if (!m_captured) return;
    m_captured = false;
    // A leave that the capture kept back comes after the handler that let go.
    EventGate::instance().post([this, widget = QPointer<QWidget>(&m_widget)] {
        if (widget && !m_captured && !isInside()) leave();
    });
}

bool Pointer::track(int hoverTime) {
    m_tracking = true;
    m_hoverWanted = true;
    m_hoverTimer.start(hoverTime);
    return true;
}

void Pointer::startMove() {
    if (!leftButtonIsDown()) return;
    QWindow* window = m_widget.windowHandle();
    if (window && windowManagerRuns() && window->startSystemMove()) {
        m_moving = Moving::BySystem;
        return;
    }
    m_moving = Moving::BySelf;
    m_grip = QCursor::pos() - m_widget.pos();
}

void Pointer::pressed(const QMouseEvent& event) {
    if (event.button() == Qt::LeftButton) m_button = Button::Down;
    m_moving = Moving::No;
    if (m_hoverWanted) m_hoverTimer.start();
}

bool Pointer::moved(const QMouseEvent& event) {
    if (!event.buttons().testFlag(Qt::LeftButton)) m_moving = Moving::No;
    if (m_moving == Moving::BySelf) m_widget.move(event.globalPosition().toPoint() - m_grip);
    if (m_moving != Moving::No) return false;
    if (!m_captured && !m_widget.rect().contains(event.position().toPoint())) {
        leave();
        return false;
    }
    if (m_hoverWanted) m_hoverTimer.start();
    return true;
}

bool Pointer::releasing(const QMouseEvent& event) {
    const bool endsMove = m_moving != Moving::No;
    m_moving = Moving::No;
    m_button = Button::Up;
    return !endsMove && (m_captured || m_widget.rect().contains(event.position().toPoint()));
}

bool Pointer::cancel() {
    if (m_button != Button::Down) return false;
    m_button = Button::Lost;
    return std::exchange(m_moving, Moving::No) == Moving::No;
}

void Pointer::released() {
    m_captured = false;
    if (!isInside()) leave();
}

void Pointer::left() {
    if (!m_captured && m_moving == Moving::No) leave();
}

void Pointer::windowHidden() {
    m_moving = Moving::No;
    m_hoverTimer.stop();
    if (m_button == Button::Down) m_button = Button::Lost;
    m_captured = false;
}

bool Pointer::isInside() const {
    return m_widget.rect().contains(m_widget.mapFromGlobal(QCursor::pos()));
}

void Pointer::leave() {
    if (!m_tracking) return;
    m_tracking = m_hoverWanted = false;
    m_hoverTimer.stop();
    m_widget.call([](Window& window) { window.OnMouseLeave(); });
}

void Pointer::hover() {
    EventGate::instance().enter([this, widget = QPointer<QWidget>(&m_widget)] {
        if (!widget || !m_hoverWanted) return;
        m_hoverWanted = false;
        m_widget.call([](Window& window) { window.OnMouseHover(); });
    });
}

} // namespace tarnix
