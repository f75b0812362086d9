#include "ui/firmware_reset_dlg.h"

namespace tarnix {

using namespace dialog;

CFirmwareResetDlg::CFirmwareResetDlg(const reset::Question& question, Window* owner)
    : CFormDlg({.role = "CFirmwareResetDlg",
                .title = question.title,
                .size = wideSize,
                .background = question.background,
                .controls = reset::controls,
                .notice = true,
                .texts = question.texts},
               owner) {
    m_messages.onClick(okButton, [this] { end(IDOK); });
}

} // namespace tarnix
