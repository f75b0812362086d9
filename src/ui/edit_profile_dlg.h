// The form with a profile's name and three programs. It keeps nothing of what is entered: OK only tells its
// opener to show the profile again.
#pragma once

#include <memory>

#include "platform/edit_field.h"
#include "skin/form_dlg.h"

namespace tarnix {

class Shell;

class CEditProfileDlg : public CFormDlg {
  public:
    /// The shell outlives the dialog.
    explicit CEditProfileDlg(Shell& shell, Window* owner = nullptr);

  protected:
    void BuildControls(const Rect& client) override;
    void OnDestroy() override;

  private:
    void browse(unsigned pathText);

    Shell& m_shell;
    std::unique_ptr<EditField> m_nameField;
};

} // namespace tarnix
