#include <utility>

#include "ctl/commands.h"
#include "ctl/file_content.h"
#include "ctl/keyboard_access.h"
#include "ctl/narrow_text.h"
#include "ctl/output.h"
#include "ctl/transfer.h"

namespace tarnix {

namespace {

bool playsMacro(const GKeySlot& slot) {
    return functionType(slot.Value) == FunctionType::Macro;
}

std::string gKeyName(std::size_t slot) {
    return "G" + std::to_string(slot + 1);
}

/// Whether every macro of the profile can be sent; says which one cannot. Without a library none is sent, and
/// that is only told.
bool macrosAreThere(const ProfileRecord& record, const std::optional<MacroLibrary>& library) {
    bool complete = true;
    for (std::size_t s = 0; s < record.GKeys.size(); ++s) {
        const GKeySlot& slot = record.GKeys[s];
        if (!playsMacro(slot)) continue;
        const std::string subject = gKeyName(s) + " plays the macro " + printable(slot.Name);
        if (!library) {
            complain(subject + ", which stays as the keyboard holds it: no --macros");
            continue;
        }
        const MacroSet* firstSet = GetMacroSet(*library, 0);
        if (firstSet != nullptr && findMacroName(*firstSet, slot.Name) >= 0) continue;
        complain(subject + ", which is not in the library's first set");
        complete = false;
    }
    return complete;
}

/// In the order in which the window program applies a profile.
void addSteps(Transfer& transfer, int profile, int activeProfile, bool withMacros) {
    transfer.add("lighting", [=](FeatureProtocol& protocol) { protocol.WriteLighting(profile); });
    transfer.add("keys", [=](FeatureProtocol& protocol) { protocol.WriteKeyCodes(profile); });
    for (int slot = 0; withMacros && slot < gKeyCount; ++slot) {
        if (!playsMacro(*transfer.store.GetGKeySlot(profile, slot))) continue;
        transfer.add("macro of " + gKeyName(static_cast<std::size_t>(slot)),
                     [=](FeatureProtocol& protocol) { protocol.WriteGKeyMacro(profile, slot); });
    }
    // The keyboard takes up what it was sent when a profile is made active.
    if (activeProfile >= keyboardProfileCount) return;
    transfer.add("active profile",
                 [=](FeatureProtocol& protocol) { protocol.SetActiveProfile(activeProfile); });
}

ExitStatus send(const Context& context, int profile, ProfileRecord record,
                std::optional<MacroLibrary> library) {
    ExclusiveInterface keyboard = openConfiguration(context.hid);
    if (!keyboard.opened.device) return keyboard.opened.status;
    const auto active = askActiveProfile(*keyboard.opened.device);
    if (!active) {
        complain("the keyboard does not answer");
        return ExitStatus::TransferFailed;
    }
    Transfer transfer(std::move(keyboard.opened.device), context.clock, Transfer::Access::ReadWrite);
    *transfer.store.record(profile) = std::move(record);
    if (library) transfer.macros = std::move(*library);
    addSteps(transfer, profile, *active, library.has_value());
    return transfer.run() ? ExitStatus::Done : ExitStatus::TransferFailed;
}

} // namespace

ExitStatus runWrite(const Context& context, const Arguments& arguments) {
    const auto profile = keyboardProfileIndex(arguments.value("--profile").value_or(""));
    if (!profile) {
        complain("--profile must be 1, 2 or 3");
        return ExitStatus::Usage;
    }
    auto record = readContent<ProfileRecord>(context.files, arguments.words[0], "profile");
    if (!record) return ExitStatus::RefusedFile;
    std::optional<MacroLibrary> library;
    if (const auto path = arguments.value("--macros")) {
        library = readContent<MacroLibrary>(context.files, *path, "macro library");
        if (!library) return ExitStatus::RefusedFile;
    }
    if (!macrosAreThere(*record, library)) return ExitStatus::RefusedFile;
    return send(context, *profile, std::move(*record), std::move(library));
}

} // namespace tarnix
