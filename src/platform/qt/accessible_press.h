// What assistive technology does to a window, done as the pointer would do it. It goes in through the gate,
// in its turn, and does nothing where the user could do nothing: in a window that is away, shut out by a
// modal one or gone, and to an item that is gone or disabled by then.
#pragma once

#include <optional>

#include "accessible_key.h"
#include "platform/geometry.h"

namespace tarnix {

class WindowWidget;

/// Presses and releases the left button in the item's middle.
void pressItem(WindowWidget& widget, ItemKey key);
/// Moves an item that has a range; values beyond it are taken for its ends.
void moveItem(WindowWidget& widget, ItemKey key, int value);

/// Where the pointer is as far as windows can tell, in screen coordinates, while an item is pressed.
std::optional<Point> assistedPointer();

} // namespace tarnix
