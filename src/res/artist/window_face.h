// The main window's face below its pages: frame, head, foot. The page bands repeat it, so that they join
// without a seam.
#pragma once

#include <QPainter>

namespace tarnix::art {

inline constexpr double windowCornerRadius = 12;

/// The stage that the pages stand on, in the window's coordinates; the bands cover its middle.
QRectF stageArea();
inline constexpr double stageRadius = 12;

/// In the window's coordinates.
void paintWindowFace(QPainter& p);

} // namespace tarnix::art
