// The readers of files, macro reports and report descriptors; the first byte chooses. What a reader takes,
// the program must be able to save and to read again. With TARNIX_SEEDS set it fills that folder with what
// the program itself writes.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "device/feature_reports.h"
#include "device/macro_report.h"
#include "macro/macro_files.h"
#include "platform/linux/report_descriptor.h"
#include "profile/configuration_file.h"
#include "profile/profile_file.h"
#include "virtual/virtual_keyboard.h"

using namespace tarnix;

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

void configuration(std::string_view text) {
    ConfigPairs pairs;
    const bool taken = !parseConfiguration(text, pairs);
    if (taken && !pairs.back().Key.empty()) require(!parseConfiguration(formatConfiguration(pairs), pairs));
}

void profile(std::string_view text) {
    ProfileRecord record;
    if (!parseProfile(text, record)) require(!parseProfile(formatProfile(record), record));
    unpackKeyCodes(record, packKeyCodes(record, 0));
    unpackLighting(record, packLighting(record, 2));
}

void macroKey(std::string_view text) {
    MacroKey macro;
    if (!parseMacroKey(text, macro)) require(!parseMacroKey(formatMacroKey(macro), macro));
    DecodeMacroReport(macro, encodeMacroReport(macro, 1, 5));
}

template <LibraryForm form>
void library(std::string_view text) {
    MacroLibrary read;
    if (!parseMacroLibrary(text, form, read))
        require(!parseMacroLibrary(formatMacroLibrary(read, form), form, read));
}

void macroFromKeyboard(std::string_view bytes) {
    MacroReport report{};
    std::copy_n(bytes.begin(), std::min(bytes.size(), report.size()), report.begin());
    MacroLibrary held;
    MacroKey& macro = AddMacroKey(AddMacroSet(held, "Set"), macroReportName(report).value_or("None"));
    DecodeMacroReport(macro, report);
    library<LibraryForm::Long>(formatMacroLibrary(held, LibraryForm::Long));
    (void)encodeMacroReport(macro, 0, 0);
}

void descriptor(std::string_view bytes) {
    const auto parsed =
        parseReportDescriptor(std::span(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()));
    require(parsed.collections.size() <= bytes.size());
    for (const TopLevelCollection& each : parsed.collections)
        require(each.inputReportLength <= maxReportLength);
}

constexpr void (*readers[])(std::string_view) = {
    configuration,     profile,   macroKey, library<LibraryForm::Long>, library<LibraryForm::Short>,
    macroFromKeyboard, descriptor};

void writeSeeds(const std::string& folder) {
    ProfileStore store;
    ResetConfig(store, "/kbd/");
    store.ResetProfile(4);
    MacroLibrary macros;
    resetMacroLibrary(macros);
    MacroKey& macro = AddMacroKey(macros.sets[0], "Tap");
    AppendAction(macro, MacroAction::key(0x41, false));
    AppendAction(macro, MacroAction::delay(120));
    const MacroReport report = encodeMacroReport(macro, 0, 1);
    std::vector<std::string> seeds{formatConfiguration(store.ConfigTable),
                                   formatProfile(store.ProfileTable[4]),
                                   formatMacroKey(macro),
                                   formatMacroLibrary(macros, LibraryForm::Long),
                                   formatMacroLibrary(macros, LibraryForm::Short),
                                   {report.begin(), report.end()}};
    for (const KeyboardInterface& each : VirtualKeyboard::interfaces())
        seeds.emplace_back(each.descriptor.begin(), each.descriptor.end());
    for (std::size_t n = 0; n < seeds.size(); ++n) {
        const auto reader = static_cast<char>(std::min(n, std::size(readers) - 1));
        std::ofstream(folder + "/seed" + std::to_string(n)) << reader << seeds[n];
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    if (const char* folder = std::getenv("TARNIX_SEEDS")) writeSeeds(folder), std::exit(0);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    readers[data[0] % std::size(readers)]({reinterpret_cast<const char*>(data + 1), size - 1});
    return 0;
}
