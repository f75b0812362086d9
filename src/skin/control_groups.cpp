#include "skin/control_groups.h"

#include <algorithm>

namespace tarnix {

void ControlGroups::add(std::size_t group, std::unique_ptr<CControlBase> control) {
    m_groups[std::min(group, count - 1)].push_back(std::move(control));
}

CControlBase* ControlGroups::find(unsigned id) const {
    for (const Group& group : m_groups)
        for (const auto& control : group)
            if (control->m_nID == id) return control.get();
    return nullptr;
}

void ControlGroups::setVisible(std::size_t group, bool visible) {
    if (group >= count) return;
    for (const auto& control : m_groups[group])
        control->SetVisible(visible);
}

void ControlGroups::draw(Canvas& canvas, const Rect& clip) const {
    forEach([&](CControlBase& control) {
        if (control.m_bVisible && control.GetRect().intersects(clip)) control.Draw(canvas, clip);
    });
}

} // namespace tarnix
