#include "artist/controls.h"
#include "artist/keyboard.h"
#include "artist/shapes.h"
#include "artist/subjects.h"
#include "artist/window_face.h"
#include "skin/picture_ids.h"
#include "ui/main_window_layout.h"

namespace tarnix::art {

namespace {

enum Page { KeyPage, MacroPage, GKeyPage, LightingPage };

void groupHeading(QPainter& p, const QRectF& above, const QString& words) {
    setText(p, QRectF(above.left(), above.top() - 21, 260, 18), words, Type::Caption, palette::mist,
            Qt::AlignLeft);
}

/// A swatch and what it means, ending at `right`; answers where the next one to the left ends.
double legendEntry(QPainter& p, double right, double y, const QColor& fill, const QColor& edge,
                   const QString& words) {
    const double left = right - textWidth(words, Type::Caption) - 19;
    plate(p, QRectF(left, y - 6, 12, 12), 3.5, fill, edge);
    setText(p, QRectF(left + 19, y - 9, 240, 18), words, Type::Caption, palette::mist, Qt::AlignLeft);
    return left - 22;
}

void paintKeyPage(QPainter& p) {
    paintCase(p);
    setHint(p, keyPageHint);
    const double y = 455;
    const double x =
        legendEntry(p, 751, y, palette::spring, palette::springLight, QStringLiteral("Remapped"));
    legendEntry(p, x, y, palette::sage, palette::sagePale, QStringLiteral("As printed"));
}

void listFrame(QPainter& p, const Rect& list, const Rect& bar) {
    const QRectF frame = rectF({list.left, list.top, bar.right, list.bottom});
    plate(p, frame.adjusted(-2, -2, 2, 2), 4, palette::navy, palette::lineBright);
}

void paintMacroPage(QPainter& p) {
    groupHeading(p, rectF(macroListRect), QString::fromLatin1(macroListCaption));
    listFrame(p, macroListRect, placeOf(macroPageScrollBars, id::macroScrollBar));
    groupHeading(p, rectF(actionListRect), QString::fromLatin1(actionListCaption));
    listFrame(p, actionListRect, placeOf(macroPageScrollBars, id::actionScrollBar));
    const Rect record = placeOf(macroPageControls, id::recordSwitch);
    groupHeading(p, rectF({record.left, macroListRect.top, record.right, record.bottom}),
                 QStringLiteral("Recording"));
    for (const unsigned id : {id::delayCheck, id::loopCheck}) {
        const ControlRow& check = controlOf(macroPageControls, id);
        const QRectF box = rectF(check.rect);
        setText(p, QRectF(box.right() + 7, box.top() - 2, 100, box.height() + 4),
                QString::fromLatin1(check.caption), Type::Caption, palette::paper, Qt::AlignLeft);
    }
    const QRectF field = rectF(loopCountFieldRect);
    plate(p, field.adjusted(-2, -2, 2, 2), 4, QColor(255, 255, 255), palette::lineBright);
}

/// A smaller keyboard beside the controls of a page, centred at a point.
void paintBeside(QPainter& p, const QPointF& centre, double scale, void (*paintKeyboard)(QPainter&)) {
    const Illustration small;
    p.save();
    QPainterPath stage;
    stage.addRoundedRect(stageArea().adjusted(1, 1, -1, -1), stageRadius, stageRadius);
    p.setClipPath(stage, Qt::IntersectClip);
    p.translate(centre);
    p.scale(scale, scale);
    p.translate(-rectF(capsExtent()).center());
    paintKeyboard(p);
    p.restore();
}

void paintGKeyPage(QPainter& p) {
    groupHeading(p, rectF(gKeyFields[0].rect).translated(53 - gKeyFields[0].rect.left, 0),
                 QStringLiteral("Functions of the G-keys"));
    for (const ControlRow& row : gKeyFields) {
        const QRectF field = rectF(row.rect);
        setText(p, QRectF(53, field.top(), 80, field.height()), QString::fromLatin1(row.caption), Type::Label,
                palette::paper, Qt::AlignLeft);
    }
    paintBeside(p, QPointF(552, 312), 0.5, paintRestingKeyboard);
}

void paintLightingPage(QPainter& p) {
    for (const ControlRow& field : lightingFields)
        groupHeading(p, rectF(field.rect), QString::fromLatin1(field.caption));
    p.fillRect(QRectF(238, 190, 1, 268), palette::line);
    paintBeside(p, QPointF(502, 306), 0.71, paintLitKeyboard);
    setHint(p, lightingPageHint);
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
