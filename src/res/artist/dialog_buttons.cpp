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

const QColor& closeHoverPlate = palette::mossDark;

void paintCloseSign(QPainter& p, const QRectF& area, int frame) {
    const bool rest = Frame(frame) == Frame::Rest;
    if (!rest)
        plate(p, area, 4, Frame(frame) == Frame::Hover ? closeHoverPlate : palette::ink, closeHoverPlate);
    cross(p, area.center(), 3.2, 1.6, rest ? palette::ink : palette::paper);
}

/// Both numbers of a close button's record get the strip.
void paintClose(Sheet& sheet, const ControlRow& row) {
    for (int id : {row.region.bitmap, row.region.secondBitmap})
        sheet.keyedStrip(static_cast<unsigned>(id), frameOf(row), dialogTitleGround, dialogTitleGround,
                         paintCloseSign);
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
    paintClose(sheet, controlOf(shortcut::controls, closeButton));
    paintClose(sheet, controlOf(launch::controls, closeButton));
}

} // namespace tarnix::art
