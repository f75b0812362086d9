#include "platform/canvas.h"

#include <gmock/gmock.h>

#include <array>

#include "platform/builtin_resources.h"

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

TEST(Canvas, FillsWhatIsInsideAndReadsBackEveryPixel) {
    const auto surface = makeSurface({10, 8});
    EXPECT_EQ(surface->image().size(), (Size{10, 8}));
    EXPECT_EQ(surface->image().pixel({9, 7}), 0u) << "black at first";
    surface->canvas().fill(Rect::at(8, 6, 100, 100), red);
    surface->canvas().fill(Rect::at(3, 3, 0, 5), green);
    EXPECT_EQ(surface->image().pixel({9, 7}), red);
    EXPECT_EQ(surface->image().pixel({7, 6}), 0u);
    EXPECT_EQ(surface->image().pixel({3, 3}), 0u);
    EXPECT_EQ(surface->image().pixel({10, 7}), 0u) << "outside";
    EXPECT_EQ(surface->image().pixel({-1, 0}), 0u) << "outside";
}

TEST(Canvas, DrawsPartsOfAPictureWithTheirAlphaStretchedAndWeakened) {
    const auto surface = makeSurface({20, 4});
    const auto picture = strip();
    surface->canvas().fill(Rect::at(0, 0, 20, 4), green);
    surface->canvas().draw(*picture, Rect::at(0, 0, 4, 1), Rect::at(0, 0, 4, 1));
    EXPECT_EQ(surface->image().pixel({0, 0}), red);
    EXPECT_EQ(surface->image().pixel({1, 0}), rgb(128, 255, 128));
    EXPECT_EQ(surface->image().pixel({2, 0}), green);
    EXPECT_EQ(surface->image().pixel({3, 0}), blue);
    // A frame that is stretched takes nothing of its neighbour.
    surface->canvas().draw(*picture, Rect::at(3, 0, 1, 1), Rect::at(5, 1, 6, 3));
    for (int x = 5; x < 11; ++x)
        EXPECT_EQ(surface->image().pixel({x, 2}), blue);
    EXPECT_EQ(surface->image().pixel({11, 2}), green);
    surface->canvas().draw(*picture, Rect::at(0, 0, 1, 1), Rect::at(12, 0, 1, 1), 51);
    EXPECT_EQ(surface->image().pixel({12, 0}), rgb(51, 204, 0));
    surface->canvas().draw(*picture, Rect::at(0, 0, 1, 1), Rect::at(13, 0, 1, 1), 0);
    EXPECT_EQ(surface->image().pixel({13, 0}), green);
}

TEST(Canvas, LeavesTheKeyColourOutAndSeesLaterPaintingOfASurface) {
    const auto source = makeSurface({3, 1});
    source->canvas().fill(Rect::at(0, 0, 3, 1), red);
    source->canvas().fill(Rect::at(1, 0, 1, 1), blue);
    const auto target = makeSurface({6, 2});
    target->canvas().fill(Rect::at(0, 0, 6, 2), white);
    target->canvas().drawKeyed(source->image(), Rect::at(0, 0, 3, 1), {1, 1}, red);
    EXPECT_EQ(target->image().pixel({1, 1}), white);
    EXPECT_EQ(target->image().pixel({2, 1}), blue);
    source->canvas().fill(Rect::at(0, 0, 1, 1), green);
    target->canvas().drawKeyed(source->image(), Rect::at(0, 0, 3, 1), {1, 1}, red);
    EXPECT_EQ(target->image().pixel({1, 1}), green);
    EXPECT_EQ(target->image().pixel({3, 1}), white);
}

/// Where ink is, and how much of it.
struct Ink {
    Rect bounds{1000, 1000, 0, 0};
    int pixels = 0;
};

Ink inkOf(std::string_view text, const Rect& area, TextFormat format, Size size = {300, 60}) {
    const auto surface = makeSurface(size);
    format.color = white;
    surface->canvas().drawText(text, area, format);
    Ink ink;
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            if (surface->image().pixel({x, y}) == 0) continue;
            ++ink.pixels;
            ink.bounds = {std::min(ink.bounds.left, x), std::min(ink.bounds.top, y),
                          std::max(ink.bounds.right, x + 1), std::max(ink.bounds.bottom, y + 1)};
        }
    }
    return ink;
}

TEST(CanvasText, StandsWhereTheFormatSaysAndNowhereElse) {
    const Rect area = Rect::at(20, 10, 200, 40);
    const Ink left = inkOf("Hamburg", area, {});
    ASSERT_GT(left.pixels, 0);
    EXPECT_LE(std::abs(left.bounds.left - area.left), 2);
    EXPECT_LT(left.bounds.bottom, area.top + 18);
    const Ink middle = inkOf("Hamburg", area, {.centred = true, .verticalCentred = true});
    EXPECT_LE(std::abs(middle.bounds.left + middle.bounds.right - area.left - area.right), 3);
    EXPECT_LE(std::abs(middle.bounds.top + middle.bounds.bottom - area.top - area.bottom), 7);
    EXPECT_EQ(inkOf("Hamburg", {}, {}).pixels, 0);
    EXPECT_EQ(inkOf("", area, {}).pixels, 0);
}

TEST(CanvasText, ALineThatDoesNotFitEndsBetweenCharactersOrInAnEllipsis) {
    const std::string wide = "WWWWWWWWWWWWWWWWWWWW";
    const int one = inkOf("W", Rect::at(0, 0, 300, 20), {.ellipsis = false}).bounds.right;
    for (int width = 2 * one; width < 3 * one; ++width) {
        const Ink cut = inkOf(wide, Rect::at(0, 0, width, 20), {.ellipsis = false});
        const Ink whole = inkOf(cut.bounds.right > 2 * one + 1 ? "WWW" : "WW", Rect::at(0, 0, 300, 20), {});
        EXPECT_NEAR(cut.pixels, whole.pixels, 6) << width;
    }
    const Ink dots = inkOf(wide, Rect::at(0, 0, 100, 20), {});
    EXPECT_LE(dots.bounds.right, 100);
    const Ink tail = inkOf("iiiiiiiiiiiiiiiiiiiiiiiiiiiii", Rect::at(0, 0, 60, 20), {});
    EXPECT_LE(tail.bounds.right, 60);
    EXPECT_NE(tail.pixels,
              inkOf("iiiiiiiiiiiiiiiiiiiiiiiiiiiii", Rect::at(0, 0, 60, 20), {.ellipsis = false}).pixels);
}

TEST(CanvasText, ALineThatShrinksShowsItsEndAndStaysAsLargeAsItCan) {
    const Rect area = Rect::at(0, 0, 200, 24);
    const TextFormat format{.height = 24, .shrinks = true, .ellipsis = false};
    const Ink wide = inkOf("WWWWWWWWWWWWWWi", area, format);
    EXPECT_LE(wide.bounds.right, 200);
    EXPECT_NE(wide.pixels, inkOf("WWWWWWWWWWWWWWW", area, format).pixels);
    EXPECT_EQ(inkOf("WWW", area, format).pixels, inkOf("WWW", area, {.height = 24}).pixels);
}

} // namespace
} // namespace tarnix
