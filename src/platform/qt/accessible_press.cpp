#include "accessible_press.h"

#include <QCoreApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QPointer>
#include <algorithm>
#include <functional>

#include "convert.h"
#include "event_gate.h"
#include "modal_runs.h"
#include "window_widget.h"

namespace tarnix {

namespace {

std::optional<Point> g_assistedPointer;

using Deed = std::function<void(WindowWidget&, const AccessibleItem&)>;

void enter(WindowWidget& to, ItemKey key, Deed deed) {
    EventGate::instance().post([widget = QPointer<WindowWidget>(&to), key, deed = std::move(deed)] {
        const Window* window = widget ? widget->window() : nullptr;
        if (!window || !window->isVisible() || window->isMinimised() || isShutOut(*window)) return;
        const AccessibleFace face = window->accessibleFace();
        const AccessibleItem* item = findItem(face, key);
        if (item && !item->disabled) deed(*widget, *item);
    });
}

void sendMouse(const QPointer<WindowWidget>& widget, QEvent::Type type, QPoint at, Qt::MouseButton button,
               Qt::MouseButtons held) {
    if (!widget) return;
    QMouseEvent event(type, at, widget->mapToGlobal(at), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void press(WindowWidget& to, const AccessibleItem& item) {
    if (!item.pressable()) return;
    const QPointer<WindowWidget> widget(&to);
    const QPoint middle = toQt(item.rect).center();
    g_assistedPointer = fromQt(to.mapToGlobal(middle));
    sendMouse(widget, QEvent::MouseMove, middle, Qt::NoButton, Qt::NoButton);
    sendMouse(widget, QEvent::MouseButtonPress, middle, Qt::LeftButton, Qt::LeftButton);
    sendMouse(widget, QEvent::MouseButtonRelease, middle, Qt::LeftButton, Qt::NoButton);
    g_assistedPointer.reset();
    // A pointer that rests in the window is still where it was.
    const QPoint pointer = widget ? widget->mapFromGlobal(QCursor::pos()) : QPoint(-1, -1);
    if (widget && widget->rect().contains(pointer))
        sendMouse(widget, QEvent::MouseMove, pointer, Qt::NoButton, Qt::NoButton);
}

} // namespace

void pressItem(WindowWidget& widget, ItemKey key) {
    enter(widget, key, press);
}

void moveItem(WindowWidget& widget, ItemKey key, int value) {
    enter(widget, key, [key, value](WindowWidget& to, const AccessibleItem& item) {
        if (!item.range) return;
        const int within = std::clamp(value, 0, item.range->greatest);
        to.call([&](Window& window) { window.OnAccessibleValue(key.item, within); });
    });
}

std::optional<Point> assistedPointer() {
    return g_assistedPointer;
}

} // namespace tarnix
