#include "skin/lists.h"

#include <algorithm>
#include <utility>

#include "profile/vocabulary.h"
#include "skin/fonts.h"
#include "skin/picture_ids.h"

namespace tarnix {

namespace {

constexpr Color listColor = 0x261005;
constexpr Color selectionColor = 0xDEA035;
constexpr Color white = 0xFFFFFF;

} // namespace

CRowList::CRowList(Window& owner, unsigned id, const Rect& rect, std::string text, bool visible,
                   bool disabled)
    : CMouseControl(owner, id, rect, std::move(text), visible, disabled),
      m_nVisibleRows((rect.height() + rowHeight / 2) / rowHeight) {}

Rect CRowList::rowRect(int line) const {
    return {m_rect.left + 2, m_rect.top + line * rowHeight, m_rect.right - 2,
            m_rect.top + (line + 1) * rowHeight};
}

template <class F>
void CRowList::forEachShown(F visit) const {
    const int first = std::max(m_nFirstRow, 0);
    const int shown = std::min(m_nVisibleRows, rowCount() - first);
    for (int line = 0; line < shown; ++line)
        visit(first + line, rowRect(line));
}

void CRowList::Draw(Canvas& canvas, const Rect&) {
    canvas.fill(m_rect, listColor);
    forEachShown([&](int index, const Rect& row) {
        if (index == m_nSelected) canvas.fill(row, selectionColor);
        drawRow(canvas, index, row);
    });
}

void CRowList::describe(AccessibleItem& item) const {
    item.role = AccessibleRole::List;
    forEachShown([&](int index, const Rect& rect) {
        item.rows.push_back({.number = static_cast<unsigned>(index),
                             .role = AccessibleRole::ListItem,
                             .rect = rect,
                             .name = text(index),
                             .disabled = m_bDisabled,
                             .selected = index == m_nSelected});
    });
}

/// The line on the screen, not the item, is what is compared with the number of items: in a scrolled list a
/// press below the last item selects an index that no item has.
void CRowList::pressed(Point at) {
    const int line = (at.y - m_rect.top) / rowHeight;
    if (line < rowCount()) m_nSelected = m_nFirstRow + line;
}

CEditShowList::CEditShowList(Window& owner, unsigned id, const Rect& rect, MacroLibrary& source,
                             std::string text, bool visible, bool disabled)
    : CRowList(owner, id, rect, std::move(text), visible, disabled), m_source(source) {}

const MacroSet* CEditShowList::shownSet() const {
    return GetMacroSet(std::as_const(m_source), m_nSet);
}

int CEditShowList::rowCount() const {
    const MacroSet* set = shownSet();
    return set ? static_cast<int>(set->keys.size()) : 0;
}

void CEditShowList::SelectSet(int set) {
    m_nSet = set;
    m_nFirstRow = 0;
    m_nSelected = rowCount() > 0 ? 0 : -1;
}

void CEditShowList::ScrollToEnd() {
    if (rowCount() == 0) return;
    m_nFirstRow = std::max(rowCount() - m_nVisibleRows, 0);
    repaint();
}

int CEditShowList::BeginNewName() {
    if (m_editor) return 0;
    if (!shownSet()) return 1;
    m_nFirstRow = std::max(rowCount() + 1 - m_nVisibleRows, 0);
    Rect field = rowRect(rowCount() - m_nFirstRow);
    field.top += 2;
    m_editor = std::make_unique<EditField>(m_hOwner, editorId, field, EditStyle{.caption = "Macro name"});
    m_editor->setFocus();
    return 1;
}

void CEditShowList::DropNewName() {
    CloseEditor();
    notifyOwner(NOTIFY_NAME_DROPPED);
}

bool CEditShowList::OnEscape() {
    if (!isEditing()) return false;
    DropNewName();
    return true;
}

std::string CEditShowList::editorText() const {
    return m_editor ? m_editor->text() : std::string();
}

void CEditShowList::drawRow(Canvas& canvas, int index, const Rect& row) {
    canvas.drawText(text(index), row, colored(valueFont, white));
}

std::string CEditShowList::text(int macro) const {
    const MacroKey* key = findMacro(m_source, m_nSet, macro);
    return key ? key->name : std::string();
}

void CEditShowList::pressed(Point at) {
    CRowList::pressed(at);
    if (m_editor) finishName();
}

/// A refused name keeps the field open, so that the user can correct it.
void CEditShowList::finishName() {
    const std::string name = m_editor->text();
    MacroSet* set = GetMacroSet(m_source, m_nSet);
    if (!name.empty() && set) {
        if (name.size() > maxMacroNameLength) return notifyOwner(NOTIFY_NAME_TOO_LONG);
        if (findMacroName(*set, name) >= 0) return notifyOwner(NOTIFY_NAME_REPEATED);
        AddMacroKey(*set, name);
        notifyOwner(NOTIFY_NAME_ADDED);
    }
    CloseEditor();
}

CImageShowList::CImageShowList(Window& owner, unsigned id, const Rect& rect, MacroLibrary& source,
                               std::string text, bool visible, bool disabled)
    : CRowList(owner, id, rect, std::move(text), visible, disabled), m_source(source) {}

bool CImageShowList::LoadImages() {
    const bool release = m_release.load(picture::stepRelease);
    const bool press = m_press.load(picture::stepPress);
    const bool delay = m_delay.load(picture::stepDelay);
    return release && press && delay;
}

void CImageShowList::ShowMacro(int set, int macro) {
    m_nSet = set;
    m_nMacro = macro;
    m_nFirstRow = 0;
    m_nSelected = -1;
}

std::span<const MacroAction> CImageShowList::steps() const {
    const MacroKey* macro = findMacro(m_source, m_nSet, m_nMacro);
    return macro ? macro->usedActions() : std::span<const MacroAction>();
}

int CImageShowList::rowCount() const {
    return static_cast<int>(steps().size());
}

std::string CImageShowList::text(int step) const {
    if (step < 0 || step >= rowCount()) return {};
    const MacroAction& action = steps()[static_cast<std::size_t>(step)];
    if (action.isDelay()) return std::to_string(action.milliseconds()) + "ms";
    return std::string(VirtualKeyName(action.virtualKey())) + (action.isRelease() ? " Release" : " Press");
}

void CImageShowList::drawRow(Canvas& canvas, int index, const Rect& row) {
    const MacroAction& action = steps()[static_cast<std::size_t>(index)];
    const ImageStrip& icon = action.isDelay() ? m_delay : action.isRelease() ? m_release : m_press;
    const Size size = m_release.frameSize();
    icon.draw(canvas, 0, Rect::at(row.left, row.top + 3, size.width, size.height));
    canvas.drawText(text(index), {row.left + 15, row.top, row.right, row.bottom}, colored(valueFont, white));
}

} // namespace tarnix
