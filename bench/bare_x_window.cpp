// The floor below every toolkit: a frameless window of the main window's size, in two colours.
#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>

namespace {

constexpr std::uint16_t width = 805;
constexpr std::uint16_t height = 588;
constexpr std::uint32_t dark = 0x202830;
constexpr std::uint32_t light = 0x40C0E0;

} // namespace

int main() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection)) return 1;
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_window_t window = xcb_generate_id(connection);
    const std::uint32_t traits[] = {dark, 1, XCB_EVENT_MASK_EXPOSURE};
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 100, 100, width, height, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, traits);
    const xcb_gcontext_t pen = xcb_generate_id(connection);
    xcb_create_gc(connection, pen, window, XCB_GC_FOREGROUND, &light);
    xcb_map_window(connection, window);
    xcb_flush(connection);
    while (xcb_generic_event_t* event = xcb_wait_for_event(connection)) {
        if ((event->response_type & 0x7F) == XCB_EXPOSE) {
            const xcb_rectangle_t half{0, 0, width / 2, height};
            xcb_poly_fill_rectangle(connection, window, pen, 1, &half);
            xcb_flush(connection);
        }
        std::free(event);
    }
    return 0;
}
