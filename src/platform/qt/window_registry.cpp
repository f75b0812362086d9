#include "window_registry.h"

#include <algorithm>

#include "native_window.h"
#include "window_widget.h"

namespace tarnix {

WindowRegistry& WindowRegistry::instance() {
    static WindowRegistry registry;
    return registry;
}

WindowHandle WindowRegistry::add(Window& window) {
    m_windows.emplace(++m_last, &window);
    return m_last;
}

Window* WindowRegistry::find(WindowHandle handle) const {
    const auto found = m_windows.find(handle);
    return found == m_windows.end() ? nullptr : found->second;
}

Window* WindowRegistry::find(const QWindow* native) const {
    const auto found = std::find_if(m_windows.begin(), m_windows.end(), [native](const auto& entry) {
        return entry.second->native()->widget->windowHandle() == native;
    });
    return native && found != m_windows.end() ? found->second : nullptr;
}

std::vector<WindowHandle> WindowRegistry::ownedBy(const Window& owner) const {
    std::vector<WindowHandle> owned;
    for (const auto& [handle, window] : m_windows) {
        if (window->owner() == &owner) owned.insert(owned.begin(), handle);
    }
    return owned;
}

bool WindowRegistry::isOwnedBy(const Window& window, const Window& ancestor) {
    for (const Window* owner = window.owner(); owner; owner = owner->owner()) {
        if (owner == &ancestor) return true;
    }
    return false;
}

Window* WindowRegistry::mainWindow() const {
    const auto found = std::find_if(m_windows.begin(), m_windows.end(), [](const auto& entry) {
        return entry.second->native()->traits.taskbarButton;
    });
    return found == m_windows.end() ? nullptr : found->second;
}

Window* WindowRegistry::behind(const Window& window) const {
    if (window.owner()) return window.owner();
    Window* main = mainWindow();
    return main == &window ? nullptr : main;
}

} // namespace tarnix
