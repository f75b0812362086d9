#include "platform/resources.h"

#include <gtest/gtest.h>

#include <array>

#include "platform/builtin_resources.h"

namespace tarnix {

namespace {

constexpr std::array<std::uint32_t, 6> plain{0xFF112233, 0x80402010, 0, 0xFF445566, 0xFF000000, 0xFFFFFFFF};
std::array<std::uint32_t, 2> opaqueBits{0x00AABBCC, 0x00010203};
/// One pixel of (200, 100, 50).
constexpr unsigned char png[] = {
    0x89, 'P',  'N',  'G', 0x0D, 0x0A, 0x1A, 0x0A, 0,    0,    0,    13,   'I',  'H',  'D',  'R',  0,    0,
    0,    1,    0,    0,   0,    1,    8,    2,    0,    0,    0,    0x90, 0x77, 0x53, 0xDE, 0,    0,    0,
    12,   'I',  'D',  'A', 'T',  0x78, 0x9C, 0x63, 0x38, 0x91, 0x62, 0x04, 0,    0x03, 0x56, 0x01, 0x5F, 0xE8,
    0x17, 0x84, 0x52, 0,   0,    0,    0,    'I',  'E',  'N',  'D',  0xAE, 0x42, 0x60, 0x82};

const unsigned char* bytes(const void* data) {
    return static_cast<const unsigned char*>(data);
}

} // namespace

std::span<const BuiltinImage> builtinImages() {
    static const std::array<BuiltinImage, 4> images{{
        {.type = ResourceType::Png,
         .id = 7,
         .width = 3,
         .height = 2,
         .data = bytes(plain.data()),
         .size = sizeof plain},
        {.type = ResourceType::Bitmap,
         .id = 7,
         .width = 2,
         .height = 1,
         .opaque = true,
         .data = bytes(opaqueBits.data()),
         .size = sizeof opaqueBits},
        {.type = ResourceType::Png,
         .id = 8,
         .width = 1,
         .height = 1,
         .format = BuiltinImage::Format::Png,
         .data = png,
         .size = sizeof png},
        {.type = ResourceType::Png,
         .id = 9,
         .width = 1,
         .height = 1,
         .format = BuiltinImage::Format::Png,
         .data = png,
         .size = 20},
    }};
    return images;
}

namespace {

TEST(BuiltinPictures, AreFoundByTypeAndNumberAndUsedInPlace) {
    const Image* strip = resources().find(ResourceType::Png, 7);
    ASSERT_TRUE(strip);
    EXPECT_EQ(strip->size(), (Size{3, 2}));
    EXPECT_EQ(strip->pixel({0, 0}), rgb(0x11, 0x22, 0x33));
    EXPECT_EQ(strip->pixel({1, 0}), rgb(0x80, 0x40, 0x20)) << "without its alpha";
    EXPECT_EQ(resources().find(ResourceType::Png, 7), strip);

    const Image* bitmap = resources().find(ResourceType::Bitmap, 7);
    ASSERT_TRUE(bitmap);
    EXPECT_EQ(bitmap->pixel({1, 0}), rgb(1, 2, 3));
    opaqueBits[1] = 0x00040506;
    EXPECT_EQ(bitmap->pixel({1, 0}), rgb(4, 5, 6));

    EXPECT_FALSE(resources().find(ResourceType::Icon, 7));
    EXPECT_FALSE(resources().find(ResourceType::Png, 6));
}

TEST(BuiltinPictures, PngFilesAreDecodedAndBrokenOnesAreTransparent) {
    const Image* picture = resources().find(ResourceType::Png, 8);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->size(), (Size{1, 1}));
    EXPECT_EQ(picture->pixel({0, 0}), rgb(200, 100, 50));
    const Image* broken = resources().find(ResourceType::Png, 9);
    ASSERT_TRUE(broken);
    EXPECT_EQ(broken->pixel({0, 0}), 0u);
    const auto surface = makeSurface({2, 2});
    surface->canvas().fill(Rect::at(0, 0, 2, 2), rgb(1, 2, 3));
    surface->canvas().draw(*broken, Rect::at(0, 0, 1, 1), Rect::at(0, 0, 2, 2));
    surface->canvas().drawKeyed(*broken, Rect::at(0, 0, 1, 1), {0, 0}, 0);
    EXPECT_EQ(surface->image().pixel({0, 0}), rgb(1, 2, 3));
}

} // namespace
} // namespace tarnix
