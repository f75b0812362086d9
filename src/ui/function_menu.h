// The function menu of the G-key fields: the list of categories, the lists beside it, and the lists of single
// macro sets, which this model of the keyboard does not open by itself.
//
// A list that loses the activation says so and is closed from here; a list beside the menu keeps the menu
// open.
#pragma once

#include "ui/main_window_context.h"

namespace tarnix {

class FunctionMenu {
  public:
    explicit FunctionMenu(const MainWindowContext& context) : m_context(context) {}

    void registerHandlers(MessageMap& map);

    void closeCategory() { m_context.window.popups().close(PopupPlace::Category); }
    /// Closes the list beside the menu that answers with this message; nothing for another number.
    void closeSubPopup(Message answer);
    /// Closes the macro set lists, the list of macros and the menu.
    void closeMacroPopups();
    /// Brings the open lists beside the menu above it.
    void raiseSubPopups();
    void raiseMacroSets();
    /// Row of the last macro set list that is open; -1 for none.
    int lastMacroSetRow() const;

  private:
    struct SubPopup;
    static const SubPopup subPopups[];

    void OpenFunctionMenu(WParam fieldId);
    void OpenSubPopup(const SubPopup& sub, WParam fieldId);
    void closeSubPopups();
    void onCategoryClosing(WParam fieldId, LParam kind);
    void onSubPopupClosing(const SubPopup& sub, WParam fieldId, LParam kind);
    void openMacroSet(LParam number);
    void closeMacroSetsBesideLibrary();
    void onMacroSetClosing(LParam kind);
    bool isOpen(PopupPlace place) const { return m_context.window.popups().at(place) != nullptr; }
    bool anySubPopup() const;
    bool pointerOver(PopupPlace place) const;
    /// Closes the menu and lets its field look closed.
    void endMenu(WParam fieldId);
    unsigned macroSetCount() const { return static_cast<unsigned>(m_context.macros.sets.size()); }

    const MainWindowContext& m_context;
};

} // namespace tarnix
