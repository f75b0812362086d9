// The connection to the keyboard: finding it, following its arrival and removal, reading it whole, sending
// what is pending, and the farewell at the end.
#pragma once

#include <cstdint>
#include <memory>

#include "device/device_events.h"
#include "device/device_observer.h"
#include "device/device_storage.h"
#include "device/event_listener.h"
#include "device/feature_protocol.h"
#include "device/pending_writes.h"
#include "platform/clock.h"
#include "platform/hid.h"
#include "platform/main_loop.h"

namespace tarnix {

namespace keyboardIdentity {
constexpr std::uint16_t vendor = 0x04F3;
constexpr std::uint16_t product = 0x1406;
constexpr std::uint16_t eventUsagePage = 0x000A;
constexpr std::uint16_t featureUsagePage = 0x000B;
/// Interfaces beyond the first thirty of the system are not looked at.
constexpr int maxInterfaces = 30;
} // namespace keyboardIdentity

/// Owned by the main window and used on its thread. Everything that it is given must outlive it.
class DeviceLink {
  public:
    struct Surroundings {
        Hid& hid;
        Clock& clock;
        MainLoop& loop;
        DeviceStorage storage;
        DeviceObserver& owner;
    };

    explicit DeviceLink(const Surroundings& surroundings);
    ~DeviceLink();
    DeviceLink(const DeviceLink&) = delete;
    DeviceLink& operator=(const DeviceLink&) = delete;

    /// Puts the link into its first state and asks for the notices of arrival and removal.
    void InitDeviceLink();
    /// Searches the keyboard; when it is there, starts the listener and opens the feature interface anew.
    void FindDevice();
    void OnDeviceChange(HidChange change);
    /// The full read: once after set-up and once after each disconnection, nothing without a keyboard.
    void ReadDeviceState();
    void FlushPendingWrites() { m_pending.FlushPendingWrites(m_protocol); }
    /// Ends the listener, tells the keyboard that the program ends, closes it. Once; the destructor does it
    /// if need be.
    void close();

    bool isDeviceFound() const { return m_bDeviceFound; }
    FeatureProtocol& protocol() { return m_protocol; }
    PendingWrites& pending() { return m_pending; }

  private:
    void examineInterfaces();
    void startListener();
    void OpenFeatureInterface();
    void onDisconnected();
    void readMacros();

    Hid& m_hid;
    Clock& m_clock;
    MainLoop& m_loop;
    DeviceStorage m_storage;
    DeviceObserver& m_owner;

    FeatureProtocol m_protocol; ///< holds the feature handle and the device profile
    PendingWrites m_pending;
    DeviceEvents m_events;
    EventListener m_listener;
    std::shared_ptr<DeviceLink*> m_self; ///< for posted work, which may outlive the link

    bool m_bDeviceFound = false;
    bool m_bNeedFullRead = true;
    int m_nEventInterface = -1;   ///< index among the system's HID interfaces; -1 before the first match
    int m_nFeatureInterface = -1; ///< the same
    bool m_noticeOpen = false;
    bool m_closed = false;
};

} // namespace tarnix
