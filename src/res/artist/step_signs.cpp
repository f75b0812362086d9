#include "artist/step_signs.h"

#include "artist/shapes.h"

namespace tarnix::art {

void paintStepPress(QPainter& p, const QRectF& area) {
    plate(p, QRectF(area.left() + 1, area.top() + 9, 12, 4), 2, palette::mossDeep, palette::moss);
    arrow(p, QPointF(area.center().x(), area.top() + 4.5), 7, Direction::Down, 1.6, palette::spring);
}

void paintStepRelease(QPainter& p, const QRectF& area) {
    plate(p, QRectF(area.left() + 1, area.top() + 9, 12, 4), 2, palette::slate, palette::mist);
    arrow(p, QPointF(area.center().x(), area.top() + 4.5), 7, Direction::Up, 1.6, palette::paper);
}

void paintStepDelay(QPainter& p, const QRectF& area) {
    p.setPen(QPen(palette::warm, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(area.center(), 5.5, 5.5);
    p.drawLine(area.center(), area.center() + QPointF(0, -3.2));
    p.drawLine(area.center(), area.center() + QPointF(2.4, 1));
}

} // namespace tarnix::art
