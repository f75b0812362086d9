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
    regionButton(closeButton, Rect::at(475, 7, 15, 16), {154, 155, 0, 0, 15, 16}, "Close"),
    regionButton(okButton, Rect::at(149, 192, 98, 33), {162, 162, 0, 0, 98, 33}, "OK"),
    regionButton(cancelButton, Rect::at(249, 192, 98, 33), {163, 163, 0, 0, 98, 33}, "Cancel"),
    staticText(title, Rect::at(21, 8, 154, 20), black),
    staticText(message, Rect::at(2, 100, 494, 20), white, "", CStaticText::formatCentred),
}};
} // namespace notice

namespace reset {

/// The question in the background, and what the answer leads to.
struct Question {
    unsigned background;
    const char* title;
    std::array<PaintedText, 4> texts;
};

constexpr Question question(unsigned background, const char* title, const std::array<const char*, 4>& lines) {
    const auto line = [](int top, int height) { return Rect::at(0, top, wideSize.width, height); };
    return {background,
            title,
            {{{lines[0], line(79, 24)},
              {lines[1], line(106, 20)},
              {lines[2], line(126, 20)},
              {lines[3], line(146, 20)}}}};
}

inline constexpr Question profileReset = question(
    165, "Reset profile",
    {"Reset this profile to its factory settings?", "Its key functions, lighting, G-keys and name are lost,",
     "here and on the keyboard.", "This cannot be undone."});
inline constexpr Question factoryReset = question(
    258, "Restore all",
    {"Restore all factory settings?", "Everything in profiles 1 to 3 is lost, here and on the keyboard,",
     "and your macros are deleted.", "This cannot be undone."});

inline constexpr std::array<ControlRow, 3> controls{{
    regionButton(closeButton, Rect::at(475, 7, 15, 16), {154, 155, 0, 0, 15, 16}, "Close"),
    regionButton(okButton, Rect::at(149, 192, 98, 33), {162, 162, 0, 0, 98, 33}, "OK"),
    regionButton(cancelButton, Rect::at(249, 192, 98, 33), {163, 163, 0, 0, 98, 33}, "Cancel"),
}};
} // namespace reset

namespace profile {
inline constexpr const char* title = "Edit profile";
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
inline constexpr const char* nameCaption = "Name";

inline constexpr std::array<ControlRow, 9> controls{{
    regionButton(closeButton, Rect::at(496, 5, 23, 21), {154, 155, 0, 20, 23, 21}, "Close"),
    regionButton(okButton, Rect::at(17, 313, 52, 21), {162, 162, 0, 20, 52, 21}, "OK"),
    regionButton(cancelButton, Rect::at(81, 313, 91, 21), {163, 163, 0, 20, 91, 21}, "Cancel"),
    imageButton(browse1, Rect::at(305, 136, 22, 18), 177, "Browse for program 1"),
    imageButton(browse2, Rect::at(305, 156, 22, 18), 177, "Browse for program 2"),
    imageButton(browse3, Rect::at(305, 176, 22, 18), 177, "Browse for program 3"),
    staticText(path1, Rect::at(34, 136, 268, 18), white, "Program 1"),
    staticText(path2, Rect::at(34, 156, 268, 18), white, "Program 2"),
    staticText(path3, Rect::at(34, 176, 268, 18), white, "Program 3"),
}};
} // namespace profile

