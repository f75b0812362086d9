// The notice: the one way in which the program shows the user a message.
#pragma once

#include <string>
#include <string_view>

#include "skin/form_dlg.h"

namespace tarnix {

/// A title, one line of text, OK and Cancel; the answer means nothing. The texts stand in notices.h.
class CAttentionDlg : public CFormDlg {
  public:
    CAttentionDlg(std::string title, std::string message, Window* owner = nullptr);

    AccessibleFace accessibleFace() const override;

  protected:
    void BuildControls(const Rect& client) override;
    void OnEnter() override;

  private:
    std::string m_strTitle;
    std::string m_strMessage;
};

/// Shows a notice titled "Attention!" and returns when the user has closed it.
void showNotice(std::string_view message);

} // namespace tarnix
