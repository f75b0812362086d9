// Sources of GLib's main loop, owned.
#pragma once

#include <glib-unix.h>

#include <functional>
#include <memory>
#include <utility>

#include "platform/clock.h"

namespace tarnix {

/// Calls back from the main loop until destroyed. The callback says whether it wants to be called again.
class GlibSource {
  public:
    using Callback = std::function<bool()>;

    GlibSource() = default;
    GlibSource(GlibSource&& other) noexcept : m_id(std::exchange(other.m_id, 0)) {}
    GlibSource& operator=(GlibSource&& other) noexcept {
        std::swap(m_id, other.m_id);
        return *this;
    }
    ~GlibSource() {
        // A source whose callback asked for no more calls is gone already.
        if (m_id != 0 && g_main_context_find_source_by_id(nullptr, m_id) != nullptr) g_source_remove(m_id);
    }

    static GlibSource readable(int descriptor, Callback callback) {
        const auto call = [](int, GIOCondition, void* data) -> gboolean {
            return (*static_cast<Callback*>(data))();
        };
        return GlibSource(g_unix_fd_add_full(G_PRIORITY_DEFAULT, descriptor,
                                             static_cast<GIOCondition>(G_IO_IN | G_IO_HUP | G_IO_ERR), call,
                                             new Callback(std::move(callback)), release));
    }
    static GlibSource every(Milliseconds time, Callback callback) {
        return GlibSource(g_timeout_add_full(G_PRIORITY_DEFAULT, static_cast<guint>(time.count()), run,
                                             new Callback(std::move(callback)), release));
    }
    static GlibSource onSignal(int number, Callback callback) {
        return GlibSource(g_unix_signal_add_full(G_PRIORITY_DEFAULT, number, run,
                                                 new Callback(std::move(callback)), release));
    }

  private:
    explicit GlibSource(guint id) : m_id(id) {}
    static gboolean run(void* data) { return (*static_cast<Callback*>(data))(); }
    static void release(void* data) { delete static_cast<Callback*>(data); }

    guint m_id = 0;
};

} // namespace tarnix
