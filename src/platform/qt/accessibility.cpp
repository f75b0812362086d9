#include "accessibility.h"

#include "accessible_window.h"
#include "window_widget.h"

namespace tarnix {

namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* widget = dynamic_cast<WindowWidget*>(object);
    return widget ? new AccessibleWindow(*widget) : nullptr;
}

} // namespace

void offerAccessibility() {
    QAccessible::installFactory(makeInterface);
}

void tellOfChanges(WindowWidget& widget) {
    if (!QAccessible::isActive()) return;
    if (AccessibleWindow* window = AccessibleWindow::of(widget)) window->tellOfChanges();
}

void tellOfEnd(WindowWidget& widget) {
    if (!QAccessible::isActive()) return;
    if (AccessibleWindow* window = AccessibleWindow::of(widget)) window->tellOfEnd();
}

} // namespace tarnix
