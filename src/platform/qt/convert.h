// The system's points, rectangles, colours and texts in the toolkit's types.
#pragma once

#include <QColor>
#include <QPoint>
#include <QRect>
#include <QString>
#include <string>

#include "platform/canvas.h"

namespace tarnix {

inline Point fromQt(QPoint point) {
    return {point.x(), point.y()};
}
inline Rect fromQt(const QRect& rect) {
    return Rect::at(rect.x(), rect.y(), rect.width(), rect.height());
}
inline QPoint toQt(Point point) {
    return {point.x, point.y};
}
inline QRect toQt(const Rect& rect) {
    return {rect.left, rect.top, rect.width(), rect.height()};
}
inline QColor toQt(Color color) {
    return {redOf(color), greenOf(color), blueOf(color)};
}

} // namespace tarnix
