// Finding the keyboard's nodes and getting at them.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ctl/exit_status.h"
#include "platform/hid.h"
#include "platform/hid_node.h"
#include "platform/shell.h"

namespace tarnix {

/// The keyboard's interfaces, among those of the system that the program looks at.
std::vector<HidInterface> keyboardInterfaces(Hid& hid);
/// The interface that the program would use: the last one of that usage page.
std::optional<HidInterface> findInterface(Hid& hid, std::uint16_t usagePage);
/// What ends a command whose keyboard cannot be opened; Done where it can.
ExitStatus statusOf(HidOpening opening);

/// An interface of the keyboard, or why there is none. What kept it from being opened has been said.
struct OpenedInterface {
    std::unique_ptr<HidDevice> device;
    ExitStatus status = ExitStatus::Done;
};
OpenedInterface openInterface(Hid& hid, std::uint16_t usagePage);

/// True while the window program runs, which talks to the keyboard at any time.
bool isProgramRunning();

/// The configuration interface, with the window program kept from starting while it is held.
struct ExclusiveInterface {
    std::unique_ptr<InstanceLock> lock;
    OpenedInterface opened;
};
ExclusiveInterface openConfiguration(Hid& hid);

/// The keyboard's own word on its active profile, from 0; none when it does not answer.
std::optional<int> askActiveProfile(HidDevice& device);

} // namespace tarnix
