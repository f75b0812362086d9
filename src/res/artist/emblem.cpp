#include "artist/emblem.h"

#include <QTextStream>
#include <array>

#include "artist/shapes.h"

namespace tarnix::art {

namespace {

struct Block {
    double x, y, width, height, radius;
    QColor top, bottom;
};

/// On a grid of 64; every edge that shows at 16 pixels lies on a multiple of 4.
constexpr double grid = 64;
constexpr std::array<Block, 6> blocks{{
    {0, 4, 64, 60, 15, palette::sky, {24, 84, 168}},               // the light below the cap
    {0, 0, 64, 60, 15, {20, 38, 74}, palette::navy},               // its skirt
    {6, 2, 52, 48, 11, palette::springLight, palette::springDeep}, // the rim of its face
    {8, 4, 48, 44, 9, palette::springLight, palette::spring},      // its face
    {16, 12, 32, 8, 2, palette::navy, palette::navy},              // the T
    {28, 12, 8, 28, 2, palette::navy, palette::navy},
}};

} // namespace

void paintEmblem(QPainter& p, const QRectF& area) {
    p.save();
    p.translate(area.topLeft());
    p.scale(area.width() / grid, area.height() / grid);
    p.setPen(Qt::NoPen);
    for (const Block& block : blocks) {
        const QRectF box(block.x, block.y, block.width, block.height);
        p.setBrush(vertical(box, block.top, block.bottom));
        p.drawRoundedRect(box, block.radius, block.radius);
    }
    p.restore();
}

QString emblemAsSvg() {
    QString document;
    QTextStream out(&document);
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"256\" height=\"256\" viewBox=\"0 0 64 "
           "64\">\n<defs>\n";
    for (std::size_t i = 0; i < blocks.size(); ++i)
        out << "<linearGradient id=\"g" << i << "\" x1=\"0\" y1=\"0\" x2=\"0\" y2=\"1\"><stop stop-color=\""
            << blocks[i].top.name() << "\"/><stop offset=\"1\" stop-color=\"" << blocks[i].bottom.name()
            << "\"/></linearGradient>\n";
    out << "</defs>\n";
    for (std::size_t i = 0; i < blocks.size(); ++i)
        out << "<rect x=\"" << blocks[i].x << "\" y=\"" << blocks[i].y << "\" width=\"" << blocks[i].width
            << "\" height=\"" << blocks[i].height << "\" rx=\"" << blocks[i].radius << "\" fill=\"url(#g" << i
            << ")\"/>\n";
    out << "</svg>\n";
    return document;
}

void paintWordmark(QPainter& p, const QRectF& area) {
    constexpr double emblemSize = 44;
    const QRectF emblem(area.center().x() - emblemSize / 2, area.top() + 12, emblemSize, emblemSize);
    glow(p, emblem, 11, palette::sky, 14, 60);
    paintEmblem(p, emblem);
    setSpaced(p, QRectF(area.left(), emblem.bottom() + 9, area.width(), 18), QStringLiteral("TARNIX"),
              Type::Heading, palette::paper, 4);
}

} // namespace tarnix::art
