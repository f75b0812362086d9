#include "ui/firmware_reset_dlg.h"

#include "ui/dialog_layouts.h"

namespace tarnix {

using namespace dialog;

CFirmwareResetDlg::CFirmwareResetDlg(unsigned background, Window* owner)
    : CFormDlg({"CFirmwareResetDlg", wideSize, background, reset::controls}, owner) {
    m_messages.onClick(okButton, [this] { end(IDOK); });
}

} // namespace tarnix
