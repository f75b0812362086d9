#include <array>

#include "artist/caps.h"
#include "artist/controls.h"
#include "artist/shapes.h"
#include "artist/subjects.h"
#include "skin/picture_ids.h"
#include "ui/main_window_layout.h"

namespace tarnix::art {

namespace {

struct Wording {
    unsigned control;
    ButtonLook look;
    Type type;
};

constexpr std::array<Wording, 12> wordings{{
    {id::keyPageTab, ButtonLook::Tab, Type::Button},
    {id::macroPageTab, ButtonLook::Tab, Type::Button},
    {id::gKeyPageTab, ButtonLook::Tab, Type::Button},
    {id::lightingPageTab, ButtonLook::Tab, Type::Button},
    {id::okButton, ButtonLook::Main, Type::Small},
    {id::applyButton, ButtonLook::Main, Type::Small},
    {id::cancelButton, ButtonLook::Quiet, Type::Small},
    {id::profileTab1, ButtonLook::Tab, Type::Button},
    {id::profileTab2, ButtonLook::Tab, Type::Button},
    {id::profileTab3, ButtonLook::Tab, Type::Button},
    {id::resetButton, ButtonLook::Careful, Type::Small},
    {id::restoreButton, ButtonLook::Careful, Type::Small},
}};

constexpr std::array<Wording, 4> macroWordings{{
    {id::macroButton1, ButtonLook::Main, Type::Small},
    {id::macroButton2, ButtonLook::Careful, Type::Small},
    {id::macroButton3, ButtonLook::Quiet, Type::Small},
    {id::macroButton4, ButtonLook::Quiet, Type::Small},
}};

/// Buttons that are `room` pixels high at most, at the top of their rectangles.
template <typename Table, std::size_t count>
void paintWorded(Sheet& sheet, const Table& table, const std::array<Wording, count>& words,
                 double room = 100) {
    for (const Wording& row : words) {
        const ControlRow& control = controlOf(table, row.control);
        sheet.strip(control.image, control.rect.size(), picture::buttonFrames,
                    [&, room](QPainter& p, const QRectF& area, int frame) {
                        const QRectF part(area.left(), area.top(), area.width(),
                                          std::min(area.height(), room));
                        const double margin = part.height() > 30 ? 2 : 1;
                        button(p, part, QString::fromLatin1(control.caption), row.look, Frame(frame),
                               row.type, margin);
                    });
    }
}

enum class WindowSign { Close, Minimise };

void paintWindowButton(Sheet& sheet, unsigned id, WindowSign sign) {
    const ControlRow& control = controlOf(commonControls, id);
    sheet.strip(control.image, control.rect.size(), picture::buttonFrames,
                [sign](QPainter& p, const QRectF& area, int frame) {
                    using namespace palette;
                    const bool rest = Frame(frame) == Frame::Rest;
                    const QColor fills[] = {withAlpha(slate, 0), mossDeep, mossDark};
                    const QColor color = rest ? mist : Frame(frame) == Frame::Hover ? paper : springLight;
                    if (!rest) plate(p, area, 5, fills[frame], moss);
                    const QPointF c = area.center();
                    if (sign == WindowSign::Close) {
                        cross(p, c, 3.5, 1.5, color);
                    } else {
                        p.setPen(QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap));
                        p.drawLine(c + QPointF(-4, 3), c + QPointF(4, 3));
                    }
                });
}

/// Small coloured dots, one for each of the five lighting areas.
void paintAreaMarkers(Sheet& sheet) {
    for (std::size_t i = 0; i < areaMarkers.size(); ++i) {
        const QColor area = QColor::fromHsvF(static_cast<float>(i) / 6.0F, 0.7F, 1.0F);
        sheet.strip(areaMarkers[i].image, areaMarkers[i].rect.size(), picture::buttonFrames,
                    [area](QPainter& p, const QRectF& frame, int state) {
                        const double inset = state == 2 ? 2 : 4;
                        p.setPen(QPen(state == 0 ? palette::line : palette::paper, 1));
                        p.setBrush(area);
                        p.drawEllipse(frame.adjusted(inset, inset, -inset, -inset));
                    });
    }
}

} // namespace

void paintMainControls(Sheet& sheet) {
    paintWindowButton(sheet, id::closeButton, WindowSign::Close);
    paintWindowButton(sheet, id::minimiseButton, WindowSign::Minimise);
    paintWorded(sheet, commonControls, wordings);
    // The row of tabs begins within the macro buttons' rectangles.
    const double room =
        placeOf(commonControls, id::keyPageTab).top - placeOf(macroPageControls, id::macroButton1).top;
    paintWorded(sheet, macroPageControls, macroWordings, room);
    paintAreaMarkers(sheet);
}

void paintCaps(Sheet& sheet) {
    for (const ControlRow& cap : keyCaps) {
        const CapLegend& legend = legendOf(cap.text);
        sheet.strip(cap.image, cap.rect.size(), picture::buttonFrames,
                    [&legend](QPainter& p, const QRectF& area, int frame) {
                        paintCap(p, area, legend, Frame(frame));
                    });
    }
}

} // namespace tarnix::art
