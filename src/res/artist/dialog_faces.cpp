#include "artist/controls.h"
#include "artist/dialog_frame.h"
#include "artist/emblem.h"
#include "artist/subjects.h"
#include "ui/dialog_layouts.h"

namespace tarnix::art {

namespace {

/// Where the foot begins: a little above the dialog's buttons.
template <typename Table>
double footOf(const Table& controls) {
    return placeOf(controls, dialog::okButton).top - 13;
}

void paintNotice(Sheet& sheet) {
    sheet.face(dialog::notice::background, dialog::wideSize, [](QPainter& p) {
        paintDialogFrame(p, dialog::wideSize, QString(), footOf(dialog::notice::controls));
        paintNoticeSign(p, QPointF(dialog::wideSize.width / 2.0, 68), NoticeSign::Attention);
    });
}

void paintQuestion(Sheet& sheet, const dialog::reset::Question& row) {
    sheet.face(row.background, dialog::wideSize, [&row](QPainter& p) {
        paintDialogFrame(p, dialog::wideSize, QString::fromLatin1(row.title),
                         footOf(dialog::reset::controls));
        paintNoticeSign(p, QPointF(dialog::wideSize.width / 2.0, 57), NoticeSign::Question);
        for (const PaintedText& line : row.texts) {
            const bool first = &line == &row.texts.front();
            setText(p, rectF(line.place), QString::fromLatin1(line.text), first ? Type::Heading : Type::Body,
                    first ? palette::paper : palette::mist);
        }
    });
}

/// A box or button's caption right of it.
void captionBeside(QPainter& p, const ControlRow& box, Type type = Type::Label, double gap = 8) {
    labelBeside(p, box.rect, QString::fromLatin1(box.caption), type, gap);
}

// The program sets its labels at the top of their rectangles, so the fields around them end where the lines
// do.

void paintKeyMap(Sheet& sheet) {
    using namespace dialog::keymap;
    sheet.face(background, dialog::wideSize, [](QPainter& p) {
        paintDialogFrame(p, dialog::wideSize, QString::fromLatin1(title), footOf(controls));
        const ControlRow& name = controlOf(controls, keyName);
        setText(p, QRectF(93, name.rect.top - 2, 70, 20), QString::fromLatin1(name.caption), Type::Label,
                palette::paper, Qt::AlignLeft);
        captionBeside(p, controlOf(controls, keyRadio));
        captionBeside(p, controlOf(controls, mouseRadio));
        const QRectF value = rectF(placeOf(controls, keyFunction));
        plate(p, value.adjusted(-1, -6, 1, 0), 5, palette::sagePale, palette::sage);
    });
}

void paintShortcut(Sheet& sheet) {
    using namespace dialog::shortcut;
    sheet.shapedFace(background, size, dialogCornerRadius, [](QPainter& p) {
        paintDialogFrame(p, size, QString::fromLatin1(title), footOf(controls), dialogCornerRadius);
        setHint(p, texts[0], Type::Body);
        for (const ControlRow& control : controls)
            if (control.kind == ControlKind::Check) captionBeside(p, control, Type::Caption, 5);
        const ControlRow& keyRow = controlOf(controls, keyName);
        const QRectF key = rectF(keyRow.rect);
        setText(p, QRectF(key.left() - 4, key.top() - 23, 100, 18), QString::fromLatin1(keyRow.caption),
                Type::Caption, palette::mist, Qt::AlignLeft);
        paintDarkField(p, key.adjusted(-5, -3, 3, 1));
    });
}

void paintQuickLaunch(Sheet& sheet) {
    using namespace dialog::launch;
    sheet.shapedFace(background, size, dialogCornerRadius, [](QPainter& p) {
        paintDialogFrame(p, size, QString::fromLatin1(title), footOf(controls), dialogCornerRadius);
        const ControlRow& program = controlOf(controls, path);
        const QRectF field = rectF(program.rect);
        setText(p, QRectF(field.left() - 4, field.top() - 26, 240, 18), QString::fromLatin1(program.caption),
                Type::Caption, palette::mist, Qt::AlignLeft);
        paintDarkField(p, field.adjusted(-5, -2, 1, 0));
        setHint(p, texts[0]);
    });
}

/// The form copies only the top left of the notices' button strips. The rest of a button, as far as there is
/// room for it, stands in the background, so that the two together are a whole one.
void completeButton(QPainter& p, const ControlRow& row, double room, ButtonLook look) {
    const Rect whole = placeOf(dialog::notice::controls, dialog::okButton);
    const QRectF area(row.rect.left, row.rect.top, whole.width(), whole.height());
    const QRectF shown(area.left(), area.top(), std::min(room, area.width()), area.height());
    button(p, shown, QString(), look, Frame::Rest, Type::Button);
    p.save();
    p.setClipRect(shown.adjusted(8, 4, -2, -4));
    button(p, area, QString::fromLatin1(row.caption), look, Frame::Rest, Type::Button);
    p.restore();
}

void paintEditProfile(Sheet& sheet) {
    using namespace dialog::profile;
    sheet.face(background, size, [](QPainter& p) {
        paintDialogFrame(p, size, QString::fromLatin1(title), footOf(controls));
        const QRectF name = rectF(nameFieldRect);
        setText(p, QRectF(30, name.top() - 2, 80, 20), QString::fromLatin1(nameCaption), Type::Label,
                palette::paper, Qt::AlignLeft);
        paintDarkField(p, name.adjusted(-4, -3, 4, 3), QColor(0, 0, 0));
        const QRectF first = rectF(placeOf(controls, path1));
        setText(p, QRectF(30, first.top() - 25, 200, 18), QStringLiteral("Programs"), Type::Label,
                palette::paper, Qt::AlignLeft);
        for (unsigned row : {path1, path2, path3})
            paintDarkField(p, rectF(placeOf(controls, row)).adjusted(-4, -1, 1, -1.5));
        paintWordmark(p, QRectF(350, 92, 150, 100));
        const ControlRow& ok = controlOf(controls, dialog::okButton);
        const ControlRow& cancel = controlOf(controls, dialog::cancelButton);
        completeButton(p, ok, cancel.rect.left - ok.rect.left, ButtonLook::Main);
        completeButton(p, cancel, size.width, ButtonLook::Quiet);
    });
}

} // namespace

void paintDialogFaces(Sheet& sheet) {
    paintNotice(sheet);
    paintQuestion(sheet, dialog::reset::profileReset);
    paintQuestion(sheet, dialog::reset::factoryReset);
    paintKeyMap(sheet);
    paintShortcut(sheet);
    paintQuickLaunch(sheet);
    paintEditProfile(sheet);
}

} // namespace tarnix::art
