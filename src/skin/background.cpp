#include "skin/background.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tarnix {

namespace {

constexpr Color outsideColor = rgb(255, 255, 0);
constexpr Color colorWithoutBitmap = 0xEFE2BA;
constexpr int widestFade = 100;

} // namespace

int fadeWidthFor(Size window, Size bitmap) {
    if (window.width <= bitmap.width && window.height <= bitmap.height) return 0;
    return std::min({bitmap.width, widestFade, bitmap.height});
}

Color averageColor(const Image& bitmap) {
    const auto [width, height] = bitmap.size();
    std::uint64_t red = 0;
    std::uint64_t green = 0;
    std::uint64_t blue = 0;
    std::vector<Color> row(static_cast<std::size_t>(width));
    for (int y = 0; y < height; ++y) {
        bitmap.readRow(y, row);
        for (Color color : row) {
            red += static_cast<std::uint64_t>(redOf(color));
            green += static_cast<std::uint64_t>(greenOf(color));
            blue += static_cast<std::uint64_t>(blueOf(color));
        }
    }
    const std::uint64_t pixels =
        static_cast<std::uint64_t>(std::max(width, 1)) * static_cast<std::uint64_t>(std::max(height, 1));
    return rgb(static_cast<int>(red / pixels), static_cast<int>(green / pixels),
               static_cast<int>(blue / pixels));
}

std::vector<Rect> outlineOf(const Image& bitmap) {
    const auto [width, height] = bitmap.size();
    std::vector<Rect> outline;
    std::vector<Color> row(static_cast<std::size_t>(width));
    for (int y = 0; y < height; ++y) {
        bitmap.readRow(y, row);
        const auto outside = [](Color color) { return color == outsideColor; };
        for (auto run = row.begin(); run != row.end();) {
            run = std::find_if_not(run, row.end(), outside);
            const auto end = std::find_if(run, row.end(), outside);
            const auto x = [&row](auto place) { return static_cast<int>(place - row.begin()); };
            if (run != end) outline.push_back({x(run), y, x(end), y + 1});
            run = end;
        }
    }
    return outline;
}

void Background::load(const Image& bitmap, Size window) {
    m_size = bitmap.size();
    m_fade = fadeWidthFor(window, m_size);
    m_color.reset();
    m_bitmap = m_picture = &bitmap;
    m_surface.reset();
    if (m_fade > 0) prepareFades(bitmap);
}

Color Background::color() const {
    if (!m_color) m_color = m_bitmap ? averageColor(*m_bitmap) : colorWithoutBitmap;
    return *m_color;
}

void Background::prepareFades(const Image& bitmap) {
    m_surface = makeSurface(m_size);
    m_picture = &m_surface->image();
    Canvas& canvas = m_surface->canvas();
    const auto copy = [&](const Rect& area, double opacity) {
        canvas.draw(bitmap, area, area, static_cast<int>(opacity));
    };
    const auto [width, height] = m_size;
    const int f = m_fade;
    const int right = width - f;
    const int bottom = height - f;

    canvas.fill({0, 0, width, height}, color());
    copy({0, 0, right, bottom}, 255);
    for (int k = 0; k < f; ++k) {
        copy(Rect::at(right + k, 0, 1, bottom), 255 - k * (255.0 / f));
        copy(Rect::at(0, bottom + k, right, 1), 255 - k * (255.0 / f));
    }
    for (int j = 0; j < f; ++j)
        for (int i = 0; i < f; ++i)
            copy(Rect::at(right + i, bottom + j, 1, 1),
                 255 - std::min<double>(f, std::hypot(i, j)) * 255 / f);
}

void Background::draw(Canvas& canvas, const Rect& dirty) const {
    if (!m_picture) return canvas.fill(dirty, color());
    if (dirty.right > m_size.width || dirty.bottom > m_size.height) canvas.fill(dirty, color());
    const Rect covered = dirty.common({0, 0, m_size.width, m_size.height});
    if (!covered.empty()) canvas.draw(*m_picture, covered, covered);
}

} // namespace tarnix
