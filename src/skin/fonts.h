// The type that the skin sets its texts in, all in one place.
#pragma once

#include "platform/canvas.h"

namespace tarnix {

/// Names in the macro lists and in popup lists of macros.
inline constexpr TextFormat controlFont{.height = 12, .verticalCentred = true};
/// Values of drop-down fields and the rows of popup lists.
inline constexpr TextFormat valueFont{.averageWidth = 9, .verticalCentred = true};
/// Labels.
inline constexpr TextFormat labelFont{};
/// Texts that a window paints on its own face: 10 points at 96 pixels an inch.
inline constexpr TextFormat windowFont{.height = 13, .weight = 600};

constexpr TextFormat colored(TextFormat format, Color color) {
    format.color = color;
    return format;
}

} // namespace tarnix
