#include "device/feature_protocol.h"

#include <algorithm>
#include <utility>

#include "device/feature_reports.h"
#include "profile/numbers.h"

namespace tarnix {

namespace {

std::string nameForUnnamed(int profile, int slot) {
    return "Profile" + toText(profile + 1) + "_G" + toText(slot + 1);
}

MacroKey* findGKeyMacro(MacroSet& set, const std::string& name) {
    return GetMacroKey(set, findMacroName(set, name));
}

} // namespace

FeatureProtocol::FeatureProtocol(Clock& clock, ProfileStore& store, MacroLibrary& macros)
    : m_clock(clock), m_store(store), m_macros(macros) {}

void FeatureProtocol::setHandle(std::unique_ptr<HidDevice> device) {
    m_hFeatureDevice.reset(); // closed before its successor counts as open
    m_hFeatureDevice = std::move(device);
}

bool FeatureProtocol::set(std::span<const std::uint8_t> report, Milliseconds pauseAfter) {
    if (!hasHandle()) return false;
    const bool done = m_hFeatureDevice->setFeature(report);
    m_clock.pause(pauseAfter);
    return done;
}

bool FeatureProtocol::get(int profile, int slot, std::uint8_t id, std::span<std::uint8_t> report) {
    if (!hasHandle()) return false;
    const SelectReport selection = packSelection(profile, slot);
    set(selection, exchangePause); // the keyboard answers the get all the same, or fails it
    std::copy(selection.begin(), selection.end(), report.begin());
    report[0] = id;
    const bool done = m_hFeatureDevice->getFeature(report);
    m_clock.pause(exchangePause);
    return done;
}

int FeatureProtocol::GetActiveProfile() {
    if (!hasHandle()) return unknownProfile;
    ActiveProfileReport report{activeProfileReport::id};
    m_hFeatureDevice->getFeature(report); // a keyboard that does not answer counts as on its first profile
    return unpackActiveProfile(report);
}

bool FeatureProtocol::SetActiveProfile(int profile) {
    const bool done = set(packActiveProfile(profile), smallSetPause);
    if (done) m_nDeviceProfile = profile;
    return done;
}

bool FeatureProtocol::ReadLighting(int profile) {
    ProfileRecord* record = m_store.record(profile);
    LightingReport report{};
    if (record == nullptr || !get(profile, 0, lightingReport::id, report)) return false;
    unpackLighting(*record, report);
    return true;
}

bool FeatureProtocol::WriteLighting(int profile) {
    const ProfileRecord* record = m_store.record(profile);
    return record != nullptr && set(packLighting(*record, profile), smallSetPause);
}

bool FeatureProtocol::ReadKeyCodes(int profile) {
    ProfileRecord* record = m_store.record(profile);
    KeyCodeReport report{};
    if (record == nullptr || !get(profile, 0, keyCodeReport::id, report)) return false;
    unpackKeyCodes(*record, report);
    return true;
}

bool FeatureProtocol::WriteKeyCodes(int profile) {
    const ProfileRecord* record = m_store.record(profile);
    return record != nullptr && set(packKeyCodes(*record, profile), memorySetPause);
}

bool FeatureProtocol::ReadGKeyMacro(int profile, int slot) {
    const GKeySlot* gKey = m_store.GetGKeySlot(profile, slot);
    if (!hasHandle() || gKey == nullptr || functionType(gKey->Value) != FunctionType::Macro) return false;
    MacroReport report{};
    if (!get(profile, slot, macroReport::id, report)) return true;
    if (storeMacro(profile, slot, report) && !macroReportName(report)) WriteGKeyMacro(profile, slot);
    return true;
}

bool FeatureProtocol::WriteGKeyMacro(int profile, int slot) {
    const GKeySlot* gKey = m_store.GetGKeySlot(profile, slot);
    MacroSet* firstSet = GetMacroSet(m_macros, 0);
    if (gKey == nullptr || firstSet == nullptr) return false;
    const MacroKey* macro = findGKeyMacro(*firstSet, gKey->Name);
    return macro != nullptr && set(encodeMacroReport(*macro, profile, slot), memorySetPause);
}

bool FeatureProtocol::UploadGKeyMacro(int profile, int slot) {
    GKeySlot* gKey = m_store.GetGKeySlot(profile, slot);
    MacroReport report{};
    if (gKey == nullptr || !get(profile, slot, macroReport::id, report)) return false;
    if (!storeMacro(profile, slot, report)) return false;
    WriteGKeyMacro(profile, slot);
    gKey->Value = keyAssignment(FunctionType::Macro);
    return true;
}

/// Gives the slot the report's name, and the macro of that name the report's content. False where there is no
/// first set to hold it.
bool FeatureProtocol::storeMacro(int profile, int slot, MacroReportView report) {
    const std::string name = macroReportName(report).value_or(nameForUnnamed(profile, slot));
    m_store.SetGKeyName(profile, slot, name);
    MacroSet* firstSet = GetMacroSet(m_macros, 0);
    if (firstSet == nullptr) return false;
    MacroKey* macro = findGKeyMacro(*firstSet, name);
    DecodeMacroReport(macro != nullptr ? *macro : AddMacroKey(*firstSet, name), report);
    return true;
}

} // namespace tarnix
