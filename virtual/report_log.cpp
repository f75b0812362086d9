#include "virtual/report_log.h"

#include <string_view>

#include "device/device_events.h"
#include "device/feature_reports.h"
#include "device/macro_report.h"
#include "profile/numbers.h"
#include "profile/vocabulary.h"

namespace tarnix {

namespace {

using Report = std::span<const std::uint8_t>;

std::string hexByte(std::uint8_t byte) {
    std::string text;
    appendHexByte(text, byte);
    return text;
}

/// A number with its name, where it has one.
std::string named(int number, std::string_view name) {
    std::string text = toText(number);
    if (!name.empty()) text.append(1, ' ').append(name);
    return text;
}

std::string profileNumber(std::uint8_t index) {
    return " profile " + toText(index + 1);
}

std::string gKeyNumber(std::uint8_t index) {
    return " G" + toText(index + 1);
}

std::string describeActiveProfile(Report report) {
    const std::uint8_t number = report[activeProfileReport::profileByte];
    if (number == activeProfileReport::closing) return "active profile: program ends";
    return "active profile: " + toText(number + 1);
}

std::string describeLighting(Report report) {
    const auto high = [&](std::size_t i) { return report[lightingReport::fields + i] >> 4; };
    const auto low = [&](std::size_t i) { return report[lightingReport::fields + i] & 0x0F; };
    std::string text = "lighting" + profileNumber(report[lightingReport::profileByte]) + ": mode " +
                       named(low(0), LightModeName(low(0))) + ", brightness " +
                       named(high(0), BrightnessName(high(0))) + ", speed " +
                       named(high(1), SpeedName(high(1))) + ", colours";
    for (const int colour : {low(1), high(2), low(2), high(3), low(3)})
        text += ' ' + toText(colour);
    return text;
}

std::string describeKeyCodes(Report report) {
    int remapped = 0;
    for (std::size_t i = 0; i < DefaultKeyCodes.size(); ++i) {
        if (report[keyCodeReport::keyCodes + i] != DefaultKeyCodes[i]) ++remapped;
    }
    std::string text = "key codes" + profileNumber(report[keyCodeReport::profileByte]) + ": " +
                       toText(remapped) + " remapped, G-keys";
    for (std::size_t slot = 0; slot < gKeyCount; ++slot) {
        text += ' ';
        for (std::size_t i = 0; i < keyCodeReport::gKeyLength; ++i) {
            appendHexByte(text, report[keyCodeReport::gKeys + slot * keyCodeReport::gKeyLength + i]);
        }
    }
    return text;
}

/// Names come from the wire: what is no printable ASCII is shown as its byte.
std::string printable(std::string_view name) {
    std::string text;
    for (const char c : name) {
        if (c >= ' ' && c <= '~') {
            text += c;
        } else {
            text.append("\\x");
            appendHexByte(text, static_cast<std::uint8_t>(c));
        }
    }
    return text;
}

std::string describeMacro(Report report) {
    const auto name = macroReportName(report.first<macroReport::length>());
    return "macro" + profileNumber(report[macroReport::profileByte]) +
           gKeyNumber(report[macroReport::slotByte]) + ": " +
           (name ? '"' + printable(*name) + '"' : "without a name") + ", " +
           toText(report[macroReport::stepCount]) + " steps, loop " + toText(report[macroReport::loopCount]);
}

std::string describeFeature(Report report) {
    if (report.size() != VirtualKeyboard::featureLength(report[0])) {
        return "unknown report of " + toText(static_cast<int>(report.size())) + " bytes";
    }
    switch (report[0]) {
        case selectReport::id:
            return "select" + profileNumber(report[selectReport::profileByte]) +
                   gKeyNumber(report[selectReport::slotByte]);
        case activeProfileReport::id:
            return describeActiveProfile(report);
        case keyCodeReport::id:
            return describeKeyCodes(report);
        case lightingReport::id:
            return describeLighting(report);
        default:
            return describeMacro(report);
    }
}

std::string describeEvent(Report report) {
    const std::uint8_t value = report.size() > 1 ? report[1] : 0;
    switch (report[0]) {
        case eventReport::macroRecorded:
            return "macro recorded: G" + toText(value);
        case eventReport::speedChanged:
            return "speed changed: " + named(value, SpeedName(value));
        case eventReport::windowsKeyLock:
            return value == 0 ? "Windows key disabled" : "Windows key enabled";
        case eventReport::launch:
            return "launch: G" + toText(value);
        case eventReport::profileChanged:
            return "profile changed: " + toText(value);
        case eventReport::modeChanged:
            return "mode changed: " + named(value, LightModeName(value));
        case eventReport::brightnessChanged:
            return "brightness changed: " + named(value, BrightnessName(value));
        case eventReport::allKeyLock:
            return value == 0 ? "all keys disabled" : "all keys enabled";
        case eventReport::lightingChanged:
            return "lighting changed";
        default:
            return "value " + toText(value);
    }
}

std::string_view directionWord(WireDirection direction) {
    switch (direction) {
        case WireDirection::Set:
            return "set";
        case WireDirection::Get:
            return "get";
        default:
            return "event";
    }
}

} // namespace

std::string describeReport(WireDirection direction, std::span<const std::uint8_t> report) {
    std::string text(directionWord(direction));
    if (report.empty()) return text + " of nothing";
    text += ' ' + hexByte(report[0]) + ' ';
    return text + (direction == WireDirection::Event ? describeEvent(report) : describeFeature(report));
}

std::string describeRecord(const WireRecord& record) {
    return std::to_string(record.time.count()) + " ms  " + describeReport(record.direction, record.report) +
           (record.accepted ? "" : " (refused)");
}

} // namespace tarnix
