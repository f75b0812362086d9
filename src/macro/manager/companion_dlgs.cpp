#include "macro_manager/companion_dlgs.h"

#include <string>

#include "macro_manager/manager_layout.h"
#include "skin/sent.h"

namespace tarnix {

CSetNameDlg::CSetNameDlg(const char* role, const manager::Companion& face, Message answer, Window& owner)
    : CFormDlg({.role = role,
                .title = face.title,
                .size = manager::companionSize,
                .background = face.background,
                .controls = manager::setNameControls},
               &owner),
      m_answer(answer),
      m_caption(face.text.text) {
    m_messages.onClick(manager::okButton, [this] { accept(); });
}

void CSetNameDlg::BuildControls(const Rect& client) {
    CFormDlg::BuildControls(client);
    m_field = std::make_unique<EditField>(
        *this, manager::setNameField, manager::setNameRect,
        EditStyle{.text = manager::setNameText, .background = manager::setNameGround, .caption = m_caption});
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
    : CSetNameDlg("CMacroManagerAddDlg", manager::addSet, manager::addSetByName, owner) {}

CMacroManagerDelSetDlg::CMacroManagerDelSetDlg(Window& owner)
    : CSetNameDlg("CMacroManagerDelSetDlg", manager::deleteSet, manager::deleteSetByName, owner) {}

CPictureNoticeDlg::CPictureNoticeDlg(const char* role, const manager::Companion& face, Window& owner)
    : CFormDlg({.role = role,
                .title = face.title,
                .size = manager::companionSize,
                .background = face.background,
                .controls = manager::noticeControls,
                .notice = true,
                .texts = {&face.text, 1}},
               &owner) {
    m_messages.onClick(manager::okButton, [this] { end(IDOK); });
}

void CPictureNoticeDlg::OnEnter() {
    end(IDOK);
}

CMacroManagerNoteDlg::CMacroManagerNoteDlg(Window& owner)
    : CPictureNoticeDlg("CMacroManagerNoteDlg", manager::note, owner) {}

CMacroManagerAttentionDlg::CMacroManagerAttentionDlg(Window& owner)
    : CPictureNoticeDlg("CMacroManagerAttentionDlg", manager::attention, owner) {}

} // namespace tarnix
