// Tells assistive technology how a window has changed since it was last told.
#pragma once

#include "platform/accessible.h"

namespace tarnix {

class AccessibleWindow;

void tellAppearance(AccessibleWindow& window, const AccessibleFace& face);
void tellDifferences(AccessibleWindow& window, const AccessibleFace& before, const AccessibleFace& now);
/// When a list closes, the user is at work again where he was in its owner.
void tellDisappearance(AccessibleWindow& window, AccessibleWindow* owner);

} // namespace tarnix
