#include <array>

#include "artist/controls.h"
#include "artist/shapes.h"
#include "artist/step_signs.h"
#include "artist/subjects.h"
#include "macro_manager/manager_layout.h"
#include "skin/picture_ids.h"
#include "ui/dialog_layouts.h"
#include "ui/main_window_layout.h"

namespace tarnix::art {

namespace {

/// The seven frames of a check box are its mouse state, whether it is checked, or disabled.
struct CheckState {
    Frame frame;
    bool checked;
    bool disabled;
};

CheckState checkState(int index) {
    if (index == picture::checkFrames - 1) return {Frame::Rest, false, true};
    return {Frame(index % 3), index >= 3, false};
}

void paintCheckBox(QPainter& p, const QRectF& area, int index) {
    using namespace palette;
    const CheckState state = checkState(index);
    const QRectF box = area.adjusted(0.5, 0.5, -0.5, -0.5);
    const double radius = box.width() / 4;
    if (state.disabled) {
        plate(p, box, radius, slate, line);
        p.setPen(QPen(lineBright, 1.5, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(box.center() - QPointF(2.5, 0), box.center() + QPointF(2.5, 0));
        return;
    }
    const QColor edge = state.frame == Frame::Rest ? sage : springLight;
    QColor fill = state.checked ? spring : abyss;
    if (state.frame == Frame::Hover) fill = state.checked ? springLight : mossDark;
    if (state.frame == Frame::Pressed) fill = state.checked ? springDeep : moss;
    plate(p, box, radius, fill, edge);
    if (state.checked) tick(p, box, area.width() / 7.5, ink);
}

/// The record switch: a toggle with its word.
void paintRecordSwitch(QPainter& p, const QRectF& area, int index) {
    using namespace palette;
    const CheckState state = checkState(index);
    const QRectF body = area.adjusted(1, 1, -1, -1);
    const QColor rests[] = {slate, mossDeep, mossDark};
    const QColor runs[] = {spring, springLight, springDeep};
    const int frame = static_cast<int>(state.frame);
    plate(p, body, 7, state.checked ? runs[frame] : rests[frame],
          state.disabled               ? line
          : state.frame == Frame::Rest ? sage
                                       : springLight);
    const QPointF lamp(body.left() + 15, body.center().y());
    p.setPen(Qt::NoPen);
    p.setBrush(state.disabled ? lineBright : state.checked ? QColor(176, 30, 30) : QColor(232, 96, 86));
    if (state.checked)
        p.drawRoundedRect(QRectF(lamp.x() - 4.5, lamp.y() - 4.5, 9, 9), 1.5, 1.5);
    else
        p.drawEllipse(lamp, 5, 5);
    setText(p, QRectF(body.left() + 28, body.top(), body.width() - 32, body.height()),
            state.checked ? QStringLiteral("Stop")
                          : QString::fromLatin1(controlOf(macroPageControls, id::recordSwitch).caption),
            Type::Button,
            state.disabled  ? mist
            : state.checked ? ink
                            : paper,
            Qt::AlignLeft);
}

void paintRadio(QPainter& p, const QRectF& area, int frame) {
    using namespace palette;
    const QRectF ring = area.adjusted(1, 1, -1, -1);
    p.setPen(QPen(Frame(frame) == Frame::Rest ? sage : springLight, 1.5));
    p.setBrush(Frame(frame) == Frame::Hover ? mossDark : abyss);
    p.drawEllipse(ring);
    if (Frame(frame) == Frame::Pressed) {
        p.setPen(Qt::NoPen);
        p.setBrush(spring);
        p.drawEllipse(ring.center(), 3.6, 3.6);
    }
}

/// A drop-down field; its value is set on it in black.
void paintCombo(QPainter& p, const QRectF& area, int index) {
    using namespace palette;
    constexpr int inactive = 3;
    const QColor faces[] = {sagePale, springLight, spring, mixed(sage, mist, 0.5), mixed(sage, mist, 0.3)};
    const QColor edges[] = {sage, spring, springDeep, moss, sage};
    const QColor face = faces[index];
    plate(p, area, 5, vertical(area, mixed(face, QColor(255, 255, 255), 0.25), face), edges[index]);
    const double split = area.right() - CComboButton::arrowWidth;
    p.fillRect(QRectF(split, area.top() + 5, 1, area.height() - 10), withAlpha(moss, 150));
    chevron(p, QPointF(split + 13, area.center().y() + 0.5), 3.6, Direction::Down, 1.7,
            index < inactive ? ink : mossDeep);
}

/// The button beside a path: a folder.
void paintBrowse(QPainter& p, const QRectF& area, int frame) {
    button(p, area, QString(), ButtonLook::Main, Frame(frame), Type::Small, 0);
    const QPointF c = area.center() + QPointF(0, 0.5);
    QPainterPath folder(c + QPointF(-5.5, -4));
    for (const QPointF& d :
         {QPointF(-1.5, -4), QPointF(0, -2.5), QPointF(5.5, -2.5), QPointF(5.5, 4), QPointF(-5.5, 4)})
        folder.lineTo(c + d);
    folder.closeSubpath();
    p.setPen(QPen(palette::ink, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(folder);
}

/// The bar puts its down arrow one pixel row too low, so the last row stays empty.
void paintScrollArrow(QPainter& p, const QRectF& frameArea, int frame, Direction direction) {
    using namespace palette;
    const QColor fills[] = {moss, spring, springDeep};
    const QRectF area = frameArea.adjusted(0, 0, 0, direction == Direction::Down ? -1 : 0);
    plate(p, area, 0, fills[frame], mossDeep);
    chevron(p, area.center(), 3.6, direction, 1.8, ink);
}

void paintStepIcon(Sheet& sheet, unsigned id, void (*paint)(QPainter&, const QRectF&)) {
    sheet.strip(id, picture::stepIconSize, 1,
                [paint](QPainter& p, const QRectF& area, int) { paint(p, area); });
}

} // namespace

void paintFields(Sheet& sheet) {
    const ControlRow& box = controlOf(macroPageControls, id::loopCheck);
    sheet.strip(box.image, box.rect.size(), picture::checkFrames, paintCheckBox);
    const ControlRow& smallBox = controlOf(dialog::shortcut::controls, dialog::shortcut::ctrl);
    sheet.strip(smallBox.image, smallBox.rect.size(), picture::checkFrames, paintCheckBox);
    const ControlRow& record = controlOf(macroPageControls, id::recordSwitch);
    sheet.strip(record.image, record.rect.size(), picture::checkFrames, paintRecordSwitch);
    sheet.strip(picture::radioButton, picture::radioButtonSize, picture::buttonFrames, paintRadio);
    sheet.strip(lightingFields[0].image, lightingFields[0].rect.size(), picture::comboFrames, paintCombo);
    const ControlRow& browse = controlOf(dialog::launch::controls, dialog::launch::browse);
    sheet.strip(browse.image, browse.rect.size(), picture::buttonFrames, paintBrowse);
    const ControlRow& own = controlOf(dialog::keymap::controls, dialog::keymap::ownFunction);
    sheet.strip(own.image, own.rect.size(), picture::buttonFrames,
                [&own](QPainter& p, const QRectF& area, int frame) {
                    button(p, area, QString::fromLatin1(own.caption), ButtonLook::Quiet, Frame(frame),
                           Type::Small);
                });
    sheet.strip(
        picture::scrollUp, picture::scrollArrowSize, picture::buttonFrames,
        [](QPainter& p, const QRectF& a, int frame) { paintScrollArrow(p, a, frame, Direction::Up); });
    sheet.strip(
        picture::scrollDown, picture::scrollArrowSize, picture::buttonFrames,
        [](QPainter& p, const QRectF& a, int frame) { paintScrollArrow(p, a, frame, Direction::Down); });
    paintStepIcon(sheet, picture::stepPress, paintStepPress);
    paintStepIcon(sheet, picture::stepRelease, paintStepRelease);
    paintStepIcon(sheet, picture::stepDelay, paintStepDelay);
}

} // namespace tarnix::art
