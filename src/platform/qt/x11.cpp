#include "x11.h"

#include <xcb/shape.h>
#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QWidget>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace tarnix {

namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename Reply>
using ReplyPointer = std::unique_ptr<Reply, Free>;

xcb_connection_t* connection() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_window_t rootWindow(xcb_connection_t* x11) {
    return xcb_setup_roots_iterator(xcb_get_setup(x11)).data->root;
}

xcb_atom_t atom(xcb_connection_t* x11, const char* name) {
    const auto cookie = xcb_intern_atom(x11, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const ReplyPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(x11, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

/// Trays of the first screen; the toolkit knows no other.
xcb_atom_t traySelection(xcb_connection_t* x11) {
    static const xcb_atom_t selection = atom(x11, "_NET_SYSTEM_TRAY_S0");
    return selection;
}

} // namespace

bool leftButtonIsDown() {
    xcb_connection_t* x11 = connection();
    if (!x11) return QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
    const auto cookie = xcb_query_pointer(x11, rootWindow(x11));
    const ReplyPointer<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(x11, cookie, nullptr));
    return reply && (reply->mask & XCB_BUTTON_MASK_1) != 0;
}

bool windowManagerRuns() {
    xcb_connection_t* x11 = connection();
    if (!x11) return true;
    const xcb_atom_t check = atom(x11, "_NET_SUPPORTING_WM_CHECK");
    const auto cookie = xcb_get_property(x11, 0, rootWindow(x11), check, XCB_ATOM_WINDOW, 0, 1);
    const ReplyPointer<xcb_get_property_reply_t> reply(xcb_get_property_reply(x11, cookie, nullptr));
    return reply && xcb_get_property_value_length(reply.get()) > 0;
}

void addInitialState(const QWidget& window, InitialState state) {
    xcb_connection_t* x11 = connection();
    if (!x11) return;
    const char* name = state == InitialState::Modal ? "_NET_WM_STATE_MODAL" : "_NET_WM_STATE_SKIP_TASKBAR";
    const xcb_atom_t value = atom(x11, name);
    // The toolkit keeps what others wrote here when it maps the window.
    xcb_change_property(x11, XCB_PROP_MODE_APPEND, static_cast<xcb_window_t>(window.winId()),
                        atom(x11, "_NET_WM_STATE"), XCB_ATOM_ATOM, 32, 1, &value);
    xcb_flush(x11);
}

bool setNativeShape(const QWidget& window, const std::vector<QRect>& outline) {
    xcb_connection_t* x11 = connection();
    if (!x11) return false;
    std::vector<xcb_rectangle_t> parts;
    for (const QRect& part : outline) {
        parts.push_back({static_cast<std::int16_t>(part.x()), static_cast<std::int16_t>(part.y()),
                         static_cast<std::uint16_t>(part.width()),
                         static_cast<std::uint16_t>(part.height())});
    }
    xcb_shape_rectangles(x11, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, XCB_CLIP_ORDERING_YX_SORTED,
                         static_cast<xcb_window_t>(window.winId()), 0, 0,
                         static_cast<std::uint32_t>(parts.size()), parts.data());
    xcb_flush(x11);
    return true;
}

std::uint32_t watchXembedTray() {
    xcb_connection_t* x11 = connection();
    if (!x11) return 0;
    const xcb_atom_t selection = traySelection(x11);
    // It must not go before its end would be heard of.
    xcb_grab_server(x11);
    const auto cookie = xcb_get_selection_owner(x11, selection);
    const ReplyPointer<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(x11, cookie, nullptr));
    const xcb_window_t tray = reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
    constexpr std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    if (tray != XCB_WINDOW_NONE) xcb_change_window_attributes(x11, tray, XCB_CW_EVENT_MASK, &mask);
    xcb_ungrab_server(x11);
    xcb_flush(x11);
    return tray;
}

bool announcesXembedTray(std::uint32_t type, std::uint32_t selection) {
    xcb_connection_t* x11 = connection();
    if (!x11) return false;
    static const xcb_atom_t manager = atom(x11, "MANAGER");
    return type == manager && selection == traySelection(x11);
}

} // namespace tarnix
