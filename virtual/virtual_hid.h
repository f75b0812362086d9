// The virtual keyboard behind the Hid interface, inside the process, beside other HID devices of the system.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "platform/hid.h"
#include "virtual/virtual_keyboard.h"

namespace tarnix {

/// Interfaces stand in this order: those added first, then the keyboard's while it is plugged in, then those
/// added last. Used by one thread, except for the devices' `read` and `stop`. Must outlive the devices that
/// it opened.
class VirtualHid : public Hid {
  public:
    explicit VirtualHid(VirtualKeyboard& keyboard);
    ~VirtualHid() override;

    std::vector<HidInterface> enumerate() override;
    std::unique_ptr<HidDevice> open(const std::string& path) override;
    void onChange(std::function<void(HidChange)> callback) override { m_onChange = std::move(callback); }

    /// Path of one of the keyboard's interfaces. It is the same after every return, as node names are, as a
    /// rule.
    static std::string pathOf(std::size_t interface);

    std::vector<HidInterface> before; ///< other devices' interfaces ahead of the keyboard's
    std::vector<HidInterface> after;  ///< and behind them
    std::set<std::string> locked;     ///< paths that cannot be opened
    std::set<std::size_t> missing;    ///< interfaces that the keyboard does not show

    /// A plain mouse's interface.
    static HidInterface mouse(const std::string& path);

    /// Pulls the plug: open devices fail from now on. Nobody is told until `tell`.
    void unplug();
    void plugIn();
    void tell(HidChange change) {
        if (m_onChange) m_onChange(change);
    }

    int openDevices() const;

  private:
    class Node;
    class Device;

    void deliver(std::span<const std::uint8_t> report);

    VirtualKeyboard& m_keyboard;
    std::function<void(HidChange)> m_onChange;
    std::vector<std::weak_ptr<Node>> m_nodes;
};

} // namespace tarnix
