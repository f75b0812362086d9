// The files behind HID interfaces, for those who ask why the keyboard cannot be used.
#pragma once

#include <string>

#include "platform/hid.h"

namespace tarnix {

struct HidNode {
    std::string path;        ///< interfaces of the same path are collections of one node
    std::string permissions; ///< mode and owners, e.g. "0660 root:plugdev"
    bool readable = false;   ///< to this process; asked about without opening it
};
HidNode examineHidNode(const HidInterface& interface);

enum class HidOpening { Possible, Denied, Busy, Gone };

struct HidOpeningTrial {
    HidOpening result = HidOpening::Possible;
    std::string reason; ///< in the system's words; empty where it is possible
};
/// Opens the node for reading and writing, and closes it again.
HidOpeningTrial tryHidNode(const HidInterface& interface);

} // namespace tarnix
