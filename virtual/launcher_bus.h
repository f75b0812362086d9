// The bus on which the launcher lends a HID device to other programs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/clock.h"

namespace tarnix {

/// One HID interface of a USB device.
struct BusInterface {
    std::string name;
    std::uint16_t vendor = 0;
    std::uint16_t product = 0;
    unsigned port = 1;            ///< of the hub; interfaces of one device share it
    unsigned interfaceNumber = 0; ///< in the device
    std::vector<std::uint8_t> descriptor;
};

/// What a device says to a feature request.
struct FeatureAnswer {
    bool accepted = false;
    std::vector<std::uint8_t> report = {}; ///< to a get, report id first
    Milliseconds delay{0};                 ///< how long the device takes to say it
};

/// The device's side of an interface. Called from the main loop.
class BusFunction {
  public:
    virtual ~BusFunction() = default;
    /// Byte 0 is the report id.
    virtual FeatureAnswer setFeature(std::span<const std::uint8_t> report) = 0;
    /// `length` is what the asker has room for; 0 where the bus does not know.
    virtual FeatureAnswer getFeature(std::uint8_t reportId, std::size_t length) = 0;
};

/// A plugged interface; unplugged when destroyed.
class BusPlug {
  public:
    virtual ~BusPlug() = default;
    /// Hands a report (as it is on the wire) to the programs that have the interface open, after the earlier
    /// ones.
    virtual void sendInput(std::span<const std::uint8_t> report) = 0;
};

class Bus {
  public:
    virtual ~Bus() = default;
    /// The function must outlive the plug. None when the system refuses.
    virtual std::unique_ptr<BusPlug> plug(const BusInterface& interface, BusFunction& function) = 0;
};

/// Starts this program once more with the mocked system's library preloaded, unless it is. Preloaded
/// libraries are settled when a process starts, and a process without this one sees the real system.
void preloadMockSystem(char** argv);

/// A mocked /sys and /dev for programs that are started with this process's environment.
std::unique_ptr<Bus> makeMockBus();

/// The kernel's user-space HID devices (/dev/uhid), seen by every program of the system; none where they may
/// not be made.
std::unique_ptr<Bus> makeUhidBus();

} // namespace tarnix
