// Builds a key combination for a G-key: modifiers from check boxes, the key from the keyboard.
#pragma once

#include <cstdint>

#include "platform/keyboard_hook.h"
#include "skin/form_dlg.h"
#include "skin/selection.h"

namespace tarnix {

/// OK sends the owner (0x40C, 0, selection record) with a key combination's bytes, unless nothing was chosen.
/// Keys that are pressed while it is open are taken for the choice and do nothing else.
class CShortcutDlg : public CFormDlg {
  public:
    explicit CShortcutDlg(Window* owner);

    void OnDestroy() override;

  protected:
    void OnInitDialog() override;

  private:
    void captureKey(std::uint8_t virtualKey);
    void enableModifiers();
    void takeModifiers();
    void accept();

    SelectionRecord m_record;
    CKeyboardHook m_hook;
};

} // namespace tarnix
