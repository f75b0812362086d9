// The type that the skin sets its texts in, all in one place.
#pragma once

#include "platform/canvas.h"

namespace tarnix {

/// Names in the macro lists and in popup lists of macros.
inline constexpr TextFormat controlFont{.height = 12, .verticalCentred = true};
/// Values of drop-down fields and the rows of popup lists.
inline constexpr TextFormat valueFont{.verticalCentred = true};
/// Labels.
inline constexpr TextFormat labelFont{};

constexpr TextFormat colored(TextFormat format, Color color) {
    format.color = color;
    return format;
}

} // namespace tarnix
