#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "ctl/commands.h"
#include "ctl/keyboard_access.h"
#include "ctl/output.h"
#include "device/device_link.h"

namespace tarnix {

namespace {

constexpr std::uint16_t genericDesktopPage = 0x0001;
constexpr const char* ruleName = "70-tarnix-keyboard.rules";

/// A node of the keyboard, with the interfaces on it.
struct Node {
    HidNode file;
    std::vector<HidInterface> interfaces;

    bool serves(std::uint16_t usagePage) const {
        return std::any_of(interfaces.begin(), interfaces.end(),
                           [=](const HidInterface& each) { return each.usagePage == usagePage; });
    }
    /// One that the program needs, and that tells no keystrokes.
    bool isNeeded() const {
        return serves(keyboardIdentity::featureUsagePage) || serves(keyboardIdentity::eventUsagePage);
    }
};

std::vector<Node> findNodes(Hid& hid) {
    std::vector<Node> nodes;
    for (const HidInterface& interface : keyboardInterfaces(hid)) {
        HidNode file = examineHidNode(interface);
        if (nodes.empty() || nodes.back().file.path != file.path) nodes.push_back({std::move(file), {}});
        nodes.back().interfaces.push_back(interface);
    }
    return nodes;
}

std::string purpose(const Node& node) {
    if (node.serves(keyboardIdentity::featureUsagePage)) return "configuration";
    if (node.serves(keyboardIdentity::eventUsagePage)) return "events";
    return node.serves(genericDesktopPage) ? "keystrokes" : "other";
}

/// Only what the program needs is opened; of the others it is asked whether they could be.
bool isOpenToUser(const Node& node) {
    if (!node.isNeeded()) return node.file.readable;
    return tryHidNode(node.interfaces[0]).result == HidOpening::Possible;
}

void printNode(const Node& node) {
    printLine(node.file.path + "  " + purpose(node) + ", " + node.file.permissions +
              (isOpenToUser(node) ? ", open to you" : ", closed to you"));
}

std::string installedRule() {
    for (const char* folder : {"/etc/udev/rules.d/", "/run/udev/rules.d/", "/usr/local/lib/udev/rules.d/",
                               "/usr/lib/udev/rules.d/", "/lib/udev/rules.d/"}) {
        std::error_code error;
        if (std::filesystem::exists(folder + std::string(ruleName), error))
            return folder + std::string(ruleName);
    }
    return {};
}

ExitStatus reportNoPermission() {
    printLine("You have no permission to use the keyboard's configuration interfaces.");
    const std::string rule = installedRule();
    if (rule.empty()) {
        printLine(std::string("Mend: as root, put ") + ruleName +
                  " into /etc/udev/rules.d and run \"udevadm control --reload\"; then plug the keyboard in "
                  "again.");
    } else {
        printLine("Mend: " + rule +
                  " gives access to who sits at the computer. Plug the keyboard in again, "
                  "and work in a local session rather than a remote one.");
    }
    return ExitStatus::NoPermission;
}

ExitStatus reportRefusedOpening(const HidOpeningTrial& trial) {
    if (trial.result == HidOpening::Denied) return reportNoPermission();
    printLine("The keyboard cannot be opened: " + trial.reason + '.');
    printLine(trial.result == HidOpening::Busy ? "Mend: end the program that holds it."
                                               : "Mend: plug the keyboard in again.");
    return statusOf(trial.result);
}

ExitStatus reportAnswer(Hid& hid) {
    const auto interface = findInterface(hid, keyboardIdentity::featureUsagePage);
    const auto device = interface ? hid.open(interface->path) : nullptr;
    const auto active = device ? askActiveProfile(*device) : std::nullopt;
    if (!active) {
        printLine("The keyboard does not answer.\nMend: plug it in again, into another socket if need be.");
        return ExitStatus::TransferFailed;
    }
    printLine("The keyboard works; its profile " + std::to_string(*active + 1) + " is active.");
    return ExitStatus::Done;
}

/// The first needed node that cannot be opened, or the possible opening of all.
HidOpeningTrial tryNeededNodes(const std::vector<Node>& nodes) {
    for (const Node& node : nodes) {
        if (!node.isNeeded()) continue;
        if (auto trial = tryHidNode(node.interfaces[0]); trial.result != HidOpening::Possible) return trial;
    }
    return {};
}

ExitStatus diagnose(Hid& hid, const std::vector<Node>& nodes) {
    const auto serves = [&nodes](std::uint16_t page) {
        return std::any_of(nodes.begin(), nodes.end(), [=](const Node& node) { return node.serves(page); });
    };
    if (nodes.empty()) {
        printLine("No keyboard is attached (USB 04f3:1406).\nMend: plug it in.");
        return ExitStatus::NoKeyboard;
    }
    if (!serves(keyboardIdentity::featureUsagePage) || !serves(keyboardIdentity::eventUsagePage)) {
        printLine("The keyboard does not show all of its interfaces.\nMend: plug it in again.");
        return ExitStatus::NoKeyboard;
    }
    const HidOpeningTrial trial = tryNeededNodes(nodes);
    if (trial.result != HidOpening::Possible) return reportRefusedOpening(trial);
    if (isProgramRunning()) {
        printLine(
            "The keyboard is in use: Tarnix Keyboard or another tarnixctl is running.\n"
            "Mend: end it before you read, write or select with tarnixctl.");
        return ExitStatus::InUse;
    }
    return reportAnswer(hid);
}

void warnOfReadableKeystrokes(const std::vector<Node>& nodes) {
    if (::geteuid() == 0) return; // to whom everything is open
    for (const Node& node : nodes) {
        if (node.isNeeded() || !node.serves(genericDesktopPage) || !node.file.readable) continue;
        printLine("Warning: " + node.file.path +
                  " carries keystrokes and is open to your programs, which nothing here needs.");
    }
}

} // namespace

ExitStatus runDoctor(const Context& context, const Arguments&) {
    const std::vector<Node> nodes = findNodes(context.hid);
    for (const Node& node : nodes)
        printNode(node);
    warnOfReadableKeystrokes(nodes);
    return diagnose(context.hid, nodes);
}

} // namespace tarnix
