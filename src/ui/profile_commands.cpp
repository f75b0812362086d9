#include "ui/profile_commands.h"

#include "macro/macro_files.h"
#include "profile/configuration_file.h"
#include "profile/profile_file.h"
#include "ui/dialog_layouts.h"
#include "ui/edit_profile_dlg.h"
#include "ui/firmware_reset_dlg.h"
#include "ui/messages.h"

namespace tarnix {

namespace {

FileDialog profileDialog(const char* title) {
    return {.title = title, .filter = "psf file(*.psf)|*.psf", .defaultExtension = "psf", .fileName = ".psf"};
}

} // namespace

void ProfileCommands::registerHandlers(MessageMap& map) {
    constexpr unsigned tabs[] = {id::profileTab1, id::profileTab2, id::profileTab3, id::profileTab4,
                                 id::profileTab5};
    for (int n = 0; n < profileCount; ++n)
        map.onClick(tabs[n], [this, n] { SwitchProfile(n); });
    map.onClick(id::applyButton, [this] { Commit(); });
    map.onClick(id::resetButton, [this] { ResetDisplayedProfile(); });
    map.onClick(id::restoreButton, [this] { RestoreFactory(); });
    map.onClick(id::editProfileButton, [this] { EditDisplayedProfile(); });
    map.onClick(id::saveProfileButton, [this] { OnSaveProfileAs(); });
    map.onClick(id::loadProfileButton, [this] { OnLoadProfile(); });
}

void ProfileCommands::Commit() {
    m_context.link.FlushPendingWrites();
    m_context.link.protocol().SetActiveProfile(m_context.currentProfile());
    SaveCurrentProfile(m_context.store, m_context.files, m_context.programFolder);
    for (int n = 0; n < profileCount; ++n)
        SaveProfileFile(m_context.store, n, m_context.files);
    bool& macrosChanged = m_context.link.pending().m_bMacroLibraryChanged;
    if (macrosChanged || m_context.macros.saveFailed)
        SaveMacroLibrary(m_context.macros, m_context.files, m_context.programFolder);
    macrosChanged = false;
}

void ProfileCommands::SwitchProfile(int n) {
    m_context.store.SetCurrentProfileText(n);
    m_context.showCurrentProfile();
}

void ProfileCommands::ResetDisplayedProfile() {
    CFirmwareResetDlg confirmation(dialog::reset::profileReset, &m_context.window);
    if (confirmation.DoModal() != IDOK) return;
    const int n = m_context.currentProfile();
    resetEverywhere(n);
    m_context.link.protocol().SetActiveProfile(n);
    m_context.showCurrentProfile();
    m_context.link.pending().clear(n);
}

void ProfileCommands::RestoreFactory() {
    CFirmwareResetDlg confirmation(dialog::reset::factoryReset, &m_context.window);
    if (confirmation.DoModal() != IDOK) return;
    ResetConfig(m_context.store, m_context.programFolder);
    SaveConfig(m_context.store, m_context.files, m_context.programFolder);
    for (int n = 0; n < keyboardProfileCount; ++n)
        resetEverywhere(n);
    m_context.link.protocol().SetActiveProfile(0);
    m_context.showCurrentProfile();
    m_context.link.pending().clearAll();
    m_macroPage.emptyShownSet();
}

void ProfileCommands::resetEverywhere(int n) {
    m_context.store.ResetProfile(n);
    SaveProfileFile(m_context.store, n, m_context.files);
    m_context.link.protocol().WriteLighting(n);
    m_context.link.protocol().WriteKeyCodes(n);
}

void ProfileCommands::EditDisplayedProfile() {
    CEditProfileDlg form(m_context.shell, &m_context.window);
    if (form.DoModal() == IDOK) m_context.showCurrentProfile();
}

void ProfileCommands::OnSaveProfileAs() {
    const auto path = m_context.shell.saveFile(profileDialog("Save Profile as..."), m_context.window);
    const int n = m_context.currentProfile();
    if (!path || !m_context.store.record(n)) return;
    m_context.store.SetSlotPath(n, *path);
    SaveConfig(m_context.store, m_context.files, m_context.programFolder);
    SaveProfileFile(m_context.store, n, m_context.files);
}

void ProfileCommands::OnLoadProfile() {
    const auto path = m_context.shell.openFile(profileDialog("Load Profile from..."), m_context.window);
    const int n = m_context.currentProfile();
    if (!path || !m_context.store.record(n)) return;
    m_context.store.SetSlotPath(n, *path);
    LoadProfileFile(m_context.store, n, m_context.files);
    m_context.showCurrentProfile();
}

} // namespace tarnix
