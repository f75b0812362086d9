#include "ctl/commands.h"
#include "ctl/keyboard_access.h"
#include "ctl/output.h"
#include "ctl/transfer.h"

namespace tarnix {

ExitStatus runSelect(const Context& context, const Arguments& arguments) {
    const auto profile = keyboardProfileIndex(arguments.words[0]);
    if (!profile) {
        complain("profiles are 1, 2 and 3");
        return ExitStatus::Usage;
    }
    ExclusiveInterface keyboard = openConfiguration(context.hid);
    if (!keyboard.opened.device) return keyboard.opened.status;
    HidDevice& device = *keyboard.opened.device;
    Transfer transfer(std::move(keyboard.opened.device), context.clock, Transfer::Access::ReadWrite);
    transfer.add("active profile", [=](FeatureProtocol& protocol) { protocol.SetActiveProfile(*profile); });
    if (!transfer.run()) return ExitStatus::TransferFailed;
    if (askActiveProfile(device) == profile) return ExitStatus::Done;
    complain("the keyboard keeps another profile");
    return ExitStatus::TransferFailed;
}

} // namespace tarnix
