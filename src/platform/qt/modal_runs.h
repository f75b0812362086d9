// Windows that run modally, the innermost last.
#pragma once

class QDialog;

namespace tarnix {

class Window;

/// Shows the window, runs the event loop until endModalRun, destroys the window. IDCANCEL when it is
/// destroyed earlier or an outer run has been ended already.
int runModally(Window& window);
/// Ends the window's run; the runs inside it, the toolkit's dialogs included, end first, innermost first, as
/// cancelled. Before a run has begun it keeps it from beginning.
void endModalRun(Window& window, int result);
/// True from runModally until the run has been ended.
bool runsModally(const Window& window);

/// Runs one of the toolkit's own dialogs. True when accepted.
bool runModally(QDialog& dialog);

} // namespace tarnix
