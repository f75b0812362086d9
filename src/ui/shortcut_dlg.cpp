#include "ui/shortcut_dlg.h"

#include <string>

#include "profile/vocabulary.h"
#include "ui/dialog_layouts.h"
#include "ui/messages.h"

namespace tarnix {

using namespace dialog;

namespace {

struct Modifier {
    unsigned box;
    std::uint8_t bit; ///< in parameter 1 of a key combination
    const char* text;
};

/// In the order in which a combination is written.
constexpr Modifier modifiers[] = {
    {shortcut::ctrl, 0x01, "Ctrl+"},
    {shortcut::shift, 0x02, "Shift+"},
    {shortcut::alt, 0x04, "Alt+"},
    {shortcut::win, 0x08, "Win+"},
};

} // namespace

CShortcutDlg::CShortcutDlg(Window* owner)
    : CFormDlg({.role = "CShortcutDlg",
                .title = shortcut::title,
                .size = shortcut::size,
                .background = shortcut::background,
                .controls = shortcut::controls,
                .shaped = true,
                .texts = shortcut::texts},
               owner) {
    m_messages.onClick(okButton, [this] { accept(); })
        .onClick(shortcut::singleKey, [this] { enableModifiers(); })
        .on(WM_KEYHOOK, [this](WParam key, LParam) { captureKey(static_cast<std::uint8_t>(key)); });
}

void CShortcutDlg::OnInitDialog() {
    CFormDlg::OnInitDialog();
    m_hook.StartHook(*this);
}

void CShortcutDlg::OnDestroy() {
    m_hook.StopHook();
    CFormDlg::OnDestroy();
}

void CShortcutDlg::captureKey(std::uint8_t virtualKey) {
    m_record.text = VirtualKeyName(virtualKey);
    m_record.bytes[2] = ToKeyCode(virtualKey);
    auto* label = control<CStaticText>(shortcut::keyName);
    label->m_strLabel = m_record.text;
    label->repaint();
}

void CShortcutDlg::enableModifiers() {
    const bool single = control<CCheckButton>(shortcut::singleKey)->m_bChecked;
    for (const Modifier& modifier : modifiers) {
        auto* box = control<CCheckButton>(modifier.box);
        box->m_bDisabled = single;
        box->repaint();
    }
}

/// Puts the checked modifiers in front of the key's name and into the record's bytes.
void CShortcutDlg::takeModifiers() {
    m_record.bytes[0] = static_cast<std::uint8_t>(FunctionType::KeyCombination);
    m_record.bytes[1] = 0;
    if (control<CCheckButton>(shortcut::singleKey)->m_bChecked) return;
    std::string name;
    for (const Modifier& modifier : modifiers) {
        if (!control<CCheckButton>(modifier.box)->m_bChecked) continue;
        name += modifier.text;
        m_record.bytes[1] |= modifier.bit;
    }
    m_record.text = name + m_record.text;
}

void CShortcutDlg::accept() {
    if (!end(IDCANCEL) || !owner()) return;
    takeModifiers();
    if (m_record.text.ends_with('+')) m_record.text.pop_back();
    if (!m_record.text.empty()) sendSelection(*owner(), msg::shortcutChosen, 0, m_record);
}

} // namespace tarnix
