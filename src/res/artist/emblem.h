// The program's emblem: a lit key cap with a T. One list of rounded rectangles serves the icon at every size,
// the wordmark and the scalable file for the desktop.
#pragma once

#include <QPainter>
#include <QString>

namespace tarnix::art {

void paintEmblem(QPainter& p, const QRectF& area);
/// The same as an SVG 1.1 document.
QString emblemAsSvg();

/// The emblem with the name set below it.
void paintWordmark(QPainter& p, const QRectF& area);

} // namespace tarnix::art
