// The type that the skin sets its texts in, all in one place.
#pragma once

#include "platform/canvas.h"

namespace tarnix {

/// Values of drop-down fields, and the rows of lists and popup lists.
inline constexpr TextFormat valueFont{.verticalCentred = true};
/// Labels.
inline constexpr TextFormat labelFont{};

constexpr TextFormat colored(TextFormat format, Color color) {
    format.color = color;
    return format;
}

} // namespace tarnix
