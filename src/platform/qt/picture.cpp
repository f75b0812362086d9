#include "picture.h"

#include <QPixmap>
#include <algorithm>

#include "convert.h"

namespace tarnix {

namespace {

QImage paintedQuickly(QImage image) {
    const auto format = image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    image.convertTo(format);
    return image;
}

QImage withKeyTransparent(const QImage& image, Color key) {
    const QRgb keyPixel = qRgb(redOf(key), greenOf(key), blueOf(key));
    QImage keyed = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < keyed.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(keyed.scanLine(y));
        for (int x = 0; x < keyed.width(); ++x) {
            if (row[x] == keyPixel) row[x] = 0;
        }
    }
    return keyed;
}

/// In place of a file that cannot be decoded.
QImage transparent(const BuiltinImage& stored) {
    QImage image(stored.width, stored.height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

} // namespace

const QImage& StoredPixels::pixels() const {
    if (!m_pixels.isNull()) return m_pixels;
    if (m_stored.format == BuiltinImage::Format::Png) {
        m_pixels = paintedQuickly(QImage::fromData(m_stored.data, static_cast<int>(m_stored.size), "PNG"));
        if (m_pixels.size() != QSize(m_stored.width, m_stored.height)) m_pixels = transparent(m_stored);
    } else {
        const auto format = m_stored.opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied;
        m_pixels = QImage(m_stored.data, m_stored.width, m_stored.height, m_stored.width * 4, format);
    }
    return m_pixels;
}

Picture::Picture(QImage pixels, int scale)
    : m_pixels(std::move(pixels)),
      m_scale(scale),
      m_size{m_pixels.width() / scale, m_pixels.height() / scale} {}

Picture::Picture(const BuiltinImage& plain, const BuiltinImage* fine)
    : m_plain(plain), m_scale(plain.scale), m_size{plain.width / plain.scale, plain.height / plain.scale} {
    if (fine) m_fine.emplace(*fine);
}

Color Picture::pixel(Point at) const {
    Color color = 0;
    if (at.y >= 0 && at.y < size().height && at.x >= 0 && at.x < size().width) readColors(at, {&color, 1});
    return color;
}

void Picture::readRow(int y, std::span<Color> colors) const {
    const auto wide = std::min(colors.size(), static_cast<std::size_t>(size().width));
    if (y >= 0 && y < size().height) readColors({0, y}, colors.first(wide));
}

/// The colours from a point to the right; all of them must lie in the picture.
void Picture::readColors(Point from, std::span<Color> colors) const {
    const QImage& image = pixels();
    const auto* stored =
        reinterpret_cast<const QRgb*>(image.constScanLine(from.y * m_scale)) + from.x * m_scale;
    const auto colorOf = [](QRgb plain) { return rgb(qRed(plain), qGreen(plain), qBlue(plain)); };
    if (image.format() == QImage::Format_RGB32 && m_scale == 1) {
        std::transform(stored, stored + colors.size(), colors.begin(), colorOf);
        return;
    }
    const bool opaque = image.format() == QImage::Format_RGB32;
    for (Color& color : colors) {
        color = colorOf(opaque ? *stored : qUnpremultiply(*stored));
        stored += m_scale;
    }
}

Picture::Pixels Picture::pixelsFor(qreal deviceScale) const {
    if (deviceScale > 1 && m_fine) return {m_fine->pixels(), static_cast<qreal>(m_fine->stored().scale)};
    return {pixels(), static_cast<qreal>(m_scale)};
}

Picture::Pixels Picture::keyedFor(qreal deviceScale, Color key) const {
    const Pixels plain = pixelsFor(deviceScale);
    if (!m_keyed || m_keyed->key != key || m_keyed->scale != plain.scale || m_paintedOn)
        m_keyed = Keyed{key, withKeyTransparent(plain.image, key), plain.scale};
    return {m_keyed->image, m_keyed->scale};
}

QImage& Picture::paintablePixels() {
    m_paintedOn = true;
    return m_pixels;
}

const Picture& pictureOf(const Image& image) {
    return static_cast<const Picture&>(image);
}

QIcon iconOf(const Image& image) {
    const Picture& picture = pictureOf(image);
    QIcon icon;
    for (const qreal scale : {1.0, 2.0})
        icon.addPixmap(QPixmap::fromImage(picture.pixelsFor(scale).image));
    return icon;
}

} // namespace tarnix
