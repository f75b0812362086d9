#include "ui/edit_profile_dlg.h"

#include "ui/dialog_layouts.h"
#include "ui/program_choice.h"

namespace tarnix {

using namespace dialog;

CEditProfileDlg::CEditProfileDlg(Shell& shell, Window* owner)
    : CFormDlg({"CEditProfileDlg", profile::title, profile::size, profile::background, profile::controls},
               owner),
      m_shell(shell) {
    m_messages.onClick(okButton, [this] { end(IDOK); })
        .onClick(profile::browse1, [this] { browse(profile::path1); })
        .onClick(profile::browse2, [this] { browse(profile::path2); })
        .onClick(profile::browse3, [this] { browse(profile::path3); });
}

void CEditProfileDlg::BuildControls(const Rect& client) {
    CFormDlg::BuildControls(client);
    m_nameField = std::make_unique<EditField>(
        *this, profile::nameField, profile::nameFieldRect,
        EditStyle{.text = white, .background = black, .caption = profile::nameCaption});
    m_nameField->setFocus();
}

void CEditProfileDlg::OnDestroy() {
    m_nameField.reset();
    CFormDlg::OnDestroy();
}

void CEditProfileDlg::browse(unsigned pathText) {
    const auto path = chooseProgram(m_shell, *this, ".exe");
    if (!path) return;
    auto* label = control<CStaticText>(pathText);
    label->m_strLabel = *path;
    label->repaint();
}

} // namespace tarnix
