#include "processes/screen.h"

#include <poll.h>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <xcb/xtest.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

namespace tarnix::bench {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int notificationAreaHeight = 32;
constexpr auto quietTime = 400ms;
constexpr auto longestStart = 15s;
constexpr std::uint8_t leftButton = 1;
constexpr int evdevToX = 8;
constexpr std::uint32_t requestDock = 0; ///< the system tray protocol's SYSTEM_TRAY_REQUEST_DOCK

template <typename T>
struct Freed {
    void operator()(T* memory) const { std::free(memory); }
};
template <typename T>
std::unique_ptr<T, Freed<T>> owned(T* memory) {
    return std::unique_ptr<T, Freed<T>>(memory);
}

} // namespace

Screen::Screen() : m_connection(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(m_connection)) throw std::runtime_error("no display");
    m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;

    const xcb_query_extension_reply_t* damage = xcb_get_extension_data(m_connection, &xcb_damage_id);
    if (!damage || !damage->present) throw std::runtime_error("the display does not tell of damage");
    m_damageEvent = damage->first_event + XCB_DAMAGE_NOTIFY;
    owned(
        xcb_damage_query_version_reply(m_connection, xcb_damage_query_version(m_connection, 1, 1), nullptr));

    const std::size_t bytes = std::size_t{m_screen->width_in_pixels} * m_screen->height_in_pixels * 4;
    const int memory = shmget(IPC_PRIVATE, bytes, IPC_CREAT | 0600);
    void* const pixels = memory < 0 ? nullptr : shmat(memory, nullptr, 0);
    if (!pixels || pixels == reinterpret_cast<void*>(-1)) throw std::runtime_error("no shared memory");
    m_pixels = static_cast<const std::uint32_t*>(pixels);
    m_segment = xcb_generate_id(m_connection);
    owned(xcb_request_check(m_connection, xcb_shm_attach_checked(m_connection, m_segment, memory, 0)));
    shmctl(memory, IPC_RMID, nullptr);

    m_damage = xcb_generate_id(m_connection);
    xcb_damage_create(m_connection, m_damage, m_screen->root, XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
    ownNotificationArea();
    point(m_screen->width_in_pixels - 1, m_screen->height_in_pixels - 1);
    look();
}

Screen::~Screen() {
    shmdt(m_pixels);
    xcb_disconnect(m_connection);
}

xcb_atom_t Screen::atom(const char* name) {
    const std::string text = name;
    const auto cookie =
        xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(text.size()), text.c_str());
    const auto reply = owned(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply ? reply->atom : XCB_NONE;
}

/// Icons are shown in a window at the top left corner; without it a program could not hide there.
void Screen::ownNotificationArea() {
    m_notificationArea = xcb_generate_id(m_connection);
    const std::uint32_t unmanaged[] = {1};
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_notificationArea, m_screen->root, 0, 0, 256,
                      notificationAreaHeight, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_OVERRIDE_REDIRECT, unmanaged);
    xcb_map_window(m_connection, m_notificationArea);
    m_trayOpcode = atom("_NET_SYSTEM_TRAY_OPCODE");
    xcb_set_selection_owner(m_connection, m_notificationArea, atom("_NET_SYSTEM_TRAY_S0"), XCB_CURRENT_TIME);
    flush();
}

void Screen::dock(xcb_window_t icon) {
    const std::uint32_t size[] = {24, 24};
    xcb_reparent_window(m_connection, icon, m_notificationArea, 4, 4);
    xcb_configure_window(m_connection, icon, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size);
    xcb_map_window(m_connection, icon);
    flush();
}

bool Screen::handle(const xcb_generic_event_t& event) {
    const std::uint8_t type = event.response_type & 0x7F;
    if (type == XCB_CLIENT_MESSAGE) {
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        if (message.type == m_trayOpcode && message.data.data32[1] == requestDock)
            dock(message.data.data32[2]);
    }
    if (type != m_damageEvent) return false;
    xcb_damage_subtract(m_connection, m_damage, XCB_NONE, XCB_NONE);
    flush();
    return true;
}

bool Screen::waitForDamage(SteadyTime deadline) {
    while (true) {
        bool damaged = false;
        while (const auto event = owned(xcb_poll_for_event(m_connection)))
            damaged |= handle(*event);
        if (xcb_connection_has_error(m_connection)) throw std::runtime_error("the display has gone");
        if (damaged) return true;
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
        if (left <= 0ms) return false;
        pollfd display{xcb_get_file_descriptor(m_connection), POLLIN, 0};
        ::poll(&display, 1, static_cast<int>(left.count()));
    }
}

