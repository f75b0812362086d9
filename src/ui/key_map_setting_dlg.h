// Gives a key of the keyboard another key or a mouse function.
#pragma once

#include <cstdint>
#include <string>

#include "platform/keyboard_hook.h"
#include "profile/vocabulary.h"
#include "skin/form_dlg.h"

namespace tarnix {

struct SelectionRecord;

/// The key to be changed.
struct KeyToMap {
    unsigned id; ///< of its key cap
    std::string name;
    std::uint8_t factoryCode; ///< key codes, see profile/vocabulary.h, and mouse function codes
    std::uint8_t currentCode;
};

/// OK sends the owner (0x42A, key cap's identifier, chosen code). Keys that are pressed while it is open are
/// taken for the choice and do nothing else.
class CKeyMapSettingDlg : public CFormDlg {
  public:
    CKeyMapSettingDlg(KeyToMap key, Window* owner);

    void OnDestroy() override;

  protected:
    void OnInitDialog() override;
    void BuildControls(const Rect& client) override;

  private:
    void captureKey(std::uint8_t virtualKey);
    void useOwnFunction();
    void openMouseFunctions();
    void closeMouseFunctions();
    void chooseMouseFunction(const SelectionRecord& record);
    void accept();
    void showKeyFunction(std::string_view name);
    void repaintRadios();

    KeyToMap m_key;
    std::uint8_t m_nKeyCode;
    std::uint8_t m_nMouseCode = firstMouseCode;
    CKeyboardHook m_hook;
};

} // namespace tarnix
