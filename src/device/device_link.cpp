#include "device/device_link.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "device/feature_reports.h"
#include "macro/macro_files.h"

namespace tarnix {

namespace {

constexpr Milliseconds closingPause{10};

/// Stands for an interface that could not be opened: there is a handle, and every report through it fails.
class RefusingDevice final : public HidDevice {
  public:
    bool setFeature(std::span<const std::uint8_t>) override { return false; }
    bool getFeature(std::span<std::uint8_t>) override { return false; }
    ReadResult read(std::span<std::uint8_t>) override { return ReadResult::Failed; }
    void stop() override {}
};

bool isKeyboard(const HidInterface& interface) {
    return interface.vendor == keyboardIdentity::vendor && interface.product == keyboardIdentity::product;
}

std::optional<HidInterface> interfaceAt(Hid& hid, int index) {
    const std::vector<HidInterface> interfaces = hid.enumerate();
    if (index < 0 || index >= static_cast<int>(interfaces.size())) return std::nullopt;
    return interfaces[index];
}

} // namespace

DeviceLink::DeviceLink(const Surroundings& surroundings)
    : m_hid(surroundings.hid),
      m_clock(surroundings.clock),
      m_loop(surroundings.loop),
      m_storage(surroundings.storage),
      m_owner(surroundings.owner),
      m_protocol(surroundings.clock, m_storage.store, m_storage.macros),
      m_events(m_protocol, m_storage, m_owner),
      m_listener(surroundings.hid, surroundings.loop,
                 [this](std::span<const std::uint8_t> report) { m_events.dispatch(report); }),
      m_self(std::make_shared<DeviceLink*>(this)) {}

DeviceLink::~DeviceLink() {
    close();
    m_hid.onChange({});
    *m_self = nullptr;
}

void DeviceLink::InitDeviceLink() {
    m_protocol.setHandle(nullptr);
    m_protocol.setDeviceProfile(unknownProfile);
    m_bNeedFullRead = true;
    m_pending.clearAll();
    m_hid.onChange([this](HidChange change) { OnDeviceChange(change); });
}

/// The last match of each kind wins.
void DeviceLink::examineInterfaces() {
    m_bDeviceFound = false;
    const std::vector<HidInterface> interfaces = m_hid.enumerate();
    const int count = std::min(static_cast<int>(interfaces.size()), keyboardIdentity::maxInterfaces);
    for (int i = 0; i < count; ++i) {
        const HidInterface& interface = interfaces[i];
        const bool events = interface.usagePage == keyboardIdentity::eventUsagePage;
        const bool features = interface.usagePage == keyboardIdentity::featureUsagePage;
        if (!isKeyboard(interface) || !(events || features) || !m_hid.open(interface.path)) continue;
        (events ? m_nEventInterface : m_nFeatureInterface) = i;
        m_bDeviceFound = true;
    }
}

void DeviceLink::FindDevice() {
    examineInterfaces();
    if (!m_bDeviceFound) {
        m_protocol.setHandle(nullptr);
        m_listener.stop();
        return;
    }
    startListener();
    OpenFeatureInterface();
}

void DeviceLink::startListener() {
    const auto interface = interfaceAt(m_hid, m_nEventInterface);
    if (interface && isKeyboard(*interface)) m_listener.start(*interface);
}

void DeviceLink::OpenFeatureInterface() {
    m_protocol.setHandle(nullptr);
    const auto interface = interfaceAt(m_hid, m_nFeatureInterface);
    if (!interface) return;
    std::unique_ptr<HidDevice> device = m_hid.open(interface->path);
    if (!device) {
        m_protocol.setHandle(std::make_unique<RefusingDevice>());
    } else if (isKeyboard(*interface)) {
        m_protocol.setHandle(std::move(device));
    }
}

void DeviceLink::OnDeviceChange(HidChange change) {
    if (m_closed) return;
    if (change == HidChange::Arrival && !m_bDeviceFound) {
        FindDevice();
        ReadDeviceState();
    } else if (change == HidChange::Removal && m_bDeviceFound) {
        FindDevice();
        if (!m_bDeviceFound) onDisconnected();
    }
}

/// The notice is modal, so it is left to the loop: arrivals and removals go on being heard while it is open.
void DeviceLink::onDisconnected() {
    m_bNeedFullRead = true;
    m_protocol.setHandle(nullptr);
    if (std::exchange(m_noticeOpen, true)) return;
    m_loop.post([self = m_self] {
        if (*self == nullptr || (*self)->m_closed) return;
        (*self)->m_owner.showDisconnectedNotice();
        if (*self != nullptr) (*self)->m_noticeOpen = false;
    });
}

void DeviceLink::ReadDeviceState() {
    if (!m_bDeviceFound || !m_bNeedFullRead) return;
    m_bNeedFullRead = false;
    const int active = m_protocol.GetActiveProfile();
    m_protocol.setDeviceProfile(active);
    if (active < 0 || active >= keyboardProfileCount) return;
    m_storage.store.SetCurrentProfileText(active);
    for (int profile = 0; profile < keyboardProfileCount; ++profile)
        m_protocol.ReadLighting(profile);
    for (int profile = 0; profile < keyboardProfileCount; ++profile)
        m_protocol.ReadKeyCodes(profile);
    readMacros();
    m_owner.ShowCurrentProfile();
}

void DeviceLink::readMacros() {
    bool asked = false;
    for (int profile = 0; profile < keyboardProfileCount; ++profile) {
        for (int slot = 0; slot < gKeyCount; ++slot)
            asked |= m_protocol.ReadGKeyMacro(profile, slot);
    }
    if (asked || m_pending.m_bMacroLibraryChanged || m_storage.macros.saveFailed) {
        SaveMacroLibrary(m_storage.macros, m_storage.files, m_storage.programFolder);
    }
    m_pending.m_bMacroLibraryChanged = false;
    if (asked) m_owner.onMacrosChanged();
}

void DeviceLink::close() {
    if (std::exchange(m_closed, true)) return;
    m_listener.close();
    if (!m_protocol.hasHandle()) return;
    m_protocol.SetActiveProfile(activeProfileReport::closing);
    m_clock.pause(closingPause);
    m_protocol.setHandle(nullptr);
}

} // namespace tarnix
