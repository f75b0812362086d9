// The main window's face as data: every control with its identifier, kind, rectangle and picture, and the
// bands that the pages are painted on. The window builds from these tables and the artist paints for them.
//
// Rectangles are client coordinates of a window of 805 x 588. Pictures are resource numbers: control strips
// are PNG resources, backgrounds bitmap resources; 0 is none.
#pragma once

#include <array>
#include <cstdint>

#include "platform/geometry.h"
#include "ui/messages.h"

namespace tarnix {

inline constexpr Size mainWindowSize{805, 588};
/// The face, and the outline where it is yellow.
inline constexpr unsigned mainBackground = 129;

/// The classes of the skin that the main window is made of.
enum class ControlKind {
    ImageButton,
    Tab,
    Link,
    CheckButton,
    KeyCap,
    ComboButton,
    NameList,   ///< macro names, renamable in place
    ActionList, ///< the steps of one macro
    ScrollBar,
    EditField ///< the one native field
};

struct ControlRow {
    unsigned id;
    ControlKind kind;
    Rect rect;
    unsigned image;
};

/// Always visible. The macro-page and G-key-page tabs are hidden as soon as they are built.
inline constexpr std::array<ControlRow, 15> commonControls{{
    {id::closeButton, ControlKind::ImageButton, Rect::at(764, 15, 23, 19), 135},
    {id::minimiseButton, ControlKind::ImageButton, Rect::at(738, 15, 23, 19), 136},
    {id::logoLink, ControlKind::Link, Rect::at(633, 12, 105, 94), 0},
    {id::keyPageTab, ControlKind::Tab, Rect::at(153, 504, 98, 33), 137},
    {id::macroPageTab, ControlKind::Tab, Rect::at(253, 504, 98, 33), 262},
    {id::gKeyPageTab, ControlKind::Tab, Rect::at(453, 504, 98, 33), 263},
    {id::lightingPageTab, ControlKind::Tab, Rect::at(553, 504, 98, 33), 264},
    {id::okButton, ControlKind::ImageButton, Rect::at(534, 124, 69, 23), 166},
    {id::applyButton, ControlKind::ImageButton, Rect::at(682, 124, 69, 23), 167},
    {id::cancelButton, ControlKind::ImageButton, Rect::at(609, 124, 69, 23), 168},
    {id::profileTab1, ControlKind::Tab, Rect::at(253, 539, 98, 33), 171},
    {id::profileTab2, ControlKind::Tab, Rect::at(353, 539, 98, 33), 170},
    {id::profileTab3, ControlKind::Tab, Rect::at(453, 539, 98, 33), 169},
    {id::resetButton, ControlKind::ImageButton, Rect::at(53, 504, 98, 33), 164},
    {id::restoreButton, ControlKind::ImageButton, Rect::at(653, 504, 98, 33), 257},
}};

/// Five markers far below the window's edge; they share the G-key-page tab's identifier.
inline constexpr std::array<ControlRow, 5> areaMarkers{{
    {id::gKeyPageTab, ControlKind::Tab, Rect::at(183, 2283, 19, 18), 389},
    {id::gKeyPageTab, ControlKind::Tab, Rect::at(182, 2301, 20, 18), 390},
    {id::gKeyPageTab, ControlKind::Tab, Rect::at(181, 2319, 20, 18), 391},
    {id::gKeyPageTab, ControlKind::Tab, Rect::at(180, 2337, 20, 19), 392},
    {id::gKeyPageTab, ControlKind::Tab, Rect::at(179, 2356, 20, 18), 393},
}};

/// A key of the keyboard picture. The factory code is what the key sends out of the box: a HID usage of the
/// keyboard page, or the keyboard's own code for a key with a second function.
struct KeyCapRow {
    unsigned id;
    const char* name;
    Rect rect;
    unsigned image;
    std::uint8_t factoryCode;
};

/// In order of creation: the extra ISO key, which stands outside the window, comes right after the left shift
/// key.
inline constexpr std::array<KeyCapRow, 104> keyCaps{{
    {2200, "Esc", Rect::at(74, 218, 28, 27), 271, 0xF5},
    {2201, "F1", Rect::at(133, 218, 28, 27), 277, 0xC0},
    {2202, "F2", Rect::at(163, 218, 27, 27), 278, 0xC1},
    {2203, "F3", Rect::at(192, 218, 27, 27), 279, 0xC2},
    {2204, "F4", Rect::at(221, 218, 27, 27), 280, 0xC3},
    {2205, "F5", Rect::at(264, 218, 27, 27), 281, 0xC4},
    {2206, "F6", Rect::at(293, 218, 27, 27), 282, 0xC5},
    {2207, "F7", Rect::at(323, 218, 27, 27), 283, 0xC6},
    {2208, "F8", Rect::at(350, 218, 27, 27), 284, 0xC7},
    {2209, "F9", Rect::at(394, 218, 26, 27), 285, 0xC8},
    {2210, "F10", Rect::at(423, 218, 26, 27), 286, 0xC9},
    {2211, "F11", Rect::at(451, 218, 27, 27), 287, 0xCA},
    {2212, "F12", Rect::at(480, 218, 27, 27), 288, 0xCB},
    {2213, "Print", Rect::at(519, 218, 26, 27), 289, 0x46},
    {2214, "Scroll Lock", Rect::at(548, 218, 26, 27), 290, 0x47},
    {2215, "Pause", Rect::at(577, 218, 26, 27), 291, 0x48},
    {2216, "~", Rect::at(75, 257, 27, 27), 296, 0x35},
    {2217, "1", Rect::at(104, 257, 27, 27), 297, 0xF0},
    {2218, "2", Rect::at(133, 257, 27, 27), 298, 0xF1},
    {2219, "3", Rect::at(163, 257, 27, 27), 299, 0xF2},
    {2220, "4", Rect::at(192, 257, 27, 27), 300, 0xF3},
    {2221, "5", Rect::at(221, 257, 27, 27), 301, 0xF4},
    {2222, "6", Rect::at(250, 257, 26, 27), 302, 0x23},
    {2223, "7", Rect::at(279, 257, 26, 27), 303, 0x24},
    {2224, "8", Rect::at(307, 257, 27, 27), 304, 0x25},
    {2225, "9", Rect::at(336, 257, 27, 27), 305, 0x26},
    {2226, "0", Rect::at(365, 257, 26, 27), 306, 0x27},
    {2227, "-", Rect::at(394, 257, 27, 27), 307, 0x2D},
    {2228, "=", Rect::at(423, 257, 26, 27), 308, 0x2E},
    {2229, "Backspace", Rect::at(451, 257, 56, 27), 309, 0x2A},
    {2230, "Ins", Rect::at(519, 257, 26, 27), 310, 0xE8},
    {2231, "Home", Rect::at(548, 257, 26, 27), 311, 0xEA},
    {2232, "Page Up", Rect::at(577, 257, 26, 27), 312, 0xEC},
    {2233, "Num Lock", Rect::at(616, 257, 26, 27), 292, 0x53},
    {2234, "Keypad /", Rect::at(645, 257, 26, 27), 293, 0x54},
    {2235, "Keypad *", Rect::at(674, 257, 27, 27), 294, 0x55},
    {2236, "Keypad -", Rect::at(703, 257, 27, 27), 295, 0x56},
    {2237, "Tab", Rect::at(75, 286, 41, 27), 313, 0x2B},
    {2238, "Q", Rect::at(119, 286, 26, 27), 314, 0x14},
    {2239, "W", Rect::at(149, 286, 26, 27), 315, 0xEE},
    {2240, "E", Rect::at(178, 286, 26, 27), 316, 0x08},
    {2241, "R", Rect::at(207, 286, 26, 27), 317, 0x15},
    {2242, "T", Rect::at(236, 286, 26, 27), 318, 0x17},
    {2243, "Y", Rect::at(265, 286, 26, 27), 319, 0x1C},
    {2244, "U", Rect::at(294, 286, 26, 27), 320, 0x18},
    {2245, "I", Rect::at(322, 286, 26, 27), 321, 0x0C},
    {2246, "O", Rect::at(351, 286, 26, 27), 322, 0x12},
    {2247, "P", Rect::at(380, 286, 26, 27), 323, 0x13},
    {2248, "[", Rect::at(409, 286, 26, 27), 324, 0x2F},
    {2249, "]", Rect::at(437, 286, 27, 27), 325, 0x30},
    {2250, "\\", Rect::at(444, 316, 27, 27), 326, 0x31},
    {2251, "Del", Rect::at(519, 286, 26, 27), 327, 0xE9},
    {2252, "End", Rect::at(548, 286, 26, 27), 328, 0xEB},
    {2253, "Page Down", Rect::at(577, 286, 26, 27), 329, 0xED},
    {2254, "Keypad 7", Rect::at(616, 286, 26, 27), 330, 0x5F},
    {2255, "Keypad 8", Rect::at(645, 286, 26, 27), 331, 0x60},
    {2256, "Keypad 9", Rect::at(674, 286, 27, 27), 332, 0x61},
    {2257, "Keypad +", Rect::at(703, 286, 27, 56), 333, 0x57},
    {2258, "Caps Lock", Rect::at(75, 315, 48, 27), 334, 0x39},
    {2259, "A", Rect::at(127, 315, 26, 27), 335, 0x04},
    {2260, "S", Rect::at(156, 315, 26, 27), 336, 0x16},
    {2261, "D", Rect::at(185, 315, 26, 27), 337, 0x07},
    {2262, "F", Rect::at(214, 315, 26, 27), 338, 0x09},
    {2263, "G", Rect::at(243, 315, 26, 27), 339, 0x0A},
    {2264, "H", Rect::at(272, 315, 26, 27), 340, 0x0B},
    {2265, "J", Rect::at(301, 315, 26, 27), 341, 0x0D},
    {2266, "K", Rect::at(330, 315, 26, 27), 342, 0x0E},
    {2267, "L", Rect::at(358, 315, 26, 27), 343, 0x0F},
    {2268, ";", Rect::at(387, 315, 26, 27), 344, 0x33},
    {2269, "'", Rect::at(416, 315, 26, 27), 345, 0x34},
    {2270, "Enter", Rect::at(473, 286, 33, 57), 346, 0x28},
    {2271, "Keypad 4", Rect::at(616, 315, 26, 27), 347, 0x5C},
    {2272, "Keypad 5", Rect::at(645, 315, 26, 27), 348, 0x5D},
    {2273, "Keypad 6", Rect::at(674, 315, 26, 27), 349, 0x5E},
    {2274, "Shift_L", Rect::at(75, 345, 63, 26), 350, 0xE1},
    {2303, "K45", Rect::at(1226, 345, 24, 26), 382, 0x64},
    {2275, "Z", Rect::at(141, 345, 26, 26), 351, 0x1D},
    {2276, "X", Rect::at(170, 345, 26, 26), 352, 0x1B},
    {2277, "C", Rect::at(199, 345, 26, 26), 353, 0x06},
    {2278, "V", Rect::at(228, 345, 26, 26), 354, 0x19},
    {2279, "B", Rect::at(257, 345, 26, 26), 355, 0x05},
    {2280, "N", Rect::at(286, 345, 26, 26), 356, 0x11},
    {2281, "M", Rect::at(315, 345, 26, 26), 357, 0x10},
    {2282, ",", Rect::at(344, 345, 26, 26), 358, 0x36},
    {2283, ".", Rect::at(372, 345, 26, 26), 359, 0x37},
    {2284, "/", Rect::at(401, 345, 26, 26), 360, 0x38},
    {2285, "Shift_R", Rect::at(430, 345, 76, 27), 361, 0xE5},
    {2286, "Up Arrow", Rect::at(548, 345, 26, 26), 152, 0xCC},
    {2287, "Keypad 1", Rect::at(616, 345, 26, 26), 363, 0x59},
    {2288, "Keypad 2", Rect::at(645, 345, 26, 26), 364, 0x5A},
    {2289, "Keypad 3", Rect::at(674, 345, 26, 26), 365, 0x5B},
    {2290, "Keypad Enter", Rect::at(704, 345, 27, 55), 366, 0x58},
    {2291, "Ctrl_L", Rect::at(75, 374, 34, 26), 367, 0xE0},
    {2292, "Win_L", Rect::at(112, 374, 34, 26), 368, 0xEF},
    {2293, "Alt_L", Rect::at(149, 374, 34, 26), 369, 0xE2},
    {2294, "Space", Rect::at(186, 374, 175, 26), 370, 0x2C},
    {2295, "Alt_R", Rect::at(365, 374, 33, 26), 371, 0xE6},
    {2296, "App", Rect::at(437, 374, 33, 26), 372, 0x65},
    {2297, "Ctrl_R", Rect::at(473, 374, 33, 26), 373, 0xE4},
    {2298, "Left Arrow", Rect::at(519, 374, 26, 26), 374, 0xCE},
    {2299, "Down Arrow", Rect::at(548, 374, 26, 26), 375, 0xCD},
    {2300, "Right Arrow", Rect::at(577, 374, 26, 26), 376, 0xCF},
    {2301, "Keypad 0", Rect::at(616, 374, 55, 26), 377, 0x62},
    {2302, "Keypad .", Rect::at(674, 374, 26, 26), 378, 0x63},
}};

inline constexpr std::array<ControlRow, 12> macroPageControls{{
    {id::macroButton1, ControlKind::ImageButton, Rect::at(162, 483, 70, 33), 267},
    {id::macroButton2, ControlKind::ImageButton, Rect::at(233, 483, 70, 33), 268},
    {id::macroButton3, ControlKind::ImageButton, Rect::at(392, 483, 70, 33), 269},
    {id::macroButton4, ControlKind::ImageButton, Rect::at(463, 483, 70, 33), 270},
    {id::loopCountField, ControlKind::EditField, Rect::at(642, 436, 93, 22), 0},
    {id::loopCheck, ControlKind::CheckButton, Rect::at(642, 411, 16, 16), 156},
    {id::delayCheck, ControlKind::CheckButton, Rect::at(642, 291, 16, 16), 156},
    {id::recordSwitch, ControlKind::CheckButton, Rect::at(642, 249, 120, 29), 189},
    {id::actionList, ControlKind::ActionList, Rect::at(392, 239, 117, 228), 0},
    {id::macroList, ControlKind::NameList, Rect::at(162, 239, 117, 228), 0},
    {id::macroScrollBar, ControlKind::ScrollBar, Rect::at(280, 239, 21, 227), 0},
    {id::actionScrollBar, ControlKind::ScrollBar, Rect::at(510, 239, 21, 227), 0},
}};

struct ComboRow {
    unsigned id;
    Rect rect;
    unsigned image;
    unsigned notifyMessage; ///< a click is reported with this number and the identifier
    const char* firstText;
};

/// The fields of G-key slots 0 to 4; slot 5 has none of its own.
inline constexpr std::array<ComboRow, 5> gKeyFields{{
    {id::gKeyField1, Rect::at(161, 239, 169, 26), 266, msg::openFunctionMenu, "CTRL+1"},
    {id::gKeyField2, Rect::at(161, 269, 169, 26), 266, msg::openFunctionMenu, "CTRL+2"},
    {id::gKeyField3, Rect::at(161, 299, 169, 26), 266, msg::openFunctionMenu, "CTRL+3"},
    {id::gKeyField4, Rect::at(161, 329, 169, 26), 266, msg::openFunctionMenu, "CTRL+4"},
    {id::gKeyField5, Rect::at(161, 359, 169, 26), 266, msg::openFunctionMenu, "CTRL+5"},
}};

inline constexpr std::array<ComboRow, 3> lightingFields{{
    {id::lightModeField, Rect::at(53, 227, 169, 26), 266, msg::openLightMode, "Red"},
    {id::brightnessField, Rect::at(53, 290, 169, 26), 266, msg::openBrightness, "100%"},
    {id::speedField, Rect::at(53, 346, 169, 26), 266, msg::openSpeed, "Normal"},
}};

/// The band behind the page's controls. The band pictures of the macro and G-key pages are smaller than it.
inline constexpr Rect pageBand = Rect::at(0, 169, 805, 303);

/// The band picture of a page; every page number that has none of its own shows the lighting page's.
constexpr unsigned pageBandImage(int page) {
    constexpr std::array<unsigned, 3> images{398, 261, 259};
    return page >= 0 && page < 3 ? images[static_cast<unsigned>(page)] : 399;
}

/// Where the hover pictures of the left and of the right half of the keyboard would stand.
inline constexpr Rect leftHoverPicture = Rect::at(191, 209, 159, 175);
inline constexpr Rect rightHoverPicture = Rect::at(582, 209, 159, 175);

} // namespace tarnix
