#include "platform/linux/raw_keys.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <xcb/xcb.h>
#include <xcb/xinput.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <thread>

#include "platform/linux/file_descriptor.h"

namespace tarnix {
namespace {

/// X key codes are evdev codes moved out of the protocol's reserved range (X11, chapter 5).
constexpr unsigned keycodeOffset = 8;

struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;
template <class T>
using Reply = std::unique_ptr<T, Free>;

class XRawKeys final : public RawKeys {
  public:
    XRawKeys(Connection connection, std::uint8_t extension, FileDescriptor stopEvent, Listener listener)
        : m_connection(std::move(connection)),
          m_extension(extension),
          m_stop(std::move(stopEvent)),
          m_listener(std::move(listener)),
          m_thread([this] { run(); }) {}

    ~XRawKeys() override {
        const std::uint64_t one = 1;
        while (::write(m_stop.get(), &one, sizeof one) < 0 && errno == EINTR) {
        }
        m_thread.join();
    }

    XRawKeys(const XRawKeys&) = delete;
    XRawKeys& operator=(const XRawKeys&) = delete;

  private:
    void run() {
        std::array<pollfd, 2> waits{
            {{m_stop.get(), POLLIN, 0}, {xcb_get_file_descriptor(m_connection.get()), POLLIN, 0}}};
        while (waits[0].revents == 0) {
            while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())})
                take(*event);
            if (xcb_connection_has_error(m_connection.get()) != 0) return;
            if (::poll(waits.data(), waits.size(), -1) < 0 && errno != EINTR) return;
        }
    }

    void take(const xcb_generic_event_t& event) {
        if ((event.response_type & 0x7F) != XCB_GE_GENERIC) return;
        const auto& key = reinterpret_cast<const xcb_input_raw_key_press_event_t&>(event);
        const bool down = key.event_type == XCB_INPUT_RAW_KEY_PRESS;
        if (key.extension != m_extension || (!down && key.event_type != XCB_INPUT_RAW_KEY_RELEASE)) return;
        if ((key.flags & XCB_INPUT_KEY_EVENT_FLAGS_KEY_REPEAT) != 0 || key.detail < keycodeOffset) return;
        m_listener({key.detail - keycodeOffset, down, key.time});
    }

    Connection m_connection;
    std::uint8_t m_extension;
    FileDescriptor m_stop;
    Listener m_listener;
    std::thread m_thread;
};

/// Asks for the raw keys of all keyboards together. From XInput 2.1 on they come whoever holds the keyboard.
bool selectKeys(xcb_connection_t* connection, xcb_window_t root) {
    const Reply<xcb_input_xi_query_version_reply_t> version(
        xcb_input_xi_query_version_reply(connection, xcb_input_xi_query_version(connection, 2, 2), nullptr));
    if (!version || version->major_version < 2 || (version->major_version == 2 && version->minor_version < 1))
        return false;
    struct {
        xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL_MASTER, 1};
        std::uint32_t mask = XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE;
    } const selection;
    const auto request = xcb_input_xi_select_events_checked(connection, root, 1, &selection.head);
    return !Reply<xcb_generic_error_t>(xcb_request_check(connection, request));
}

} // namespace

std::unique_ptr<RawKeys> RawKeys::listen(Listener listener) {
    int screen = 0;
    Connection connection(xcb_connect(nullptr, &screen));
    if (xcb_connection_has_error(connection.get()) != 0) return nullptr;
    const xcb_query_extension_reply_t* const extension =
        xcb_get_extension_data(connection.get(), &xcb_input_id);
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    while (screen-- > 0 && screens.rem > 0)
        xcb_screen_next(&screens);
    FileDescriptor stopEvent(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (extension == nullptr || extension->present == 0 || screens.rem == 0 || !stopEvent) return nullptr;
    if (!selectKeys(connection.get(), screens.data->root)) return nullptr;
    return std::make_unique<XRawKeys>(std::move(connection), extension->major_opcode, std::move(stopEvent),
                                      std::move(listener));
}

} // namespace tarnix
