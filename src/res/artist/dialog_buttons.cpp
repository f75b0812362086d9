#include "artist/controls.h"
#include "artist/dialog_frame.h"
#include "artist/subjects.h"
#include "ui/dialog_layouts.h"

namespace tarnix::art {

namespace {

Size frameOf(const ControlRow& row) {
    return {row.region.frameWidth, row.region.frameHeight};
}

void paintOk(Sheet& sheet, const ControlRow& row) {
    sheet.keyedStrip(static_cast<unsigned>(row.region.bitmap), frameOf(row), dialogFootGround,
                     dialogFootGround, [&row](QPainter& p, const QRectF& area, int frame) {
                         button(p, area, QString::fromLatin1(row.caption), ButtonLook::Main, Frame(frame),
                                area.height() > 30 ? Type::Button : Type::Small);
                     });
}

void paintCancel(Sheet& sheet, const ControlRow& row) {
    sheet.keyedStrip(static_cast<unsigned>(row.region.bitmap), frameOf(row), dialogFootGround,
                     dialogFootGround, [&row](QPainter& p, const QRectF& area, int frame) {
                         button(p, area, QString::fromLatin1(row.caption), ButtonLook::Quiet, Frame(frame),
                                area.height() > 30 ? Type::Button : Type::Small);
                     });
}

const QColor& closeHoverPlate = palette::mossDark;

/// All dialogs have the same close sign at the same distance from their top right corner, however large the
/// button's rectangle is.
const Rect closeSign = controlOf(dialog::notice::controls, dialog::closeButton).rect;

/// Under the pointer it is a dark plate whose cross lets the title strip show. Both have whole pixels: their
/// colours are those that the profile form's strip leaves out or cannot be told from the strip.
void paintCloseSign(QPainter& p, const QRectF& area, int frame) {
    if (Frame(frame) == Frame::Rest) return cross(p, area.center(), 3.2, 1.6, palette::ink);
    p.setRenderHint(QPainter::Antialiasing, false);
    const QColor plateColor = Frame(frame) == Frame::Hover ? closeHoverPlate : palette::ink;
    p.fillRect(area.adjusted(1, 0, -1, 0), plateColor);
    p.fillRect(area.adjusted(0, 1, 0, -1), plateColor);
    cross(p, area.center(), 3.2, 1.6, dialogTitleGround);
}

/// Both numbers of a close button's record get the strip.
void paintClose(Sheet& sheet, const ControlRow& row, Size dialogSize) {
    const QPointF offset(dialogSize.width - dialog::wideSize.width + closeSign.left - row.rect.left,
                         closeSign.top - row.rect.top);
    for (int id : {row.region.bitmap, row.region.secondBitmap})
        sheet.keyedStrip(static_cast<unsigned>(id), frameOf(row), dialogTitleGround, dialogTitleGround,
                         [offset](QPainter& p, const QRectF& area, int frame) {
                             paintCloseSign(p,
                                            rectF(closeSign.moved(-closeSign.left, -closeSign.top))
                                                .translated(area.topLeft() + offset),
                                            frame);
                         });
}

/// The notices' close button, whose strip the profile form copies in wider frames. There the first frame also
/// shows the left half of the hover frame: its plate has the colour of the form's key pixel and so stays out
/// of sight.
void paintSharedClose(Sheet& sheet, const ControlRow& narrow, const ControlRow& wide) {
    const Size wideFrame = frameOf(wide);
    const QRectF keyPixel(wide.region.keyX, wide.region.keyY, 1, 1);
    const double height = narrow.region.frameHeight;
    const auto paint = [keyPixel, height](QPainter& p, const QRectF& area, int frame) {
        if (frame == 0) p.fillRect(keyPixel, closeHoverPlate);
        paintCloseSign(p, QRectF(area.left(), area.top(), area.width(), height), frame);
    };
    for (int id : {narrow.region.bitmap, narrow.region.secondBitmap})
        sheet.keyedStrip(static_cast<unsigned>(id), {narrow.region.frameWidth, wideFrame.height},
                         {wideFrame.width * 3, wideFrame.height}, dialogTitleGround, dialogTitleGround,
                         paint);
}

} // namespace

void paintDialogButtons(Sheet& sheet) {
    using namespace dialog;
    paintOk(sheet, controlOf(notice::controls, okButton));
    paintCancel(sheet, controlOf(notice::controls, cancelButton));
    paintOk(sheet, controlOf(shortcut::controls, okButton));
    paintCancel(sheet, controlOf(shortcut::controls, cancelButton));
    paintOk(sheet, controlOf(launch::controls, okButton));
    paintCancel(sheet, controlOf(launch::controls, cancelButton));

    paintSharedClose(sheet, controlOf(notice::controls, closeButton),
                     controlOf(profile::controls, closeButton));
    paintClose(sheet, controlOf(shortcut::controls, closeButton), shortcut::size);
    paintClose(sheet, controlOf(launch::controls, closeButton), launch::size);
}

} // namespace tarnix::art
