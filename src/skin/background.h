// The picture behind the controls of a window, and the outline that a picture gives to a window.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "platform/canvas.h"

namespace tarnix {

/// A bitmap that is copied to a window's top left corner. Where the window is larger than the bitmap in
/// either direction, the bitmap's right and bottom edges dissolve into its average colour, which fills the
/// rest.
class Background {
  public:
    /// The bitmap must outlive the background.
    void load(const Image& bitmap, Size window);

    /// The bitmap's average colour. It is worked out when it is first needed, which a bitmap that covers the
    /// window does not.
    Color color() const;
    /// Paints the part of the window within `dirty`.
    void draw(Canvas& canvas, const Rect& dirty) const;

  private:
    void prepareFades(const Image& bitmap);

    Size m_size{100, 100};
    mutable std::optional<Color> m_color; ///< none until it is asked for
    int m_fade = 0;
    const Image* m_bitmap = nullptr;
    const Image* m_picture = nullptr;   ///< what is copied: the bitmap, or the surface's picture
    std::unique_ptr<Surface> m_surface; ///< only with fades
};

/// How wide the soft edge of a bitmap is in a window: 0 where the bitmap covers the window, else at most 100
/// pixels.
int fadeWidthFor(Size window, Size bitmap);
Color averageColor(const Image& bitmap);
/// Everything that is not pure yellow, row by row.
std::vector<Rect> outlineOf(const Image& bitmap);

} // namespace tarnix
