// The numbers of the pictures that are built into the program, what each one is, and how large. Pictures of
// controls that stand in a layout table (the main window's, the dialogs', the macro manager's) have their
// numbers and sizes there; this header holds those that the skin asks for by itself, and the sizes that no
// table says.
#pragma once

#include "platform/geometry.h"

namespace tarnix::picture {

/// The program's icon: windows, notification area, desktop entry.
inline constexpr unsigned programIcon = 381;
inline constexpr Size programIconSize{64, 64};

/// Frames side by side in the strips of each kind of control.
inline constexpr int buttonFrames = 3; ///< normal, hover, pressed; a tab's third frame is the selected tab
inline constexpr int checkFrames = 7;  ///< normal, hover, pressed, the same three checked, disabled
inline constexpr int comboFrames = 5;  ///< normal, hover, pressed, inactive, inactive and hovered

/// Every radio button: normal, hover, selected.
inline constexpr unsigned radioButton = 400;
inline constexpr Size radioButtonSize{15, 15};

/// The scroll bar's arrows, as wide as the bar; the down arrow's height is that of both buttons.
inline constexpr unsigned scrollDown = 187;
inline constexpr unsigned scrollUp = 188;
inline constexpr Size scrollArrowSize{21, 21};

/// The steps of a macro, in rows of 20 pixels with 15 pixels for the icon.
inline constexpr unsigned stepRelease = 191;
inline constexpr unsigned stepPress = 192;
inline constexpr unsigned stepDelay = 193;
inline constexpr Size stepIconSize{14, 14};

/// The macro and G-key page bands are larger than what is copied of them.
inline constexpr Size widePageBand{760, 360};

} // namespace tarnix::picture
