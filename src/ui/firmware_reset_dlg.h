// Asks before a profile, or everything, goes back to the factory state. The question is the background.
#pragma once

#include "skin/form_dlg.h"
#include "ui/dialog_layouts.h"

namespace tarnix {

/// DoModal answers IDOK when the user agrees.
class CFirmwareResetDlg : public CFormDlg {
  public:
    explicit CFirmwareResetDlg(const dialog::reset::Question& question, Window* owner = nullptr);
};

} // namespace tarnix
