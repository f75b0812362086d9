// The table of pictures that the build embeds. The artist generates the object that defines it.
#pragma once

#include <cstddef>
#include <memory>
#include <span>

#include "platform/resources.h"

namespace tarnix {

/// One stored picture. A picture may be listed twice, at scale 1 and at scale 2 for screens above 100 %; the
/// entry of scale 1 says its size at 100 %.
struct BuiltinImage {
    enum class Format {
        PremultipliedArgb32, ///< rows top down, `width` pixels of 0xAARRGGBB in the machine's order, no
                             ///< padding
        Png                  ///< a PNG file (ISO/IEC 15948)
    };
    ResourceType type = ResourceType::Png;
    unsigned id = 0;
    int width = 0;       ///< of the stored pixels
    int height = 0;      ///< of the stored pixels
    int scale = 1;       ///< stored pixels for one pixel at 100 %: 1 or 2
    bool opaque = false; ///< every pixel's alpha is 255
    Format format = Format::PremultipliedArgb32;
    /// Lives as long as the program; aligned to 4 bytes when the format is PremultipliedArgb32. Used in
    /// place.
    const unsigned char* data = nullptr;
    std::size_t size = 0; ///< bytes
};

/// A picture over stored pixels, which must outlive it; `fine` is the same picture at scale 2, or none. A PNG
/// file is decoded when it is first painted or read.
std::unique_ptr<Image> makeImage(const BuiltinImage& plain, const BuiltinImage* fine = nullptr);

/// All of them, in any order. No picture is listed at scale 2 alone.
std::span<const BuiltinImage> builtinImages();

} // namespace tarnix
