// Pictures in the toolkit's memory.
#pragma once

#include <QIcon>
#include <QImage>
#include <optional>
#include <utility>

#include "platform/canvas.h"

namespace tarnix {

/// Pixels at one or two finenesses. The only kind of Image that there is.
class Picture : public Image {
  public:
    /// `pixels` at `scale` stored pixels for one at 100 %.
    explicit Picture(QImage pixels, int scale = 1);
    /// Adds the same picture at twice the fineness.
    void addFiner(QImage pixels);

    Size size() const override;
    Color pixel(Point at) const override;
    void readRow(int y, std::span<Color> colors) const override;

    struct Pixels {
        const QImage& image;
        qreal scale; ///< stored pixels for one at 100 %
    };
    /// The stored pixels that suit a screen with this many device pixels for one at 100 %.
    Pixels pixelsFor(qreal deviceScale) const;
    /// `pixelsFor` with every pixel of the key colour transparent.
    Pixels keyedFor(qreal deviceScale, Color key) const;

    /// For painting on the picture, at any time from now on.
    QImage& paintablePixels();

  private:
    void readColors(Point from, std::span<Color> colors) const;

    struct Keyed {
        Color key;
        QImage image;
        qreal scale;
    };

    QImage m_pixels;
    QImage m_finer; ///< null when there is none
    int m_scale;
    bool m_paintedOn = false;
    mutable std::optional<Keyed> m_keyed; ///< of the last keyed copy
};

const Picture& pictureOf(const Image& image);
QIcon iconOf(const Image& image);

} // namespace tarnix
