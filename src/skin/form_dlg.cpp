#include "skin/form_dlg.h"

namespace tarnix {

namespace {
constexpr unsigned closeButton = 2004;
constexpr unsigned cancelButton = 2011;
} // namespace

CFormDlg::CFormDlg(const DialogForm& form, Window* owner)
    : CDlgBase({.owner = owner, .role = form.role}, form.size), m_form(form) {
    m_messages.onClick(closeButton, [this] { OnCancel(); }).onClick(cancelButton, [this] { OnCancel(); });
}

void CFormDlg::OnInitDialog() {
    m_ended = false;
    CDlgBase::OnInitDialog();
    if (m_form.shaped) SetShapeFromBitmap(m_form.background);
    LoadBackground(m_form.background);
}

void CFormDlg::BuildControls(const Rect& client) {
    addControls(0, m_form.controls, client.topLeft());
}

AccessibleFace CFormDlg::accessibleFace() const {
    AccessibleFace face = CDlgBase::accessibleFace();
    face.name = m_form.title;
    if (m_form.notice) face.role = AccessibleRole::Alert;
    addPaintedTexts(face, m_form.texts);
    return face;
}

void CFormDlg::OnCancel() {
    end(IDCANCEL);
}

bool CFormDlg::end(int result) {
    if (m_ended) return false;
    m_ended = true;
    endModal(result);
    return true;
}

} // namespace tarnix
