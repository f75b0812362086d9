// The subjects that the artist paints, each into the sheet.
#pragma once

#include "artist/sheet.h"

namespace tarnix::art {

/// The main window's background and the four page bands.
void paintPages(Sheet& sheet);
/// The caps of the keyboard picture.
void paintCaps(Sheet& sheet);
/// The main window's buttons and tabs.
void paintMainControls(Sheet& sheet);
/// Check boxes, radio buttons, drop-down fields, browse buttons, scroll arrows, step icons.
void paintFields(Sheet& sheet);
/// The backgrounds of the editing dialogs, the notices and the confirmations.
void paintDialogFaces(Sheet& sheet);
/// The macro manager and its companions.
void paintManagerFaces(Sheet& sheet);
/// The dialogs' OK, Cancel and close buttons.
void paintDialogButtons(Sheet& sheet);
/// The program's icon.
void paintIcon(Sheet& sheet);

} // namespace tarnix::art
