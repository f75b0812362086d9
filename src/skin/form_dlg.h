// A dialog that is a picture and a table of controls.
#pragma once

#include <span>

#include "skin/dlg_base.h"

namespace tarnix {

struct DialogForm {
    const char* role;  ///< the class's name
    const char* title; ///< what the background is headed with
    Size size;
    unsigned background; ///< bitmap resource
    std::span<const ControlRow> controls;
    bool shaped = false;                     ///< the background cuts the outline too
    bool notice = false;                     ///< it says something rather than asking for it
    std::span<const PaintedText> texts = {}; ///< what else the background says
};

/// Its close button (2004) and Cancel (2011) end it with IDCANCEL. What the user does after the end, in the
/// moment before the window goes, has no effect.
class CFormDlg : public CDlgBase {
  public:
    CFormDlg(const DialogForm& form, Window* owner);

    AccessibleFace accessibleFace() const override;

  protected:
    void OnInitDialog() override;
    void BuildControls(const Rect& client) override;
    void OnCancel() override;
    /// Ends the modal run. False when it was ended before.
    bool end(int result);

  private:
    DialogForm m_form;
    bool m_ended = false;
};

} // namespace tarnix
