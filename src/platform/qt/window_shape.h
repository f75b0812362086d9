// The outline of a window that is no rectangle.
#pragma once

#include <span>

#include "platform/geometry.h"

class QWidget;

namespace tarnix {

/// `outline` as Window::setShape takes it; the native window exists.
void shapeWindow(QWidget& widget, std::span<const Rect> outline);

} // namespace tarnix
