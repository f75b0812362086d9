// The messages of controls that this model of the keyboard does without.
#pragma once

#include "ui/main_window_context.h"

namespace tarnix {

class SpareControls {
  public:
    explicit SpareControls(const MainWindowContext& context) : m_context(context) {}

    void registerHandlers(MessageMap& map);

  private:
    static constexpr int maxLevel = 9;

    /// Repaints the buttons of a range and takes up the current profile.
    void choose(unsigned first, unsigned last);
    /// The same for a light setting, which is then to be sent.
    void chooseLight(unsigned first, unsigned last);
    /// A level outside 0 to 9 is ignored.
    void setLevel(LParam level);
    void takeUpCurrentProfile() const { DisplayedProfile = m_context.currentProfile(); }

    const MainWindowContext& m_context;
    int m_level = 0;
};

} // namespace tarnix
