#include "skin/static_text.h"

#include <utility>

#include "skin/fonts.h"

namespace tarnix {

CStaticText::CStaticText(Window& owner, unsigned id, const Rect& rect, Color color, unsigned format,
                         std::string text, bool visible, bool disabled)
    : CMouseControl(owner, id, rect, std::move(text), visible, disabled), m_color(color), m_nFormat(format) {}

void CStaticText::Draw(Canvas& canvas, const Rect&) {
    if (m_strLabel.empty()) return;
    TextFormat format = colored(labelFont, m_color);
    format.centred = (m_nFormat & formatCentred) != 0;
    format.verticalCentred = (m_nFormat & formatVerticalCentred) != 0;
    canvas.drawText(m_strLabel, m_rect, format);
}

/// A label is called what stands in it, behind its caption if it has one.
void CStaticText::describe(AccessibleItem& item) const {
    if (!item.name.empty())
        item.value = m_strLabel;
    else
        item.name = m_strLabel;
    if (!item.name.empty()) item.role = AccessibleRole::Label;
}

} // namespace tarnix
