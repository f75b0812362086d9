// Arrival and removal of hidraw nodes, told by udev.
#pragma once

#include <functional>
#include <memory>

#include "platform/hid.h"
#include "platform/main_loop.h"

namespace tarnix {

/// Gathers what happens within 250 ms of each other into one removal, one arrival, or the two in this order.
/// One callback runs at a time; what comes while it runs is told once it has returned.
class HotplugBurst {
  public:
    HotplugBurst(MainLoop& loop, std::function<void(HidChange)> callback);
    void add(HidChange change);

  private:
    void arm();
    void deliver();

    MainLoop& m_loop;
    std::function<void(HidChange)> m_callback;
    std::unique_ptr<MainLoop::Subscription> m_quiet;
    bool m_removed = false;
    bool m_arrived = false;
    bool m_delivering = false;
};

/// Watches the system's hidraw nodes as long as it lives.
class HotplugMonitor {
  public:
    HotplugMonitor(MainLoop& loop, std::function<void(HidChange)> callback);
    ~HotplugMonitor();
    HotplugMonitor(const HotplugMonitor&) = delete;
    HotplugMonitor& operator=(const HotplugMonitor&) = delete;

  private:
    struct Native;
    std::unique_ptr<Native> m_native;
};

} // namespace tarnix
