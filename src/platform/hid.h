// USB HID interfaces: what is there, feature reports, input reports, arrival and removal.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace tarnix {

class MainLoop;

/// One HID interface of the system, as its report descriptor describes it.
struct HidInterface {
    std::string path; ///< opens it; a node with several top-level collections is as many interfaces
    std::uint16_t vendor = 0;
    std::uint16_t product = 0;
    std::uint16_t usagePage = 0; ///< of the top-level collection
    std::size_t inputReportLength =
        0; ///< longest input report in bytes, the report id's byte included; 0 if none
};

/// An open HID interface. Feature reports are used by one thread, `read` by one thread, `stop` by any.
class HidDevice {
  public:
    enum class ReadResult { Report, Stopped, Failed };

    virtual ~HidDevice() = default;
    /// Byte 0 is the report id; the span is the whole report. False when the device refuses it or is gone.
    virtual bool setFeature(std::span<const std::uint8_t> report) = 0;
    /// Byte 0 names the report id on entry; the answer, report id first, is put over the span. False on any
    /// failure; the span is then as it was.
    virtual bool getFeature(std::span<std::uint8_t> report) = 0;
    /// Waits for one input report and puts it at the start of `report`, byte 0 always the report id (0 where
    /// the descriptor has none). Bytes that the report does not fill stay as they are. Sleeps while nothing
    /// happens. A stop ends the wait at once; a device that is gone is a failure.
    virtual ReadResult read(std::span<std::uint8_t> report) = 0;
    /// Ends the present and every later `read` with Stopped.
    virtual void stop() = 0;
};

enum class HidChange { Arrival, Removal };

class Hid {
  public:
    virtual ~Hid() = default;
    /// Every HID interface that is present, in an order that does not change while none comes or goes.
    virtual std::vector<HidInterface> enumerate() = 0;
    /// Opens for reading and writing, shared; none on failure.
    virtual std::unique_ptr<HidDevice> open(const std::string& path) = 0;
    /// Calls back on the main thread when HID interfaces arrive or leave. Nodes that come or go within 250 ms
    /// of each other are one notice; a burst with both is a removal, then an arrival. One callback at a time;
    /// an empty one ends it.
    virtual void onChange(std::function<void(HidChange)> callback) = 0;
};

/// The HID interfaces of this system; its notices come through the given loop, which must outlive it.
std::unique_ptr<Hid> makeSystemHid(MainLoop& loop);

} // namespace tarnix
