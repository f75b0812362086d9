#include "device/feature_reports.h"

#include <algorithm>

#include "profile/numbers.h"

namespace tarnix {

namespace {

/// Settings in the order of the lighting report's four-bit fields.
constexpr std::array<int, 8> lightingFields{
    settingLightBrightness, settingLightMode,       settingLightSpeed,      settingArea1Colour,
    settingArea1Colour + 1, settingArea1Colour + 2, settingArea1Colour + 3, settingArea1Colour + 4,
};
static_assert(lightingFields.size() == 2 * (lightingReport::length - lightingReport::fields));

} // namespace

SelectReport packSelection(int profile, int slot) {
    SelectReport report{selectReport::id};
    report[selectReport::profileByte] = wireProfile(profile);
    report[selectReport::slotByte] = static_cast<std::uint8_t>(slot);
    return report;
}

ActiveProfileReport packActiveProfile(int profile) {
    ActiveProfileReport report{activeProfileReport::id};
    report[activeProfileReport::commandByte] = activeProfileReport::command;
    report[activeProfileReport::profileByte] = static_cast<std::uint8_t>(profile);
    return report;
}

int unpackActiveProfile(std::span<const std::uint8_t, activeProfileReport::length> report) {
    return report[activeProfileReport::profileByte] & activeProfileReport::profileMask;
}

LightingReport packLighting(const ProfileRecord& record, int profile) {
    LightingReport report{lightingReport::id};
    report[lightingReport::lengthByte] = lightingReport::length;
    report[lightingReport::profileByte] = wireProfile(profile);
    const auto nibble = [&](std::size_t field) {
        return toNumber(record.Settings[lightingFields[field]].Value) & 0x0F;
    };
    for (std::size_t i = lightingReport::fields, field = 0; i < report.size(); ++i, field += 2) {
        report[i] = static_cast<std::uint8_t>(nibble(field) << 4 | nibble(field + 1));
    }
    return report;
}

void unpackLighting(ProfileRecord& record, std::span<const std::uint8_t, lightingReport::length> report) {
    for (std::size_t i = lightingReport::fields, field = 0; i < report.size(); ++i, field += 2) {
        record.Settings[lightingFields[field]].Value = toText(report[i] >> 4);
        record.Settings[lightingFields[field + 1]].Value = toText(report[i] & 0x0F);
    }
}

KeyCodeReport packKeyCodes(const ProfileRecord& record, int profile) {
    KeyCodeReport report{keyCodeReport::id};
    report[keyCodeReport::lengthByte] = keyCodeReport::contentLength;
    report[keyCodeReport::profileByte] = wireProfile(profile);
    auto out =
        std::copy(record.KeyCodes.begin(), record.KeyCodes.end(), report.begin() + keyCodeReport::keyCodes);
    for (const GKeySlot& slot : record.GKeys)
        out = std::copy(slot.Value.begin(), slot.Value.end(), out);
    return report;
}

void unpackKeyCodes(ProfileRecord& record, std::span<const std::uint8_t, keyCodeReport::length> report) {
    std::copy_n(report.begin() + keyCodeReport::keyCodes, record.KeyCodes.size(), record.KeyCodes.begin());
    auto in = report.begin() + keyCodeReport::gKeys;
    for (GKeySlot& slot : record.GKeys) {
        std::copy_n(in, slot.Value.size(), slot.Value.begin());
        in += static_cast<std::ptrdiff_t>(slot.Value.size());
    }
}

} // namespace tarnix
