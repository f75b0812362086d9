#include "activation.h"

#include <QGuiApplication>

#include "modal_runs.h"
#include "native_window.h"
#include "window_widget.h"
#include "x11.h"

namespace tarnix {

namespace {

void tell(WindowHandle handle, bool active) {
    if (Window* window = WindowRegistry::instance().find(handle))
        window->native()->widget->call([active](Window& told) { told.OnActivate(active); });
}

/// The nearest window on the screen behind the given one.
Window* nextBehind(const Window& window) {
    Window* behind = WindowRegistry::instance().behind(window);
    while (behind && !(behind->isVisible() && !behind->isMinimised()))
        behind = WindowRegistry::instance().behind(*behind);
    return behind;
}

} // namespace

Activation& Activation::instance() {
    static Activation activation;
    return activation;
}

void Activation::activate(Window* window) {
    const WindowHandle next = window ? window->native()->handle.load() : 0;
    if (next == m_active) return;
    const WindowHandle before = m_active;
    m_active = next;
    tell(before, false);
    // The one before may have acted and changed who is active.
    if (m_active == next) tell(next, true);
}

void Activation::pressed(Window& window) {
    WindowWidget* widget = window.native()->widget;
    // Without a window manager nobody else moves the focus to where the user clicks.
    if (widget->kind() == WindowKind::Dialog && !widget->isActiveWindow() && !windowManagerRuns())
        widget->activateWindow();
    activate(&window);
}

void Activation::withdraw(Window& window) {
    Window* active = WindowRegistry::instance().find(m_active);
    if (!active) return;
    if (active == &window) {
        activate(nextBehind(window));
    } else if (WindowRegistry::isOwnedBy(*active, window)) {
        activate(nullptr);
    }
}

void Activation::focusMoved() {
    Window* focused = WindowRegistry::instance().find(QGuiApplication::focusWindow());
    Window* active = WindowRegistry::instance().find(m_active);
    if (focused && isShutOut(*focused)) {
        // The user works in the modal window, wherever the focus was put.
        if (Window* modal = modalWindow()) modal->native()->widget->activateWindow();
        return;
    }
    // A popup is active while its owner has the focus.
    if (focused && active && active->native()->widget->kind() == WindowKind::Popup &&
        WindowRegistry::isOwnedBy(*active, *focused))
        return;
    activate(focused);
}

} // namespace tarnix
