// Keys of the program's own windows on their way to a keyboard hook.
#pragma once

class QEvent;

namespace tarnix {

/// Reports a key to the running hooks. True when it goes to them instead of its window.
bool interceptKey(const QEvent& event);

} // namespace tarnix
