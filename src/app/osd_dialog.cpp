#include "app/osd_dialog.h"

namespace tarnix {
namespace {

constexpr Size osdSize{300, 56};
constexpr int osdOpacity = 128;
constexpr Color osdBackground = rgb(164, 73, 164);
constexpr Point textAt{30, 14};
constexpr Color textColor = rgb(255, 255, 255);
/// Around the letters: over a light desktop the half translucent ground is hardly darker than they are.
constexpr Color edgeColor = rgb(38, 8, 46);
constexpr TextFormat textFormat{
    .height = 24, .weight = 700, .color = textColor, .shrinks = true, .ellipsis = false, .edge = edgeColor};

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

AccessibleFace COSDDialog::accessibleFace() const {
    return {.role = AccessibleRole::Status, .name = m_text};
}

void COSDDialog::OnPaint(Canvas& canvas, const Rect&) {
    const Rect client = clientRect();
    canvas.fill(client, osdBackground);
    canvas.drawText(m_text, {textAt.x, textAt.y, client.right, client.bottom}, textFormat);
}

} // namespace tarnix
