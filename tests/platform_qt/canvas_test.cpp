#include "platform/canvas.h"

#include <gmock/gmock.h>

#include <array>

#include "platform/builtin_resources.h"
#include "platform_qt/fonts.h"

namespace tarnix {
namespace {

constexpr Color red = rgb(255, 0, 0);
constexpr Color green = rgb(0, 255, 0);
constexpr Color blue = rgb(0, 0, 255);
constexpr Color white = rgb(255, 255, 255);

/// Four pixels in a row: red, half transparent white, transparent, blue.
std::unique_ptr<Image> strip() {
    static constexpr std::array<std::uint32_t, 4> pixels{0xFFFF0000, 0x80808080, 0x00000000, 0xFF0000FF};
    return makeImage({.width = 4,
                      .height = 1,
                      .data = reinterpret_cast<const unsigned char*>(pixels.data()),
                      .size = sizeof pixels});
}

TEST(Canvas, DrawsPartsOfAPictureWithTheirAlphaStretchedAndWeakened) {
    const auto surface = makeSurface({20, 4});
    const auto picture = strip();
    surface->canvas().fill(Rect::at(0, 0, 20, 4), green);
    surface->canvas().draw(*picture, Rect::at(0, 0, 1, 1), Rect::at(12, 0, 1, 1), 51);
    surface->canvas().draw(*picture, Rect::at(0, 0, 4, 1), Rect::at(0, 0, 4, 1));
    surface->canvas().draw(*picture, Rect::at(0, 0, 1, 1), Rect::at(13, 0, 1, 1), 0);
    // A frame that is stretched takes nothing of its neighbour.
    surface->canvas().draw(*picture, Rect::at(3, 0, 1, 1), Rect::at(5, 1, 6, 3));
    const std::pair<Point, Color> pixels[] = {{{0, 0}, red},    {{1, 0}, rgb(128, 255, 128)},
                                              {{2, 0}, green},  {{3, 0}, blue},
                                              {{5, 2}, blue},   {{10, 2}, blue},
                                              {{11, 2}, green}, {{12, 0}, rgb(51, 204, 0)},
                                              {{13, 0}, green}};
    for (const auto& [at, color] : pixels)
        EXPECT_EQ(surface->image().pixel(at), color) << at.x << ',' << at.y;
}

TEST(Canvas, ALineThatIsTooLongShrinksOrIsCutBetweenCharacters) {
    const QString accented = QStringLiteral("e\u0301").repeated(40);
    const FittedLine cut = fitLine(accented, 100, {.ellipsis = false});
    EXPECT_TRUE(accented.startsWith(cut.text));
    EXPECT_GT(cut.text.size(), 10);
    EXPECT_EQ(cut.text.size() % 2, 0) << "letters keep their accents";
    const FittedLine dotted = fitLine(accented, 100, {.ellipsis = true});
    EXPECT_TRUE(dotted.text.endsWith(QChar(0x2026)));
    const FittedLine shrunk = fitLine(accented, 300, {.shrinks = true, .ellipsis = false});
    EXPECT_EQ(shrunk.text, accented);
    const FittedLine smallest = fitLine(accented, 100, {.shrinks = true, .ellipsis = false});
    EXPECT_EQ(smallest.font.pixelSize(), 8);
    EXPECT_LT(smallest.text.size(), 80);
    EXPECT_LE(std::max({cut.width, dotted.width, smallest.width, shrunk.width / 3}), 100);
}

TEST(Canvas, TextStaysInItsAreaAndInTheMiddleOfIt) {
    const auto surface = makeSurface({60, 30});
    surface->canvas().fill(Rect::at(0, 0, 60, 30), white);
    const Rect area{10, 12, 50, 18}; // lower than the letters
    surface->canvas().drawText("M", area, {.color = 0, .centred = true, .verticalCentred = true});
    Rect inked{60, 30, 0, 0};
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 60; ++x)
            if (surface->image().pixel({x, y}) != white)
                inked = {std::min(inked.left, x), std::min(inked.top, y), std::max(inked.right, x + 1),
                         std::max(inked.bottom, y + 1)};
    EXPECT_EQ(inked.top, area.top);
    EXPECT_EQ(inked.bottom, area.bottom);
    EXPECT_NEAR(inked.left + inked.right, area.left + area.right, 3);
}

} // namespace
} // namespace tarnix
