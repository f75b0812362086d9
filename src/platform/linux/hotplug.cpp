#include "platform/linux/hotplug.h"

#include <libudev.h>
#include <poll.h>

#include <string_view>
#include <utility>

namespace tarnix {
namespace {

constexpr Milliseconds quietTime{250};

} // namespace

HotplugBurst::HotplugBurst(MainLoop& loop, std::function<void(HidChange)> callback)
    : m_loop(loop), m_callback(std::move(callback)) {}

void HotplugBurst::add(HidChange change) {
    (change == HidChange::Removal ? m_removed : m_arrived) = true;
    arm();
}

void HotplugBurst::arm() {
    m_quiet = m_loop.after(quietTime, [this] { deliver(); });
}

void HotplugBurst::deliver() {
    // A callback may run a window's own loop; a burst that settles in there waits for the callback's end.
    if (m_delivering) return;
    m_delivering = true;
    const bool removed = std::exchange(m_removed, false);
    const bool arrived = std::exchange(m_arrived, false);
    if (removed) m_callback(HidChange::Removal);
    if (arrived) m_callback(HidChange::Arrival);
    m_delivering = false;
    if (m_removed || m_arrived) arm();
}

struct HotplugMonitor::Native {
    template <auto Unref>
    struct Release {
        template <class T>
        void operator()(T* object) const {
            Unref(object);
        }
    };
    using Device = std::unique_ptr<udev_device, Release<udev_device_unref>>;

    Native(MainLoop& loop, std::function<void(HidChange)> callback) : burst(loop, std::move(callback)) {
        udevContext.reset(udev_new());
        if (!udevContext) return;
        monitor.reset(udev_monitor_new_from_netlink(udevContext.get(), "udev"));
        if (!monitor) return;
        udev_monitor_filter_add_match_subsystem_devtype(monitor.get(), "hidraw", nullptr);
        if (udev_monitor_enable_receiving(monitor.get()) < 0) return;
        watch = loop.watch(udev_monitor_get_fd(monitor.get()), [this] { receive(); });
    }

    void receive() {
        while (const Device device{udev_monitor_receive_device(monitor.get())}) {
            const char* const action = udev_device_get_action(device.get());
            if (action == nullptr) continue;
            if (action == std::string_view("add")) burst.add(HidChange::Arrival);
            if (action == std::string_view("remove")) burst.add(HidChange::Removal);
        }
        // A socket that was hung up stays readable for ever and would keep the loop busy.
        pollfd state{udev_monitor_get_fd(monitor.get()), POLLIN, 0};
        if (::poll(&state, 1, 0) == 1 && (state.revents & (POLLHUP | POLLNVAL)) != 0) watch.reset();
    }

    HotplugBurst burst;
    std::unique_ptr<udev, Release<udev_unref>> udevContext;
    std::unique_ptr<udev_monitor, Release<udev_monitor_unref>> monitor;
    std::unique_ptr<MainLoop::Subscription> watch;
};

HotplugMonitor::HotplugMonitor(MainLoop& loop, std::function<void(HidChange)> callback)
    : m_native(std::make_unique<Native>(loop, std::move(callback))) {}

HotplugMonitor::~HotplugMonitor() = default;

} // namespace tarnix
