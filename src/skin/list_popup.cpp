#include "skin/list_popup.h"

#include <algorithm>
#include <utility>

#include "skin/dlg_base.h"

namespace tarnix {

namespace {

constexpr int margin = 3;
constexpr int rowHeight = 16;
constexpr int separatorHeight = 4;
constexpr Color highlightColor = 0xDEA035;
constexpr Color arrowColor = 0xFFFFFF;

/// A triangle that points to the right, 7 pixels high at its left side.
void drawArrow(Canvas& canvas, const Rect& row) {
    for (int column = 0; column < 4; ++column)
        canvas.fill(Rect::at(row.right - 6 + column, row.top + 3 + column, 1, 7 - 2 * column), arrowColor);
}

} // namespace

CListPopup::CListPopup(const ListClass& traits, unsigned kindOffset)
    : CWndPopup(traits.name, traits.kind + kindOffset), m_class(traits) {
    m_record.bytes[0] = traits.firstByte;
}

void CListPopup::addRow(std::string text, int code, bool submenu) {
    m_rows.push_back({false, code, std::move(text), {}, submenu});
}

void CListPopup::addSeparator() {
    m_rows.push_back({true, 0, {}, {}, false});
}

void CListPopup::addRows() {
    for (const ListItem& item : m_class.items)
        addRow(item.text, item.code, item.submenu);
}

Size CListPopup::BuildRows() {
    addRows();
    const int width = m_class.width > 0 ? m_class.width : givenWidth();
    int y = margin;
    for (Row& row : m_rows) {
        row.rect = row.separator ? Rect{margin, y + 2, width - margin, y + 3}
                                 : Rect{margin, y, width - margin, y + rowHeight};
        y += row.separator ? separatorHeight : rowHeight;
    }
    return {width, y + margin};
}

void CListPopup::DrawList(Canvas& canvas, const Rect&) {
    const TextFormat format = m_class.format;
    for (int i = 0; i < static_cast<int>(m_rows.size()); ++i) {
        const Row& row = m_rows[static_cast<std::size_t>(i)];
        const Rect& rect = row.rect;
        if (row.separator || i == m_nHotRow) canvas.fill(rect, highlightColor);
        if (row.separator) continue;
        canvas.drawText(row.text, {rect.left + 2, rect.top, rect.right - 2, rect.bottom}, format);
        if (row.submenu) drawArrow(canvas, rect);
    }
}

/// A list is called what the field is called that opened it.
AccessibleFace CListPopup::accessibleFace() const {
    AccessibleFace face{.role = AccessibleRole::Menu, .name = programTitle};
    const auto* dialog = dynamic_cast<const CDlgBase*>(owner());
    if (const CControlBase* field = dialog ? dialog->GetControl(tag()) : nullptr)
        face.name = field->GetText();
    for (int i = 0; i < static_cast<int>(m_rows.size()); ++i) {
        const Row& row = m_rows[static_cast<std::size_t>(i)];
        if (!row.rect.intersects(clientRect())) break;
        face.items.push_back({.number = static_cast<unsigned>(i),
                              .role = row.separator ? AccessibleRole::Separator : AccessibleRole::MenuItem,
                              .rect = row.rect,
                              .name = row.text,
                              .selected = i == m_nHotRow,
                              .opens = row.submenu,
                              .focused = i == m_nHotRow});
    }
    return face;
}

bool CListPopup::inHotRow(Point at) const {
    return m_nHotRow >= 0 && m_rows[static_cast<std::size_t>(m_nHotRow)].rect.contains(at);
}

bool CListPopup::OnPopupMouseMove(Point at) {
    if (inHotRow(at)) return false;
    const bool hadHotRow = std::exchange(m_nHotRow, -1) >= 0;
    const auto under = [at](const Row& row) { return !row.separator && row.rect.contains(at); };
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), under);
    if (row == m_rows.end()) return hadHotRow;
    m_nHotRow = static_cast<int>(row - m_rows.begin());
    hovered(m_nHotRow, *row);
    return true;
}

bool CListPopup::OnPopupLButtonDown(Point at) {
    if (m_class.answersPressBelow == 0) return false;
    if (!inHotRow(at))
        m_nHotRow = -1;
    else if (m_rows[static_cast<std::size_t>(m_nHotRow)].code < m_class.answersPressBelow)
        owner()->send(notifyMessage());
    return false;
}

bool CListPopup::OnPopupLButtonUp(Point at) {
    if (m_nHotRow < 0) return false;
    if (inHotRow(at)) {
        chosen(m_rows[static_cast<std::size_t>(m_nHotRow)]);
        return false;
    }
    m_nHotRow = -1;
    return true;
}

void CListPopup::chosen(const Row& row) {
    m_class.choose(row.code, m_record);
    answer(tag());
}

void CListPopup::hovered(int, const Row&) {}

void CListPopup::answer(WParam tagWord) {
    sendSelection(*owner(), notifyMessage(), tagWord, m_record);
}

void CListPopup::tell(Message message, int value) {
    owner()->send(message, tag(), value);
}

} // namespace tarnix
