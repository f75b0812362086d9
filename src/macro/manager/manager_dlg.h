// The macro manager: edits a copy of the macro library in memory and writes the file when it is closed with
// OK.
#pragma once

#include <string>

#include "macro_manager/macro_editor.h"
#include "platform/files.h"
#include "skin/form_dlg.h"

namespace tarnix {

class CMacroManagerDlg : public CFormDlg {
  public:
    /// `set` counts from 1; 0 is none. The files outlive the dialog; the program folder ends with a slash.
    CMacroManagerDlg(Window* owner, Files& files, std::string programFolder, int set);

    const MacroLibrary& library() const { return m_library; }
    /// Counts from 1; 0 is none.
    int selectedSet() const;

    void OnLButtonDown(unsigned flags, Point at) override;
    void OnMouseWheel(int delta, Point at) override;
    void OnDestroy() override;

  protected:
    void BuildControls(const Rect& client) override;
    void DrawWindow(Canvas& canvas, const Rect& dirty) override;

  private:
    class Editor : public MacroEditor {
      public:
        explicit Editor(CMacroManagerDlg& dialog);

      protected:
        void onRefusal(MacroRefusal refusal) override;

      private:
        CMacroManagerDlg& m_dialog;
    };

    void save();
    void openSetList();
    void closeSetList();
    void onSetListChosen(LParam code);
    void chooseMacroSet(int index);
    void addMacroSetByName(const std::string& name);
    void deleteMacroSetByName(const std::string& name);
    void followSelectedSet(int index);

    Files& m_files;
    std::string m_strAppDir;
    int m_openingSet;
    MacroLibrary m_library;
    Editor m_editor;
};

/// Runs the manager. After OK the library is read anew from the file, and the answer is true: whoever shows
/// the library or the profiles shows them again. The manager writes a form of the file that the library's
/// reader takes for malformed once a set holds a macro; the library is the default one then.
bool OpenMacroManager(Window* owner, MacroLibrary& library, Files& files, const std::string& programFolder,
                      int set);

} // namespace tarnix
