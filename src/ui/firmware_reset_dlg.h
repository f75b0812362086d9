// Asks before a profile, or everything, goes back to the factory state. The question is the background.
#pragma once

#include "skin/form_dlg.h"

namespace tarnix {

/// DoModal answers IDOK when the user agrees.
class CFirmwareResetDlg : public CFormDlg {
  public:
    /// A background of dialog::reset.
    explicit CFirmwareResetDlg(unsigned background, Window* owner = nullptr);
};

} // namespace tarnix
