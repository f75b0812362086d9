#include "ui/key_map_setting_dlg.h"

#include <utility>

#include "profile/vocabulary.h"
#include "skin/list_popup.h"
#include "skin/selection.h"
#include "ui/dialog_layouts.h"
#include "ui/messages.h"

namespace tarnix {

using namespace dialog;

namespace {

constexpr LParam mousePopupKind = 3;
/// The popup's item that stands for the first mouse code; the others follow in the same order.
constexpr int firstMouseItem = 24;
constexpr int mouseItemCount = lastMouseCode - firstMouseCode + 1;

constexpr bool isMouseCode(std::uint8_t code) {
    return code >= firstMouseCode && code <= lastMouseCode;
}

/// The code of a record of the popup; a button that is none of the popup's counts as a click.
std::uint8_t mouseCodeOf(const SelectionRecord& record) {
    const auto type = static_cast<FunctionType>(record.bytes[0]);
    if (type == FunctionType::DoubleClick) return 0xD5;
    if (type != FunctionType::MouseButton) return 0xD6;
    for (int item = 0; item < mouseItemCount; ++item) {
        const KeyAssignment value = mouseFunctionValue(firstMouseItem + item);
        if (functionType(value) == type && value[1] == record.bytes[1])
            return static_cast<std::uint8_t>(firstMouseCode + item);
    }
    return firstMouseCode;
}

} // namespace

CKeyMapSettingDlg::CKeyMapSettingDlg(KeyToMap key, Window* owner)
    : CFormDlg({"CKeyMapSettingDlg", keymap::title, wideSize, keymap::background, keymap::controls}, owner),
      m_key(std::move(key)),
      m_nKeyCode(m_key.currentCode) {
    m_messages.onClick(okButton, [this] { accept(); })
        .onClick(keymap::ownFunction, [this] { useOwnFunction(); })
        .onClick(keymap::keyRadio, [this] { repaintRadios(); })
        .onClick(keymap::mouseRadio, [this] { repaintRadios(); })
        .onClick(keymap::openMouseFunctions, [this] { openMouseFunctions(); })
        .on(WM_KEYHOOK, [this](WParam pressed, LParam) { captureKey(static_cast<std::uint8_t>(pressed)); })
        .on(msg::mouseChosen,
            [this](WParam, LParam record) {
                if (const auto* chosen = receivedSelection(record)) chooseMouseFunction(*chosen);
            })
        .on(msg::mouseClosing, [this](WParam, LParam kind) {
            if (kind == mousePopupKind && popups().at(PopupPlace::Mouse)) closeMouseFunctions();
        });
}

void CKeyMapSettingDlg::BuildControls(const Rect& client) {
    CFormDlg::BuildControls(client);
    control<CStaticText>(keymap::keyName)->m_strLabel = m_key.name;
    if (isMouseCode(m_key.currentCode)) {
        m_nMouseCode = m_key.currentCode;
        m_nKeyCode = m_key.factoryCode;
        showKeyFunction(m_key.name);
        selectRadio(keymap::mouseRadio);
    } else {
        showKeyFunction(KeyCodeName(m_key.currentCode));
        selectRadio(keymap::keyRadio);
    }
    control<CComboButton>(keymap::mouseField)->SetValueText(std::string(keyFunctionName(m_nMouseCode)));
}

void CKeyMapSettingDlg::OnInitDialog() {
    CFormDlg::OnInitDialog();
    m_hook.StartHook(*this);
}

void CKeyMapSettingDlg::OnDestroy() {
    m_hook.StopHook();
    CFormDlg::OnDestroy();
}

/// A press and its release say the same. The selection stays where it is.
void CKeyMapSettingDlg::captureKey(std::uint8_t virtualKey) {
    if (virtualKey == 0) return;
    m_nKeyCode = ToKeyCode(virtualKey);
    showKeyFunction(VirtualKeyName(virtualKey));
}

void CKeyMapSettingDlg::useOwnFunction() {
    m_nKeyCode = m_key.factoryCode;
    selectRadio(keymap::keyRadio);
    repaintRadios();
    showKeyFunction(m_key.name);
}

void CKeyMapSettingDlg::showKeyFunction(std::string_view name) {
    auto* label = control<CStaticText>(keymap::keyFunction);
    label->m_strLabel = name;
    label->repaint();
}

void CKeyMapSettingDlg::repaintRadios() {
    repaintControl(keymap::keyRadio);
    repaintControl(keymap::mouseRadio);
}

void CKeyMapSettingDlg::openMouseFunctions() {
    auto* field = control<CComboButton>(keymap::mouseField);
    field->m_bOpen = true;
    const Rect below{field->m_rect.left, field->m_rect.bottom, field->m_rect.right, field->m_rect.bottom};
    popups().open(PopupPlace::Mouse, std::make_unique<CMultimediaPopup>(), below, msg::mouseChosen,
                  keymap::mouseField);
}

void CKeyMapSettingDlg::closeMouseFunctions() {
    auto* field = control<CComboButton>(keymap::mouseField);
    field->m_bOpen = false;
    field->repaint();
    popups().close(PopupPlace::Mouse);
}

void CKeyMapSettingDlg::chooseMouseFunction(const SelectionRecord& record) {
    control<CComboButton>(keymap::mouseField)->SetValueText(record.text);
    m_nMouseCode = mouseCodeOf(record);
    closeMouseFunctions();
}

void CKeyMapSettingDlg::accept() {
    if (!end(IDOK)) return;
    const bool mouse = (g_nRadioMask & radioBit(keymap::mouseRadio)) != 0;
    if (owner()) owner()->send(msg::keyCodeChosen, m_key.id, mouse ? m_nMouseCode : m_nKeyCode);
}

} // namespace tarnix
