#include "window_shape.h"

#include <QRegion>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <vector>

#include "convert.h"
#include "x11.h"

namespace tarnix {

namespace {

/// The part of one row of the region, whose rectangles are sorted by rows.
QRegion rowOf(const QRegion& region, int y) {
    return region & QRect(region.boundingRect().left(), y, region.boundingRect().width(), 1);
}

/// The device pixels of a screen at a fractional scale that show nothing of what lies outside the region.
/// Such a pixel mixes the pixels around it, and beyond the outline there may be any colour; the window's own
/// edges are not mixed.
class FractionalShape {
  public:
    FractionalShape(const QRegion& region, QSize window, qreal scale)
        : m_region(region), m_window(window), m_scale(scale) {}

    std::vector<QRect> rows() const {
        std::vector<QRect> rows;
        const int height = static_cast<int>(std::ceil(m_window.height() * m_scale));
        for (int y = 0; y < height; ++y) {
            const qreal centre = (y + 0.5) / m_scale;
            const QRegion above = rowOf(m_region, std::max(0, qFloor(centre - 0.5)));
            const QRegion below = rowOf(m_region, std::min(m_window.height() - 1, qFloor(centre + 0.5)));
            for (const QRect& part :
                 above& below.translated(0, above.boundingRect().y() - below.boundingRect().y())) {
                const int left = part.left() == 0 ? 0 : qCeil((part.left() + 0.5) * m_scale - 0.5);
                const int right = part.right() + 1 == m_window.width()
                                      ? qCeil(m_window.width() * m_scale)
                                      : qCeil((part.right() + 0.5) * m_scale - 0.5);
                if (left < right) rows.emplace_back(left, y, right - left, 1);
            }
        }
        return rows;
    }

  private:
    const QRegion& m_region;
    QSize m_window;
    qreal m_scale;
};

} // namespace

void shapeWindow(QWidget& widget, std::span<const Rect> outline) {
    QRegion region;
    for (const Rect& part : outline)
        region += toQt(part);
    region &= widget.rect();
    const qreal scale = widget.devicePixelRatio();
    const bool fractional = scale != std::floor(scale);
    if (fractional && setNativeShape(widget, FractionalShape(region, widget.size(), scale).rows())) return;
    widget.setMask(region);
}

} // namespace tarnix
