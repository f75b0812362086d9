#include "artist/keyboard.h"

#include <algorithm>
#include <array>

#include "artist/caps.h"
#include "artist/shapes.h"

namespace tarnix::art {

namespace {

/// The keyboard's own function layer key: in the picture, but no cap that can be changed.
constexpr Rect layerKey = Rect::at(401, 374, 33, 26);

/// Blocks of keys that share a well, by the corners of what they cover.
constexpr std::array<Rect, 10> blocks{{
    Rect{74, 218, 102, 245},
    Rect{133, 218, 248, 245},
    Rect{264, 218, 377, 245},
    Rect{394, 218, 507, 245},
    Rect{519, 218, 603, 245},
    Rect{75, 257, 507, 400},
    Rect{519, 257, 603, 313},
    Rect{548, 345, 574, 400},
    Rect{519, 374, 603, 400},
    Rect{616, 257, 731, 400},
}};

QRectF caseArea() {
    return rectF(capsExtent()).adjusted(-20, -23, 20, 22);
}

void paintShell(QPainter& p, const QRectF& shell) {
    const QRectF front = shell.adjusted(0, 12, 0, 9);
    plate(p, front, 15, vertical(front, palette::slate, palette::abyss), palette::abyss);
    plate(p, shell, 15, vertical(shell, palette::line, mixed(palette::slate, palette::steel, 0.4)),
          palette::lineBright);
    const QRectF top = shell.adjusted(5, 5, -5, -5);
    plate(p, top, 11, vertical(top, palette::steel, palette::slate),
          mixed(palette::steel, palette::navy, 0.5));
}

void paintWells(QPainter& p) {
    QPainterPath hollow;
    hollow.setFillRule(Qt::WindingFill);
    for (const Rect& block : blocks)
        hollow.addRoundedRect(rectF(block).adjusted(-4, -4, 4, 4), 6, 6);
    hollow = hollow.simplified();
    p.setPen(QPen(palette::line, 1));
    p.setBrush(palette::abyss);
    p.drawPath(hollow.translated(0, 0.75));
    p.setPen(QPen(palette::abyss, 1));
    p.drawPath(hollow);
}

void paintBadge(QPainter& p) {
    const QRectF badge(616, 218, 115, 27);
    setSpaced(p, badge, QStringLiteral("TARNIX"), Type::Small, palette::sage, 4);
}

/// The caps' light on the desk around the case, one soft spot beside the other.
template <typename HueAt>
void paintDeskLight(QPainter& p, const QRectF& shell, const HueAt& hueAt) {
    constexpr int spots = 24;
    constexpr double reach = 120;
    p.setPen(Qt::NoPen);
    for (int i = 0; i < spots; ++i) {
        const double x = shell.left() + shell.width() * (i + 0.5) / spots;
        const QColor hue = hueAt(QPointF(x, shell.center().y()));
        for (const double y : {shell.top() + 34, shell.bottom() - 16}) {
            QRadialGradient light(QPointF(x, y), reach);
            light.setColorAt(0, withAlpha(hue, 34));
            light.setColorAt(0.5, withAlpha(hue, 12));
            light.setColorAt(1, withAlpha(hue, 0));
            p.setBrush(light);
            p.drawEllipse(QPointF(x, y), reach, reach);
        }
    }
}

} // namespace

Rect capsExtent() {
    Rect extent{mainWindowSize.width, mainWindowSize.height, 0, 0};
    for (const ControlRow& cap : keyCaps) {
        if (!capIsShown(cap)) continue;
        extent.left = std::min(extent.left, cap.rect.left);
        extent.top = std::min(extent.top, cap.rect.top);
        extent.right = std::max(extent.right, cap.rect.right);
        extent.bottom = std::max(extent.bottom, cap.rect.bottom);
    }
    return extent;
}

void paintCase(QPainter& p) {
    const QRectF shell = caseArea();
    glow(p, shell.adjusted(4, 10, -4, 8), 15, palette::sky, 34, 46);
    paintShell(p, shell);
    paintWells(p);
    paintBadge(p);
    constexpr CapLegend layerLegend{"Fn", "Fn", "", CapSign::None, CapTone::Function};
    p.setOpacity(0.75);
    paintCap(p, rectF(layerKey), layerLegend, Frame::Rest);
    p.setOpacity(1);
}

void paintRestingKeyboard(QPainter& p) {
    paintCase(p);
    for (const ControlRow& cap : keyCaps)
        if (capIsShown(cap)) paintCap(p, rectF(cap.rect), legendOf(cap.text), Frame::Rest);
}

void paintLitKeyboard(QPainter& p) {
    const QRectF shell = caseArea();
    const Rect extent = capsExtent();
    const auto hueAt = [&extent](const QPointF& at) {
        const double along = (at.x() - extent.left + (at.y() - extent.top) * 0.35) / (extent.width() * 1.1);
        return QColor::fromHsvF(static_cast<float>(std::clamp(along, 0.0, 1.0) * 0.86), 0.72F, 1.0F);
    };
    paintDeskLight(p, shell, hueAt);
    paintShell(p, shell);
    paintWells(p);
    paintBadge(p);
    for (const ControlRow& cap : keyCaps)
        if (capIsShown(cap))
            paintLitCap(p, rectF(cap.rect), legendOf(cap.text), hueAt(rectF(cap.rect).center()));
    constexpr CapLegend layerLegend{"Fn", "Fn", "", CapSign::None, CapTone::Function};
    paintLitCap(p, rectF(layerKey), layerLegend, hueAt(rectF(layerKey).center()));
}

} // namespace tarnix::art
