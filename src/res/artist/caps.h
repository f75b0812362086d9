// Key caps: their tones, their legends, and how a cap looks at rest, under the pointer, pressed and lit.
#pragma once

#include <QPainter>

#include "artist/shapes.h"

namespace tarnix::art {

/// What a cap is, told apart by tone.
enum class CapTone { Letter, Modifier, Function };

enum class CapSign { None, Tab, Shift, Enter, Backspace, Windows, Menu, Up, Down, Left, Right };

/// What stands on a cap: one word or letter, a second one above it, or a sign.
struct CapLegend {
    const char* name; ///< of the key, as the layout table has it
    const char* text;
    const char* upper = "";
    CapSign sign = CapSign::None;
    CapTone tone = CapTone::Letter;
};

const CapLegend& legendOf(const char* keyName);

void paintCap(QPainter& p, const QRectF& area, const CapLegend& legend, Frame frame);
/// A dark cap whose legend and rim shine in a colour.
void paintLitCap(QPainter& p, const QRectF& area, const CapLegend& legend, const QColor& light);

} // namespace tarnix::art
