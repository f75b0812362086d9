// The macro page: edits the main library, and saves it after every change of its structure and after a
// recording. Loop settings are saved with the next recording, OK or Apply.
#pragma once

#include <memory>

#include "macro_manager/macro_editor.h"
#include "platform/edit_field.h"
#include "ui/main_window_context.h"

namespace tarnix {

class MacroPage : public MacroEditor {
  public:
    explicit MacroPage(const MainWindowContext& context);

    void build(Point origin);
    void registerHandlers(MessageMap& map);
    void showLoopField(bool visible);
    /// The loop-count field's text was changed by the user.
    void SetLoopCount();
    /// Removes all macros of the shown set, and saves; nothing without one.
    void emptyShownSet();
    /// The window's end: the field goes before the window does.
    void dropLoopField() { m_pLoopEdit.reset(); }

  protected:
    void onRefusal(MacroRefusal refusal) override;
    void onRecordingFull(std::string_view notice) override;
    void onLibraryChanged() override { save(); }
    bool isDeletable(const MacroKey& macro) override;
    void onShown(MacroKey& macro) override;
    void onRecorded() override { markChanged(); }
    void onRecordingEnded() override;
    void enableFields(bool enabled) override;

  private:
    void SetLoopEnable();
    void ImportMacroKey();
    void ExportMacroKey();
    /// Index of the first set's macro that import and export work on; -1 when none is selected.
    int macroForFiles();
    void save();
    void markChanged() { m_context.link.pending().m_bMacroLibraryChanged = true; }

    const MainWindowContext& m_context;
    std::unique_ptr<EditField> m_pLoopEdit;
};

} // namespace tarnix
