#include "ui/gkey_page.h"

#include "skin/sent.h"
#include "ui/main_window_layout.h"
#include "ui/quick_launch_dlg.h"
#include "ui/shortcut_dlg.h"

namespace tarnix {

namespace {

/// The field that shows each slot; the last one borrows the second field.
constexpr std::array<unsigned, gKeyCount> slotFields{id::gKeyField1, id::gKeyField2, id::gKeyField3,
                                                     id::gKeyField4, id::gKeyField5, id::gKeyField2};

/// The row of the pending writes that a field's macro goes out with.
int macroRow(unsigned fieldId) {
    const bool second = fieldId > id::gKeyField1 && fieldId <= id::gKeyField5;
    return PendingWrites::firstMacroRow + (second ? static_cast<int>(fieldId - id::gKeyField1) : 0);
}

} // namespace

void GKeyPage::build(Point origin) {
    m_context.window.addControls(group::gKeyPage, gKeyFields, origin);
}

void GKeyPage::registerHandlers(MessageMap& map) {
    m_menu.registerHandlers(map);
    map.on(msg::categoryChosen, [this](WParam w, LParam l) { ApplyCategoryChoice(w, l); });
    for (const Message answer : {msg::multimediaChosen, msg::webChosen, msg::mouseChosen})
        map.on(answer, [this, answer](WParam w, LParam l) { ApplySubChoice(answer, w, l); });
    map.on(msg::macroChosen, [this](WParam w, LParam l) { ApplyMacroChoice(w, l); });
    map.on(msg::macroSetChosen, [this](WParam w, LParam l) { ApplyMacroSetChoice(w, l); });
    map.on(msg::shortcutWanted, [this](WParam w, LParam) { await(m_shortcut, w, msg::runShortcut); });
    map.on(msg::runShortcut, [this] { CShortcutDlg(&m_context.window).DoModal(); });
    map.on(msg::shortcutChosen, [this](WParam, LParam l) { ApplyShortcut(l); });
    map.on(msg::launchWanted, [this](WParam w, LParam) { await(m_launch, w, msg::runQuickLaunch); });
    map.on(msg::runQuickLaunch, [this] { CQuickLaunchDlg(m_context.shell, &m_context.window).DoModal(); });
    map.on(msg::launchChosen, [this](WParam w, LParam l) { ApplyQuickLaunch(w, l); });
}

void GKeyPage::ShowGKeys(int n) {
    for (std::size_t slot = 0; slot < slotFields.size(); ++slot) {
        const GKeySlot* gKey = m_context.store.GetGKeySlot(n, static_cast<int>(slot));
        CComboButton* field = m_context.field(slotFields[slot]);
        if (gKey && field) field->SetValueText(gKey->Name);
    }
}

void GKeyPage::ApplyCategoryChoice(WParam fieldId, LParam lParam) {
    if (fieldId == 0) {
        m_menu.raiseSubPopups();
        return;
    }
    CComboButton* field = m_context.field(fieldId);
    const SelectionRecord* record = receivedSelection(lParam);
    if (!field || !record) return;
    m_context.mark(PendingWrites::keyCodeRow);
    field->m_bOpen = false;
    field->repaint();
    m_menu.closeCategory();
    switch (functionType(record->value())) {
        case FunctionType::KeyCombination:
            setDefaultFunction(*field);
            break;
        case FunctionType::None:
            store(*field, field->m_nID, *record);
            break;
        default:
            break;
    }
}

void GKeyPage::setDefaultFunction(CComboButton& field) {
    const bool isGKey = field.m_nID >= id::gKeyField1 && field.m_nID <= id::gKeyField5;
    const GKeySlot standard = standardGKey(isGKey ? static_cast<int>(field.m_nID - id::gKeyField1) : 0);
    const auto& [type, modifiers, key] = standard.Value;
    store(field, field.m_nID, {standard.Name, {type, modifiers, key}});
}

void GKeyPage::ApplySubChoice(Message answer, WParam fieldId, LParam lParam) {
    CComboButton* field = m_context.field(fieldId);
    const SelectionRecord* record = receivedSelection(lParam);
    if (!field || !record) return;
    field->m_bOpen = false;
    store(*field, field->m_nID, *record);
    m_context.mark(PendingWrites::keyCodeRow);
    m_menu.closeCategory();
    m_menu.closeSubPopup(answer);
}

void GKeyPage::ApplyMacroChoice(WParam fieldId, LParam lParam) {
    if (fieldId == 0) {
        m_menu.raiseMacroSets();
        return;
    }
    CComboButton* field = m_context.field(fieldId);
    const SelectionRecord* record = receivedSelection(lParam);
    if (!field || !record) return;
    field->m_bOpen = false;
    m_context.mark(PendingWrites::keyCodeRow);
    m_context.mark(macroRow(field->m_nID));
    store(*field, field->m_nID, {record->text, {static_cast<std::uint8_t>(FunctionType::Macro)}});
    m_menu.closeSubPopup(msg::macroChosen);
    m_menu.closeCategory();
}

/// The word is the list's tag, its row, which is no field: as the lists are opened, no field is found and
/// nothing changes. With a field, its text and the pending write change, but no G-key.
void GKeyPage::ApplyMacroSetChoice(WParam tag, LParam lParam) {
    CComboButton* field = m_context.field(tag);
    const SelectionRecord* record = receivedSelection(lParam);
    if (!field || (lParam != 0 && !record)) return;
    const int row = m_menu.lastMacroSetRow();
    field->m_bOpen = false;
    field->repaint();
    if (record) {
        field->SetValueText(record->text);
        m_context.mark(PendingWrites::keyCodeRow);
    }
    m_menu.closeMacroPopups();
    if (!record) m_context.window.post(msg::runMacroManager, 0, row + 1);
}

void GKeyPage::await(WaitingField& waiting, WParam fieldId, Message runDialog) {
    CComboButton* field = m_context.field(fieldId);
    if (!field) return;
    field->m_bOpen = false;
    field->repaint();
    m_menu.closeCategory();
    waiting = {field, field->m_nID};
    m_context.window.post(runDialog);
}

void GKeyPage::ApplyShortcut(LParam lParam) {
    const SelectionRecord* record = receivedSelection(lParam);
    if (!m_shortcut.field || !record) return;
    m_shortcut.field->m_bOpen = false;
    m_context.mark(PendingWrites::keyCodeRow);
    store(*m_shortcut.field, m_shortcut.id, *record);
}

void GKeyPage::ApplyQuickLaunch(WParam path, LParam lParam) {
    const SelectionRecord* record = receivedSelection(lParam);
    const std::string* url = Sent<std::string>::find(path);
    if (!m_launch.field || !record || !url) return;
    m_launch.field->m_bOpen = false;
    m_context.mark(PendingWrites::keyCodeRow);
    store(*m_launch.field, m_launch.id, *record, *url);
}

void GKeyPage::store(CComboButton& field, unsigned fieldId, const SelectionRecord& record,
                     const std::string& url) {
    field.SetValueText(record.text);
    m_context.store.StoreGKey(fieldId, record.text, record.value(), url);
}

} // namespace tarnix
