// The main window's face as data: every control with its identifier, kind, rectangle and picture, and the
// bands that the pages are painted on. The window builds from these tables and the artist paints for them.
//
// Rectangles are client coordinates of a window of 805 x 588. Pictures are resource numbers: control strips
// are PNG resources, backgrounds bitmap resources.
#pragma once

#include <array>

#include "skin/control_table.h"
#include "ui/messages.h"

namespace tarnix {

inline constexpr Size mainWindowSize{805, 588};
/// The face, and the outline where it is yellow.
inline constexpr unsigned mainBackground = 129;

/// Always visible. The macro-page and G-key-page tabs are hidden as soon as they are built.
inline constexpr std::array<ControlRow, 15> commonControls{{
    imageButton(id::closeButton, Rect::at(764, 15, 23, 19), 135, "Close"),
    imageButton(id::minimiseButton, Rect::at(738, 15, 23, 19), 136, "Minimise"),
    linkButton(Rect::at(633, 12, 105, 94), "Web site"),
    tabControl(id::keyPageTab, Rect::at(153, 504, 98, 33), 137, "Key settings"),
    tabControl(id::macroPageTab, Rect::at(253, 504, 98, 33), 262, "Macros"),
    tabControl(id::gKeyPageTab, Rect::at(453, 504, 98, 33), 263, "G-keys"),
    tabControl(id::lightingPageTab, Rect::at(553, 504, 98, 33), 264, "Lighting"),
    imageButton(id::okButton, Rect::at(534, 124, 69, 23), 166, "OK"),
    imageButton(id::applyButton, Rect::at(682, 124, 69, 23), 167, "Apply"),
    imageButton(id::cancelButton, Rect::at(609, 124, 69, 23), 168, "Cancel"),
    tabControl(id::profileTab1, Rect::at(253, 539, 98, 33), 171, "Profile 1"),
    tabControl(id::profileTab2, Rect::at(353, 539, 98, 33), 170, "Profile 2"),
    tabControl(id::profileTab3, Rect::at(453, 539, 98, 33), 169, "Profile 3"),
    imageButton(id::resetButton, Rect::at(53, 504, 98, 33), 164, "Reset profile"),
    imageButton(id::restoreButton, Rect::at(653, 504, 98, 33), 257, "Restore all"),
}};

/// Five markers far below the window's edge; they share the G-key-page tab's identifier.
inline constexpr std::array<ControlRow, 5> areaMarkers{{
    tabControl(id::gKeyPageTab, Rect::at(183, 2283, 19, 18), 389, "Area 1"),
    tabControl(id::gKeyPageTab, Rect::at(182, 2301, 20, 18), 390, "Area 2"),
    tabControl(id::gKeyPageTab, Rect::at(181, 2319, 20, 18), 391, "Area 3"),
    tabControl(id::gKeyPageTab, Rect::at(180, 2337, 20, 19), 392, "Area 4"),
    tabControl(id::gKeyPageTab, Rect::at(179, 2356, 20, 18), 393, "Area 5"),
}};

inline constexpr PaintedText commandHint{
    "Apply sends your changes to the keyboard; OK also closes the window.", Rect::at(53, 116, 460, 39)};
inline constexpr PaintedText keyPageHint{"Click a key to give it another function.",
                                         Rect::at(53, 446, 300, 18)};
inline constexpr PaintedText lightingPageHint{"Kept with each profile.", Rect::at(53, 446, 180, 18)};

/// The keyboard picture; a key's code is the factory code, which it sends out of the box: a HID usage of the
/// keyboard page, or the keyboard's own code for a key with a second function. In order of creation: the
/// extra ISO key, which stands outside the window, comes right after the left shift key.
inline constexpr std::array<ControlRow, 104> keyCaps{{
    keyboardButton(2200, "Esc", Rect::at(74, 218, 28, 27), 271, 0xF5),
    keyboardButton(2201, "F1", Rect::at(133, 218, 28, 27), 277, 0xC0),
    keyboardButton(2202, "F2", Rect::at(163, 218, 27, 27), 278, 0xC1),
    keyboardButton(2203, "F3", Rect::at(192, 218, 27, 27), 279, 0xC2),
    keyboardButton(2204, "F4", Rect::at(221, 218, 27, 27), 280, 0xC3),
    keyboardButton(2205, "F5", Rect::at(264, 218, 27, 27), 281, 0xC4),
    keyboardButton(2206, "F6", Rect::at(293, 218, 27, 27), 282, 0xC5),
    keyboardButton(2207, "F7", Rect::at(323, 218, 27, 27), 283, 0xC6),
    keyboardButton(2208, "F8", Rect::at(350, 218, 27, 27), 284, 0xC7),
    keyboardButton(2209, "F9", Rect::at(394, 218, 26, 27), 285, 0xC8),
    keyboardButton(2210, "F10", Rect::at(423, 218, 26, 27), 286, 0xC9),
    keyboardButton(2211, "F11", Rect::at(451, 218, 27, 27), 287, 0xCA),
    keyboardButton(2212, "F12", Rect::at(480, 218, 27, 27), 288, 0xCB),
    keyboardButton(2213, "Print", Rect::at(519, 218, 26, 27), 289, 0x46),
    keyboardButton(2214, "Scroll Lock", Rect::at(548, 218, 26, 27), 290, 0x47),
    keyboardButton(2215, "Pause", Rect::at(577, 218, 26, 27), 291, 0x48),
    keyboardButton(2216, "~", Rect::at(75, 257, 27, 27), 296, 0x35),
    keyboardButton(2217, "1", Rect::at(104, 257, 27, 27), 297, 0xF0),
    keyboardButton(2218, "2", Rect::at(133, 257, 27, 27), 298, 0xF1),
    keyboardButton(2219, "3", Rect::at(163, 257, 27, 27), 299, 0xF2),
    keyboardButton(2220, "4", Rect::at(192, 257, 27, 27), 300, 0xF3),
    keyboardButton(2221, "5", Rect::at(221, 257, 27, 27), 301, 0xF4),
    keyboardButton(2222, "6", Rect::at(250, 257, 26, 27), 302, 0x23),
    keyboardButton(2223, "7", Rect::at(279, 257, 26, 27), 303, 0x24),
    keyboardButton(2224, "8", Rect::at(307, 257, 27, 27), 304, 0x25),
    keyboardButton(2225, "9", Rect::at(336, 257, 27, 27), 305, 0x26),
    keyboardButton(2226, "0", Rect::at(365, 257, 26, 27), 306, 0x27),
    keyboardButton(2227, "-", Rect::at(394, 257, 27, 27), 307, 0x2D),
    keyboardButton(2228, "=", Rect::at(423, 257, 26, 27), 308, 0x2E),
    keyboardButton(2229, "Backspace", Rect::at(451, 257, 56, 27), 309, 0x2A),
    keyboardButton(2230, "Ins", Rect::at(519, 257, 26, 27), 310, 0xE8),
    keyboardButton(2231, "Home", Rect::at(548, 257, 26, 27), 311, 0xEA),
    keyboardButton(2232, "Page Up", Rect::at(577, 257, 26, 27), 312, 0xEC),
    keyboardButton(2233, "Num Lock", Rect::at(616, 257, 26, 27), 292, 0x53),
    keyboardButton(2234, "Keypad /", Rect::at(645, 257, 26, 27), 293, 0x54),
    keyboardButton(2235, "Keypad *", Rect::at(674, 257, 27, 27), 294, 0x55),
    keyboardButton(2236, "Keypad -", Rect::at(703, 257, 27, 27), 295, 0x56),
    keyboardButton(2237, "Tab", Rect::at(75, 286, 41, 27), 313, 0x2B),
    keyboardButton(2238, "Q", Rect::at(119, 286, 26, 27), 314, 0x14),
    keyboardButton(2239, "W", Rect::at(149, 286, 26, 27), 315, 0xEE),
    keyboardButton(2240, "E", Rect::at(178, 286, 26, 27), 316, 0x08),
    keyboardButton(2241, "R", Rect::at(207, 286, 26, 27), 317, 0x15),
    keyboardButton(2242, "T", Rect::at(236, 286, 26, 27), 318, 0x17),
    keyboardButton(2243, "Y", Rect::at(265, 286, 26, 27), 319, 0x1C),
    keyboardButton(2244, "U", Rect::at(294, 286, 26, 27), 320, 0x18),
    keyboardButton(2245, "I", Rect::at(322, 286, 26, 27), 321, 0x0C),
    keyboardButton(2246, "O", Rect::at(351, 286, 26, 27), 322, 0x12),
    keyboardButton(2247, "P", Rect::at(380, 286, 26, 27), 323, 0x13),
    keyboardButton(2248, "[", Rect::at(409, 286, 26, 27), 324, 0x2F),
    keyboardButton(2249, "]", Rect::at(437, 286, 27, 27), 325, 0x30),
    keyboardButton(2250, "\\", Rect::at(444, 316, 27, 27), 326, 0x31),
    keyboardButton(2251, "Del", Rect::at(519, 286, 26, 27), 327, 0xE9),
    keyboardButton(2252, "End", Rect::at(548, 286, 26, 27), 328, 0xEB),
    keyboardButton(2253, "Page Down", Rect::at(577, 286, 26, 27), 329, 0xED),
    keyboardButton(2254, "Keypad 7", Rect::at(616, 286, 26, 27), 330, 0x5F),
    keyboardButton(2255, "Keypad 8", Rect::at(645, 286, 26, 27), 331, 0x60),
    keyboardButton(2256, "Keypad 9", Rect::at(674, 286, 27, 27), 332, 0x61),
    keyboardButton(2257, "Keypad +", Rect::at(703, 286, 27, 56), 333, 0x57),
    keyboardButton(2258, "Caps Lock", Rect::at(75, 315, 48, 27), 334, 0x39),
    keyboardButton(2259, "A", Rect::at(127, 315, 26, 27), 335, 0x04),
    keyboardButton(2260, "S", Rect::at(156, 315, 26, 27), 336, 0x16),
    keyboardButton(2261, "D", Rect::at(185, 315, 26, 27), 337, 0x07),
    keyboardButton(2262, "F", Rect::at(214, 315, 26, 27), 338, 0x09),
    keyboardButton(2263, "G", Rect::at(243, 315, 26, 27), 339, 0x0A),
    keyboardButton(2264, "H", Rect::at(272, 315, 26, 27), 340, 0x0B),
    keyboardButton(2265, "J", Rect::at(301, 315, 26, 27), 341, 0x0D),
    keyboardButton(2266, "K", Rect::at(330, 315, 26, 27), 342, 0x0E),
    keyboardButton(2267, "L", Rect::at(358, 315, 26, 27), 343, 0x0F),
    keyboardButton(2268, ";", Rect::at(387, 315, 26, 27), 344, 0x33),
    keyboardButton(2269, "'", Rect::at(416, 315, 26, 27), 345, 0x34),
    keyboardButton(2270, "Enter", Rect::at(473, 286, 33, 57), 346, 0x28),
    keyboardButton(2271, "Keypad 4", Rect::at(616, 315, 26, 27), 347, 0x5C),
    keyboardButton(2272, "Keypad 5", Rect::at(645, 315, 26, 27), 348, 0x5D),
    keyboardButton(2273, "Keypad 6", Rect::at(674, 315, 26, 27), 349, 0x5E),
    keyboardButton(2274, "Shift_L", Rect::at(75, 345, 63, 26), 350, 0xE1),
    keyboardButton(2303, "K45", Rect::at(1226, 345, 24, 26), 382, 0x64),
    keyboardButton(2275, "Z", Rect::at(141, 345, 26, 26), 351, 0x1D),
    keyboardButton(2276, "X", Rect::at(170, 345, 26, 26), 352, 0x1B),
    keyboardButton(2277, "C", Rect::at(199, 345, 26, 26), 353, 0x06),
    keyboardButton(2278, "V", Rect::at(228, 345, 26, 26), 354, 0x19),
    keyboardButton(2279, "B", Rect::at(257, 345, 26, 26), 355, 0x05),
    keyboardButton(2280, "N", Rect::at(286, 345, 26, 26), 356, 0x11),
    keyboardButton(2281, "M", Rect::at(315, 345, 26, 26), 357, 0x10),
    keyboardButton(2282, ",", Rect::at(344, 345, 26, 26), 358, 0x36),
    keyboardButton(2283, ".", Rect::at(372, 345, 26, 26), 359, 0x37),
    keyboardButton(2284, "/", Rect::at(401, 345, 26, 26), 360, 0x38),
    keyboardButton(2285, "Shift_R", Rect::at(430, 345, 76, 27), 361, 0xE5),
    keyboardButton(2286, "Up Arrow", Rect::at(548, 345, 26, 26), 152, 0xCC),
    keyboardButton(2287, "Keypad 1", Rect::at(616, 345, 26, 26), 363, 0x59),
    keyboardButton(2288, "Keypad 2", Rect::at(645, 345, 26, 26), 364, 0x5A),
    keyboardButton(2289, "Keypad 3", Rect::at(674, 345, 26, 26), 365, 0x5B),
    keyboardButton(2290, "Keypad Enter", Rect::at(704, 345, 27, 55), 366, 0x58),
    keyboardButton(2291, "Ctrl_L", Rect::at(75, 374, 34, 26), 367, 0xE0),
    keyboardButton(2292, "Win_L", Rect::at(112, 374, 34, 26), 368, 0xEF),
    keyboardButton(2293, "Alt_L", Rect::at(149, 374, 34, 26), 369, 0xE2),
    keyboardButton(2294, "Space", Rect::at(186, 374, 175, 26), 370, 0x2C),
    keyboardButton(2295, "Alt_R", Rect::at(365, 374, 33, 26), 371, 0xE6),
    keyboardButton(2296, "App", Rect::at(437, 374, 33, 26), 372, 0x65),
    keyboardButton(2297, "Ctrl_R", Rect::at(473, 374, 33, 26), 373, 0xE4),
    keyboardButton(2298, "Left Arrow", Rect::at(519, 374, 26, 26), 374, 0xCE),
    keyboardButton(2299, "Down Arrow", Rect::at(548, 374, 26, 26), 375, 0xCD),
    keyboardButton(2300, "Right Arrow", Rect::at(577, 374, 26, 26), 376, 0xCF),
    keyboardButton(2301, "Keypad 0", Rect::at(616, 374, 55, 26), 377, 0x62),
    keyboardButton(2302, "Keypad .", Rect::at(674, 374, 26, 26), 378, 0x63),
}};

/// The macro page: a native field, the buttons, two lists and their scroll bars, in this order.
inline constexpr Rect loopCountFieldRect = Rect::at(642, 436, 93, 22);
inline constexpr std::array<ControlRow, 7> macroPageControls{{
    imageButton(id::macroButton1, Rect::at(162, 483, 70, 33), 267, "New"),
    imageButton(id::macroButton2, Rect::at(233, 483, 70, 33), 268, "Delete"),
    imageButton(id::macroButton3, Rect::at(392, 483, 70, 33), 269, "Import"),
    imageButton(id::macroButton4, Rect::at(463, 483, 70, 33), 270, "Export"),
    checkButton(id::loopCheck, Rect::at(642, 411, 16, 16), 156, "Loop"),
    checkButton(id::delayCheck, Rect::at(642, 291, 16, 16), 156, "Record delays"),
    checkButton(id::recordSwitch, Rect::at(642, 249, 120, 29), 189, "Record"),
}};
inline constexpr const char* loopCountCaption = "Loop count";
inline constexpr Rect actionListRect = Rect::at(392, 239, 117, 228);
inline constexpr const char* actionListCaption = "Steps";
inline constexpr Rect macroListRect = Rect::at(162, 239, 117, 228);
inline constexpr const char* macroListCaption = "Macros";
inline constexpr std::array<ControlRow, 2> macroPageScrollBars{{
    scrollBar(id::macroScrollBar, Rect::at(280, 239, 21, 227), "Scroll macros"),
    scrollBar(id::actionScrollBar, Rect::at(510, 239, 21, 227), "Scroll steps"),
}};

/// The fields of G-key slots 0 to 4; slot 5 has none of its own.
inline constexpr std::array<ControlRow, 5> gKeyFields{{
    comboButton(id::gKeyField1, Rect::at(161, 239, 169, 26), 266, msg::openFunctionMenu, "G-key 1", "CTRL+1"),
    comboButton(id::gKeyField2, Rect::at(161, 269, 169, 26), 266, msg::openFunctionMenu, "G-key 2", "CTRL+2"),
    comboButton(id::gKeyField3, Rect::at(161, 299, 169, 26), 266, msg::openFunctionMenu, "G-key 3", "CTRL+3"),
    comboButton(id::gKeyField4, Rect::at(161, 329, 169, 26), 266, msg::openFunctionMenu, "G-key 4", "CTRL+4"),
    comboButton(id::gKeyField5, Rect::at(161, 359, 169, 26), 266, msg::openFunctionMenu, "G-key 5", "CTRL+5"),
}};

inline constexpr std::array<ControlRow, 3> lightingFields{{
    comboButton(id::lightModeField, Rect::at(53, 227, 169, 26), 266, msg::openLightMode, "Effect", "Red"),
    comboButton(id::brightnessField, Rect::at(53, 290, 169, 26), 266, msg::openBrightness, "Brightness",
                "100%"),
    comboButton(id::speedField, Rect::at(53, 346, 169, 26), 266, msg::openSpeed, "Speed", "Normal"),
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
/// What is repainted of them.
inline constexpr Rect leftHoverArea{191, 209, 351, 389};
inline constexpr Rect rightHoverArea{582, 209, 742, 389};

} // namespace tarnix
