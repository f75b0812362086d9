// The signs of a macro's steps, 14 pixels square: a key goes down, a key comes up, a delay.
#pragma once

#include <QPainter>

namespace tarnix::art {

void paintStepPress(QPainter& p, const QRectF& area);
void paintStepRelease(QPainter& p, const QRectF& area);
void paintStepDelay(QPainter& p, const QRectF& area);

} // namespace tarnix::art
