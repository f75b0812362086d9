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
void paintHints(QPainter& p, double left, double top) {
    double y = top;
    for (const char* line : {"Choose a macro, press", "Record, type the keys,", "then press Stop."}) {
        setText(p, QRectF(left, y, 200, 18), QString::fromLatin1(line), Type::Caption, palette::mist,
                Qt::AlignLeft);
        y += 18;
    }
    y += 16;
    for (const auto& [sign, words] : stepSigns) {
        sign(p, QRectF(left, y, 14, 14));
        setText(p, QRectF(left + 24, y - 2, 160, 18), QString::fromLatin1(words), Type::Caption,
                palette::mist, Qt::AlignLeft);
        y += 22;
    }
}

void paintManager(Sheet& sheet) {
    sheet.face(managerBackground, managerSize, [](QPainter& p) {
        paintDialogFrame(p, managerSize, QStringLiteral("Macro manager"),
                         placeOf(managerControls, okButton).top - 9);
        const QRectF field = rectF(placeOf(managerControls, setField));
        columnTitle(p, field.left(), field.top() - 23, QStringLiteral("Macro set"));
        listFrame(p, macroListRect, placeOf(managerControls, macroScrollBar));
    });
    sheet.face(managerPanel, managerPanelRect.size(), [](QPainter& p) {
        p.fillRect(QRectF(0, 0, managerPanelRect.width(), managerPanelRect.height()), palette::stage);
        plate(p, QRectF(0, 0, managerPanelRect.width(), managerPanelRect.height()), 1, palette::slate,
              palette::line);
        p.translate(-managerPanelRect.left, -managerPanelRect.top);
        const Rect& list = actionListRect;
        columnTitle(p, list.left, list.top - 27, QStringLiteral("Steps"));
        listFrame(p, list, placeOf(managerControls, actionScrollBar));
        const Rect record = placeOf(managerControls, recordSwitch);
        columnTitle(p, record.left, record.top - 27, QStringLiteral("Recording"));
        labelBeside(p, placeOf(managerControls, recordDelays), QStringLiteral("Record delays"),
                    Type::Caption);
        paintHints(p, record.left, placeOf(managerControls, recordDelays).bottom + 30);
    });
}

struct Companion {
    unsigned background;
    const char* title;
    const char* words;
};

constexpr Companion setNameFaces[] = {
    {addSetBackground, "Add a macro set", "Name of the new set"},
    {deleteSetBackground, "Delete a macro set", "Name of the set to delete"},
};

constexpr Companion noticeFaces[] = {
    {noteBackground, "Macro set", "Please choose a macro set or macro first."},
    {attentionBackground, "Macro", "Please choose a macro first."},
};

void paintSetName(Sheet& sheet, const Companion& row) {
    sheet.face(row.background, companionSize, [&row](QPainter& p) {
        paintDialogFrame(p, companionSize, QString::fromLatin1(row.title),
                         placeOf(setNameControls, okButton).top - 9);
        const QRectF field = rectF(setNameRect);
        setText(p, QRectF(field.left() - 2, field.top() - 28, 240, 20), QString::fromLatin1(row.words),
                Type::Label, palette::paper, Qt::AlignLeft);
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
        setText(p, QRectF(0, 106, width, 22), QString::fromLatin1(row.words), Type::Label, palette::paper);
    });
}

} // namespace

void paintManagerFaces(Sheet& sheet) {
    paintManager(sheet);
    for (const Companion& row : setNameFaces)
        paintSetName(sheet, row);
    for (const Companion& row : noticeFaces)
        paintNoticeFace(sheet, row);
}

} // namespace tarnix::art
