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

struct Confirmation {
    unsigned background;
    const char* title;
    const char* question;
    const char* lines[3];
};

constexpr Confirmation confirmations[] = {
    {dialog::reset::profileBackground,
     "Reset profile",
     "Reset this profile to its factory settings?",
     {"Its key functions, lighting, G-keys and name are lost,", "here and on the keyboard.",
      "This cannot be undone."}},
    {dialog::reset::factoryBackground,
     "Restore all",
     "Restore all factory settings?",
     {"Everything in profiles 1 to 3 is lost, here and on the keyboard,", "and your macros are deleted.",
      "This cannot be undone."}},
};

void paintConfirmation(Sheet& sheet, const Confirmation& row) {
    sheet.face(row.background, dialog::wideSize, [&row](QPainter& p) {
        const double width = dialog::wideSize.width;
        paintDialogFrame(p, dialog::wideSize, QString::fromLatin1(row.title),
                         footOf(dialog::reset::controls));
        paintNoticeSign(p, QPointF(width / 2, 57), NoticeSign::Question);
        setText(p, QRectF(0, 79, width, 24), QString::fromLatin1(row.question), Type::Heading,
                palette::paper);
        double y = 106;
        for (const char* line : row.lines) {
            setText(p, QRectF(0, y, width, 20), QString::fromLatin1(line), Type::Body, palette::mist);
            y += 20;
        }
    });
}

// The program sets its labels at the top of their rectangles, so the fields around them end where the lines
// do.

void paintKeyMap(Sheet& sheet) {
    using namespace dialog::keymap;
    sheet.face(background, dialog::wideSize, [](QPainter& p) {
        paintDialogFrame(p, dialog::wideSize, QStringLiteral("Key function"), footOf(controls));
        const Rect name = placeOf(controls, keyName);
        setText(p, QRectF(93, name.top - 2, 70, 20), QStringLiteral("Key"), Type::Label, palette::paper,
                Qt::AlignLeft);
        labelBeside(p, placeOf(controls, keyRadio), QStringLiteral("Keyboard function"));
        labelBeside(p, placeOf(controls, mouseRadio), QStringLiteral("Mouse function"));
        const QRectF value = rectF(placeOf(controls, keyFunction));
        plate(p, value.adjusted(-1, -6, 1, 0), 5, palette::sagePale, palette::sage);
    });
}

void paintShortcut(Sheet& sheet) {
    using namespace dialog::shortcut;
    sheet.shapedFace(background, size, dialogCornerRadius, [](QPainter& p) {
        paintDialogFrame(p, size, QStringLiteral("Shortcut"), footOf(controls), dialogCornerRadius);
        setText(p, QRectF(22, 46, 376, 20), QStringLiteral("Choose the modifiers, then press the key."),
                Type::Body, palette::mist, Qt::AlignLeft);
        for (const auto& [box, words] :
             {std::pair{singleKey, "Single"}, std::pair{ctrl, "Ctrl"},
              std::pair{dialog::shortcut::shift, "Shift"}, std::pair{alt, "Alt"}, std::pair{win, "Win"}})
            labelBeside(p, placeOf(controls, box), QString::fromLatin1(words), Type::Caption, 5);
        const QRectF key = rectF(placeOf(controls, keyName));
        setText(p, QRectF(key.left() - 4, key.top() - 23, 100, 18), QStringLiteral("Key"), Type::Caption,
                palette::mist, Qt::AlignLeft);
        paintDarkField(p, key.adjusted(-5, -3, 3, 1));
    });
}

void paintQuickLaunch(Sheet& sheet) {
    using namespace dialog::launch;
    sheet.shapedFace(background, size, dialogCornerRadius, [](QPainter& p) {
        paintDialogFrame(p, size, QStringLiteral("Quick launch"), footOf(controls), dialogCornerRadius);
        const QRectF field = rectF(placeOf(controls, path));
        setText(p, QRectF(field.left() - 4, field.top() - 26, 240, 18), QStringLiteral("Program"),
                Type::Caption, palette::mist, Qt::AlignLeft);
        paintDarkField(p, field.adjusted(-5, -2, 1, 0));
        setText(p, QRectF(field.left() - 4, field.bottom() + 14, 260, 18),
                QStringLiteral("The G-key starts this program."), Type::Caption, palette::mist,
                Qt::AlignLeft);
    });
}

/// The form copies only the top left of the notices' button strips. The rest of a button, as far as there is
/// room for it, stands in the background, so that the two together are a whole one.
void completeButton(QPainter& p, const Rect& place, double room, const QString& word, ButtonLook look) {
    const Rect whole = placeOf(dialog::notice::controls, dialog::okButton);
    const QRectF area(place.left, place.top, whole.width(), whole.height());
    const QRectF shown(area.left(), area.top(), std::min(room, area.width()), area.height());
    button(p, shown, QString(), look, Frame::Rest, Type::Button);
    p.save();
    p.setClipRect(shown.adjusted(8, 4, -2, -4));
    button(p, area, word, look, Frame::Rest, Type::Button);
    p.restore();
}

void paintEditProfile(Sheet& sheet) {
    using namespace dialog::profile;
    sheet.face(background, size, [](QPainter& p) {
        paintDialogFrame(p, size, QStringLiteral("Edit profile"), footOf(controls));
        const QRectF name = rectF(nameFieldRect);
        setText(p, QRectF(30, name.top() - 2, 80, 20), QStringLiteral("Name"), Type::Label, palette::paper,
                Qt::AlignLeft);
        paintDarkField(p, name.adjusted(-4, -3, 4, 3), QColor(0, 0, 0));
        const QRectF first = rectF(placeOf(controls, path1));
        setText(p, QRectF(30, first.top() - 25, 200, 18), QStringLiteral("Programs"), Type::Label,
                palette::paper, Qt::AlignLeft);
        for (unsigned row : {path1, path2, path3})
            paintDarkField(p, rectF(placeOf(controls, row)).adjusted(-4, -1, 1, -1.5));
        paintWordmark(p, QRectF(350, 92, 150, 100));
        const Rect ok = placeOf(controls, dialog::okButton);
        const Rect cancel = placeOf(controls, dialog::cancelButton);
        completeButton(p, ok, cancel.left - ok.left, QStringLiteral("OK"), ButtonLook::Main);
        completeButton(p, cancel, size.width, QStringLiteral("Cancel"), ButtonLook::Quiet);
    });
}

} // namespace

void paintDialogFaces(Sheet& sheet) {
    paintNotice(sheet);
    for (const Confirmation& row : confirmations)
        paintConfirmation(sheet, row);
    paintKeyMap(sheet);
    paintShortcut(sheet);
    paintQuickLaunch(sheet);
    paintEditProfile(sheet);
}

} // namespace tarnix::art
