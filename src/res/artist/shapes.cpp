#include "artist/shapes.h"

#include <cmath>

namespace tarnix::art {

QColor withAlpha(QColor color, int alpha) {
    color.setAlpha(alpha);
    return color;
}

QColor mixed(const QColor& a, const QColor& b, double share) {
    const auto mix = [share](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * share)); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

QLinearGradient vertical(const QRectF& area, const QColor& top, const QColor& bottom) {
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    return gradient;
}

void plate(QPainter& p, const QRectF& area, double radius, const QBrush& fill, const QColor& edge) {
    p.setPen(Qt::NoPen);
    p.setBrush(edge);
    p.drawRoundedRect(area, radius, radius);
    p.setBrush(fill);
    p.drawRoundedRect(area.adjusted(1, 1, -1, -1), radius - 1, radius - 1);
}

void well(QPainter& p, const QRectF& area, double radius, const QColor& fill, const QColor& edge) {
    plate(p, area, radius, fill, edge);
    QPainterPath inside;
    inside.addRoundedRect(area.adjusted(1, 1, -1, -1), radius - 1, radius - 1);
    p.save();
    p.setClipPath(inside, Qt::IntersectClip);
    const QRectF shade(area.left(), area.top(), area.width(), 5);
    p.fillRect(shade, vertical(shade, QColor(0, 0, 0, 110), QColor(0, 0, 0, 0)));
    p.restore();
}

void glow(QPainter& p, const QRectF& area, double radius, const QColor& color, double reach, int strength) {
    const int steps = std::max(4, static_cast<int>(reach));
    p.setBrush(Qt::NoBrush);
    for (int i = 0; i < steps; ++i) {
        const double share = (i + 0.5) / steps;
        const double out = reach * share;
        const double fade = (1 - share) * (1 - share);
        p.setPen(QPen(withAlpha(color, static_cast<int>(strength * fade)), reach / steps + 0.5));
        p.drawRoundedRect(area.adjusted(-out, -out, out, out), radius + out, radius + out);
    }
}

namespace {

struct ButtonColors {
    QColor top, bottom, edge, word;
};

ButtonColors colorsOf(ButtonLook look, Frame frame) {
    using namespace palette;
    if (look == ButtonLook::Main) {
        if (frame == Frame::Rest) return {mixed(sage, sageLight, 0.45), sage, sageLight, ink};
        if (frame == Frame::Hover) return {springLight, spring, springLight, ink};
        return {springDeep, mixed(springDeep, spring, 0.35), springDeep, ink};
    }
    if (look == ButtonLook::Careful) {
        if (frame == Frame::Rest) return {navy, navy, line, mist};
        if (frame == Frame::Hover) return {mixed(navy, warm, 0.18), mixed(navy, warm, 0.1), warm, warm};
        return {abyss, abyss, mixed(navy, warm, 0.6), warm};
    }
    if (look == ButtonLook::Tab && frame == Frame::Pressed) return {springLight, spring, springLight, ink};
    if (frame == Frame::Rest) return {steel, slate, line, paper};
    if (frame == Frame::Hover) return {mixed(moss, mossDeep, 0.55), mossDeep, sage, paper};
    return {mossDark, mossDark, moss, paper};
}

} // namespace

void button(QPainter& p, const QRectF& area, const QString& word, ButtonLook look, Frame frame, Type type,
            double margin) {
    const ButtonColors colors = colorsOf(look, frame);
    const QRectF body = area.adjusted(margin, margin, -margin, -margin);
    const double radius = std::min(7.0, body.height() / 4);
    if (look == ButtonLook::Tab && frame == Frame::Pressed)
        glow(p, body, radius, palette::spring, margin, 90);
    plate(p, body, radius, vertical(body, colors.top, colors.bottom), colors.edge);
    const bool sunk = frame == Frame::Pressed && look != ButtonLook::Tab;
    if (sunk) {
        const QRectF shade(body.left() + 2, body.top() + 1, body.width() - 4, 4);
        p.fillRect(shade, vertical(shade, QColor(0, 0, 0, 70), QColor(0, 0, 0, 0)));
    }
    setText(p, body.translated(0, sunk ? 1 : 0), word, type, colors.word);
}

void cross(QPainter& p, const QPointF& centre, double reach, double width, const QColor& color) {
    p.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(centre + QPointF(-reach, -reach), centre + QPointF(reach, reach));
    p.drawLine(centre + QPointF(-reach, reach), centre + QPointF(reach, -reach));
}

void tick(QPainter& p, const QRectF& box, double width, const QColor& color) {
    p.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    QPainterPath path(box.topLeft() + QPointF(box.width() * 0.2, box.height() * 0.52));
    path.lineTo(box.left() + box.width() * 0.42, box.top() + box.height() * 0.74);
    path.lineTo(box.left() + box.width() * 0.8, box.top() + box.height() * 0.28);
    p.drawPath(path);
}

namespace {

double angleOf(Direction direction) {
    switch (direction) {
        case Direction::Up:
            return -90;
        case Direction::Down:
            return 90;
        case Direction::Left:
            return 180;
        case Direction::Right:
            return 0;
    }
    return 0;
}

} // namespace

void chevron(QPainter& p, const QPointF& centre, double reach, Direction direction, double width,
             const QColor& color) {
    p.save();
    p.translate(centre);
    p.rotate(angleOf(direction));
    p.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    QPainterPath path(QPointF(-reach / 2, -reach));
    path.lineTo(reach / 2, 0);
    path.lineTo(-reach / 2, reach);
    p.drawPath(path);
    p.restore();
}

void arrow(QPainter& p, const QPointF& centre, double length, Direction direction, double width,
           const QColor& color) {
    p.save();
    p.translate(centre);
    p.rotate(angleOf(direction));
    p.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    const double half = length / 2;
    const double head = std::min(half, 3.2);
    p.drawLine(QPointF(-half, 0), QPointF(half, 0));
    QPainterPath path(QPointF(half - head, -head));
    path.lineTo(half, 0);
    path.lineTo(half - head, head);
    p.drawPath(path);
    p.restore();
}

} // namespace tarnix::art
