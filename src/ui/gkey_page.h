// The page with the G-key fields: what each G-key does, and giving it another function.
#pragma once

#include <functional>
#include <string>

#include "profile/key_assignment.h"
#include "skin/selection.h"
#include "ui/function_menu.h"
#include "ui/main_window_context.h"

namespace tarnix {

class GKeyPage {
  public:
    explicit GKeyPage(const MainWindowContext& context) : m_context(context), m_menu(context) {}

    void build(Point origin);
    void registerHandlers(MessageMap& map);
    /// Shows the names of record n's slots. The second field shows the sixth slot's name, for that slot has
    /// no field of its own. A record that there is not shows nothing new.
    void ShowGKeys(int n);

  private:
    /// A field that waits for its dialog; the dialog opens once the menu has closed.
    struct WaitingField {
        CComboButton* field = nullptr;
        unsigned id = 0;
    };

    void ApplyCategoryChoice(WParam fieldId, LParam record);
    void setDefaultFunction(CComboButton& field);
    void ApplySubChoice(Message answer, WParam fieldId, LParam record);
    void ApplyMacroChoice(WParam fieldId, LParam record);
    void ApplyMacroSetChoice(WParam tag, LParam record);
    void await(WaitingField& waiting, WParam fieldId, Message runDialog);
    void ApplyShortcut(LParam record);
    void ApplyQuickLaunch(WParam path, LParam record);
    /// Shows the name in the field and stores the function for its G-key.
    void store(CComboButton& field, unsigned fieldId, const SelectionRecord& record,
               const std::string& url = {});

    const MainWindowContext& m_context;
    FunctionMenu m_menu;
    WaitingField m_shortcut;
    WaitingField m_launch;
};

} // namespace tarnix
