#include "platform/key_source.h"

#include <QKeyEvent>
#include <utility>
#include <vector>

#include "key_source_qt.h"

namespace tarnix {

namespace {

using Listener = std::function<void(const WindowKey&)>;

std::vector<const Listener*> g_listeners;

constexpr unsigned x11KeyCodeOffset = 8; ///< X11 key codes are evdev's plus 8

void report(const QKeyEvent& event) {
    if (event.isAutoRepeat() || event.nativeScanCode() < x11KeyCodeOffset) return;
    const WindowKey key{event.nativeScanCode() - x11KeyCodeOffset, event.type() == QEvent::KeyPress};
    // A listener may end its interception while it is told.
    const auto listeners = g_listeners;
    for (const Listener* listener : listeners) {
        if (*listener) (*listener)(key);
    }
}

} // namespace

KeyInterception::KeyInterception(Listener listener) : m_listener(std::move(listener)) {
    g_listeners.push_back(&m_listener);
}

KeyInterception::~KeyInterception() {
    std::erase(g_listeners, &m_listener);
}

bool interceptKey(const QEvent& event) {
    if (g_listeners.empty()) return false;
    if (event.type() == QEvent::InputMethod) return true;
    if (event.type() != QEvent::KeyPress && event.type() != QEvent::KeyRelease) return false;
    report(static_cast<const QKeyEvent&>(event));
    return true;
}

} // namespace tarnix
