#include <filesystem>
#include <utility>
#include <vector>

#include "ctl/commands.h"
#include "ctl/describe.h"
#include "ctl/keyboard_access.h"
#include "ctl/output.h"
#include "ctl/transfer.h"
#include "macro/macro_files.h"
#include "profile/profile_file.h"

namespace tarnix {

namespace {

struct TargetFiles {
    std::string folder; ///< absolute, so that it is made where it is missing

    std::string profile(int index) const { return folder + "/profile" + std::to_string(index + 1) + ".psf"; }
    std::string macros() const { return folder + "/macros.mlf"; }
};

/// The first of the files that is there already; empty when none is.
std::string existingFile(Files& files, const TargetFiles& targets) {
    std::vector<std::string> paths{targets.macros()};
    for (int p = 0; p < keyboardProfileCount; ++p)
        paths.push_back(targets.profile(p));
    for (const std::string& path : paths) {
        if (files.read(path)) return path;
    }
    return {};
}

void addSteps(Transfer& transfer) {
    const auto forEachProfile = [&transfer](const std::string& what, auto exchange) {
        for (int p = 0; p < keyboardProfileCount; ++p)
            transfer.add(what + " of profile " + std::to_string(p + 1),
                         [=](FeatureProtocol& protocol) { exchange(protocol, p); });
    };
    forEachProfile("lighting", [](FeatureProtocol& protocol, int p) { protocol.ReadLighting(p); });
    forEachProfile("keys", [](FeatureProtocol& protocol, int p) { protocol.ReadKeyCodes(p); });
    forEachProfile("macros", [](FeatureProtocol& protocol, int p) {
        for (int slot = 0; slot < gKeyCount; ++slot)
            protocol.ReadGKeyMacro(p, slot);
    });
}

/// The keyboard keeps no names but those of macros; the other G-keys are named after what they do.
void nameGKeys(ProfileRecord& record) {
    for (GKeySlot& slot : record.GKeys) {
        if (functionType(slot.Value) != FunctionType::Macro) slot.Name = describeAssignment(slot.Value);
    }
}

bool saveFiles(Files& files, const TargetFiles& targets, Transfer& transfer) {
    std::vector<std::pair<std::string, std::string>> texts;
    for (int p = 0; p < keyboardProfileCount; ++p) {
        nameGKeys(*transfer.store.record(p));
        texts.emplace_back(targets.profile(p), formatProfile(*transfer.store.record(p)));
    }
    texts.emplace_back(targets.macros(), formatMacroLibrary(transfer.macros, LibraryForm::Long));
    for (const auto& [path, text] : texts) {
        if (!files.replace(path, text)) {
            complain(path + ": it cannot be written");
            return false;
        }
        printLine(path);
    }
    return true;
}

} // namespace

ExitStatus runRead(const Context& context, const Arguments& arguments) {
    const TargetFiles targets{std::filesystem::absolute(arguments.words[0]).string()};
    const std::string existing = arguments.has("--force") ? "" : existingFile(context.files, targets);
    if (!existing.empty()) {
        complain(existing + " exists already; --force replaces it");
        return ExitStatus::NotWritten;
    }
    ExclusiveInterface keyboard = openConfiguration(context.hid);
    if (!keyboard.opened.device) return keyboard.opened.status;
    Transfer transfer(std::move(keyboard.opened.device), context.clock, Transfer::Access::ReadOnly);
    for (int p = 0; p < keyboardProfileCount; ++p)
        transfer.store.ResetProfile(p);
    resetMacroLibrary(transfer.macros);
    addSteps(transfer);
    if (!transfer.run()) return ExitStatus::TransferFailed;
    return saveFiles(context.files, targets, transfer) ? ExitStatus::Done : ExitStatus::NotWritten;
}

} // namespace tarnix
