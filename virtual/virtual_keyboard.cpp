#include "virtual/virtual_keyboard.h"

#include <algorithm>

#include "device/device_events.h"
#include "device/feature_reports.h"
#include "device/macro_report.h"
#include "profile/key_assignment.h"

namespace tarnix {

namespace {

constexpr std::uint8_t noNameByte = 0xFF;
constexpr std::size_t eventReportLength = 7;
constexpr std::array<std::uint8_t, 4> factoryLighting{0x41, 0x14, 0x44, 0x44};

/// HID usage tables, generic desktop page: a keyboard with the boot protocol's report, modifiers and six
/// keys.
const std::vector<std::uint8_t> bootKeyboardDescriptor{
    0x05, 0x01, 0x09, 0x06, 0xA1, 0x01,                         // generic desktop, keyboard, application
    0x05, 0x07, 0x19, 0xE0, 0x29, 0xE7, 0x15, 0x00, 0x25, 0x01, // keyboard page, modifiers
    0x75, 0x01, 0x95, 0x08, 0x81, 0x02,                         // eight bits in
    0x95, 0x01, 0x75, 0x08, 0x81, 0x01,                         // a constant byte in
    0x05, 0x08, 0x19, 0x01, 0x29, 0x05, 0x75, 0x01, 0x95, 0x05, // LED page, five lamps
    0x91, 0x02, 0x95, 0x01, 0x75, 0x03, 0x91, 0x01,             // five bits and three constant ones out
    0x05, 0x07, 0x19, 0x00, 0x29, 0xFF, 0x15, 0x00, 0x26, 0xFF, 0x00, // keys
    0x75, 0x08, 0x95, 0x06, 0x81, 0x00, 0xC0};                        // six bytes in

const std::vector<std::uint8_t> eventDescriptor{
    0x05, 0x0A, 0x09, 0x01, 0xA1, 0x01,
    0x15, 0x00, 0x26, 0xFF, 0x00, // ordinals page, application, bytes
    0x09, 0x02, 0x75, 0x08, 0x95, eventReportLength,
    0x81, 0x02, 0xC0};

std::vector<std::uint8_t> featureDescriptor() {
    std::vector<std::uint8_t> bytes{0x05, 0x0B, 0x09, 0x01, 0xA1, 0x01,        // telephony page, application
                                    0x15, 0x00, 0x26, 0xFF, 0x00, 0x75, 0x08}; // bytes
    for (std::uint8_t id = selectReport::id; id <= macroReport::id; ++id) {
        const auto payload = static_cast<std::uint8_t>(VirtualKeyboard::featureLength(id) - 1);
        for (const std::uint8_t byte :
             std::array<std::uint8_t, 8>{0x85, id, 0x09, id, 0x95, payload, 0xB1, 0x02})
            bytes.push_back(byte);
    }
    bytes.push_back(0xC0);
    return bytes;
}

KeyboardProfile factoryProfile() {
    KeyboardProfile profile;
    profile.lighting = factoryLighting;
    profile.keyCodes = DefaultKeyCodes;
    for (std::size_t slot = 0; slot < profile.macros.size(); ++slot) {
        const auto digit = static_cast<std::uint8_t>(0x1E + slot);
        const KeyAssignment value = keyAssignment(FunctionType::KeyCombination, 0x01, digit);
        std::copy(value.begin(), value.end(), profile.gKeys.begin() + slot * value.size());
    }
    return profile;
}

bool isProfile(std::uint8_t number) {
    return number < VirtualKeyboard::profileCount;
}

} // namespace

VirtualKeyboard::VirtualKeyboard(Clock& clock) : m_clock(clock) {
    profiles.fill(factoryProfile());
}

const std::vector<KeyboardInterface>& VirtualKeyboard::interfaces() {
    static const std::vector<KeyboardInterface> all{{0x0001, 9, bootKeyboardDescriptor},
                                                    {0x000A, eventReportLength + 1, eventDescriptor},
                                                    {0x000B, 0, featureDescriptor()}};
    return all;
}

std::size_t VirtualKeyboard::featureLength(std::uint8_t id) {
    switch (id) {
        case selectReport::id:
            return selectReport::length;
        case activeProfileReport::id:
            return activeProfileReport::length;
        case keyCodeReport::id:
            return keyCodeReport::length;
        case lightingReport::id:
            return lightingReport::length;
        case macroReport::id:
            return macroReport::length;
        default:
            return 0;
    }
}

/// Counts the request and lets it meet the faults that wait for it.
bool VirtualKeyboard::admitRequest() {
    const std::size_t request = m_requests++;
    bool passes = !m_failEvery;
    for (const Fault& fault : m_faults) {
        if (fault.request == request && !fault.happen()) passes = false;
    }
    return passes && m_pluggedIn;
}

bool VirtualKeyboard::setFeature(std::span<const std::uint8_t> report) {
    const bool accepted =
        admitRequest() && !report.empty() && report.size() == featureLength(report[0]) && acceptSet(report);
    log(WireDirection::Set, report, accepted);
    return accepted;
}

bool VirtualKeyboard::getFeature(std::span<std::uint8_t> report) {
    const bool accepted =
        admitRequest() && !report.empty() && report.size() == featureLength(report[0]) && acceptGet(report);
    if (accepted) {
        log(WireDirection::Get, report, true);
    } else {
        std::vector<std::uint8_t> refused(report.size());
        if (!report.empty()) refused[0] = report[0];
        log(WireDirection::Get, refused, false);
    }
    return accepted;
}

bool VirtualKeyboard::acceptSet(std::span<const std::uint8_t> report) {
    switch (report[0]) {
        case selectReport::id:
            if (!isProfile(report[selectReport::profileByte]) ||
                report[selectReport::slotByte] >= gKeyCount) {
                return false;
            }
            m_selectedProfile = report[selectReport::profileByte];
            m_selectedSlot = report[selectReport::slotByte];
            return true;
        case activeProfileReport::id: {
            const std::uint8_t number = report[activeProfileReport::profileByte];
            if (report[activeProfileReport::commandByte] != activeProfileReport::command) return false;
            if (isProfile(number)) activeProfile = number;
            return isProfile(number) || number == activeProfileReport::closing;
        }
        case keyCodeReport::id:
            return setKeyCodes(report);
        case lightingReport::id:
            return setLighting(report);
        case macroReport::id:
            return setMacro(report);
        default:
            return false;
    }
}

bool VirtualKeyboard::setKeyCodes(std::span<const std::uint8_t> report) {
    const std::uint8_t number = report[keyCodeReport::profileByte];
    if (report[keyCodeReport::lengthByte] != keyCodeReport::contentLength || !isProfile(number)) return false;
    KeyboardProfile& profile = profiles[number];
    std::copy_n(report.begin() + keyCodeReport::keyCodes, profile.keyCodes.size(), profile.keyCodes.begin());
    std::copy_n(report.begin() + keyCodeReport::gKeys, profile.gKeys.size(), profile.gKeys.begin());
    return true;
}

bool VirtualKeyboard::setLighting(std::span<const std::uint8_t> report) {
    const std::uint8_t number = report[lightingReport::profileByte];
    if (report[lightingReport::lengthByte] != lightingReport::length || !isProfile(number)) return false;
    std::copy(report.begin() + lightingReport::fields, report.end(), profiles[number].lighting.begin());
    return true;
}

bool VirtualKeyboard::setMacro(std::span<const std::uint8_t> report) {
    const std::uint8_t number = report[macroReport::profileByte];
    const std::uint8_t slot = report[macroReport::slotByte];
    if (report[macroReport::lengthByte] != macroReport::length || !isProfile(number) || slot >= gKeyCount) {
        return false;
    }
    KeyboardMacro& macro = profiles[number].macros[slot];
    macro.name = macroReportName(report.first<macroReport::length>());
    macro.loopCount = report[macroReport::loopCount];
    macro.stepCount = report[macroReport::stepCount];
    std::copy(report.begin() + macroReport::steps, report.end(), macro.steps.begin());
    return true;
}

/// Answers have the form of the report that sets the same.
bool VirtualKeyboard::acceptGet(std::span<std::uint8_t> report) {
    if (report[0] == selectReport::id) return false;
    std::fill(report.begin() + 1, report.end(), std::uint8_t{0});
    const KeyboardProfile& profile = profiles[m_selectedProfile];
    switch (report[0]) {
        case activeProfileReport::id:
            report[activeProfileReport::commandByte] = activeProfileReport::command;
            report[activeProfileReport::profileByte] = activeProfile;
            break;
        case keyCodeReport::id:
            report[keyCodeReport::lengthByte] = keyCodeReport::contentLength;
            report[keyCodeReport::profileByte] = m_selectedProfile;
            std::copy(profile.keyCodes.begin(), profile.keyCodes.end(),
                      report.begin() + keyCodeReport::keyCodes);
            std::copy(profile.gKeys.begin(), profile.gKeys.end(), report.begin() + keyCodeReport::gKeys);
            break;
        case lightingReport::id:
            report[lightingReport::lengthByte] = lightingReport::length;
            report[lightingReport::profileByte] = m_selectedProfile;
            std::copy(profile.lighting.begin(), profile.lighting.end(),
                      report.begin() + lightingReport::fields);
            break;
        default:
            getMacro(report);
    }
    return true;
}

void VirtualKeyboard::getMacro(std::span<std::uint8_t> report) const {
    const KeyboardMacro& macro = profiles[m_selectedProfile].macros[m_selectedSlot];
    report[macroReport::lengthByte] = macroReport::length;
    report[macroReport::profileByte] = m_selectedProfile;
    report[macroReport::slotByte] = m_selectedSlot;
    const auto name = report.subspan(macroReport::name, macroReport::nameLength);
    if (macro.name) {
        std::copy_n(macro.name->begin(), std::min(macro.name->size(), name.size()), name.begin());
    } else {
        std::fill(name.begin(), name.end(), noNameByte);
    }
    report[macroReport::loopCount] = macro.loopCount;
    report[macroReport::stepCount] = macro.stepCount;
    std::copy(macro.steps.begin(), macro.steps.end(), report.begin() + macroReport::steps);
}

void VirtualKeyboard::log(WireDirection direction, std::span<const std::uint8_t> report, bool accepted) {
    m_log.push_back({m_clock.now(), direction, {report.begin(), report.end()}, accepted});
    if (onWire) onWire(m_log.back());
}

void VirtualKeyboard::emit(std::uint8_t code, std::uint8_t value) {
    if (!m_pluggedIn) return;
    const std::array<std::uint8_t, eventReportLength> report{code, value};
    log(WireDirection::Event, report, true);
    if (onEvent) onEvent(report);
}

KeyboardProfile& VirtualKeyboard::active() {
    return profiles[isProfile(activeProfile) ? activeProfile : 0];
}

void VirtualKeyboard::pressProfile(std::uint8_t profile) {
    if (profile == 0 || !isProfile(static_cast<std::uint8_t>(profile - 1))) return;
    activeProfile = static_cast<std::uint8_t>(profile - 1);
    emit(eventReport::profileChanged, profile);
}

void VirtualKeyboard::pressGKey(std::uint8_t gKey) {
    emit(eventReport::launch, gKey);
}

void VirtualKeyboard::changeMode(std::uint8_t mode) {
    std::uint8_t& field = active().lighting[0];
    field = static_cast<std::uint8_t>((field & 0xF0) | (mode & 0x0F));
    emit(eventReport::modeChanged, mode);
}

void VirtualKeyboard::changeBrightness(std::uint8_t brightness) {
    std::uint8_t& field = active().lighting[0];
    field = static_cast<std::uint8_t>((field & 0x0F) | brightness << 4);
    emit(eventReport::brightnessChanged, brightness);
}

void VirtualKeyboard::changeSpeed(std::uint8_t speed) {
    std::uint8_t& field = active().lighting[1];
    field = static_cast<std::uint8_t>((field & 0x0F) | speed << 4);
    emit(eventReport::speedChanged, speed);
}

void VirtualKeyboard::changeLighting(std::span<const std::uint8_t, 4> lighting) {
    std::copy(lighting.begin(), lighting.end(), active().lighting.begin());
    emit(eventReport::lightingChanged, 0);
}

void VirtualKeyboard::lockWindowsKey(bool enabled) {
    emit(eventReport::windowsKeyLock, enabled ? 1 : 0);
}

void VirtualKeyboard::lockAllKeys(bool enabled) {
    emit(eventReport::allKeyLock, enabled ? 1 : 0);
}

void VirtualKeyboard::recordMacro(std::uint8_t gKey, std::span<const std::uint8_t> steps,
                                  std::uint8_t loopCount) {
    if (gKey == 0 || gKey > gKeyCount) return;
    KeyboardMacro macro;
    const std::size_t length = std::min(steps.size(), macro.steps.size());
    std::copy_n(steps.begin(), length, macro.steps.begin());
    macro.stepCount = static_cast<std::uint8_t>(length / macroReport::stepLength);
    macro.loopCount = loopCount;
    active().macros[gKey - 1] = macro;
    const KeyAssignment value = keyAssignment(FunctionType::Macro);
    std::copy(value.begin(), value.end(), active().gKeys.begin() + (gKey - 1) * value.size());
    emit(eventReport::macroRecorded, gKey);
}

} // namespace tarnix
