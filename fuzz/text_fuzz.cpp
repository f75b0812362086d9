// Narrow texts on their way to the screen: any bytes become a text without control characters.
#include <algorithm>
#include <cstdlib>

#include "platform_qt/text_decoding.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = tarnix::decodeText({reinterpret_cast<const char*>(data), size});
    const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control; };
    if (std::any_of(text.begin(), text.end(), isControl)) std::abort();
    if (static_cast<std::size_t>(text.size()) > 2 * size) std::abort();
    return 0;
}
