#include "window_widget.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <cstdlib>
#include <utility>

#include "accessibility.h"
#include "activation.h"
#include "convert.h"
#include "event_gate.h"
#include "native_window.h"
#include "qt_canvas.h"

namespace tarnix {

namespace {

QPointer<WindowWidget> g_lastPressed;

constexpr int wheelNotch = 120;

bool g_painted = false; ///< whether any window has painted itself
std::vector<QPointer<QTimer>> g_afterPaint;
constexpr int longestWait = 1000; ///< ms, for a program whose windows stay hidden

void notePaint() {
    if (std::exchange(g_painted, true)) return;
    for (const QPointer<QTimer>& timer : std::exchange(g_afterPaint, {})) {
        if (timer) timer->start(0);
    }
}

Qt::WindowFlags flagsFor(const WindowTraits& traits) {
    constexpr Qt::WindowFlags unmanaged = Qt::Tool | Qt::FramelessWindowHint |
                                          Qt::X11BypassWindowManagerHint | Qt::WindowDoesNotAcceptFocus |
                                          Qt::NoDropShadowWindowHint;
    switch (traits.kind) {
        case WindowKind::Popup:
            return unmanaged;
        case WindowKind::Overlay:
            return unmanaged | Qt::WindowStaysOnTopHint | Qt::WindowTransparentForInput;
        case WindowKind::Dialog:
            break;
    }
    // Minimising is offered to the window manager although there is no title bar with a button for it.
    return (traits.taskbarButton ? Qt::Window : Qt::Dialog) | Qt::FramelessWindowHint |
           Qt::WindowMinimizeButtonHint | Qt::WindowSystemMenuHint;
}

KeyPress::Key keyOf(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return KeyPress::Key::Enter;
        case Qt::Key_Escape:
            return KeyPress::Key::Escape;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return KeyPress::Key::Tab;
        case Qt::Key_Space:
            return KeyPress::Key::Space;
        default:
            return KeyPress::Key::Other;
    }
}

} // namespace

void afterFirstPaint(QObject& context, std::function<void()> callback) {
    auto* timer = new QTimer(&context);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, &context, std::move(callback));
    timer->start(g_painted ? 0 : longestWait);
    if (!g_painted) g_afterPaint.emplace_back(timer);
}

WindowWidget::WindowWidget(Window& window, const WindowTraits& traits)
    : QWidget(nullptr, flagsFor(traits)), m_window(&window), m_kind(traits.kind) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_QuitOnClose, false);
    setMouseTracking(true);
    if (m_kind != WindowKind::Dialog) setAttribute(Qt::WA_ShowWithoutActivating);
    if (m_kind == WindowKind::Popup) setAttribute(Qt::WA_X11NetWmWindowTypeDropDownMenu);
    if (m_kind == WindowKind::Overlay) setAttribute(Qt::WA_X11NetWmWindowTypeNotification);
}

void WindowWidget::handlersReturned() {
    for (const QPointer<QWidget>& child : std::exchange(m_discarded, {})) {
        if (child) child->deleteLater();
    }
    if (!m_window) {
        deleteLater();
    } else if (std::exchange(m_closeAsked, false)) {
        m_window->postClose();
    }
}

void WindowWidget::dispose() {
    m_window = nullptr;
    m_timers.clear();
    hide();
    if (m_handlers == 0) deleteLater();
}

void WindowWidget::hideChild(QWidget& child) {
    // A field that is hidden with the keyboard would keep it, or pass it on to the next one.
    if (m_window && child.hasFocus()) setFocus();
    child.hide();
}

void WindowWidget::discard(QWidget& child) {
    hideChild(child);
    child.disconnect();
    m_discarded.emplace_back(&child);
    if (m_handlers == 0) handlersReturned();
}

void WindowWidget::requestClose() {
    if (m_handlers == 0) {
        call([](Window& window) { window.OnClose(); });
        return;
    }
    m_closeAsked = true;
    if (m_kind == WindowKind::Popup) hide();
}

bool WindowWidget::offerKey(const QKeyEvent& event) {
    KeyPress press{keyOf(event), event.type() == QEvent::KeyPress};
    const bool closes = press.key == KeyPress::Key::Enter || press.key == KeyPress::Key::Escape;
    // One long press of Escape or Enter must not end one thing after the other.
    if (closes && event.isAutoRepeat()) return true;
    bool swallowed = false;
    call([&](Window& window) { swallowed = window.OnKey(press); });
    if (swallowed || !m_window) return true;
    if (press.key == KeyPress::Key::Escape && press.down && m_kind == WindowKind::Dialog)
        m_window->endModal(IDCANCEL);
    return closes;
}

