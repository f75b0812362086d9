// The page with the keyboard picture: what each key sends, and giving a key another code.
#pragma once

#include <array>

#include "skin/tab_control.h"
#include "ui/main_window_context.h"

namespace tarnix {

class KeyPage {
  public:
    explicit KeyPage(const MainWindowContext& context) : m_context(context) {}

    void build(Point origin);
    void registerHandlers(MessageMap& map);
    /// Shows record n's codes on the key caps; does not repaint. A record that there is not shows nothing
    /// new.
    void ShowKeyCodes(int n);
    /// Takes the mouse look off the area markers.
    void calmAreaMarkers();

  private:
    void EditKey(unsigned id);
    void ApplyKeyCode(unsigned id, std::uint8_t code);

    const MainWindowContext& m_context;
    std::array<CTabControl*, 5> m_pAreaMarker{};
};

} // namespace tarnix
