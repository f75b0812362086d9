// Writing the pictures out: as one file to embed with the source of its index, as loose files to look at, and
// the icon for the desktop.
#pragma once

#include <QString>
#include <vector>

#include "artist/sheet.h"

namespace tarnix::art {

/// Writes art.pack, builtin_images.cpp, which embeds it and defines builtinImages(), and words.txt, which
/// says what can be read where, for tests. What the first frame needs at 100 % is stored as pixels that are
/// used in place, everything else as PNG. False on any failure, and when the pictures take more room than
/// they may.
bool writePack(const std::vector<Picture>& pictures, const QString& folder);

/// Writes every picture as TYPE_ID[@2x].png.
bool writeFiles(const std::vector<Picture>& pictures, const QString& folder);

/// Writes the program's icon as SIZE.png from 16 to 512 pixels and as scalable.svg.
bool writeIcons(const QString& folder);

} // namespace tarnix::art
