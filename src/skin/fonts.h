// The type that the skin sets its texts in, all in one place.
#pragma once

#include "platform/canvas.h"

namespace tarnix {

/// Names in the macro lists and in popup lists of macros.
inline constexpr TextFormat controlText{.height = 12, .verticalCentred = true};
/// Values of drop-down fields and the rows of popup lists.
inline constexpr TextFormat valueText{.averageWidth = 9, .verticalCentred = true};
/// Labels.
inline constexpr TextFormat labelText{};
/// Texts that a window paints on its own face: 10 points at 96 pixels an inch.
inline constexpr TextFormat windowText{.height = 13, .weight = 600};

constexpr TextFormat colored(TextFormat format, Color color) {
    format.color = color;
    return format;
}

} // namespace tarnix
