// What the artist has painted so far, at one scale.
#pragma once

#include <QImage>
#include <QPainter>
#include <functional>
#include <vector>

#include "artist/type.h"
#include "platform/geometry.h"
#include "platform/resources.h"

namespace tarnix::art {

struct Picture {
    ResourceType type = ResourceType::Png;
    unsigned id = 0;
    int scale = 1;
    QImage pixels;
    std::vector<PlacedLine> lines = {}; ///< what can be read in it
};

class Sheet {
  public:
    using Paint = std::function<void(QPainter&)>;
    using PaintFrame = std::function<void(QPainter&, const QRectF& frame, int index)>;

    /// Pictures get `scale` pixels for one at 100 %; painting is always in pixels at 100 %.
    explicit Sheet(int scale);

    /// Frames side by side, with alpha. A number that is there already keeps its first picture: several
    /// controls share one strip.
    void strip(unsigned id, Size frame, int frames, const PaintFrame& paint);
    /// A background without transparency.
    void face(unsigned id, Size size, const Paint& paint);
    /// A background that is also its window's outline: beyond rounded corners it is pure yellow. The corners
    /// are cut in whole pixels at 100 %, as the outline is.
    void shapedFace(unsigned id, Size size, double radius, const Paint& paint);
    /// Three frames of a bitmap strip: soft edges are painted over `ground`, what stays empty gets the colour
    /// `key`.
    void keyedStrip(unsigned id, Size frame, const QColor& ground, const QColor& key,
                    const PaintFrame& paint);
    /// The same in a picture that is larger than its frames.
    void keyedStrip(unsigned id, Size frame, Size picture, const QColor& ground, const QColor& key,
                    const PaintFrame& paint);
    void icon(unsigned id, Size size, const Paint& paint);

    const std::vector<Picture>& pictures() const { return m_pictures; }

  private:
    QImage blank(Size size) const;
    bool has(ResourceType type, unsigned id) const;
    void add(ResourceType type, unsigned id, const QImage& pixels);

    int m_scale;
    std::vector<Picture> m_pictures;
};

/// A painter for an image at a scale, smooth, in coordinates at 100 %.
class ScaledPainter {
  public:
    ScaledPainter(QImage& image, int scale);
    operator QPainter&() { return m_painter; }
    QPainter* operator->() { return &m_painter; }

  private:
    QPainter m_painter;
};

} // namespace tarnix::art