void WindowWidget::invalidate(const QRect& area) {
    m_invalid += area & rect();
    update(area);
}

void WindowWidget::paintNow() {
    if (!m_invalid.isEmpty()) repaint(m_invalid);
}

void WindowWidget::paintEvent(QPaintEvent* event) {
    m_invalid -= event->region();
    QPainter painter(this);
    QtCanvas canvas(painter);
    call([&](Window& window) { window.OnPaint(canvas, fromQt(event->rect())); });
    notePaint();
    tellOfChanges(*this);
}

void WindowWidget::setTimer(unsigned id, int milliseconds) {
    auto& timer = m_timers[id];
    timer = std::make_unique<QTimer>();
    timer->setTimerType(Qt::PreciseTimer);
    connect(timer.get(), &QTimer::timeout, this, [this, id] { tick(id); });
    timer->start(milliseconds);
}

// A tick that waits at the door is one tick, however long it waits.
void WindowWidget::tick(unsigned id) {
    QTimer* timer = m_timers[id].get();
    const int interval = timer->interval();
    timer->stop();
    EventGate::instance().enter(
        [widget = QPointer<WindowWidget>(this), source = QPointer<QTimer>(timer), id, interval] {
            if (!widget || !source) return;
            source->start(interval);
            widget->call([id](Window& window) { window.OnTimer(id); });
        });
}

void WindowWidget::mousePressEvent(QMouseEvent* event) {
    m_pointer.pressed(*event);
    g_lastPressed = this;
    call([](Window& window) { Activation::instance().pressed(window); });
    if (event->button() != Qt::LeftButton) return;
    call([event](Window& window) {
        window.OnLButtonDown(mouseFlags(event->buttons(), event->modifiers()),
                             fromQt(event->position().toPoint()));
    });
}

void WindowWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (g_lastPressed != this) {
        // The first press went to a window that was here before.
        mousePressEvent(event);
        return;
    }
    m_pointer.pressed(*event);
    call([](Window& window) { Activation::instance().pressed(window); });
    if (event->button() != Qt::LeftButton) return;
    call([event](Window& window) {
        window.OnLButtonDblClk(mouseFlags(event->buttons(), event->modifiers()),
                               fromQt(event->position().toPoint()));
    });
}

void WindowWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const bool heard = m_pointer.releasing(*event);
    if (heard) {
        call([event](Window& window) {
            window.OnLButtonUp(mouseFlags(event->buttons(), event->modifiers()),
                               fromQt(event->position().toPoint()));
        });
    }
    if (m_window) m_pointer.released();
}

void WindowWidget::cancelPress() {
    if (!m_pointer.cancel()) return;
    call([](Window& window) { window.OnLButtonUp(0, {-1, -1}); });
    if (m_window) m_pointer.released();
}

void WindowWidget::mouseMoveEvent(QMouseEvent* event) {
    if (!m_pointer.moved(*event)) return;
    call([event](Window& window) {
        window.OnMouseMove(mouseFlags(event->buttons(), event->modifiers()),
                           fromQt(event->position().toPoint()));
    });
}

// A window that appears below a resting pointer hears of it as of a movement.
void WindowWidget::enterEvent(QEnterEvent* event) {
    call([event](Window& window) {
        window.OnMouseMove(mouseFlags(event->buttons(), event->modifiers()),
                           fromQt(event->position().toPoint()));
    });
}

void WindowWidget::leaveEvent(QEvent*) {
    m_pointer.left();
}

void WindowWidget::wheelEvent(QWheelEvent* event) {
    const int delta = event->angleDelta().y();
    if (delta == 0) return;
    const int notch = delta > 0 ? wheelNotch : -wheelNotch;
    if (m_turned * notch < 0) m_turned = 0;
    for (m_turned += delta; std::abs(m_turned) >= wheelNotch; m_turned -= notch) {
        call([event, notch](Window& window) {
            window.OnMouseWheel(notch, fromQt(event->position().toPoint()));
        });
    }
}

void WindowWidget::keyPressEvent(QKeyEvent* event) {
    offerKey(*event);
}

void WindowWidget::keyReleaseEvent(QKeyEvent* event) {
    offerKey(*event);
}

void WindowWidget::hideEvent(QHideEvent*) {
    m_pointer.windowHidden();
    tellOfEnd(*this);
}

void WindowWidget::closeEvent(QCloseEvent* event) {
    event->ignore();
    requestClose();
}

} // namespace tarnix
