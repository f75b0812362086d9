#include "artist/controls.h"
#include "artist/keyboard.h"
#include "artist/shapes.h"
#include "artist/subjects.h"
#include "artist/window_face.h"
#include "res/resource_ids.h"
#include "ui/main_window_layout.h"

namespace tarnix::art {

namespace {

enum Page { KeyPage, MacroPage, GKeyPage, LightingPage };

void groupHeading(QPainter& p, const QRectF& above, const QString& words) {
    setText(p, QRectF(above.left(), above.top() - 21, 260, 18), words, Type::Caption, palette::mist,
            Qt::AlignLeft);
}

/// A swatch and what it means, for the line below the keyboard.
double legendEntry(QPainter& p, double x, double y, const QColor& top, const QColor& edge,
                   const QString& words) {
    plate(p, QRectF(x, y - 6, 12, 12), 3.5, top, edge);
    setText(p, QRectF(x + 19, y - 9, 240, 18), words, Type::Caption, palette::mist, Qt::AlignLeft);
    return x + 19 + textWidth(words, Type::Caption) + 22;
}

void paintKeyPage(QPainter& p) {
    paintCase(p);
    const double y = 455;
    setText(p, QRectF(53, y - 9, 300, 18), QStringLiteral("Click a key to give it another function."),
            Type::Caption, palette::mist, Qt::AlignLeft);
    const double x = legendEntry(p, 560, y, palette::sage, palette::sagePale, QStringLiteral("As printed"));
    legendEntry(p, x, y, palette::spring, palette::springLight, QStringLiteral("Remapped"));
}

/// A card with a title, for the pages of lists and fields.
void card(QPainter& p, const QRectF& area, const QString& title) {
    plate(p, area, 10, palette::slate, palette::line);
    setText(p, QRectF(area.left() + 16, area.top() + 8, area.width() - 32, 22), title, Type::Button,
            palette::paper, Qt::AlignLeft);
}

void listFrame(QPainter& p, const Rect& list, const Rect& bar) {
    const QRectF frame = rectF({list.left, list.top, bar.right, list.bottom});
    plate(p, frame.adjusted(-2, -2, 2, 2), 4, palette::navy, palette::lineBright);
}

void paintMacroPage(QPainter& p) {
    card(p, QRectF(146, 196, 171, 276), QStringLiteral("Macros"));
    listFrame(p, macroListRect, placeOf(macroPageScrollBars, id::macroScrollBar));
    card(p, QRectF(376, 196, 171, 276), QStringLiteral("Steps"));
    listFrame(p, actionListRect, placeOf(macroPageScrollBars, id::actionScrollBar));
    card(p, QRectF(606, 196, 150, 276), QStringLiteral("Recording"));
    for (const auto& [control, words] :
         {std::pair{id::delayCheck, "Record delays"}, std::pair{id::loopCheck, "Loop"}}) {
        const QRectF box = rectF(placeOf(macroPageControls, control));
        setText(p, QRectF(box.right() + 7, box.top() - 2, 100, box.height() + 4), QString::fromLatin1(words),
                Type::Caption, palette::paper, Qt::AlignLeft);
    }
    const QRectF field = rectF(loopCountFieldRect);
    plate(p, field.adjusted(-2, -2, 2, 2), 4, QColor(255, 255, 255), palette::lineBright);
}

void paintGKeyPage(QPainter& p) {
    card(p, QRectF(53, 196, 320, 214), QStringLiteral("G-key functions"));
    for (std::size_t i = 0; i < gKeyFields.size(); ++i) {
        const QRectF field = rectF(gKeyFields[i].rect);
        setText(p, QRectF(69, field.top(), 80, field.height()), QStringLiteral("G-key %1").arg(i + 1),
                Type::Label, palette::paper, Qt::AlignLeft);
    }
}

void paintLightingPage(QPainter& p) {
    constexpr const char* headings[] = {"Effect", "Brightness", "Speed"};
    for (std::size_t i = 0; i < lightingFields.size(); ++i)
        groupHeading(p, rectF(lightingFields[i].rect), QString::fromLatin1(headings[i]));
    p.fillRect(QRectF(238, 190, 1, 268), palette::line);
    constexpr double scale = 0.71;
    p.save();
    p.translate(QPointF(502, 306));
    p.scale(scale, scale);
    p.translate(-rectF(capsExtent()).center());
    paintLitKeyboard(p);
    p.restore();
    setText(p, QRectF(53, 446, 180, 18), QStringLiteral("Kept with each profile."), Type::Caption,
            palette::mist, Qt::AlignLeft);
}

/// A band: the window's face with the page's picture on it, in the band's own coordinates.
Sheet::Paint band(void (*paintPage)(QPainter&)) {
    return [paintPage](QPainter& p) {
        p.translate(-pageBand.left, -pageBand.top);
        paintWindowFace(p);
        paintPage(p);
    };
}

} // namespace

void paintPages(Sheet& sheet) {
    sheet.shapedFace(mainBackground, mainWindowSize, windowCornerRadius, paintWindowFace);
    sheet.face(pageBandImage(KeyPage), pageBand.size(), band(paintKeyPage));
    sheet.face(pageBandImage(MacroPage), picture::widePageBand, band(paintMacroPage));
    sheet.face(pageBandImage(GKeyPage), picture::widePageBand, band(paintGKeyPage));
    sheet.face(pageBandImage(LightingPage), pageBand.size(), band(paintLightingPage));
}

} // namespace tarnix::art
