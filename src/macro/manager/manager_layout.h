// The faces of the macro manager and its small companions as data.
//
// Rectangles are client coordinates. Backgrounds and region strips are bitmap resources, other strips PNG
// resources. The texts of labels that never change are part of the backgrounds.
#pragma once

#include <array>

#include "skin/control_table.h"

namespace tarnix::manager {

// Identifiers of the controls, which are the numbers of their messages.
inline constexpr unsigned closeButton = 2004;
inline constexpr unsigned okButton = 2010;
inline constexpr unsigned cancelButton = 2011;
inline constexpr unsigned newMacroButton = 2012;
inline constexpr unsigned deleteMacroButton = 2013;
inline constexpr unsigned setField = 2014;
inline constexpr unsigned macroList = 2015;
inline constexpr unsigned recordDelays = 2017;
inline constexpr unsigned recordSwitch = 2018;
inline constexpr unsigned actionList = 2020;
inline constexpr unsigned macroScrollBar = 2021;
inline constexpr unsigned actionScrollBar = 2022;
/// The set's name in the two small dialogs.
inline constexpr unsigned setNameField = 2012;

// Messages of the manager's window.
inline constexpr unsigned openSetList = 0x40D;     ///< [field, notification] the set field was clicked
inline constexpr unsigned setListChosen = 0x41E;   ///< [field, row code]
inline constexpr unsigned setListClosing = 0x41F;  ///< [field, 5] the list of sets lost activation
inline constexpr unsigned runAddSet = 0x420;       ///< posted by the window to itself
inline constexpr unsigned addSetByName = 0x421;    ///< [-, address of the name]
inline constexpr unsigned deleteSetByName = 0x422; ///< [-, address of the name]
inline constexpr unsigned runDeleteSet = 0x423;    ///< posted by the window to itself

inline constexpr Size managerSize{715, 476};
inline constexpr const char* managerTitle = "Macro manager";
inline constexpr unsigned managerBackground = 181;
/// The panel behind the action list and the recording controls, drawn over the background (a bitmap).
inline constexpr unsigned managerPanel = 186;
inline constexpr Rect managerPanelRect = Rect::at(220, 50, 481, 354);

/// What the field says without a set.
inline constexpr const char* noSetText = "Disable";

/// The panel says "Record delays" right of that box, the background titles both columns.
inline constexpr std::array<ControlRow, 10> managerControls{{
    regionButton(closeButton, Rect::at(693, 7, 15, 16), {154, 155, 0, 0, 15, 16}, "Close"),
    regionButton(okButton, Rect::at(497, 422, 98, 33), {162, 162, 0, 0, 98, 33}, "OK"),
    regionButton(cancelButton, Rect::at(603, 422, 98, 33), {163, 163, 0, 0, 98, 33}, "Cancel"),
    imageButton(newMacroButton, Rect::at(25, 371, 70, 33), 267, "New"),
    imageButton(deleteMacroButton, Rect::at(124, 371, 70, 33), 268, "Delete"),
    comboButton(setField, Rect::at(25, 60, 169, 26), 266, openSetList, "Macro set", noSetText),
    checkButton(recordDelays, Rect::at(492, 151, 16, 16), 156, "Record delays"),
    checkButton(recordSwitch, Rect::at(492, 98, 120, 29), 189, "Record"),
    scrollBar(macroScrollBar, Rect::at(173, 98, 21, 260), "Scroll macros"),
    scrollBar(actionScrollBar, Rect::at(445, 98, 21, 280), "Scroll steps"),
}};

// The two lists, whose rectangles hold 13 and 14 rows.
inline constexpr Rect macroListRect = Rect::at(25, 98, 147, 260);
inline constexpr Rect actionListRect = Rect::at(244, 98, 200, 280);
inline constexpr const char* macroListCaption = "Macros";
inline constexpr const char* actionListCaption = "Steps";

inline constexpr std::array<PaintedText, 3> managerTexts{
    {{"Choose a macro, press", Rect::at(492, 197, 200, 18)},
     {"Record, type the keys,", Rect::at(492, 215, 200, 18)},
     {"then press Stop.", Rect::at(492, 233, 200, 18)}}};

inline constexpr Size companionSize{305, 215};

/// A companion's background, its title and what else it says.
struct Companion {
    unsigned background;
    const char* title;
    PaintedText text;
};

inline constexpr Rect nameWords = Rect::at(40, 72, 240, 20);
inline constexpr Rect noticeWords = Rect::at(0, 106, companionSize.width, 22);
inline constexpr Companion addSet{185, "Add a macro set", {"Name of the new set", nameWords}};
inline constexpr Companion deleteSet{184, "Delete a macro set", {"Name of the set to delete", nameWords}};
/// A macro set or macro must be chosen first.
inline constexpr Companion note{195, "Macro set", {"Please choose a macro set or macro first.", noticeWords}};
/// A macro must be chosen first.
inline constexpr Companion attention{196, "Macro", {"Please choose a macro first.", noticeWords}};

/// The native field of both set-name dialogs: white on 0x0B0B0B, in a frame that the backgrounds paint.
inline constexpr Rect setNameRect = Rect::at(42, 100, 221, 22);
inline constexpr Color setNameText = 0xFFFFFF;
inline constexpr Color setNameGround = 0x0B0B0B;

/// Both set-name dialogs.
inline constexpr std::array<ControlRow, 3> setNameControls{{
    regionButton(closeButton, Rect::at(284, 7, 15, 16), {154, 155, 0, 0, 15, 16}, "Close"),
    regionButton(okButton, Rect::at(52, 160, 98, 33), {162, 162, 0, 0, 98, 33}, "OK"),
    regionButton(cancelButton, Rect::at(156, 160, 98, 33), {163, 163, 0, 0, 98, 33}, "Cancel"),
}};

/// The note and the attention dialog.
inline constexpr std::array<ControlRow, 2> noticeControls{{
    regionButton(closeButton, Rect::at(284, 7, 15, 16), {154, 155, 0, 0, 15, 16}, "Close"),
    regionButton(okButton, Rect::at(104, 160, 98, 33), {162, 162, 0, 0, 98, 33}, "OK"),
}};

} // namespace tarnix::manager
