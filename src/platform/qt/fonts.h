// The one place that chooses fonts, and the setting of one line of text.
#pragma once

#include <QFont>
#include <QString>

#include "platform/canvas.h"

namespace tarnix {

/// The font of a format, in its natural proportions.
QFont fontFor(const TextFormat& format);

/// A line that fits its place.
struct FittedLine {
    QString text; ///< where setting it smaller is not enough or not asked for, shortened between characters,
                  ///< with an ellipsis if the format asks for it
    QFont font;
    int width = 0;
    int ascent = 0;
    int height = 0;
};

FittedLine fitLine(const QString& text, int width, const TextFormat& format);

} // namespace tarnix
