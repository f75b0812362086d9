#include "artist/type.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainterPath>
#include <utility>

namespace tarnix::art {

namespace {

constexpr const char* family = "Inter";

std::vector<PlacedLine> g_placed;
int g_illustrations = 0;

struct TypeRow {
    double pixels;
    QFont::Weight weight;
};

TypeRow rowOf(Type type) {
    switch (type) {
        case Type::Display:
            return {25, QFont::Bold};
        case Type::Heading:
            return {16, QFont::DemiBold};
        case Type::Body:
            return {13, QFont::Normal};
        case Type::Label:
            return {13, QFont::Medium};
        case Type::Title:
            return {12, QFont::Normal};
        case Type::Caption:
            return {11.5, QFont::Medium};
        case Type::Button:
            return {13, QFont::DemiBold};
        case Type::Small:
            return {12, QFont::DemiBold};
        case Type::Legend:
            return {11, QFont::DemiBold};
        case Type::LegendNumber:
            return {9.5, QFont::DemiBold};
        case Type::LegendTwo:
            return {9, QFont::Bold};
        case Type::LegendSign:
            return {13, QFont::Bold};
        case Type::LegendWide:
            return {8.5, QFont::DemiBold};
        case Type::LegendWord:
            return {7.5, QFont::Medium};
    }
    return {13, QFont::Normal};
}

void setLine(QPainter& p, const QRectF& area, const QString& text, const QFont& font, const QColor& color,
             Qt::Alignment horizontal, double trailing) {
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance(text) - trailing;
    double x = area.left();
    if (horizontal & Qt::AlignHCenter)
        x += (area.width() - width) / 2;
    else if (horizontal & Qt::AlignRight)
        x += area.width() - width;
    const double baseline = area.center().y() + metrics.capHeight() / 2;
    QPainterPath outline;
    outline.addText(0, 0, font, text);
    const QRectF shape = outline.boundingRect();
    // A single letter's or sign's stem is sharp where it begins with a pixel.
    const double grid = text.size() == 1 ? p.combinedTransform().m11() : 2;
    const double shift = text.size() == 1 ? shape.left() : 0;
    const QPointF origin(qRound((x + shift) * grid) / grid - shift, qRound(baseline));
    p.setFont(font);
    p.setPen(color);
    p.drawText(origin, text);
    if (g_illustrations == 0)
        g_placed.push_back({p.combinedTransform().mapRect(shape.translated(origin)), text});
}

} // namespace

bool typeAvailable() {
    return QFontInfo(typeFace(Type::Body)).family() == QLatin1String(family);
}

QString typeRequirement() {
    return QStringLiteral("The font family \"%1\" is not installed (Debian package fonts-inter)")
        .arg(QLatin1String(family));
}

QFont typeFace(Type type) {
    const TypeRow row = rowOf(type);
    QFont font(QString::fromLatin1(family));
    // Pictures are painted at 96 dots an inch, so that a point is 4/3 of a pixel.
    font.setPointSizeF(row.pixels * 72 / 96);
    font.setWeight(row.weight);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    font.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return font;
}

void setText(QPainter& p, const QRectF& area, const QString& text, Type type, const QColor& color,
             Qt::Alignment horizontal) {
    setLine(p, area, text, typeFace(type), color, horizontal, 0);
}

void setSpaced(QPainter& p, const QRectF& area, const QString& text, Type type, const QColor& color,
               double spacing, Qt::Alignment horizontal) {
    QFont font = typeFace(type);
    font.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    setLine(p, area, text, font, color, horizontal, spacing);
}

void setFitted(QPainter& p, const QRectF& area, const QString& text, Type type, const QColor& color,
               const QString& beside) {
    QFont font = typeFace(type);
    const QFontMetricsF metrics(font);
    const double width = std::max(metrics.horizontalAdvance(text), metrics.horizontalAdvance(beside));
    if (width > area.width()) font.setPointSizeF(font.pointSizeF() * area.width() / width);
    setLine(p, area, text, font, color, Qt::AlignHCenter, 0);
}

Illustration::Illustration() {
    ++g_illustrations;
}

Illustration::~Illustration() {
    --g_illustrations;
}

std::vector<PlacedLine> takePlacedLines() {
    return std::exchange(g_placed, {});
}

double textWidth(const QString& text, Type type) {
    return QFontMetricsF(typeFace(type)).horizontalAdvance(text);
}

} // namespace tarnix::art
