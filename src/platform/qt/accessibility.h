// The windows' faces in the toolkit's accessibility interfaces, through which they reach the desktop's
// assistive technology (AT-SPI 2). Nothing of it exists while there is none on the desktop.
#pragma once

namespace tarnix {

class WindowWidget;

/// From now on the toolkit finds what the windows tell of themselves.
void offerAccessibility();

/// The window has painted itself, so it may have changed. Tells assistive technology, if there is any.
void tellOfChanges(WindowWidget& widget);
/// The window is off the screen.
void tellOfEnd(WindowWidget& widget);

} // namespace tarnix
