#include "pointer.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QWindow>

#include "event_gate.h"
#include "window_widget.h"
#include "x11.h"

namespace tarnix {

namespace {

QPointer<WindowWidget> g_capturing; ///< at most one window captures

} // namespace

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

void Pointer::capture() {
    if (g_capturing && g_capturing != &m_widget) g_capturing->pointer().release();
    g_capturing = &m_widget;
    m_captured = true;
    grabIfFree();
}

// While a button is down the display server's own grab does the work.
void Pointer::grabIfFree() {
    if (QGuiApplication::mouseButtons() == Qt::NoButton && QWidget::mouseGrabber() != &m_widget)
        m_widget.grabMouse();
}

void Pointer::release() {
    if (!m_captured) return;
    m_captured = false;
    g_capturing.clear();
    if (QWidget::mouseGrabber() == &m_widget) m_widget.releaseMouse();
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

void Pointer::pressed() {
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
    return !endsMove && (m_captured || m_widget.rect().contains(event.position().toPoint()));
}

void Pointer::released() {
    if (m_captured) {
        grabIfFree();
    } else if (!isInside()) {
        leave();
    }
}

void Pointer::left() {
    if (!m_captured && m_moving == Moving::No) leave();
}

void Pointer::windowHidden() {
    m_moving = Moving::No;
    m_hoverTimer.stop();
    if (g_capturing == &m_widget) g_capturing.clear();
    m_captured = false;
    if (QWidget::mouseGrabber() == &m_widget) m_widget.releaseMouse();
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