namespace keymap {
inline constexpr const char* title = "Key function";
inline constexpr unsigned background = 272;
inline constexpr unsigned ownFunction = 2016; ///< back to the key's own function
inline constexpr unsigned keyName = 2015;
inline constexpr unsigned keyFunction = 2017; ///< the keyboard function's name
inline constexpr unsigned mouseField = 2012;
inline constexpr unsigned keyRadio = 2013;
inline constexpr unsigned mouseRadio = 2014;
inline constexpr unsigned openMouseFunctions = 0x40D; ///< [field, notification]

inline constexpr std::array<ControlRow, 9> controls{{
    regionButton(closeButton, Rect::at(475, 7, 15, 16), {154, 155, 0, 0, 15, 16}, "Close"),
    regionButton(okButton, Rect::at(149, 192, 98, 33), {162, 162, 0, 0, 98, 33}, "OK"),
    regionButton(cancelButton, Rect::at(249, 192, 98, 33), {163, 163, 0, 0, 98, 33}, "Cancel"),
    imageButton(ownFunction, Rect::at(303, 55, 98, 25), 276, "Default"),
    staticText(keyName, Rect::at(168, 60, 126, 23), green, "Key"),
    staticText(keyFunction, Rect::at(234, 102, 167, 20), black, "Keyboard function",
               CStaticText::formatCentred),
    comboButton(mouseField, Rect::at(233, 138, 169, 26), 266, openMouseFunctions, "Mouse function"),
    radioButton(keyRadio, Rect::at(70, 100, 15, 15), "Keyboard function"),
    radioButton(mouseRadio, Rect::at(70, 145, 15, 15), "Mouse function"),
}};
} // namespace keymap

namespace shortcut {
inline constexpr const char* title = "Shortcut";
inline constexpr Size size{420, 206};
inline constexpr unsigned background = 153; ///< also the outline
inline constexpr unsigned singleKey = 2005; ///< without modifiers
inline constexpr unsigned ctrl = 2006;
inline constexpr unsigned alt = 2007;
inline constexpr unsigned shift = 2008;
inline constexpr unsigned win = 2009;
inline constexpr unsigned keyName = 2012;
inline constexpr std::array<PaintedText, 1> texts{
    {{"Choose the modifiers, then press the key.", Rect::at(22, 46, 376, 20)}}};

inline constexpr std::array<ControlRow, 9> controls{{
    regionButton(closeButton, Rect::at(391, 3, 23, 21), {387, 388, 0, 20, 23, 21}, "Close"),
    checkButton(singleKey, Rect::at(22, 104, 12, 12), 386, "Single"),
    checkButton(ctrl, Rect::at(83, 104, 12, 12), 386, "Ctrl"),
    checkButton(shift, Rect::at(136, 104, 12, 12), 386, "Shift"),
    checkButton(alt, Rect::at(186, 104, 12, 12), 386, "Alt"),
    checkButton(win, Rect::at(232, 104, 12, 12), 386, "Win"),
    staticText(keyName, Rect::at(287, 100, 118, 20), white, "Key"),
    regionButton(okButton, Rect::at(16, 162, 73, 29), {384, 384, 0, 0, 73, 29}, "OK"),
    regionButton(cancelButton, Rect::at(118, 162, 66, 29), {385, 385, 0, 0, 66, 29}, "Cancel"),
}};
} // namespace shortcut

namespace launch {
inline constexpr const char* title = "Quick launch";
inline constexpr Size size{305, 245};
inline constexpr unsigned background = 176; ///< also the outline
inline constexpr unsigned browse = 2012;
inline constexpr unsigned path = 2013;
inline constexpr std::array<PaintedText, 1> texts{
    {{"The G-key starts this program.", Rect::at(22, 119, 260, 18)}}};

inline constexpr std::array<ControlRow, 5> controls{{
    regionButton(closeButton, Rect::at(276, 4, 23, 21), {394, 395, 0, 20, 23, 21}, "Close"),
    regionButton(okButton, Rect::at(75, 202, 52, 21), {396, 396, 0, 20, 52, 21}, "OK"),
    regionButton(cancelButton, Rect::at(139, 202, 91, 21), {397, 397, 0, 20, 91, 21}, "Cancel"),
    imageButton(browse, Rect::at(258, 87, 22, 18), 177, "Browse"),
    staticText(path, Rect::at(26, 87, 230, 18), white, "Program"),
}};
} // namespace launch

} // namespace tarnix::dialog
