// The popups that a window has open: one place for each kind.
#pragma once

#include <array>
#include <map>
#include <memory>
#include <vector>

#include "skin/wnd_popup.h"

namespace tarnix {

class MouseRouter;

enum class PopupPlace {
    Category,        ///< CComboPopup
    Multimedia,      ///< CProfilePopup
    Web,             ///< CDPIPopup
    Mouse,           ///< CMultimediaPopup
    MacroLibrary,    ///< CMacroLibraryPopup
    MacroSetList,    ///< CMacroSetListPopup
    LightMode,       ///< CLightModePopup
    LightBrightness, ///< CLightBrightnessPopup
    LightSpeed       ///< CLightSpeedPopup
};

class PopupPlaces {
  public:
    static constexpr std::size_t count = 9;
    /// What the macro set popups answer with.
    static constexpr Message macroSetNotify = 1052;

    PopupPlaces(Window& owner, MouseRouter& mouse) : m_owner(owner), m_mouse(mouse) {}
    ~PopupPlaces();

    /// The open popup of a kind, or none.
    CWndPopup* at(PopupPlace place) const { return m_places[index(place)]; }
    /// Closes what the place holds, puts the popup there and shows it at a rectangle in client coordinates.
    /// On failure the place stays empty.
    void open(PopupPlace place, std::unique_ptr<CWndPopup> popup, const Rect& clientRect, Message notify,
              unsigned tag);
    /// Empties the place and lets its popup close once the present handler is done.
    void close(PopupPlace place);

    /// The open macro set popup of a row, or none; any number may be asked for.
    CWndPopup* macroSet(unsigned row) const;
    bool anyMacroSet() const { return !m_macroSets.empty(); }
    void openMacroSet(std::unique_ptr<CWndPopup> popup, const Rect& clientRect, unsigned tag, unsigned row);
    void closeMacroSet(unsigned row);
    void closeMacroSets();

    /// True while any popup is open.
    bool any() const;
    /// Closes everything as Escape does: the owner hears of it as of a loss of activation.
    void dismiss();
    /// Empties all places.
    void closeAll();
    /// Takes all popup windows away at once, open or closing.
    void destroyAll();
    /// Frees a popup whose window has gone; any other number is ignored.
    void free(LParam popup);

  private:
    static constexpr std::size_t index(PopupPlace place) { return static_cast<std::size_t>(place); }
    CWndPopup* keep(std::unique_ptr<CWndPopup> popup);
    void letGo(CWndPopup& popup);
    void discard(CWndPopup* popup);
    /// Takes the popup out of the place that holds it.
    void forget(CWndPopup* popup);
    bool isOpen(const CWndPopup* popup) const;
    void sweep();

    Window& m_owner;
    MouseRouter& m_mouse;
    std::array<CWndPopup*, count> m_places{};
    std::map<unsigned, CWndPopup*> m_macroSets;      ///< the open ones by row
    std::vector<std::unique_ptr<CWndPopup>> m_alive; ///< all popups until their windows have gone
};

} // namespace tarnix
