#include "artist/sheet.h"

#include <algorithm>
#include <cmath>

#include "artist/palette.h"

namespace tarnix::art {

namespace {

/// Whether a pixel lies inside a rectangle with rounded corners, by its centre.
bool insideRounded(int x, int y, Size size, double radius) {
    const double dx = std::max({radius - (x + 0.5), (x + 0.5) - (size.width - radius), 0.0});
    const double dy = std::max({radius - (y + 0.5), (y + 0.5) - (size.height - radius), 0.0});
    return std::hypot(dx, dy) <= radius;
}

} // namespace

ScaledPainter::ScaledPainter(QImage& image, int scale) : m_painter(&image) {
    m_painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                             QPainter::SmoothPixmapTransform);
    m_painter.scale(scale, scale);
}

Sheet::Sheet(int scale) : m_scale(scale) {}

QImage Sheet::blank(Size size) const {
    QImage image(size.width * m_scale, size.height * m_scale, QImage::Format_ARGB32_Premultiplied);
    constexpr int dotsPerMeter96 = 3780;
    image.setDotsPerMeterX(dotsPerMeter96);
    image.setDotsPerMeterY(dotsPerMeter96);
    image.fill(Qt::transparent);
    return image;
}

bool Sheet::has(ResourceType type, unsigned id) const {
    return std::any_of(m_pictures.begin(), m_pictures.end(),
                       [=](const Picture& picture) { return picture.type == type && picture.id == id; });
}

void Sheet::add(ResourceType type, unsigned id, const QImage& pixels) {
    std::vector<PlacedLine> lines = takePlacedLines();
    std::erase_if(lines, [&pixels](const PlacedLine& line) { return !line.area.intersects(pixels.rect()); });
    m_pictures.push_back({type, id, m_scale, pixels, std::move(lines)});
}

void Sheet::strip(unsigned id, Size frame, int frames, const PaintFrame& paint) {
    if (has(ResourceType::Png, id)) return;
    QImage image = blank({frame.width * frames, frame.height});
    {
        ScaledPainter painter(image, m_scale);
        for (int i = 0; i < frames; ++i) {
            const QRectF area(i * frame.width, 0, frame.width, frame.height);
            painter->save();
            painter->setClipRect(area);
            paint(painter, area, i);
            painter->restore();
        }
    }
    add(ResourceType::Png, id, image);
}

void Sheet::face(unsigned id, Size size, const Paint& paint) {
    QImage image = blank(size);
    image.fill(palette::navy);
    {
        ScaledPainter painter(image, m_scale);
        paint(painter);
    }
    add(ResourceType::Bitmap, id, image.convertToFormat(QImage::Format_RGB32));
}

void Sheet::shapedFace(unsigned id, Size size, double radius, const Paint& paint) {
    face(id, size, paint);
    QImage& image = m_pictures.back().pixels;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (!insideRounded(x / m_scale, y / m_scale, size, radius))
                image.setPixelColor(x, y, palette::outside);
}

void Sheet::keyedStrip(unsigned id, Size frame, const QColor& ground, const QColor& key,
                       const PaintFrame& paint) {
    keyedStrip(id, frame, {frame.width * 3, frame.height}, ground, key, paint);
}

void Sheet::keyedStrip(unsigned id, Size frame, Size picture, const QColor& ground, const QColor& key,
                       const PaintFrame& paint) {
    if (has(ResourceType::Bitmap, id)) return;
    QImage drawn = blank(picture);
    {
        ScaledPainter painter(drawn, m_scale);
        for (int i = 0; i < 3; ++i) {
            const QRectF area(i * frame.width, 0, frame.width, frame.height);
            painter->save();
            painter->setClipRect(area);
            paint(painter, area, i);
            painter->restore();
        }
    }
    QImage image(drawn.size(), QImage::Format_RGB32);
    image.fill(ground);
    {
        QPainter painter(&image);
        painter.drawImage(0, 0, drawn);
    }
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(drawn.pixel(x, y)) == 0) image.setPixelColor(x, y, key);
    add(ResourceType::Bitmap, id, image);
}

void Sheet::icon(unsigned id, Size size, const Paint& paint) {
    QImage image = blank(size);
    {
        ScaledPainter painter(image, m_scale);
        paint(painter);
    }
    add(ResourceType::Icon, id, image);
}

} // namespace tarnix::art
