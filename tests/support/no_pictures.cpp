// For tests that bring their own pictures: a program without built-in ones.
#include "platform/builtin_resources.h"

namespace tarnix {

std::span<const BuiltinImage> builtinImages() {
    return {};
}

} // namespace tarnix
