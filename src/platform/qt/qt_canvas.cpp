#include "qt_canvas.h"

#include <QGuiApplication>
#include <QPaintDevice>
#include <QPainter>
#include <QStaticText>
#include <cmath>

#include "convert.h"
#include "fonts.h"
#include "picture.h"
#include "text_decoding.h"

namespace tarnix {

namespace {

QRectF scaled(const Rect& rect, qreal scale) {
    return {rect.left * scale, rect.top * scale, rect.width() * scale, rect.height() * scale};
}

class PaintedPicture : public Surface {
  public:
    PaintedPicture(Size size, int scale)
        : m_picture(blackImage(size, scale), scale), m_painter(&m_picture.paintablePixels()) {}
    ~PaintedPicture() override { m_painter.end(); }
    Canvas& canvas() override { return m_canvas; }
    const Image& image() const override { return m_picture; }

  private:
    static QImage blackImage(Size size, int scale) {
        QImage image(std::max(size.width, 1) * scale, std::max(size.height, 1) * scale, QImage::Format_RGB32);
        image.fill(Qt::black);
        image.setDevicePixelRatio(scale);
        return image;
    }

    Picture m_picture;
    QPainter m_painter;
    QtCanvas m_canvas{m_painter};
};

/// The line is laid out once; from the four corners it leaves an edge on all sides.
void drawEdged(QPainter& painter, const FittedLine& line, QPoint corner, const TextFormat& format) {
    QStaticText letters(line.text);
    letters.setTextFormat(Qt::PlainText);
    letters.prepare(painter.transform(), line.font);
    painter.setPen(toQt(*format.edge));
    for (const QPoint offset : {QPoint(-1, -1), QPoint(1, -1), QPoint(-1, 1), QPoint(1, 1)})
        painter.drawStaticText(corner + offset, letters);
    painter.setPen(toQt(format.color));
    painter.drawStaticText(corner, letters);
}

} // namespace

QtCanvas::QtCanvas(QPainter& painter) : m_painter(painter) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
}

double QtCanvas::deviceScale() const {
    return m_painter.device()->devicePixelRatio();
}

void QtCanvas::copy(const QImage& pixels, const QRectF& source, const Rect& target) {
    const qreal device = deviceScale();
    const QRectF place = scaled(target, device);
    if (device == 1 || place.size() != source.size()) {
        m_painter.drawImage(QRectF(toQt(target)), pixels, source);
        return;
    }
    // Pixel by pixel the copy is many times faster than through the toolkit's scaling up and down.
    m_painter.setWorldTransform(QTransform::fromScale(1 / device, 1 / device));
    m_painter.drawImage(place, pixels, source);
    m_painter.resetTransform();
}

void QtCanvas::fill(const Rect& area, Color color) {
    if (!area.empty()) m_painter.fillRect(toQt(area), toQt(color));
}

void QtCanvas::draw(const Image& image, const Rect& source, const Rect& target, int opacity) {
    if (source.empty() || target.empty() || opacity <= 0) return;
    const auto [pixels, scale] = pictureOf(image).pixelsFor(deviceScale());
    if (opacity < 255) m_painter.setOpacity(opacity / 255.0);
    copy(pixels, scaled(source, scale), target);
    if (opacity < 255) m_painter.setOpacity(1);
}

void QtCanvas::drawKeyed(const Image& image, const Rect& source, Point target, Color key) {
    if (source.empty()) return;
    const auto [pixels, scale] = pictureOf(image).keyedFor(deviceScale(), key);
    copy(pixels, scaled(source, scale), Rect::at(target.x, target.y, source.width(), source.height()));
}

void QtCanvas::drawText(std::string_view text, const Rect& area, const TextFormat& format) {
    if (area.empty() || text.empty()) return;
    const FittedLine line = fitLine(decodeText(text), area.width(), format);
    const int slack = area.height() - line.height;
    const int top = area.top + (format.verticalCentred ? (slack >= 0 ? slack / 2 : (slack - 1) / 2) : 0);
    const int left = area.left + (format.centred ? std::max(0, (area.width() - line.width) / 2) : 0);
    m_painter.save();
    m_painter.setClipRect(toQt(format.edge ? area.inset(-1) : area), Qt::IntersectClip);
    m_painter.setFont(line.font);
    if (format.edge) {
        drawEdged(m_painter, line, QPoint(left, top), format);
    } else {
        m_painter.setPen(toQt(format.color));
        m_painter.drawText(QPoint(left, top + line.ascent), line.text);
    }
    m_painter.restore();
}

std::unique_ptr<Surface> makeSurface(Size size) {
    const qreal finest = qGuiApp ? qGuiApp->devicePixelRatio() : 1;
    return std::make_unique<PaintedPicture>(size, static_cast<int>(std::ceil(finest)));
}

} // namespace tarnix
