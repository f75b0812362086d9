#include "ctl/keyboard_access.h"

#include <algorithm>

#include "ctl/output.h"
#include "device/device_link.h"
#include "device/feature_reports.h"
#include "platform/window.h"

namespace tarnix {

namespace {

OpenedInterface refuse(ExitStatus status, const std::string& message) {
    complain(message + "; tarnixctl doctor tells more");
    return {nullptr, status};
}

} // namespace

std::vector<HidInterface> keyboardInterfaces(Hid& hid) {
    std::vector<HidInterface> interfaces = hid.enumerate();
    interfaces.resize(std::min<std::size_t>(interfaces.size(), keyboardIdentity::maxInterfaces));
    std::erase_if(interfaces, [](const HidInterface& each) {
        return each.vendor != keyboardIdentity::vendor || each.product != keyboardIdentity::product;
    });
    return interfaces;
}

std::optional<HidInterface> findInterface(Hid& hid, std::uint16_t usagePage) {
    const std::vector<HidInterface> interfaces = keyboardInterfaces(hid);
    const auto found = std::find_if(interfaces.rbegin(), interfaces.rend(),
                                    [=](const HidInterface& each) { return each.usagePage == usagePage; });
    if (found == interfaces.rend()) return std::nullopt;
    return *found;
}

ExitStatus statusOf(HidOpening opening) {
    switch (opening) {
        case HidOpening::Possible:
            return ExitStatus::Done;
        case HidOpening::Denied:
            return ExitStatus::NoPermission;
        case HidOpening::Busy:
            return ExitStatus::InUse;
        case HidOpening::Gone:
            break;
    }
    return ExitStatus::NoKeyboard;
}

OpenedInterface openInterface(Hid& hid, std::uint16_t usagePage) {
    const auto interface = findInterface(hid, usagePage);
    if (!interface) return refuse(ExitStatus::NoKeyboard, "no keyboard is attached");
    const HidOpeningTrial trial = tryHidNode(*interface);
    if (trial.result != HidOpening::Possible) return refuse(statusOf(trial.result), trial.reason);
    auto device = hid.open(interface->path);
    if (!device) return refuse(ExitStatus::NoKeyboard, "the keyboard has just gone");
    return {std::move(device), ExitStatus::Done};
}

bool isProgramRunning() {
    return acquireInstanceLock(programTitle) == nullptr;
}

ExclusiveInterface openConfiguration(Hid& hid) {
    auto lock = acquireInstanceLock(programTitle);
    if (!lock) return {nullptr, refuse(ExitStatus::InUse, "Tarnix Keyboard or another tarnixctl is running")};
    return {std::move(lock), openInterface(hid, keyboardIdentity::featureUsagePage)};
}

std::optional<int> askActiveProfile(HidDevice& device) {
    ActiveProfileReport report{activeProfileReport::id};
    if (!device.getFeature(report)) return std::nullopt;
    return unpackActiveProfile(report);
}

} // namespace tarnix
