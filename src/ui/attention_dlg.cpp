#include "ui/attention_dlg.h"

#include <utility>

#include "ui/dialog_layouts.h"
#include "ui/notices.h"

namespace tarnix {

using namespace dialog;

CAttentionDlg::CAttentionDlg(std::string title, std::string message, Window* owner)
    : CFormDlg({.role = "CAttentionDlg",
                .title = "",
                .size = wideSize,
                .background = notice::background,
                .controls = notice::controls,
                .notice = true},
               owner),
      m_strTitle(std::move(title)),
      m_strMessage(std::move(message)) {
    m_messages.onClick(okButton, [this] { end(IDOK); });
}

void CAttentionDlg::BuildControls(const Rect& client) {
    CFormDlg::BuildControls(client);
    control<CStaticText>(notice::title)->m_strLabel = m_strTitle;
    control<CStaticText>(notice::message)->m_strLabel = m_strMessage;
}

AccessibleFace CAttentionDlg::accessibleFace() const {
    AccessibleFace face = CFormDlg::accessibleFace();
    face.name = m_strTitle;
    return face;
}

void CAttentionDlg::OnEnter() {
    end(IDOK);
}

void showNotice(std::string_view message) {
    CAttentionDlg(std::string(notices::title), std::string(message)).DoModal();
}

} // namespace tarnix
