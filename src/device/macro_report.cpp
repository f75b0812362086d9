#include "device/macro_report.h"

#include <algorithm>

#include "device/feature_reports.h"
#include "profile/vocabulary.h"

namespace tarnix {

namespace {

constexpr std::uint8_t noNameByte = 0xFF;
constexpr std::uint8_t releaseBit = MacroAction::releaseBit;
constexpr std::uint8_t unitMask = 0x7F;
constexpr unsigned unit = 8; ///< milliseconds, of the delay in a key step's parameter

/// A delay step's code is its place here. Delays below `from` take a smaller code; what `perCount` leaves
/// over goes with the next key, as far as `restMask` lets it.
struct DelayStep {
    unsigned from;
    unsigned perCount;
    unsigned restMask;
};
constexpr std::array<DelayStep, 4> delaySteps{{
    {0, unit, 0},
    {1016, 64, 0x3F},
    {16320, 128, 0x7F},
    {32640, 256, 0x7F},
}};

constexpr std::uint8_t firstKeyCode = delaySteps.size();

std::uint16_t stepDelay(std::uint8_t code, std::uint8_t parameter) {
    if (code == 0 || code >= firstKeyCode) return static_cast<std::uint16_t>((parameter & unitMask) * unit);
    return static_cast<std::uint16_t>(parameter * delaySteps[code].perCount);
}

class StepWriter {
  public:
    explicit StepWriter(MacroReport& report) : m_report(report) {}

    void write(const MacroAction& action) {
        if (action.bytes[0] == MacroAction::delayMark) {
            writeDelay(action.milliseconds() & 0xFFFFu);
        } else {
            step(ToKeyCode(action.virtualKey()),
                 static_cast<std::uint8_t>((action.bytes[1] & releaseBit) | m_carry));
            m_carry = 0;
        }
    }

  private:
    void writeDelay(unsigned delay) {
        std::size_t code = delaySteps.size() - 1;
        while (delay < delaySteps[code].from)
            --code;
        if (code == 0) {
            m_carry = static_cast<std::uint8_t>(delay / unit);
            return;
        }
        step(static_cast<std::uint8_t>(code), static_cast<std::uint8_t>(delay / delaySteps[code].perCount));
        m_carry = static_cast<std::uint8_t>(delay & delaySteps[code].restMask);
    }

    void step(std::uint8_t code, std::uint8_t parameter) {
        if (m_position == m_report.size()) return;
        m_report[m_position++] = code;
        m_report[m_position++] = parameter;
    }

    MacroReport& m_report;
    std::size_t m_position = macroReport::steps;
    std::uint8_t m_carry = 0; ///< for the next key's parameter
};

} // namespace

std::optional<std::string> macroReportName(MacroReportView report) {
    const auto name = report.subspan(macroReport::name, macroReport::nameLength);
    const auto end = std::find(name.begin(), name.end(), std::uint8_t{0});
    const bool none = name[0] == noNameByte && name[1] == noNameByte;
    if (none || end == name.begin()) return std::nullopt;
    return std::string(name.begin(), end);
}

void DecodeMacroReport(MacroKey& macro, MacroReportView report) {
    macro.actions = {};
    macro.actionCount = 0;
    macro.loopCount = report[macroReport::loopCount];
    macro.loopEnable = macro.loopCount != 0 ? 1 : 0;
    macro.commandCount = report[macroReport::stepCount];

    std::uint16_t pending = 0;
    const std::size_t count = std::min<std::size_t>(macro.commandCount, macroReport::maxSteps);
    for (std::size_t i = 0; i < count; ++i) {
        const auto step = report.subspan(macroReport::steps + i * macroReport::stepLength);
        pending = static_cast<std::uint16_t>(pending + stepDelay(step[0], step[1]));
        if (step[0] < firstKeyCode) continue;
        if (pending != 0) AppendAction(macro, MacroAction::delay(pending));
        AppendAction(macro, MacroAction::key(ToVirtualKey(step[0]), (step[1] & releaseBit) != 0));
        pending = 0;
    }
}

MacroReport encodeMacroReport(const MacroKey& macro, int profile, int slot) {
    MacroReport report{};
    report[0] = macroReport::id;
    report[macroReport::lengthByte] = macroReport::length;
    report[macroReport::profileByte] = wireProfile(profile);
    report[macroReport::slotByte] = static_cast<std::uint8_t>(slot);
    const std::size_t nameLength = std::min(macro.name.size(), macroReport::nameLength);
    std::copy_n(macro.name.begin(), nameLength, report.begin() + macroReport::name);
    if (macro.loopEnable != 0) report[macroReport::loopCount] = macro.loopCount;
    report[macroReport::stepCount] = macro.commandCount;

    StepWriter writer(report);
    for (const MacroAction& action : macro.usedActions())
        writer.write(action);
    return report;
}

} // namespace tarnix
