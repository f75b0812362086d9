#include "platform/window.h"

#include <QCursor>
#include <QGuiApplication>
#include <QIcon>
#include <QScreen>
#include <QWindow>

#include "accessible_press.h"
#include "activation.h"
#include "convert.h"
#include "event_gate.h"
#include "modal_runs.h"
#include "native_window.h"
#include "picture.h"
#include "window_shape.h"
#include "window_widget.h"
#include "x11.h"

namespace tarnix {

namespace {

const QScreen& screenOfMainWindow() {
    const Window* main = WindowRegistry::instance().mainWindow();
    const QScreen* screen = main ? main->native()->widget->screen() : nullptr;
    return screen ? *screen : *QGuiApplication::primaryScreen();
}

bool isOnScreen(const Window* window) {
    return window && window->isVisible() && !window->isMinimised();
}

/// The native window stays above the one behind it; not if that is away, for then window managers hide it,
/// too.
void stayAbove(WindowWidget& widget, const Window* behind) {
    QWindow* below = isOnScreen(behind) ? behind->native()->widget->windowHandle() : nullptr;
    widget.windowHandle()->setTransientParent(below);
}

} // namespace

Window::Window() : m_native(std::make_unique<Native>()) {}

Window::~Window() {
    if (!exists()) return;
    if (!m_native->widget->beingDestroyed()) {
        destroyWindow();
        return;
    }
    releaseWindow();
}

bool Window::createWindow(const WindowTraits& traits, const Rect& screenRect) {
    if (exists()) return false;
    m_native->traits = traits;
    m_native->modalResult.reset();
    auto* widget = new WindowWidget(*this, traits);
    m_native->widget = widget;
    widget->setWindowTitle(programTitle);
    widget->setWindowRole(QString::fromStdString(traits.role));
    widget->setFixedSize(screenRect.width(), screenRect.height());
    widget->move(screenRect.left, screenRect.top);
    widget->winId();
    if (!traits.taskbarButton) addInitialState(*widget, InitialState::SkipTaskbar);
    m_native->handle = WindowRegistry::instance().add(*this);
    return true;
}

void Window::destroyWindow() {
    if (!exists() || m_native->widget->beingDestroyed()) return;
    WindowWidget* widget = m_native->widget;
    const WindowHandle handle = m_native->handle;
    widget->markDestroyed();
    endModalRun(*this, IDCANCEL);
    for (const WindowHandle owned : WindowRegistry::instance().ownedBy(*this)) {
        if (Window* window = WindowRegistry::instance().find(owned)) window->destroyWindow();
    }
    hide();
    widget->call([](Window& window) { window.OnDestroy(); });
    // The window object may have deleted itself by now.
    if (WindowRegistry::instance().find(handle)) releaseWindow();
}

void Window::releaseWindow() {
    WindowRegistry::instance().remove(m_native->handle);
    m_native->handle = 0;
    WindowWidget* widget = m_native->widget;
    m_native->widget = nullptr;
    widget->dispose();
}

bool Window::exists() const {
    return m_native->widget != nullptr;
}

Window* Window::owner() const {
    return m_native->traits.owner;
}

Rect Window::clientRect() const {
    return exists() ? fromQt(m_native->widget->rect()) : Rect{};
}

Rect Window::screenRect() const {
    return exists() ? fromQt(m_native->widget->geometry()) : Rect{};
}

Rect Window::toScreen(const Rect& client) const {
    const Rect place = screenRect();
    return client.moved(place.left, place.top);
}

Point Window::toClient(Point screen) const {
    const Rect place = screenRect();
    return {screen.x - place.left, screen.y - place.top};
}

Point Window::cursorPosition() const {
    return toClient(assistedPointer().value_or(fromQt(QCursor::pos())));
}

void Window::moveTo(Point screen) {
    if (exists()) m_native->widget->move(toQt(screen));
}

void Window::centre() {
    if (!exists()) return;
    const Window* behind = WindowRegistry::instance().behind(*this);
    const Rect around = isOnScreen(behind) ? behind->screenRect() : workArea();
    const Size size = clientRect().size();
    moveTo(
        {around.left + (around.width() - size.width) / 2, around.top + (around.height() - size.height) / 2});
}

Rect Window::workArea() {
    return fromQt(screenOfMainWindow().availableGeometry());
}

Rect Window::workAreaAt(Point screen) {
    const QScreen* holder = QGuiApplication::screenAt(toQt(screen));
    return holder ? fromQt(holder->availableGeometry()) : workArea();
}

void Window::setIcon(const Image& icon) {
    if (exists()) m_native->widget->setWindowIcon(iconOf(icon));
}

void Window::setCursor(Cursor cursor) {
    if (exists())
        m_native->widget->setCursor(cursor == Cursor::Hand ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void Window::setShape(std::span<const Rect> outline) {
    if (exists()) shapeWindow(*m_native->widget, outline);
}

void Window::setOpacity(int opacity) {
    if (exists()) m_native->widget->setWindowOpacity(opacity / 255.0);
}

void Window::show() {
    if (!exists()) return;
    WindowWidget* widget = m_native->widget;
    const bool overlay = widget->kind() == WindowKind::Overlay;
    if (!overlay && !widget->isVisible()) stayAbove(*widget, WindowRegistry::instance().behind(*this));
    widget->show();
    if (overlay) return;
    if (widget->kind() == WindowKind::Dialog && !windowManagerRuns()) {
        widget->raise();
        widget->activateWindow();
    }
    Activation::instance().activate(this);
}

void Window::hide() {
    if (!exists()) return;
    WindowWidget* widget = m_native->widget;
    const bool hadFocus = widget->isActiveWindow();
    widget->hide();
    Activation::instance().withdraw(*this);
    // Without a window manager nobody else passes the focus on.
    const Window* behind = WindowRegistry::instance().behind(*this);
    if (hadFocus && isOnScreen(behind) && !windowManagerRuns()) behind->native()->widget->activateWindow();
}

void Window::minimise() {
    if (!exists()) return;
    m_native->widget->showMinimized();
    Activation::instance().withdraw(*this);
}

bool Window::isVisible() const {
    return exists() && m_native->widget->isVisible();
}

bool Window::isMinimised() const {
    return exists() && m_native->widget->isMinimized();
}

bool Window::isMaximised() const {
    return exists() && m_native->widget->isMaximized();
}

void Window::bringToFront() {
    if (!exists()) return;
    m_native->widget->showNormal();
    m_native->widget->raise();
    m_native->widget->activateWindow();
    // A modal window that opened while this one was away still comes first.
    Window* front = isShutOut(*this) ? modalWindow() : this;
    if (front != this) {
        front->native()->widget->raise();
        front->native()->widget->activateWindow();
    }
    Activation::instance().activate(front);
}

void Window::raise() {
    if (!exists()) return;
    m_native->widget->raise();
    if (m_native->widget->kind() == WindowKind::Popup) Activation::instance().activate(this);
}

void Window::invalidate() {
    invalidate(clientRect());
}

void Window::invalidate(const Rect& area) {
    if (exists() && !area.empty()) m_native->widget->invalidate(toQt(area));
}

void Window::update() {
    if (exists()) m_native->widget->paintNow();
}

bool Window::captureMouse() {
    return exists() && m_native->widget->pointer().capture();
}

void Window::releaseMouse() {
    if (exists()) m_native->widget->pointer().release();
}

bool Window::trackMouse(int hoverTime) {
    return exists() && m_native->widget->pointer().track(hoverTime);
}

void Window::startMove() {
    if (exists()) m_native->widget->pointer().startMove();
}

void Window::setFocus() {
    if (!exists()) return;
    m_native->widget->activateWindow();
    m_native->widget->setFocus();
}

void Window::startTimer(unsigned id, int milliseconds) {
    if (exists()) m_native->widget->setTimer(id, milliseconds);
}

void Window::stopTimer(unsigned id) {
    if (exists()) m_native->widget->endTimer(id);
}

LResult Window::send(Message message, WParam w, LParam l) {
    if (!exists()) return 0;
    LResult answer = 0;
    m_native->widget->call([&](Window& window) { answer = window.OnMessage(message, w, l); });
    return answer;
}

void Window::post(Message message, WParam w, LParam l) {
    EventGate::instance().post([handle = m_native->handle.load(), message, w, l] {
        if (Window* window = WindowRegistry::instance().find(handle)) window->send(message, w, l);
    });
}

void Window::postClose() {
    EventGate::instance().post([handle = m_native->handle.load()] {
        if (Window* window = WindowRegistry::instance().find(handle))
            window->native()->widget->requestClose();
    });
}

int Window::runModal() {
    return runModally(*this);
}

void Window::endModal(int result) {
    if (exists()) endModalRun(*this, result);
}

void Window::OnPaint(Canvas&, const Rect&) {}
void Window::OnMouseMove(unsigned, Point) {}
void Window::OnLButtonDown(unsigned, Point) {}
void Window::OnLButtonUp(unsigned, Point) {}
void Window::OnLButtonDblClk(unsigned, Point) {}
void Window::OnMouseWheel(int, Point) {}
void Window::OnMouseLeave() {}
void Window::OnMouseHover() {}
bool Window::OnKey(const KeyPress&) {
    return false;
}
void Window::OnTimer(unsigned) {}
void Window::OnActivate(bool) {}
void Window::OnEditChange(unsigned) {}
void Window::OnDestroy() {}
LResult Window::OnMessage(Message, WParam, LParam) {
    return 0;
}

AccessibleFace Window::accessibleFace() const {
    return {.name = programTitle};
}

void Window::OnAccessibleValue(unsigned, int) {}

void Window::OnClose() {
    if (runsModally(*this)) {
        endModal(IDCANCEL);
    } else {
        destroyWindow();
    }
}

} // namespace tarnix
