// Keys of the program's own windows on their way to a keyboard hook.
#pragma once

class QEvent;

namespace tarnix {

/// True when the event is a key and goes to the running hook instead of its window.
bool interceptKey(const QEvent& event);

} // namespace tarnix
