#include "platform/key_source.h"

#include <QKeyEvent>
#include <algorithm>
#include <utility>
#include <vector>

#include "key_source_qt.h"
#include "modal_runs.h"

namespace tarnix {

namespace {

using Listener = std::function<void(const WindowKey&)>;

struct Running {
    const Window* target;
    const Listener* listener;
};

std::vector<Running> g_running;

constexpr unsigned x11KeyCodeOffset = 8; ///< X11 key codes are evdev's plus 8

void report(const QKeyEvent& event) {
    if (event.isAutoRepeat() || event.nativeScanCode() < x11KeyCodeOffset) return;
    const WindowKey key{event.nativeScanCode() - x11KeyCodeOffset, event.type() == QEvent::KeyPress};
    // A listener may end its interception while it is told.
    const auto running = g_running;
    for (const Running& interception : running) {
        if (*interception.listener) (*interception.listener)(key);
    }
}

/// Whether the user works in a window that takes the keys, rather than in one that opened over it.
bool targetIsInFront() {
    const Window* modal = modalWindow();
    return !modal || std::any_of(g_running.begin(), g_running.end(),
                                 [modal](const Running& running) { return running.target == modal; });
}

} // namespace

KeyInterception::KeyInterception(const Window& target, Listener listener) : m_listener(std::move(listener)) {
    g_running.push_back({&target, &m_listener});
}

KeyInterception::~KeyInterception() {
    std::erase_if(g_running, [this](const Running& running) { return running.listener == &m_listener; });
}

bool interceptKey(const QEvent& event) {
    if (g_running.empty()) return false;
    const bool taken = targetIsInFront();
    if (event.type() == QEvent::InputMethod) return taken;
    if (event.type() != QEvent::KeyPress && event.type() != QEvent::KeyRelease) return false;
    report(static_cast<const QKeyEvent&>(event));
    return taken;
}

} // namespace tarnix
