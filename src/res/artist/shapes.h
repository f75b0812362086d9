// The shapes that everything is made of: plates, wells, glows, buttons, arrows and signs.
#pragma once

#include <QPainter>
#include <QPainterPath>

#include "artist/palette.h"
#include "artist/type.h"
#include "platform/geometry.h"

namespace tarnix::art {

/// The states of a three-frame control, in the order of its strip.
enum class Frame { Rest, Hover, Pressed };

inline QRectF rectF(const Rect& r) {
    return {double(r.left), double(r.top), double(r.width()), double(r.height())};
}

QColor withAlpha(QColor color, int alpha);
QColor mixed(const QColor& a, const QColor& b, double share);
QLinearGradient vertical(const QRectF& area, const QColor& top, const QColor& bottom);

/// A filled rounded rectangle with a line of one pixel inside its edge.
void plate(QPainter& p, const QRectF& area, double radius, const QBrush& fill, const QColor& edge);
/// The same, sunk: dark at the top inside.
void well(QPainter& p, const QRectF& area, double radius, const QColor& fill, const QColor& edge);
/// A soft light around a rounded rectangle, `reach` pixels wide and `strength` (0 to 255) at its edge.
void glow(QPainter& p, const QRectF& area, double radius, const QColor& color, double reach, int strength);

enum class ButtonLook {
    Main,    ///< sage: does what the window is for
    Quiet,   ///< outlined on the ground: leaves or resets
    Careful, ///< outlined, warm under the pointer: throws something away
    Tab      ///< the third frame is the selected tab
};
/// A button with its word. The area is the whole frame; the plate keeps `margin` pixels off its edge.
void button(QPainter& p, const QRectF& area, const QString& word, ButtonLook look, Frame frame, Type type,
            double margin = 1);

/// Signs, stroked in `color`, centred in their area.
void cross(QPainter& p, const QPointF& centre, double reach, double width, const QColor& color);
void tick(QPainter& p, const QRectF& box, double width, const QColor& color);
enum class Direction { Up, Down, Left, Right };
void chevron(QPainter& p, const QPointF& centre, double reach, Direction direction, double width,
             const QColor& color);
/// An arrow with a shaft, `length` pixels long.
void arrow(QPainter& p, const QPointF& centre, double length, Direction direction, double width,
           const QColor& color);

} // namespace tarnix::art
