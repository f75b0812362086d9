// The faces of the editing dialogs, the reset confirmation and the notice as data.
//
// Rectangles are client coordinates. Backgrounds and region strips are bitmap resources, other strips PNG
// resources. The texts of labels that never change are part of the backgrounds.
#pragma once

#include <array>

#include "skin/control_table.h"
#include "skin/static_text.h"

namespace tarnix::dialog {

// Identifiers that all dialogs share.
inline constexpr unsigned closeButton = 2004;
inline constexpr unsigned okButton = 2010;
inline constexpr unsigned cancelButton = 2011;

inline constexpr Color white = 0xFFFFFF;
inline constexpr Color black = 0x000000;
inline constexpr Color green = 0x00FF00;

/// The notice, both reset confirmations and the key map dialog are of one size.
inline constexpr Size wideSize{496, 247};

namespace notice {
inline constexpr unsigned background = 380;
inline constexpr unsigned title = 2012;
inline constexpr unsigned message = 2013;

inline constexpr std::array<ControlRow, 5> controls{{
    regionButton(closeButton, Rect::at(475, 7, 15, 16), {154, 155, 0, 0, 15, 16}),
    regionButton(okButton, Rect::at(149, 192, 98, 33), {162, 162, 0, 0, 98, 33}),
    regionButton(cancelButton, Rect::at(249, 192, 98, 33), {163, 163, 0, 0, 98, 33}),
    staticText(title, Rect::at(21, 8, 154, 20), black),
    staticText(message, Rect::at(2, 100, 494, 20), white, CStaticText::formatCentred),
}};
} // namespace notice

namespace reset {
inline constexpr unsigned profileBackground = 165; ///< asks whether to reset the displayed profile
inline constexpr unsigned factoryBackground = 258; ///< asks whether to restore all factory settings

inline constexpr std::array<ControlRow, 3> controls{{
    regionButton(closeButton, Rect::at(475, 7, 15, 16), {154, 155, 0, 0, 15, 16}),
    regionButton(okButton, Rect::at(149, 192, 98, 33), {162, 162, 0, 0, 98, 33}),
    regionButton(cancelButton, Rect::at(249, 192, 98, 33), {163, 163, 0, 0, 98, 33}),
}};
} // namespace reset

namespace profile {
inline constexpr Size size{525, 356};
inline constexpr unsigned background = 203;
inline constexpr unsigned browse1 = 2012;
inline constexpr unsigned browse2 = 2014;
inline constexpr unsigned browse3 = 2015;
inline constexpr unsigned path1 = 2013;
inline constexpr unsigned path2 = 2016;
inline constexpr unsigned path3 = 2017;
inline constexpr unsigned nameField = 2017; ///< the same number as the third path
/// The native field: white on black.
inline constexpr Rect nameFieldRect = Rect::at(119, 78, 183, 16);

inline constexpr std::array<ControlRow, 9> controls{{
    regionButton(closeButton, Rect::at(496, 5, 23, 21), {154, 155, 0, 20, 23, 21}),
    regionButton(okButton, Rect::at(17, 313, 52, 21), {162, 162, 0, 20, 52, 21}),
    regionButton(cancelButton, Rect::at(81, 313, 91, 21), {163, 163, 0, 20, 91, 21}),
    imageButton(browse1, Rect::at(305, 136, 22, 18), 177),
    imageButton(browse2, Rect::at(305, 156, 22, 18), 177),
    imageButton(browse3, Rect::at(305, 176, 22, 18), 177),
    staticText(path1, Rect::at(34, 136, 268, 18), white),
    staticText(path2, Rect::at(34, 156, 268, 18), white),
    staticText(path3, Rect::at(34, 176, 268, 18), white),
}};
} // namespace profile

namespace keymap {
inline constexpr unsigned background = 272;
inline constexpr unsigned ownFunction = 2016; ///< back to the key's own function
inline constexpr unsigned keyName = 2015;
inline constexpr unsigned keyFunction = 2017; ///< the keyboard function's name
inline constexpr unsigned mouseField = 2012;
inline constexpr unsigned keyRadio = 2013;
inline constexpr unsigned mouseRadio = 2014;
inline constexpr unsigned openMouseFunctions = 0x40D; ///< [field, notification]

inline constexpr std::array<ControlRow, 9> controls{{
    regionButton(closeButton, Rect::at(475, 7, 15, 16), {154, 155, 0, 0, 15, 16}),
    regionButton(okButton, Rect::at(149, 192, 98, 33), {162, 162, 0, 0, 98, 33}),
    regionButton(cancelButton, Rect::at(249, 192, 98, 33), {163, 163, 0, 0, 98, 33}),
    imageButton(ownFunction, Rect::at(303, 55, 98, 25), 276),
    staticText(keyName, Rect::at(168, 60, 126, 23), green),
    staticText(keyFunction, Rect::at(234, 102, 167, 20), black, CStaticText::formatCentred),
    comboButton(mouseField, Rect::at(233, 138, 169, 26), 266, openMouseFunctions),
    radioButton(keyRadio, Rect::at(70, 100, 15, 15)),
    radioButton(mouseRadio, Rect::at(70, 145, 15, 15)),
}};
} // namespace keymap

namespace shortcut {
inline constexpr Size size{420, 206};
inline constexpr unsigned background = 153; ///< also the outline
inline constexpr unsigned singleKey = 2005; ///< without modifiers
inline constexpr unsigned ctrl = 2006;
inline constexpr unsigned alt = 2007;
inline constexpr unsigned shift = 2008;
inline constexpr unsigned win = 2009;
inline constexpr unsigned keyName = 2012;

inline constexpr std::array<ControlRow, 9> controls{{
    regionButton(closeButton, Rect::at(391, 3, 23, 21), {387, 388, 0, 20, 23, 21}),
    checkButton(singleKey, Rect::at(22, 104, 12, 12), 386),
    checkButton(ctrl, Rect::at(83, 104, 12, 12), 386),
    checkButton(shift, Rect::at(136, 104, 12, 12), 386),
    checkButton(alt, Rect::at(186, 104, 12, 12), 386),
    checkButton(win, Rect::at(232, 104, 12, 12), 386),
    staticText(keyName, Rect::at(287, 100, 118, 20), white),
    regionButton(okButton, Rect::at(16, 162, 73, 29), {384, 384, 0, 0, 73, 29}),
    regionButton(cancelButton, Rect::at(118, 162, 66, 29), {385, 385, 0, 0, 66, 29}),
}};
} // namespace shortcut

namespace launch {
inline constexpr Size size{305, 245};
inline constexpr unsigned background = 176; ///< also the outline
inline constexpr unsigned browse = 2012;
inline constexpr unsigned path = 2013;

inline constexpr std::array<ControlRow, 5> controls{{
    regionButton(closeButton, Rect::at(276, 4, 23, 21), {394, 395, 0, 20, 23, 21}),
    regionButton(okButton, Rect::at(75, 202, 52, 21), {396, 396, 0, 20, 52, 21}),
    regionButton(cancelButton, Rect::at(139, 202, 91, 21), {397, 397, 0, 20, 91, 21}),
    imageButton(browse, Rect::at(258, 87, 22, 18), 177),
    staticText(path, Rect::at(26, 87, 230, 18), white),
}};
} // namespace launch

} // namespace tarnix::dialog
