#include "ui/spare_controls.h"

#include <algorithm>

#include "profile/numbers.h"
#include "skin/static_text.h"
#include "ui/messages.h"

namespace tarnix {

void SpareControls::registerHandlers(MessageMap& map) {
    map.onClick(id::firstLightRadio, id::lastLightRadio,
                [this] { chooseLight(id::firstLightRadio, id::lastLightRadio); });
    map.onClick(id::firstSideRadio, id::lastSideRadio,
                [this] { chooseLight(id::firstSideRadio, id::lastSideRadio); });
    map.onClick(id::firstShowRadio, id::lastShowRadio,
                [this] { choose(id::firstShowRadio, id::lastShowRadio); });
    map.onClick(id::areaButton, [this] { takeUpCurrentProfile(); });
    map.onClick(id::firstAreaColour, id::lastAreaColour, [this] { takeUpCurrentProfile(); });
    map.on(id::levelScroller, [this](WParam, LParam l) { setLevel(l); });
    map.onClick(id::levelUp, [this] { setLevel(std::min(m_level + 1, maxLevel)); });
    map.onClick(id::levelDown, [this] { setLevel(std::max(m_level - 1, 0)); });
    map.on(id::unusedButton, [] {});
}

void SpareControls::choose(unsigned first, unsigned last) {
    for (unsigned button = first; button <= last; ++button)
        m_context.window.repaintControl(button);
    takeUpCurrentProfile();
}

void SpareControls::chooseLight(unsigned first, unsigned last) {
    choose(first, last);
    m_context.mark(PendingWrites::lightingRow);
}

void SpareControls::setLevel(LParam level) {
    if (level < 0 || level > maxLevel) return;
    m_level = static_cast<int>(level);
    if (auto* label = m_context.window.control<CStaticText>(id::levelLabel)) {
        label->m_strLabel = toText(m_level + 1);
        label->repaint();
    }
    m_context.mark(PendingWrites::lightingRow);
}

} // namespace tarnix
