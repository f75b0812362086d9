#include "fonts.h"

#include <QFontMetrics>
#include <QStringList>
#include <QTextBoundaryFinder>

namespace tarnix {

namespace {

/// From ascender to descender, where the format leaves the height open: the controls' usual 12-pixel letters.
constexpr int usualHeight = 15;

/// In pixels; smaller letters run together.
constexpr int smallestLetters = 8;

/// Inter is what the art is set in; DejaVu Sans is on every desktop; the Chinese faces are those that
/// distributions ship.
const QStringList& families() {
    static const QStringList names{"Inter", "DejaVu Sans", "WenQuanYi Micro Hei", "Noto Sans CJK SC",
                                   "sans-serif"};
    return names;
}

/// The font, smaller until the text fits.
QFont shrunk(QFont font, const QString& text, int width) {
    while (font.pixelSize() > smallestLetters && QFontMetrics(font).horizontalAdvance(text) > width)
        font.setPixelSize(font.pixelSize() - 1);
    return font;
}

/// Keeps as many whole characters, as the user sees them, as fit.
QString cutBetweenCharacters(const QString& text, const QFontMetrics& metrics, int width) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype fitting = 0;
    for (qsizetype end = finder.toNextBoundary(); end >= 0; end = finder.toNextBoundary()) {
        if (metrics.horizontalAdvance(text.left(end)) > width) break;
        fitting = end;
    }
    return text.left(fitting);
}

} // namespace

QFont fontFor(const TextFormat& format) {
    const int height = format.height > 0 ? format.height : usualHeight;
    QFont font;
    font.setFamilies(families());
    font.setWeight(static_cast<QFont::Weight>(format.weight));
    font.setPixelSize(height);
    const int full = QFontMetrics(font).height();
    if (full > height) font.setPixelSize(std::max(1, height * height / full));
    return font;
}

FittedLine fitLine(const QString& text, int width, const TextFormat& format) {
    FittedLine line;
    line.font = format.shrinks ? shrunk(fontFor(format), text, width) : fontFor(format);
    const QFontMetrics metrics(line.font);
    line.ascent = metrics.ascent();
    line.height = metrics.height();
    line.text = text;
    line.width = metrics.horizontalAdvance(text);
    if (line.width > width) {
        line.text = format.ellipsis ? metrics.elidedText(text, Qt::ElideRight, width)
                                    : cutBetweenCharacters(text, metrics, width);
        line.width = metrics.horizontalAdvance(line.text);
    }
    return line;
}

} // namespace tarnix
