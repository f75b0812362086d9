#include "skin/tab_control.h"

#include <utility>

namespace tarnix {

namespace {

struct TabRow {
    unsigned id;
    int* selection; ///< the group's variable
    int value;
};

constexpr TabRow tabs[] = {
    {2003, &g_nMainPage, 0}, {2004, &g_nMainPage, 1}, {2005, &g_nMainPage, 2},
    {2077, &g_nMainPage, 3}, {2049, &g_nSubPage, 0},  {2050, &g_nSubPage, 1},
    {2051, &g_nSubPage, 2},  {2052, &g_nSubPage, 3},  {2053, &g_nSubPage, 4},
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

int CTabControl::frame() const {
    const TabRow* tab = tabOf(m_nID);
    return tab && *tab->selection == tab->value ? mousePressed : m_nMouseState;
}

void CTabControl::clicked(Point) {
    if (const TabRow* tab = tabOf(m_nID)) *tab->selection = tab->value;
    notifyOwner(NOTIFY_CLICK);
}

} // namespace tarnix
