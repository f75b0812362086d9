#include "app/osd_dialog.h"

namespace tarnix {
namespace {

constexpr Size osdSize{300, 56};
constexpr int osdOpacity = 128;
constexpr Color osdBackground = rgb(164, 73, 164);
constexpr Point textAt{30, 14};
constexpr TextFormat textFormat{
    .height = 24, .weight = 700, .color = rgb(255, 255, 255), .shrinks = true, .ellipsis = false};

} // namespace

COSDDialog::COSDDialog(const std::string& text) : m_text(text) {
    const Rect area = workArea();
    createWindow(
        {.kind = WindowKind::Overlay, .role = "COSDDialog"},
        Rect::at(area.right - osdSize.width, area.bottom - osdSize.height, osdSize.width, osdSize.height));
    setOpacity(osdOpacity);
    show();
}

void COSDDialog::SetText(const std::string& text) {
    m_text = text;
    invalidate();
}

void COSDDialog::OnPaint(Canvas& canvas, const Rect&) {
    const Rect client = clientRect();
    canvas.fill(client, osdBackground);
    canvas.drawText(m_text, {textAt.x, textAt.y, client.right, client.bottom}, textFormat);
}

} // namespace tarnix
