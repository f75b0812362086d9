#include "ui/key_page.h"

#include "profile/vocabulary.h"
#include "ui/key_map_setting_dlg.h"
#include "ui/main_window_layout.h"

namespace tarnix {

// The store takes the window's own numbers.
static_assert(id::firstKeyCap == firstKeyButtonId && id::lastKeyCap == firstKeyButtonId + keyButtonCount - 1);
static_assert(id::gKeyField1 == firstGKeyFieldId && id::gKeyField5 == firstGKeyFieldId + gKeyFieldCount - 1);

void KeyPage::build(Point origin) {
    CDlgBase& window = m_context.window;
    window.addControls(group::keyPage, areaMarkers, origin);
    const ControlGroups::Group& page = window.controls().groups()[group::keyPage];
    for (std::size_t i = 0; i < m_pAreaMarker.size(); ++i)
        m_pAreaMarker[i] = dynamic_cast<CTabControl*>(page[i].get());
    window.addControls(group::keyPage, keyCaps, origin);
}

void KeyPage::registerHandlers(MessageMap& map) {
    map.onClick(id::firstKeyCap, id::lastKeyCap,
                [this](WParam w, LParam) { EditKey(static_cast<unsigned>(w)); });
    map.on(msg::keyCodeChosen, [this](WParam w, LParam l) {
        ApplyKeyCode(static_cast<unsigned>(w), static_cast<std::uint8_t>(l));
    });
}

void KeyPage::ShowKeyCodes(int n) {
    const ProfileRecord* record = m_context.store.record(n);
    if (!record) return;
    for (const ControlRow& row : keyCaps) {
        const int button = static_cast<int>(row.id - firstKeyButtonId);
        if (auto* cap = m_context.window.control<CKeyboardButton>(row.id))
            cap->SetCurrentCode(record->KeyCodes[static_cast<std::size_t>(GetKeyButtonPosition(button))]);
    }
}

void KeyPage::calmAreaMarkers() {
    for (CTabControl* marker : m_pAreaMarker)
        if (marker) marker->m_nMouseState = mouseNormal;
}

void KeyPage::EditKey(unsigned id) {
    const auto* cap = m_context.window.control<CKeyboardButton>(id);
    if (!cap) return;
    CKeyMapSettingDlg dialog({id, cap->m_strKeyName, cap->m_nDefaultCode, cap->m_nCurrentCode},
                             &m_context.window);
    dialog.DoModal();
}

void KeyPage::ApplyKeyCode(unsigned id, std::uint8_t code) {
    auto* cap = m_context.window.control<CKeyboardButton>(id);
    if (!cap) return;
    const std::uint8_t stored = ownFunctionCode(static_cast<int>(id - firstKeyButtonId), code);
    cap->SetCurrentCode(stored);
    cap->repaint();
    m_context.store.SetKeyCode(id, stored);
    m_context.mark(PendingWrites::keyCodeRow);
}

} // namespace tarnix
