// Narrow texts on their way to the screen.
#pragma once

#include <QString>
#include <string_view>

namespace tarnix {

/// UTF-8 (RFC 3629) where all of the bytes are valid UTF-8, else GB18030 (GB 18030-2005, of which GB2312 and
/// GBK are parts). Bytes that are neither become U+FFFD, and so do control characters.
QString decodeText(std::string_view text);

} // namespace tarnix
