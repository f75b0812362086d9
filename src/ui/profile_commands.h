// The commands on whole profiles: switching, committing, resetting, profile files.
#pragma once

#include "ui/macro_page.h"
#include "ui/main_window_context.h"

namespace tarnix {

class ProfileCommands {
  public:
    ProfileCommands(const MainWindowContext& context, MacroPage& macroPage)
        : m_context(context), m_macroPage(macroPage) {}

    void registerHandlers(MessageMap& map);
    /// Sends to the keyboard what is pending, makes the current profile its active one, and writes the files.
    void Commit();

  private:
    /// Shows another profile. The keyboard and the files hear of it at the next commit.
    void SwitchProfile(int n);
    void ResetDisplayedProfile();
    void RestoreFactory();
    /// Puts a profile back to its defaults in memory, in its file and in the keyboard.
    void resetEverywhere(int n);
    void EditDisplayedProfile();
    void OnSaveProfileAs();
    void OnLoadProfile();

    const MainWindowContext& m_context;
    MacroPage& m_macroPage;
};

} // namespace tarnix
