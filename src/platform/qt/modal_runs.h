// Windows that run modally, the innermost last. The toolkit's own modality is left out of it: it would shut
// out the icon in the notification area, too.
#pragma once

class QDialog;
class QEvent;
class QObject;

namespace tarnix {

class Window;

/// Shows the window, runs the event loop until endModalRun, destroys the window. IDCANCEL when it is
/// destroyed earlier or an outer run has been ended already.
int runModally(Window& window);
/// Ends the window's run; the runs inside it, the toolkit's dialogs included, end first, innermost first, as
/// cancelled. Before a run has begun it keeps it from beginning.
void endModalRun(Window& window, int result);
/// Ends all runs, innermost first, as cancelled.
void endAllModalRuns();
/// True from runModally until the run has been ended.
bool runsModally(const Window& window);

/// The window of the innermost run; none when a dialog of the toolkit is the innermost, or there is none.
Window* modalWindow();
/// Whether a modal run keeps the user from working in the window.
bool isShutOut(const Window& window);
/// True when the event is the user's work in a window that is shut out. A release then cancels the window's
/// press.
bool isShutOut(QObject& receiver, QEvent& event);

/// Runs one of the toolkit's own dialogs. True when accepted.
bool runModally(QDialog& dialog);

} // namespace tarnix
