// Colours, pictures and the surface that windows and controls paint on.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "platform/geometry.h"

namespace tarnix {

/// A colour as 0x00BBGGRR (the Win32 COLORREF layout).
using Color = std::uint32_t;

constexpr Color rgb(int red, int green, int blue) {
    return static_cast<Color>(red | (green << 8) | (blue << 16));
}
constexpr int redOf(Color c) {
    return static_cast<int>(c & 0xFF);
}
constexpr int greenOf(Color c) {
    return static_cast<int>((c >> 8) & 0xFF);
}
constexpr int blueOf(Color c) {
    return static_cast<int>((c >> 16) & 0xFF);
}

/// A picture that never changes. It may hold finer pixels for screens above 100 %; sizes and coordinates are
/// always those at 100 %. Made by this layer alone: resources, surfaces.
class Image {
  public:
    virtual ~Image() = default;
    virtual Size size() const = 0;
    /// The colour at a point, its alpha left out; black outside the picture.
    virtual Color pixel(Point at) const = 0;
    /// Puts the colours of row `y` into `colors` from the left, each as `pixel` gives it, as many as there
    /// are.
    virtual void readRow(int y, std::span<Color> colors) const = 0;
};

/// How a line of text is set.
struct TextFormat {
    int height = 0;   ///< pixels from ascender to descender; 0 leaves the choice to the platform
    int weight = 400; ///< 400 normal, 700 bold
    Color color = 0;
    bool centred = false;         ///< else flush left
    bool verticalCentred = false; ///< else flush top
    bool shrinks = false;         ///< a line that does not fit is set smaller, as long as it can be read
    bool ellipsis = true;         ///< a line that does not fit even so ends in an ellipsis
    std::optional<Color> edge{};  ///< drawn one pixel wide round the letters
};

/// What is painted on, in the coordinates of its window or picture. All operations are clipped.
class Canvas {
  public:
    virtual ~Canvas() = default;

    virtual void fill(const Rect& area, Color color) = 0;
    /// Copies `source` of the image over `target`, stretched to it, with per-pixel alpha. `opacity` (0 to
    /// 255) weakens the whole copy.
    virtual void draw(const Image& image, const Rect& source, const Rect& target, int opacity = 255) = 0;
    /// Copies `source` at its own size to `target`, leaving out every pixel of the key colour.
    virtual void drawKeyed(const Image& image, const Rect& source, Point target, Color key) = 0;
    /// One line of text. The bytes are decoded as UTF-8 where all of them are valid UTF-8, else as GB18030.
    virtual void drawText(std::string_view text, const Rect& area, const TextFormat& format) = 0;
};

/// A picture that can be painted on: off-screen backgrounds, and tests that look at pixels.
class Surface {
  public:
    virtual ~Surface() = default;
    virtual Canvas& canvas() = 0;
    /// What has been painted so far; lives as long as the surface and shows later painting too.
    virtual const Image& image() const = 0;
};

/// A surface of the given size, black at first. Never none.
std::unique_ptr<Surface> makeSurface(Size size);

} // namespace tarnix
