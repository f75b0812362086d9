// Pictures in the toolkit's memory.
#pragma once

#include <QIcon>
#include <QImage>
#include <optional>
#include <utility>

#include "platform/builtin_resources.h"
#include "platform/canvas.h"

namespace tarnix {

/// A stored picture that is decoded when its pixels are asked for: a window's controls know the sizes of
/// their pictures at once, and most of them are never painted at that fineness.
class StoredPixels {
  public:
    explicit StoredPixels(const BuiltinImage& stored) : m_stored(stored) {}

    const BuiltinImage& stored() const { return m_stored; }
    const QImage& pixels() const;

  private:
    BuiltinImage m_stored;
    mutable QImage m_pixels;
};

/// Pixels at one or two finenesses. The only kind of Image that there is.
class Picture : public Image {
  public:
    /// `pixels` at `scale` stored pixels for one at 100 %, for painting on.
    Picture(QImage pixels, int scale);
    /// A stored picture, and the same at twice the fineness or none.
    Picture(const BuiltinImage& plain, const BuiltinImage* fine);

    Size size() const override { return m_size; }
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

    const QImage& pixels() const { return m_plain ? m_plain->pixels() : m_pixels; }

    std::optional<StoredPixels> m_plain; ///< else the pixels below
    std::optional<StoredPixels> m_fine;
    QImage m_pixels;
    int m_scale;
    Size m_size;
    bool m_paintedOn = false;
    mutable std::optional<Keyed> m_keyed; ///< of the last keyed copy
};

const Picture& pictureOf(const Image& image);
QIcon iconOf(const Image& image);

} // namespace tarnix
