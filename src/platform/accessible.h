// What assistive technology (a screen reader, a voice control, a switch) is told of a window that paints its
// controls itself. A window answers with the whole of its present face; it is asked only while such
// technology is at work, and anew whenever the window has painted itself: what has changed is found by
// comparing.
//
// Texts are narrow texts like those that canvases draw. Rectangles are client coordinates.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/geometry.h"

namespace tarnix {

enum class AccessibleRole {
    None, ///< of an item that is left out
    // of windows
    MainWindow,
    Dialog,
    Alert,  ///< a dialog that says something
    Menu,   ///< a popup list
    Status, ///< says something and takes no input
    // of items
    Button,
    CheckBox,
    RadioButton,
    Tab,
    DropDown, ///< opens a popup list
    Link,
    MenuItem,
    Separator,
    List,
    ListItem,
    ScrollBar,
    Label
};

/// What a scroll bar stands at.
struct AccessibleRange {
    int now = 0;
    int greatest = 0; ///< the least is 0
    bool operator==(const AccessibleRange&) const = default;
};

struct AccessibleItem {
    unsigned number = 0; ///< the same as long as the window, or the row's list, lives; less than 2^24
    AccessibleRole role = AccessibleRole::None;
    Rect rect = {};
    std::string name = {};
    std::string value = {}; ///< what it shows or is set to, read after the name
    bool disabled = false;
    bool checked = false;  ///< of check boxes and radio buttons
    bool selected = false; ///< of tabs, rows and menu items
    bool expanded = false; ///< of drop-down fields: the list is open
    bool opens = false;    ///< of menu items: a further list
    bool focused = false;  ///< where the user is at work
    std::optional<AccessibleRange> range = {};
    std::vector<AccessibleItem> rows = {}; ///< of lists: what they show now

    /// Whether a press does something. It is made as the pointer would make it, in the item's middle.
    bool pressable() const {
        return !disabled && role != AccessibleRole::Label && role != AccessibleRole::Separator &&
               role != AccessibleRole::List && role != AccessibleRole::ScrollBar;
    }
};

struct AccessibleFace {
    AccessibleRole role = AccessibleRole::Dialog;
    std::string name = {};
    std::vector<AccessibleItem> items = {}; ///< what can be seen, in the order of reading
};

} // namespace tarnix
