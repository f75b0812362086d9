// Picks a program for a G-key.
#pragma once

#include <string>

#include "skin/form_dlg.h"
#include "skin/selection.h"

namespace tarnix {

class Shell;

/// OK sends the owner (0x40F, the path as a Sent<std::string>, selection record), unless no program was
/// chosen.
class CQuickLaunchDlg : public CFormDlg {
  public:
    /// The shell outlives the dialog.
    CQuickLaunchDlg(Shell& shell, Window* owner);

  private:
    void browse();
    void accept();

    Shell& m_shell;
    SelectionRecord m_record;
    std::string m_strPath;
};

} // namespace tarnix
