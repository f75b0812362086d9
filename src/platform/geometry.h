// Points, sizes and rectangles in whole pixels at 100 %, y downwards.
#pragma once

#include <algorithm>

namespace tarnix {

struct Point {
    int x = 0;
    int y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    int width = 0;
    int height = 0;
    bool operator==(const Size&) const = default;
};

/// Half-open: left and top belong to the rectangle, right and bottom do not.
struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    static constexpr Rect at(int x, int y, int width, int height) { return {x, y, x + width, y + height}; }

    constexpr int width() const { return right - left; }
    constexpr int height() const { return bottom - top; }
    constexpr Size size() const { return {width(), height()}; }
    constexpr Point topLeft() const { return {left, top}; }
    constexpr bool empty() const { return right <= left || bottom <= top; }
    constexpr bool contains(Point p) const {
        return p.x >= left && p.x < right && p.y >= top && p.y < bottom;
    }
    constexpr bool intersects(const Rect& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
    /// What both cover; empty where they do not meet.
    constexpr Rect common(const Rect& other) const {
        return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
                std::min(bottom, other.bottom)};
    }
    constexpr Rect moved(int dx, int dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }
    constexpr Rect inset(int by) const { return {left + by, top + by, right - by, bottom - by}; }

    bool operator==(const Rect&) const = default;
};

} // namespace tarnix
