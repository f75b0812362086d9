// What the keyboard's event reports do to the profile store, the macro library and the owner's windows.
#pragma once

#include <cstdint>
#include <span>

#include "device/device_observer.h"
#include "device/device_storage.h"
#include "device/feature_protocol.h"

namespace tarnix {

/// Byte 0 of an event report is its id, byte 1 the event's code, byte 2 its value; the rest says nothing.
namespace eventReport {
constexpr std::size_t codeByte = 1;
constexpr std::size_t valueByte = 2;
constexpr std::size_t minLength = 3;

constexpr std::uint8_t macroRecorded = 0x01;  ///< value: G-key, from 1
constexpr std::uint8_t speedChanged = 0x02;   ///< value: the new setting, also for mode and brightness
constexpr std::uint8_t windowsKeyLock = 0x03; ///< value: 0 disabled, else enabled
constexpr std::uint8_t launch = 0x04;         ///< value: G-key, from 1
constexpr std::uint8_t profileChanged = 0x05; ///< value: profile, 1 to 3
constexpr std::uint8_t modeChanged = 0x06;
constexpr std::uint8_t brightnessChanged = 0x07;
constexpr std::uint8_t unused = 0x08;          ///< sent by the keyboard and of no use here
constexpr std::uint8_t allKeyLock = 0x09;      ///< value: 0 disabled, else enabled
constexpr std::uint8_t lightingChanged = 0x0A; ///< the lighting is to be read again
} // namespace eventReport

class DeviceEvents {
  public:
    DeviceEvents(FeatureProtocol& protocol, const DeviceStorage& storage, DeviceObserver& owner);

    /// Reports of fewer than three bytes or of no known code do nothing; so do those that need the active
    /// profile while none of the five is known to be active.
    void dispatch(std::span<const std::uint8_t> report);

  private:
    void onActiveProfileEvent(std::uint8_t code, std::uint8_t value);
    void onProfileChanged(std::uint8_t value);
    void onMacroRecorded(int profile, int slot);
    void onLaunch(int profile, int slot);

    FeatureProtocol& m_protocol;
    DeviceStorage m_storage;
    DeviceObserver& m_owner;
};

} // namespace tarnix