std::optional<Screen::Picture> Screen::picture() {
    const std::uint16_t width = m_screen->width_in_pixels;
    const auto height = static_cast<std::uint16_t>(m_screen->height_in_pixels - notificationAreaHeight);
    const auto cookie = xcb_shm_get_image(m_connection, m_screen->root, 0, notificationAreaHeight, width,
                                          height, ~0U, XCB_IMAGE_FORMAT_Z_PIXMAP, m_segment, 0);
    const auto reply = owned(xcb_shm_get_image_reply(m_connection, cookie, nullptr));
    if (!reply) throw std::runtime_error("the screen cannot be read");
    const std::size_t count = std::size_t{width} * height;
    Picture digest = 0;
    std::uint32_t differences = 0;
    for (std::size_t i = 0; i < count; ++i) {
        differences |= m_pixels[i] ^ m_pixels[0];
        digest = (digest ^ m_pixels[i]) * 0x9E3779B97F4A7C15U;
    }
    if (differences == 0) return std::nullopt;
    return digest;
}

std::optional<SteadyTime> Screen::firstLastingFrame() {
    std::vector<std::pair<SteadyTime, Picture>> frames;
    SteadyTime deadline = Clock::now() + longestStart;
    while (waitForDamage(deadline)) {
        const SteadyTime time = Clock::now();
        const std::optional<Picture> now = picture();
        if (now && (frames.empty() || frames.back().second != *now)) frames.emplace_back(time, *now);
        if (now) deadline = Clock::now() + quietTime;
    }
    if (frames.empty()) return std::nullopt;
    m_last = frames.back().second;
    for (const auto& [time, shown] : frames) {
        if (shown == m_last) return time;
    }
    return std::nullopt;
}

std::optional<SteadyTime> Screen::nextFrame(std::chrono::milliseconds patience) {
    const SteadyTime deadline = Clock::now() + patience;
    while (waitForDamage(deadline)) {
        const SteadyTime time = Clock::now();
        const std::optional<Picture> now = picture();
        if (std::exchange(m_last, now) != now) return time;
    }
    return std::nullopt;
}

void Screen::settle(std::chrono::milliseconds quiet) {
    while (waitForDamage(Clock::now() + quiet)) {
    }
    m_last = picture();
}

void Screen::look() {
    settle(0ms);
}

std::optional<WindowPlace> Screen::find(int width, int height) {
    return findBelow(m_screen->root, width, height);
}

std::optional<WindowPlace> Screen::findBelow(xcb_window_t parent, int width, int height) {
    const auto tree =
        owned(xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, parent), nullptr));
    if (!tree) return std::nullopt;
    const xcb_window_t* children = xcb_query_tree_children(tree.get());
    for (int i = xcb_query_tree_children_length(tree.get()) - 1; i >= 0; --i) {
        const xcb_window_t child = children[i];
        if (const auto inner = findBelow(child, width, height)) return inner;
        const auto look = owned(xcb_get_window_attributes_reply(
            m_connection, xcb_get_window_attributes(m_connection, child), nullptr));
        const auto size =
            owned(xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, child), nullptr));
        if (!look || !size || look->map_state != XCB_MAP_STATE_VIEWABLE) continue;
        if (size->width != width || size->height != height) continue;
        const auto place = owned(xcb_translate_coordinates_reply(
            m_connection, xcb_translate_coordinates(m_connection, child, m_screen->root, 0, 0), nullptr));
        if (place) return WindowPlace{child, place->dst_x, place->dst_y};
    }
    return std::nullopt;
}

void Screen::point(int x, int y) {
    xcb_test_fake_input(m_connection, XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, m_screen->root,
                        static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
    flush();
}

void Screen::button(bool down) {
    xcb_test_fake_input(m_connection, down ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE, leftButton,
                        XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
    flush();
}

void Screen::click(int x, int y) {
    point(x, y);
    settle();
    press();
    release();
}

void Screen::type(std::uint8_t evdevCode) {
    const auto key = static_cast<std::uint8_t>(evdevCode + evdevToX);
    for (const int event : {XCB_KEY_PRESS, XCB_KEY_RELEASE})
        xcb_test_fake_input(m_connection, static_cast<std::uint8_t>(event), key, XCB_CURRENT_TIME, XCB_NONE,
                            0, 0, 0);
    flush();
}

} // namespace tarnix::bench
