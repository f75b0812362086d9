#include <gmock/gmock.h>

#include <algorithm>
#include <numeric>

#include "device/feature_reports.h"
#include "device/macro_report.h"

namespace tarnix {
namespace {

using testing::ElementsAre;
using Bytes = std::vector<std::uint8_t>;
using Actions = std::vector<MacroAction>;

// Virtual-key code 41 is the keyboard's code 04.
constexpr MacroAction press = MacroAction::key(0x41, false);
constexpr MacroAction release = MacroAction::key(0x41, true);
constexpr auto delay = MacroAction::delay;

MacroKey macroOf(const Actions& actions) {
    MacroKey macro;
    for (const MacroAction& action : actions)
        AppendAction(macro, action);
    return macro;
}

Bytes slice(const auto& report, std::size_t from, std::size_t to) {
    return {report.begin() + from, report.begin() + to};
}

/// The steps that actions go out as; the tests' steps never end in a zero pair.
Bytes sent(const Actions& actions) {
    Bytes steps = slice(encodeMacroReport(macroOf(actions), 0, 0), 34, 226);
    while (!steps.empty() && steps.back() == 0 && steps[steps.size() - 2] == 0)
        steps.resize(steps.size() - 2);
    return steps;
}

Actions received(const Bytes& steps) {
    MacroReport report{};
    report[33] = static_cast<std::uint8_t>(steps.size() / 2);
    std::copy(steps.begin(), steps.end(), report.begin() + 34);
    MacroKey macro;
    DecodeMacroReport(macro, report);
    return {macro.usedActions().begin(), macro.usedActions().end()};
}

TEST(FeatureReports, LightingFieldsKeepTheLowFourBitsOfTheirTexts) {
    ProfileRecord record;
    const char* values[] = {"Work", "17", "4", "2", "255", "", "7x", "x7", "1"};
    for (std::size_t i = 0; i < record.Settings.size(); ++i)
        record.Settings[i].Value = values[i];
    EXPECT_THAT(packLighting(record, 2), ElementsAre(7, 8, 2, 0, 0x41, 0x2F, 0x07, 0x01));
    unpackLighting(record, LightingReport{7, 8, 0, 0, 0x32, 0x1F, 0xA9, 0x06});
    std::string numbers;
    for (const auto& pair : record.Settings)
        numbers += pair.Value + ' ';
    EXPECT_EQ(numbers, "Work 2 3 1 15 10 9 0 6 ");

    EXPECT_THAT(packSelection(6, 5), ElementsAre(4, 2, 5));
    EXPECT_THAT(packActiveProfile(7), ElementsAre(5, 3, 7));
    EXPECT_EQ(unpackActiveProfile(ActiveProfileReport{5, 0xFF, 0x0B}), 3);
}

TEST(FeatureReports, KeyCodesAndGKeyValuesTravelByPositionAndLeaveNamesAlone) {
    ProfileRecord record;
    std::iota(record.KeyCodes.begin(), record.KeyCodes.end(), std::uint8_t{1});
    for (std::uint8_t s = 0; s < gKeyCount; ++s)
        record.GKeys[s] = {"name", "url", {s, 0xA0, 0xB0}};
    const KeyCodeReport report = packKeyCodes(record, 1);
    EXPECT_EQ(slice(report, 0, 10), (Bytes{6, 0xB8, 1, 0, 0, 0, 0, 0, 1, 2}));
    EXPECT_EQ(slice(report, 166, 174), (Bytes{159, 160, 0, 0xA0, 0xB0, 1, 0xA0, 0xB0}));
    EXPECT_EQ(slice(report, 183, 192), (Bytes{5, 0xA0, 0xB0, 0, 0, 0, 0, 0, 0}));
    ProfileRecord other;
    other.GKeys[5] = {"kept", "kept too", {}};
    unpackKeyCodes(other, report);
    EXPECT_EQ(other.KeyCodes, record.KeyCodes);
    EXPECT_EQ(other.GKeys[5], (GKeySlot{"kept", "kept too", {5, 0xA0, 0xB0}}));
}

TEST(MacroReport, HeadCarriesPlaceNameLoopAndTheCountAsKept) {
    MacroKey macro = macroOf({press, delay(120), release});
    macro.name = "Tap";
    macro.commandCount = 100;
    const MacroReport report = encodeMacroReport(macro, 6, 1);
    EXPECT_EQ(slice(report, 0, 12), (Bytes{8, 0xE2, 2, 1, 0, 0, 0, 0, 'T', 'a', 'p', 0}));
    EXPECT_EQ(slice(report, 31, 40), (Bytes{0, 1, 100, 4, 0, 4, 0x8F, 0, 0}));

    macro.loopEnable = 0;
    macro.name = "abcdefghijklmnopqrstuvwxyz0123";
    EXPECT_EQ(macroReportName(encodeMacroReport(macro, 0, 0)), "abcdefghijklmnopqrstuvwx");
    EXPECT_EQ(encodeMacroReport(macro, 0, 0)[32], 0) << "neither a loop nor the name's end";
    MacroReport nameless{};
    EXPECT_EQ(macroReportName(nameless), std::nullopt);
    nameless[8] = 0xFF;
    EXPECT_EQ(macroReportName(nameless), "\xFF");
    nameless[9] = 0xFF;
    EXPECT_EQ(macroReportName(nameless), std::nullopt);
}

TEST(MacroReport, DelaysGoOutInTheStepOfTheirRangeAndTheRestWithTheNextKey) {
    using Case = std::pair<std::uint32_t, Bytes>; // the highest of the 24 bits do not travel
    for (const auto& [milliseconds, steps] :
         {Case{7, {4, 0}}, Case{1015, {4, 126}}, Case{1016, {1, 15, 4, 56}}, Case{2000, {1, 31, 4, 0x10}},
          Case{16319, {1, 254, 4, 63}}, Case{16320, {2, 127, 4, 64}}, Case{32639, {2, 254, 4, 127}},
          Case{32640, {3, 127, 4, 0}}, Case{65535, {3, 255, 4, 127}}, Case{0x010008, {4, 1}}})
        EXPECT_EQ(sent({delay(milliseconds), press}), steps) << milliseconds;
    EXPECT_EQ(sent({delay(100), delay(200), release, release}), (Bytes{4, 0x80 | 25, 4, 0x80}));
    EXPECT_EQ(sent({delay(2000), delay(80), press}), (Bytes{1, 31, 4, 10}));
    EXPECT_EQ(sent({press, delay(100)}), (Bytes{4, 0})) << "a carry with no key to go with";
    EXPECT_EQ(sent(Actions(200, release)).size(), 192u) << "as many as the report holds";
    EXPECT_EQ(sent({MacroAction::key(0x5B, false), MacroAction::key(0x12, true), {{0x41, 0x85, 1, 2}}}),
              (Bytes{0xE3, 0, 0, 0x80, 4, 0x80}));
}

TEST(MacroReport, StepsReadBackAsDelaysBeforeTheirKeys) {
    EXPECT_EQ(received({4, 125}), (Actions{delay(1000), press}));
    EXPECT_EQ(received({1, 31, 4, 0x10}), (Actions{delay(2112), press}));
    EXPECT_EQ(received({0, 0xFF, 1, 2, 2, 2, 3, 2, 4, 0x81}), (Actions{delay(1920), release}));
    EXPECT_EQ(received({3, 255, 3, 1, 4, 0}), (Actions{press})) << "65536 ms are none";
    EXPECT_EQ(received({4, 1, 4, 0x80}), (Actions{delay(8), press, release}));
    EXPECT_EQ(received({4, 0, 1, 9}), (Actions{press})) << "nothing follows the last delay";
    EXPECT_EQ(received({0xE3, 0, 0xC5, 0x80}),
              (Actions{MacroAction::key(0xA5, false), MacroAction::key(0x75, true)}));
}

} // namespace
} // namespace tarnix
