// The layer's own side of a window.
#pragma once

#include <atomic>
#include <optional>

#include "platform/window.h"
#include "window_registry.h"

namespace tarnix {

class WindowWidget;

struct Window::Native {
    std::atomic<WindowHandle> handle{0}; ///< 0 while there is no native window; read by any thread
    WindowWidget* widget = nullptr;      ///< the native window; destroys itself after dispose()
    WindowTraits traits;
    std::optional<int> modalResult; ///< of endModal, which may come before the run
};

} // namespace tarnix
