// How well a text can be told from its ground, read off the pixels.
#pragma once

#include <algorithm>
#include <cmath>
#include <map>

#include "platform/canvas.h"

namespace tarnix {

/// Relative luminance as WCAG 2.1 defines it.
inline double luminance(Color color) {
    const auto linear = [](int value) {
        const double share = value / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(redOf(color)) + 0.7152 * linear(greenOf(color)) + 0.0722 * linear(blueOf(color));
}

/// Contrast as WCAG 2.1 defines it, 1 to 21.
inline double contrast(Color a, Color b) {
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

/// Of a text in an area: its ground is the commonest colour there, the text what stands out most from it.
inline double contrastIn(const Image& image, const Rect& area) {
    std::map<Color, int> counts;
    for (int y = std::max(area.top, 0); y < std::min(area.bottom, image.size().height); ++y)
        for (int x = std::max(area.left, 0); x < std::min(area.right, image.size().width); ++x)
            ++counts[image.pixel({x, y})];
    const auto rarer = [](const auto& a, const auto& b) { return a.second < b.second; };
    const Color ground = std::max_element(counts.begin(), counts.end(), rarer)->first;
    double most = 1;
    for (const auto& [color, count] : counts)
        most = std::max(most, contrast(color, ground));
    return most;
}

} // namespace tarnix
