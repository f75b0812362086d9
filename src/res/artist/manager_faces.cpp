#include "artist/controls.h"
#include "artist/dialog_frame.h"
#include "artist/step_signs.h"
#include "artist/subjects.h"
#include "macro_manager/manager_layout.h"

namespace tarnix::art {

namespace {

using namespace manager;

void columnTitle(QPainter& p, double left, double top, const QString& words) {
    setText(p, QRectF(left, top, 200, 20), words, Type::Caption, palette::mist, Qt::AlignLeft);
}

void listFrame(QPainter& p, const Rect& list, const Rect& bar) {
    plate(p, rectF({list.left, list.top, bar.right, list.bottom}).adjusted(-2, -2, 2, 2), 4, palette::navy,
          palette::lineBright);
}

struct StepSign {
    void (*paint)(QPainter&, const QRectF&);
    const char* words;
};

constexpr StepSign stepSigns[] = {
    {paintStepPress, "Key pressed"}, {paintStepRelease, "Key released"}, {paintStepDelay, "Delay"}};

/// How a recording goes, and what the signs in the list of steps mean.
void paintHints(QPainter& p, double left) {
    for (const PaintedText& line : managerTexts)
        setHint(p, line);
    double y = managerTexts.back().place.bottom + 16;
    for (const auto& [sign, words] : stepSigns) {
        sign(p, QRectF(left, y, 14, 14));
        setText(p, QRectF(left + 24, y - 2, 160, 18), QString::fromLatin1(words), Type::Caption,
                palette::mist, Qt::AlignLeft);
        y += 22;
    }
}

void paintManager(Sheet& sheet) {
    sheet.face(managerBackground, managerSize, [](QPainter& p) {
        paintDialogFrame(p, managerSize, QString::fromLatin1(managerTitle),
                         placeOf(managerControls, okButton).top - 9);
        const ControlRow& set = controlOf(managerControls, setField);
        columnTitle(p, set.rect.left, set.rect.top - 23, QString::fromLatin1(set.caption));
        listFrame(p, macroListRect, placeOf(managerControls, macroScrollBar));
    });
    sheet.face(managerPanel, managerPanelRect.size(), [](QPainter& p) {
        p.fillRect(QRectF(0, 0, managerPanelRect.width(), managerPanelRect.height()), palette::stage);
        plate(p, QRectF(0, 0, managerPanelRect.width(), managerPanelRect.height()), 1, palette::slate,
              palette::line);
        p.translate(-managerPanelRect.left, -managerPanelRect.top);
        const Rect& list = actionListRect;
        columnTitle(p, list.left, list.top - 27, QString::fromLatin1(actionListCaption));
        listFrame(p, list, placeOf(managerControls, actionScrollBar));
        const Rect record = placeOf(managerControls, recordSwitch);
        columnTitle(p, record.left, record.top - 27, QStringLiteral("Recording"));
        const ControlRow& delays = controlOf(managerControls, recordDelays);
        labelBeside(p, delays.rect, QString::fromLatin1(delays.caption), Type::Caption);
        paintHints(p, record.left);
    });
}

void paintSetName(Sheet& sheet, const Companion& row) {
    sheet.face(row.background, companionSize, [&row](QPainter& p) {
        paintDialogFrame(p, companionSize, QString::fromLatin1(row.title),
                         placeOf(setNameControls, okButton).top - 9);
        const QRectF field = rectF(setNameRect);
        setText(p, rectF(row.text.place), QString::fromLatin1(row.text.text), Type::Label, palette::paper,
                Qt::AlignLeft);
        paintDarkField(p, field.adjusted(-4, -3, 4, 3),
                       QColor(redOf(setNameGround), greenOf(setNameGround), blueOf(setNameGround)));
    });
}

void paintNoticeFace(Sheet& sheet, const Companion& row) {
    sheet.face(row.background, companionSize, [&row](QPainter& p) {
        const double width = companionSize.width;
        paintDialogFrame(p, companionSize, QString::fromLatin1(row.title),
                         placeOf(noticeControls, okButton).top - 9);
        paintNoticeSign(p, QPointF(width / 2, 72), NoticeSign::Attention);
        setText(p, rectF(row.text.place), QString::fromLatin1(row.text.text), Type::Label, palette::paper);
    });
}

} // namespace

void paintManagerFaces(Sheet& sheet) {
    paintManager(sheet);
    paintSetName(sheet, addSet);
    paintSetName(sheet, deleteSet);
    paintNoticeFace(sheet, note);
    paintNoticeFace(sheet, attention);
}

} // namespace tarnix::art
