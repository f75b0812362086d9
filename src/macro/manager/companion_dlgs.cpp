#include "macro_manager/companion_dlgs.h"

#include <string>

#include "macro_manager/manager_layout.h"
#include "skin/sent.h"

namespace tarnix {

CSetNameDlg::CSetNameDlg(const DialogForm& form, Message answer, Window& owner)
    : CFormDlg(form, &owner), m_answer(answer) {
    m_messages.onClick(manager::okButton, [this] { accept(); });
}

void CSetNameDlg::BuildControls(const Rect& client) {
    CFormDlg::BuildControls(client);
    m_field = std::make_unique<EditField>(
        *this, manager::setNameField, manager::setNameRect,
        EditStyle{.text = manager::setNameText, .background = manager::setNameGround});
    m_field->setFocus();
}

void CSetNameDlg::OnDestroy() {
    m_field.reset();
    CFormDlg::OnDestroy();
}

void CSetNameDlg::accept() {
    if (!end(IDOK)) return;
    const std::string typed = m_field->text();
    const Sent<std::string> sent(typed);
    owner()->send(m_answer, 0, static_cast<LParam>(sent.word()));
}

CMacroManagerAddDlg::CMacroManagerAddDlg(Window& owner)
    : CSetNameDlg({"CMacroManagerAddDlg", manager::companionSize, manager::addSetBackground,
                   manager::setNameControls},
                  manager::addSetByName, owner) {}

CMacroManagerDelSetDlg::CMacroManagerDelSetDlg(Window& owner)
    : CSetNameDlg({"CMacroManagerDelSetDlg", manager::companionSize, manager::deleteSetBackground,
                   manager::setNameControls},
                  manager::deleteSetByName, owner) {}

CPictureNoticeDlg::CPictureNoticeDlg(const DialogForm& form, Window& owner) : CFormDlg(form, &owner) {
    m_messages.onClick(manager::okButton, [this] { end(IDOK); });
}

void CPictureNoticeDlg::OnEnter() {
    end(IDOK);
}

CMacroManagerNoteDlg::CMacroManagerNoteDlg(Window& owner)
    : CPictureNoticeDlg(
          {"CMacroManagerNoteDlg", manager::companionSize, manager::noteBackground, manager::noticeControls},
          owner) {}

CMacroManagerAttentionDlg::CMacroManagerAttentionDlg(Window& owner)
    : CPictureNoticeDlg({"CMacroManagerAttentionDlg", manager::companionSize, manager::attentionBackground,
                         manager::noticeControls},
                        owner) {}

} // namespace tarnix
