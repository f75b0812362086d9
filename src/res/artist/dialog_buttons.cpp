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
                     dialogFootGround, [](QPainter& p, const QRectF& area, int frame) {
                         button(p, area, QStringLiteral("OK"), ButtonLook::Main, Frame(frame),
                                area.height() > 30 ? Type::Button : Type::Small);
                     });
}

void paintCancel(Sheet& sheet, const ControlRow& row) {
    sheet.keyedStrip(static_cast<unsigned>(row.region.bitmap), frameOf(row), dialogFootGround,
                     dialogFootGround, [](QPainter& p, const QRectF& area, int frame) {
                         button(p, area, QStringLiteral("Cancel"), ButtonLook::Quiet, Frame(frame),
                                area.height() > 30 ? Type::Button : Type::Small);
                     });
}

void paintCloseSign(QPainter& p, const QRectF& area, int frame) {
    const bool rest = Frame(frame) == Frame::Rest;
    if (!rest)
        plate(p, area, 4, Frame(frame) == Frame::Hover ? palette::mossDark : palette::ink, palette::mossDark);
    cross(p, area.center(), 3.2, 1.6, rest ? palette::ink : palette::paper);
}

/// Both numbers of a close button's record get the strip. `picture` holds the widest frames that a dialog
/// copies.
void paintClose(Sheet& sheet, const ControlRow& row, Size picture) {
    for (int id : {row.region.bitmap, row.region.secondBitmap})
        sheet.keyedStrip(static_cast<unsigned>(id), frameOf(row), picture, dialogTitleGround,
                         dialogTitleGround, paintCloseSign);
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

    const Size formFrame = frameOf(controlOf(profile::controls, closeButton));
    paintClose(sheet, controlOf(notice::controls, closeButton), {formFrame.width * 3, formFrame.height});
    for (const ControlRow& row :
         {controlOf(shortcut::controls, closeButton), controlOf(launch::controls, closeButton)})
        paintClose(sheet, row, {row.region.frameWidth * 3, row.region.frameHeight});
}

} // namespace tarnix::art
