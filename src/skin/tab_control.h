// Tabs: buttons of which one in each of two groups is selected, program-wide.
#pragma once

#include "profile/profile_store.h"
#include "skin/buttons.h"

namespace tarnix {

/// The page that the main window shows: 0 key page, 1 macro page, 2 G-key page, 3 lighting page. Set by the
/// tabs 2003, 2004, 2005 and 2077 at their click, before they notify.
inline int g_nMainPage = 0;
/// The profile tab that is selected, which is the profile that is shown. Set by the tabs 2049 to 2053
/// likewise.
inline int& g_nSubPage = DisplayedProfile;

/// A tab; the selected one shows its pressed frame. With another identifier it is a plain button.
class CTabControl : public CStripButton {
  public:
    CTabControl(Window& owner, unsigned id, const Rect& rect, std::string text = {}, bool visible = true,
                bool disabled = false);

    void describe(AccessibleItem& item) const override;

  protected:
    int frame() const override;
    void clicked(Point at) override;

  private:
    bool isSelected() const;
};

} // namespace tarnix
