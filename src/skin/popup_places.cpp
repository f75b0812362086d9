#include "skin/popup_places.h"

#include <algorithm>
#include <utility>

#include "skin/mouse_router.h"

namespace tarnix {

namespace {

constexpr PopupPlace subLists[] = {PopupPlace::Multimedia, PopupPlace::Web, PopupPlace::Mouse,
                                   PopupPlace::MacroLibrary};

} // namespace

PopupPlaces::~PopupPlaces() = default;

void PopupPlaces::open(PopupPlace place, std::unique_ptr<CWndPopup> popup, const Rect& clientRect,
                       Message notify, unsigned tag) {
    close(place);
    // The place is filled before the window shows: the popup that loses activation by that asks what is open.
    CWndPopup* opening = m_places[index(place)] = keep(std::move(popup));
    if (opening->Create(m_owner, m_owner.toScreen(clientRect), notify, tag)) discard(opening);
}

void PopupPlaces::openMacroSet(std::unique_ptr<CWndPopup> popup, const Rect& clientRect, unsigned tag,
                               unsigned row) {
    closeMacroSet(row);
    CWndPopup* opening = m_macroSets[row] = keep(std::move(popup));
    if (opening->Create(m_owner, m_owner.toScreen(clientRect), macroSetNotify, tag)) discard(opening);
}

void PopupPlaces::close(PopupPlace place) {
    if (CWndPopup* popup = std::exchange(m_places[index(place)], nullptr)) letGo(*popup);
}

CWndPopup* PopupPlaces::macroSet(unsigned row) const {
    const auto place = m_macroSets.find(row);
    return place == m_macroSets.end() ? nullptr : place->second;
}

void PopupPlaces::closeMacroSet(unsigned row) {
    const auto place = m_macroSets.find(row);
    if (place == m_macroSets.end()) return;
    CWndPopup* popup = place->second;
    m_macroSets.erase(place);
    letGo(*popup);
}

void PopupPlaces::closeMacroSets() {
    while (!m_macroSets.empty())
        closeMacroSet(m_macroSets.begin()->first);
}

bool PopupPlaces::any() const {
    return anyMacroSet() || std::any_of(m_places.begin(), m_places.end(), [](auto* popup) { return popup; });
}

void PopupPlaces::dismiss() {
    if (CWndPopup* category = at(PopupPlace::Category)) {
        // The owner keeps the category list for as long as a list beside it is open.
        closeMacroSets();
        for (PopupPlace place : subLists)
            close(place);
        category->sendDeactivated();
    } else {
        const auto places = m_places;
        for (CWndPopup* popup : places)
            if (popup && isOpen(popup)) popup->sendDeactivated();
    }
    closeAll();
}

void PopupPlaces::closeAll() {
    closeMacroSets();
    for (std::size_t place = 0; place < count; ++place)
        close(static_cast<PopupPlace>(place));
}

void PopupPlaces::destroyAll() {
    m_places.fill(nullptr);
    m_macroSets.clear();
    for (std::size_t i = 0; i < m_alive.size(); ++i)
        m_alive[i]->destroyWindow();
}

void PopupPlaces::free(LParam popup) {
    const auto found = std::find_if(m_alive.begin(), m_alive.end(), [popup](const auto& alive) {
        return reinterpret_cast<LParam>(alive.get()) == popup;
    });
    if (found != m_alive.end() && !(*found)->exists()) forget(found->get());
    sweep();
}

CWndPopup* PopupPlaces::keep(std::unique_ptr<CWndPopup> popup) {
    sweep();
    m_alive.push_back(std::move(popup));
    return m_alive.back().get();
}

void PopupPlaces::letGo(CWndPopup& popup) {
    m_mouse.dropFocus();
    popup.Close();
}

void PopupPlaces::discard(CWndPopup* popup) {
    forget(popup);
    sweep();
}

void PopupPlaces::forget(CWndPopup* popup) {
    std::replace(m_places.begin(), m_places.end(), popup, static_cast<CWndPopup*>(nullptr));
    std::erase_if(m_macroSets, [popup](const auto& place) { return place.second == popup; });
}

bool PopupPlaces::isOpen(const CWndPopup* popup) const {
    return std::find(m_places.begin(), m_places.end(), popup) != m_places.end();
}

/// Frees the popups that no place holds and whose windows have gone.
void PopupPlaces::sweep() {
    std::erase_if(m_alive, [this](const auto& popup) { return !popup->inUse() && !isOpen(popup.get()); });
}

} // namespace tarnix
