// A canvas over one of the toolkit's painters.
#pragma once

#include "platform/canvas.h"

class QImage;
class QPainter;
class QRectF;

namespace tarnix {

class QtCanvas : public Canvas {
  public:
    /// The painter outlives the canvas.
    explicit QtCanvas(QPainter& painter);

    void fill(const Rect& area, Color color) override;
    void draw(const Image& image, const Rect& source, const Rect& target, int opacity) override;
    void drawKeyed(const Image& image, const Rect& source, Point target, Color key) override;
    void drawText(std::string_view text, const Rect& area, const TextFormat& format) override;

  private:
    double deviceScale() const;
    /// `source` in stored pixels.
    void copy(const QImage& pixels, const QRectF& source, const Rect& target);

    QPainter& m_painter;
};

} // namespace tarnix
