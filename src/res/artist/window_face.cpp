#include "artist/window_face.h"

#include "artist/controls.h"
#include "artist/emblem.h"
#include "artist/shapes.h"
#include "ui/main_window_layout.h"

namespace tarnix::art {

namespace {

/// The column that all rows of controls keep to.
constexpr double columnLeft = 53;
constexpr double columnRight = 751;

void paintGround(QPainter& p, const QRectF& window) {
    p.setPen(Qt::NoPen);
    p.setBrush(palette::line);
    p.drawRect(window);
    const QRectF inner = window.adjusted(1, 1, -1, -1);
    p.setBrush(palette::navy);
    p.drawRoundedRect(inner, windowCornerRadius - 1, windowCornerRadius - 1);
    QPainterPath clip;
    clip.addRoundedRect(inner, windowCornerRadius - 1, windowCornerRadius - 1);
    p.save();
    p.setClipPath(clip, Qt::IntersectClip);
    const QRectF head(inner.left(), inner.top(), inner.width(), 165);
    p.fillRect(head, vertical(head, palette::steel, palette::navy));
    p.restore();
}

void paintHead(QPainter& p) {
    setText(p, QRectF(columnLeft, 32, 500, 34), QStringLiteral("Tarnix Keyboard"), Type::Display,
            palette::paper, Qt::AlignLeft);
    setText(p, QRectF(columnLeft, 66, 500, 20), QStringLiteral("Keys, lighting and profiles"), Type::Label,
            palette::mist, Qt::AlignLeft);
    const Rect logo = placeOf(commonControls, id::logoLink);
    paintWordmark(p, rectF(logo));
}

/// The bar with OK, Cancel and Apply.
void paintCommandBar(QPainter& p) {
    const Rect ok = placeOf(commonControls, id::okButton);
    const QRectF bar(columnLeft - 16, ok.top - 8, columnRight - columnLeft + 32, ok.height() + 16);
    plate(p, bar, 9, palette::slate, palette::line);
    setHint(p, commandHint);
}

void paintStage(QPainter& p) {
    const QRectF stage = stageArea();
    plate(p, stage, stageRadius, vertical(stage, palette::stage, palette::abyss),
          mixed(palette::navy, palette::line, 0.6));
}

void paintFoot(QPainter& p) {
    const Rect first = placeOf(commonControls, id::profileTab1);
    const Rect last = placeOf(commonControls, id::profileTab3);
    const QRectF trough(first.left - 3, first.top - 2, last.right - first.left + 6, first.height() + 4);
    well(p, trough, 9, palette::abyss, mixed(palette::navy, palette::line, 0.6));

    const Rect tab = placeOf(commonControls, id::keyPageTab);
    const QRectF heading(first.left, tab.top + 4, last.right - first.left, tab.height() - 4);
    const QString words = QStringLiteral("PROFILE");
    setSpaced(p, heading, words, Type::Caption, palette::mist, 2);
    const double half = textWidth(words, Type::Caption) / 2 + 22;
    p.setPen(QPen(palette::line, 1));
    const double y = heading.center().y() + 0.5;
    p.drawLine(QPointF(heading.left() + 8, y), QPointF(heading.center().x() - half, y));
    p.drawLine(QPointF(heading.center().x() + half, y), QPointF(heading.right() - 8, y));
}

} // namespace

QRectF stageArea() {
    return {columnLeft - 16, 167, columnRight - columnLeft + 32, 313};
}

void paintWindowFace(QPainter& p) {
    paintGround(p, QRectF(0, 0, mainWindowSize.width, mainWindowSize.height));
    paintHead(p);
    paintCommandBar(p);
    paintStage(p);
    paintFoot(p);
}

} // namespace tarnix::art
