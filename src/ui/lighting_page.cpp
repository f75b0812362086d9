#include "ui/lighting_page.h"

#include <memory>

#include "profile/vocabulary.h"
#include "skin/list_popup.h"
#include "ui/main_window_layout.h"

namespace tarnix {

/// What sets one of the three settings apart from the others.
struct LightingPage::Setting {
    unsigned field;
    int pair; ///< in a profile's settings
    std::string_view (*name)(int value);
    void (ProfileStore::*store)(int profile, int value);
    PopupPlace place;
    LParam popupKind;
    std::unique_ptr<CWndPopup> (*makePopup)();
    Message opens;
    Message closes;
    Message answers;
};

const LightingPage::Setting LightingPage::settings[] = {
    {id::lightModeField, settingLightMode, LightModeName, &ProfileStore::SetLightMode, PopupPlace::LightMode,
     9, makePopup<CLightModePopup>, msg::openLightMode, msg::lightModeClosing, msg::lightModeChosen},
    {id::brightnessField, settingLightBrightness, BrightnessName, &ProfileStore::SetLightBrightness,
     PopupPlace::LightBrightness, 8, makePopup<CLightBrightnessPopup>, msg::openBrightness,
     msg::brightnessClosing, msg::brightnessChosen},
    {id::speedField, settingLightSpeed, SpeedName, &ProfileStore::SetLightSpeed, PopupPlace::LightSpeed, 10,
     makePopup<CLightSpeedPopup>, msg::openSpeed, msg::speedClosing, msg::speedChosen},
};

void LightingPage::build(Point origin) {
    m_context.window.addControls(group::lightingPage, lightingFields, origin);
}

void LightingPage::registerHandlers(MessageMap& map) {
    for (const Setting& setting : settings) {
        map.onClick(setting.opens, [this, &setting](WParam w, LParam) { OpenLightPopup(setting, w); });
        map.on(setting.closes, [this, &setting](WParam w, LParam l) { onClosing(setting, w, l); });
        map.on(setting.answers, [this, &setting](WParam w, LParam l) { ApplyLight(setting, w, l); });
    }
}

void LightingPage::ShowLighting(int n) {
    if (!m_context.store.record(n)) return;
    m_nLightMode = m_context.store.settingNumber(n, settingLightMode);
    for (const Setting& setting : settings) {
        const std::string_view name = setting.name(m_context.store.settingNumber(n, setting.pair));
        if (CComboButton* field = m_context.field(setting.field); field && !name.empty())
            field->SetValueText(std::string(name));
    }
}

void LightingPage::OpenLightPopup(const Setting& setting, WParam fieldId) {
    CComboButton* field = m_context.field(fieldId);
    if (!field) return;
    field->m_bOpen = true;
    field->repaint();
    const Rect rect = Rect::at(field->m_rect.left, field->m_rect.bottom, 300, 300);
    m_context.window.popups().open(setting.place, setting.makePopup(), rect, setting.answers, field->m_nID);
}

void LightingPage::onClosing(const Setting& setting, WParam fieldId, LParam kind) {
    if (kind != setting.popupKind) return;
    if (CComboButton* field = m_context.field(fieldId)) {
        field->m_bOpen = false;
        field->repaint();
    }
    m_context.window.popups().close(setting.place);
}

void LightingPage::ApplyLight(const Setting& setting, WParam fieldId, LParam lParam) {
    CComboButton* field = m_context.field(fieldId);
    const SelectionRecord* record = receivedSelection(lParam);
    if (!field || !record) return;
    field->m_bOpen = false;
    field->SetValueText(record->text);
    const int value = record->bytes[0];
    m_context.window.popups().close(setting.place);
    if (setting.pair == settingLightMode) m_nLightMode = value;
    (m_context.store.*setting.store)(m_context.currentProfile(), value);
    m_context.showCurrentProfile();
    m_context.mark(PendingWrites::lightingRow);
}

} // namespace tarnix
