#include "skin/tab_control.h"

#include <utility>

namespace tarnix {

namespace {

struct TabRow {
    unsigned id;
    int value;      ///< what the tab sets
    int* selection; ///< the variable of its group
};

constexpr TabRow tabs[] = {
    {2003, 0, &g_nMainPage}, {2004, 1, &g_nMainPage}, {2005, 2, &g_nMainPage},
    {2077, 3, &g_nMainPage}, {2049, 0, &g_nSubPage},  {2050, 1, &g_nSubPage},
    {2051, 2, &g_nSubPage},  {2052, 3, &g_nSubPage},  {2053, 4, &g_nSubPage},
};

const TabRow* tabOf(unsigned id) {
    for (const TabRow& tab : tabs)
        if (tab.id == id) return &tab;
    return nullptr;
}

} // namespace

CTabControl::CTabControl(Window& owner, unsigned id, const Rect& rect, std::string text, bool visible,
                         bool disabled)
    : CStripButton(3, owner, id, rect, std::move(text), visible, disabled) {}

bool CTabControl::isSelected() const {
    const TabRow* tab = tabOf(m_nID);
    return tab && *tab->selection == tab->value;
}

int CTabControl::frame() const {
    return isSelected() ? mousePressed : m_nMouseState;
}

void CTabControl::describe(AccessibleItem& item) const {
    item.role = AccessibleRole::Tab;
    item.selected = isSelected();
}

void CTabControl::clicked(Point) {
    if (const TabRow* tab = tabOf(m_nID)) *tab->selection = tab->value;
    notifyOwner(NOTIFY_CLICK);
}

} // namespace tarnix
