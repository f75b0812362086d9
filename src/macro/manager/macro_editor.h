// Editing macros in a window: a list of the macros of one set, a list of the steps of the selected macro, a
// scroll bar for each, naming, deleting and recording. The macro page of the main window and the macro
// manager are both made of this; what they do differently is in MacroEditorRules and in the few overrides.
#pragma once

#include <optional>
#include <string_view>

#include "macro/macro_library.h"
#include "macro/macro_recorder.h"
#include "platform/keyboard_hook.h"
#include "skin/buttons.h"
#include "skin/dlg_base.h"
#include "skin/lists.h"
#include "skin/message_map.h"
#include "skin/scroll_bar.h"

namespace tarnix {

/// Identifiers of the controls that take part.
struct MacroEditorIds {
    unsigned newMacro;
    unsigned deleteMacro;
    unsigned macroList;
    unsigned actionList;
    unsigned macroScrollBar;
    unsigned actionScrollBar;
    unsigned recordDelays;
    unsigned recordSwitch;
};

/// What the two windows do differently.
struct MacroEditorRules {
    RecordingRules recording;
    bool checksNames;        ///< a name that is committed by a click elsewhere may be taken or too long
    bool deleteClosesEditor; ///< pressing the delete button drops the name that is being typed; else it stays
                             ///< open
};

inline constexpr MacroEditorRules macroPageRules{macroPageRecording, true, false};
inline constexpr MacroEditorRules managerRules{managerRecording, false, true};

/// Why the user does not get what he asked for.
enum class MacroRefusal {
    NoMacroSet, ///< there is no set to put a new macro into
    NothingToDelete,
    MacroInUse,
    NothingToRecord,
    NameTaken,       ///< committed by a click elsewhere or by Enter
    NameTooLong,     ///< likewise
    ListNameTaken,   ///< committed by a click into the list
    ListNameTooLong, ///< likewise
};

class MacroEditor {
  public:
    /// The window and the library outlive the editor.
    MacroEditor(CDlgBase& window, MacroLibrary& library, const MacroEditorIds& ids,
                const MacroEditorRules& rules);
    virtual ~MacroEditor();
    MacroEditor(const MacroEditor&) = delete;
    MacroEditor& operator=(const MacroEditor&) = delete;

    /// Enters the handlers of the controls above and of the key hook.
    void registerHandlers(MessageMap& map);
    /// Looks the controls up; the window has built them all by now.
    void attach();

    CEditShowList& macros() { return *m_macros; }
    CImageShowList& actions() { return *m_actions; }
    /// The macro that the action list shows, or none.
    MacroKey* shownMacro();
    /// The macro that is selected in the macro list, or none.
    MacroKey* selectedMacro();
    /// Shows what the macro list selects, and sets the scroll bars. Called after every change of the library
    /// too.
    void refresh();
    /// The same when another macro may stand at the shown one's place: the action list starts from its top.
    void refreshAll();

    void beginNewMacro();
    bool isNaming() const;
    /// Ends naming by a click elsewhere or by Enter.
    void commitName();
    /// The button went down in the window; before the window's own handling.
    void pressAt(Point at);
    void deleteMacro();

    void toggleRecording();
    bool isRecording() const;
    /// One message of the key hook.
    void record(WParam key, LParam time);
    /// Ends the hook, as the window's end does.
    void stopHook();

    /// One notch scrolls the list under the pointer by one row.
    void onMouseWheel(int delta);

  protected:
    virtual void onRefusal(MacroRefusal refusal) = 0;
    /// The macro's recording met its limit, and has been ended.
    virtual void onRecordingFull(std::string_view notice);
    /// A macro was added or removed.
    virtual void onLibraryChanged() {}
    virtual bool isDeletable(const MacroKey& macro);
    /// `macro` is what the page shows now.
    virtual void onShown(MacroKey& macro);
    /// An event was recorded or refused for want of room.
    virtual void onRecorded() {}
    virtual void onRecordingEnded() {}
    /// The window's own text fields, which are no controls, follow the controls.
    virtual void enableFields(bool) {}

  private:
    void onListNotification(LParam code);
    void onScrollBar(CRowList& list, CVScrollBar& bar, WParam part, LParam code);
    /// A list may have fewer rows than when it was scrolled; the field for a new name is a row, too.
    static void keepWithinRows(CRowList& list, int rows);
    void scrollTo(CRowList& list, CVScrollBar& bar, int firstRow);
    std::optional<MacroRefusal> nameFault(std::string_view name) const;
    void startRecording(MacroKey& macro);
    void showLastAction();
    void endFullRecording(std::string_view notice);
    void setRecordingLook(bool recording);

    CDlgBase& m_window;
    MacroLibrary& m_library;
    MacroEditorIds m_ids;
    MacroEditorRules m_rules;
    CEditShowList* m_macros = nullptr;
    CImageShowList* m_actions = nullptr;
    CVScrollBar* m_macroScrollBar = nullptr;
    CVScrollBar* m_actionScrollBar = nullptr;
    CCheckButton* m_recordDelays = nullptr;
    CCheckButton* m_recordSwitch = nullptr;
    MacroRecorder m_recorder;
    CKeyboardHook m_hook;
};

} // namespace tarnix
