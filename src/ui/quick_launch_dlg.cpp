#include "ui/quick_launch_dlg.h"

#include "profile/key_assignment.h"
#include "skin/sent.h"
#include "ui/dialog_layouts.h"
#include "ui/messages.h"
#include "ui/program_choice.h"

namespace tarnix {

using namespace dialog;

CQuickLaunchDlg::CQuickLaunchDlg(Shell& shell, Window* owner)
    : CFormDlg({.role = "CQuickLaunchDlg",
                .title = launch::title,
                .size = launch::size,
                .background = launch::background,
                .controls = launch::controls,
                .shaped = true,
                .texts = launch::texts},
               owner),
      m_shell(shell) {
    m_messages.onClick(okButton, [this] { accept(); }).onClick(launch::browse, [this] { browse(); });
}

void CQuickLaunchDlg::browse() {
    const auto path = chooseProgram(m_shell, *this, "ab.exe");
    if (!path) return;
    m_strPath = *path;
    m_record.text = fileNameOf(m_strPath);
    auto* label = control<CStaticText>(launch::path);
    label->m_strLabel = m_strPath;
    label->repaint();
}

void CQuickLaunchDlg::accept() {
    if (!end(IDCANCEL) || !owner() || m_strPath.empty()) return;
    m_record.bytes = {static_cast<std::uint8_t>(FunctionType::Launch), 0, 0, 0};
    const Sent<std::string> path(m_strPath);
    sendSelection(*owner(), msg::launchChosen, path.word(), m_record);
}

} // namespace tarnix
