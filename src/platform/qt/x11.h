// The few things of X11 that the toolkit has no words for. On another display server they answer "no" and do
// nothing.
#pragma once

#include <QRect>
#include <cstdint>
#include <vector>

class QWidget;

namespace tarnix {

/// Whether the left button is down now, whatever events are still under way.
bool leftButtonIsDown();
/// Whether a window manager runs. True where there is no telling.
bool windowManagerRuns();
/// What the window manager is told of a window that is still hidden; its native window exists.
enum class InitialState { SkipTaskbar, Modal };
void addInitialState(const QWidget& window, InitialState state);

/// Gives the window an outline in device pixels, below the toolkit. False where that is not possible.
bool setNativeShape(const QWidget& window, const std::vector<QRect>& outline);
/// The window of the display's XEmbed tray; the event loop hears of its end from now on. 0 without one.
std::uint32_t watchXembedTray();
/// Whether a client message to the root window says that an XEmbed tray starts: its type and its second
/// datum.
bool announcesXembedTray(std::uint32_t type, std::uint32_t selection);

} // namespace tarnix
