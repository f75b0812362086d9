// The few things of X11 that the toolkit has no words for. On another display server they answer "no" and do
// nothing.
#pragma once

class QWidget;

namespace tarnix {

/// Whether the left button is down now, whatever events are still under way.
bool leftButtonIsDown();
/// Whether a window manager runs. True where there is no telling.
bool windowManagerRuns();
/// Keeps the window, which must have a native window and be hidden, out of taskbars.
void skipTaskbar(const QWidget& window);

} // namespace tarnix
