// The page with the light settings: three drop-down fields and their lists.
#pragma once

#include "ui/main_window_context.h"

namespace tarnix {

class LightingPage {
  public:
    explicit LightingPage(const MainWindowContext& context) : m_context(context) {}

    void build(Point origin);
    void registerHandlers(MessageMap& map);
    /// Shows record n's settings. A value without a name leaves its field as it is; so does a missing record.
    void ShowLighting(int n);
    /// The light mode last shown or chosen; unchecked.
    int lightMode() const { return m_nLightMode; }

  private:
    struct Setting;
    static const Setting settings[];

    void OpenLightPopup(const Setting& setting, WParam fieldId);
    void onClosing(const Setting& setting, WParam fieldId, LParam kind);
    void ApplyLight(const Setting& setting, WParam fieldId, LParam record);

    const MainWindowContext& m_context;
    int m_nLightMode = 0;
};

} // namespace tarnix
