#include "device/device_events.h"

#include "macro/macro_files.h"
#include "profile/profile_file.h"

namespace tarnix {

DeviceEvents::DeviceEvents(FeatureProtocol& protocol, const DeviceStorage& storage, DeviceObserver& owner)
    : m_protocol(protocol), m_storage(storage), m_owner(owner) {}

void DeviceEvents::dispatch(std::span<const std::uint8_t> report) {
    if (report.size() < eventReport::minLength) return;
    const std::uint8_t value = report[eventReport::valueByte];
    switch (report[eventReport::codeByte]) {
        case eventReport::profileChanged:
            onProfileChanged(value);
            break;
        case eventReport::windowsKeyLock:
            m_owner.onDeviceEvent(value == 0 ? DeviceEvent::WindowsKeyDisabled
                                             : DeviceEvent::WindowsKeyEnabled);
            break;
        case eventReport::allKeyLock:
            m_owner.onDeviceEvent(value == 0 ? DeviceEvent::AllKeysDisabled : DeviceEvent::AllKeysEnabled);
            break;
        default:
            if (m_storage.store.record(m_protocol.deviceProfile()) != nullptr) {
                onActiveProfileEvent(report[eventReport::codeByte], value);
            }
    }
}

/// Events about the profile that is active on the keyboard, which must be one of the five.
void DeviceEvents::onActiveProfileEvent(std::uint8_t code, std::uint8_t value) {
    ProfileStore& store = m_storage.store;
    const int profile = m_protocol.deviceProfile();
    switch (code) {
        case eventReport::macroRecorded:
            onMacroRecorded(profile, value - 1);
            break;
        case eventReport::launch:
            onLaunch(profile, value - 1);
            break;
        case eventReport::speedChanged:
            store.SetLightSpeed(profile, value);
            m_owner.ShowCurrentProfile();
            break;
        case eventReport::modeChanged:
            store.SetLightMode(profile, value);
            m_owner.ShowCurrentProfile();
            break;
        case eventReport::brightnessChanged:
            store.SetLightBrightness(profile, value);
            m_owner.ShowCurrentProfile();
            break;
        case eventReport::lightingChanged:
            m_protocol.ReadLighting(profile);
            break;
        default:
            break;
    }
}

/// The keyboard may name a profile that it does not have: it is kept as it came, and told only when it is one
/// of three.
void DeviceEvents::onProfileChanged(std::uint8_t value) {
    m_protocol.setDeviceProfile(value - 1);
    m_storage.store.SetCurrentProfileText(value - 1);
    m_owner.ShowCurrentProfile();
    if (value >= 1 && value <= keyboardProfileCount) m_owner.onDeviceEvent(static_cast<DeviceEvent>(value));
}

void DeviceEvents::onMacroRecorded(int profile, int slot) {
    if (!m_protocol.UploadGKeyMacro(profile, slot)) return;
    SaveProfileFile(m_storage.store, profile, m_storage.files);
    SaveMacroLibrary(m_storage.macros, m_storage.files, m_storage.programFolder);
    m_owner.onMacrosChanged();
    m_owner.ShowCurrentProfile();
}

void DeviceEvents::onLaunch(int profile, int slot) {
    const std::string url = m_storage.store.GetGKeyUrl(profile, slot);
    if (!url.empty()) m_owner.launchGKeyUrl(url);
}

} // namespace tarnix
