// A dialog that is a picture and a table of controls.
#pragma once

#include <span>

#include "skin/dlg_base.h"

namespace tarnix {

struct DialogForm {
    const char* role; ///< the class's name
    Size size;
    unsigned background; ///< bitmap resource
    std::span<const ControlRow> controls;
    bool shaped = false; ///< the background cuts the outline too
};

/// Its close button (2004) and Cancel (2011) end it with IDCANCEL.
class CFormDlg : public CDlgBase {
  public:
    CFormDlg(const DialogForm& form, Window* owner);

  protected:
    void OnInitDialog() override;
    void BuildControls(const Rect& client) override;

  private:
    DialogForm m_form;
};

} // namespace tarnix
