#include "macro_manager/macro_editor.h"

#include <algorithm>
#include <string>
#include <utility>

namespace tarnix {

MacroEditor::MacroEditor(CDlgBase& window, MacroLibrary& library, const MacroEditorIds& ids,
                         const MacroEditorRules& rules)
    : m_window(window), m_library(library), m_ids(ids), m_rules(rules), m_recorder(rules.recording) {}

MacroEditor::~MacroEditor() = default;

void MacroEditor::registerHandlers(MessageMap& map) {
    map.onClick(m_ids.newMacro, [this] { beginNewMacro(); });
    map.onClick(m_ids.deleteMacro, [this] { deleteMacro(); });
    map.on(m_ids.macroList, [this](WParam, LParam code) { onListNotification(code); });
    map.on(m_ids.macroScrollBar,
           [this](WParam part, LParam code) { onScrollBar(*m_macros, *m_macroScrollBar, part, code); });
    map.on(m_ids.actionScrollBar,
           [this](WParam part, LParam code) { onScrollBar(*m_actions, *m_actionScrollBar, part, code); });
    map.onClick(m_ids.recordSwitch, [this] { toggleRecording(); });
    map.on(WM_KEYHOOK, [this](WParam key, LParam time) { record(key, time); });
}

void MacroEditor::attach() {
    m_macros = m_window.control<CEditShowList>(m_ids.macroList);
    m_actions = m_window.control<CImageShowList>(m_ids.actionList);
    m_macroScrollBar = m_window.control<CVScrollBar>(m_ids.macroScrollBar);
    m_actionScrollBar = m_window.control<CVScrollBar>(m_ids.actionScrollBar);
    m_recordDelays = m_window.control<CCheckButton>(m_ids.recordDelays);
    m_recordSwitch = m_window.control<CCheckButton>(m_ids.recordSwitch);
}

// Showing.

MacroKey* MacroEditor::shownMacro() {
    return findMacro(m_library, m_actions->shownSet(), m_actions->shownMacro());
}

MacroKey* MacroEditor::selectedMacro() {
    return findMacro(m_library, m_macros->currentSet(), m_macros->m_nSelected);
}

void MacroEditor::refresh() {
    keepWithinRows(*m_macros, m_macros->rowCount() + (isNaming() ? 1 : 0));
    keepWithinRows(*m_actions, m_actions->rowCount());
    const bool any = selectedMacro() != nullptr;
    const int set = any ? m_macros->currentSet() : -1;
    const int macro = any ? m_macros->m_nSelected : -1;
    if (set != m_actions->shownSet() || macro != m_actions->shownMacro()) {
        m_actions->ShowMacro(set, macro);
        m_actions->repaint();
    }
    m_actionScrollBar->SetScrollState(m_actions->m_nFirstRow, m_actions->m_nVisibleRows,
                                      m_actions->rowCount());
    m_macroScrollBar->SetScrollState(m_macros->m_nFirstRow, m_macros->m_nVisibleRows, m_macros->rowCount());
    if (MacroKey* shown = shownMacro()) onShown(*shown);
}

void MacroEditor::refreshAll() {
    m_actions->ShowMacro(-1, -1);
    m_actions->repaint();
    m_macros->repaint();
    refresh();
}

void MacroEditor::onShown(MacroKey&) {}

// Scrolling.

void MacroEditor::keepWithinRows(CRowList& list, int rows) {
    const int first = std::clamp(list.m_nFirstRow, 0, std::max(0, rows - list.m_nVisibleRows));
    if (std::exchange(list.m_nFirstRow, first) != first) list.repaint();
}

void MacroEditor::scrollTo(CRowList& list, CVScrollBar& bar, int firstRow) {
    const int last = std::max(0, list.rowCount() - list.m_nVisibleRows);
    list.m_nFirstRow = std::clamp(firstRow, 0, last);
    list.repaint();
    bar.SetScrollState(list.m_nFirstRow, list.m_nVisibleRows, list.rowCount());
}

void MacroEditor::onScrollBar(CRowList& list, CVScrollBar& bar, WParam part, LParam code) {
    if (code == NOTIFY_DRAG) {
        // The bar places its thumb itself while it is dragged.
        list.m_nFirstRow = std::clamp(bar.position(), 0, std::max(0, list.rowCount() - list.m_nVisibleRows));
        list.repaint();
        return;
    }
    if (code != NOTIFY_DOWN) return;
    switch (part) {
        case CVScrollBar::partUp:
            return scrollTo(list, bar, list.m_nFirstRow - 1);
        case CVScrollBar::partDown:
            return scrollTo(list, bar, list.m_nFirstRow + 1);
        case CVScrollBar::partAbove:
            return scrollTo(list, bar, list.m_nFirstRow - list.m_nVisibleRows);
        case CVScrollBar::partBelow:
            return scrollTo(list, bar, list.m_nFirstRow + list.m_nVisibleRows);
        default:
            return;
    }
}

void MacroEditor::onMouseWheel(int delta) {
    const bool overMacros = m_macros->m_nMouseState != mouseNormal;
    if (!overMacros && m_actions->m_nMouseState == mouseNormal) return;
    if (overMacros && isNaming()) return; // the field keeps its place
    CRowList& list = overMacros ? static_cast<CRowList&>(*m_macros) : *m_actions;
    if (list.rowCount() <= list.m_nVisibleRows) return;
    scrollTo(list, overMacros ? *m_macroScrollBar : *m_actionScrollBar,
             list.m_nFirstRow + (delta > 0 ? -1 : 1));
}

// Naming.

void MacroEditor::beginNewMacro() {
    if (isNaming()) return;
    m_macros->BeginNewName();
    m_macros->repaint();
    refresh();
    if (!GetMacroSet(m_library, m_macros->currentSet())) onRefusal(MacroRefusal::NoMacroSet);
}

bool MacroEditor::isNaming() const {
    return m_macros->isEditing();
}

std::optional<MacroRefusal> MacroEditor::nameFault(std::string_view name) const {
    if (!m_rules.checksNames) return std::nullopt;
    const MacroSet* set = GetMacroSet(m_library, m_macros->currentSet());
    if (set && findMacroName(*set, name) >= 0) return MacroRefusal::NameTaken;
    if (name.size() > maxMacroNameLength) return MacroRefusal::NameTooLong;
    return std::nullopt;
}

void MacroEditor::commitName() {
    if (!isNaming()) return;
    const std::string name = m_macros->editorText();
    if (name.empty()) {
        m_macros->CloseEditor();
        m_macros->ScrollToEnd();
    } else if (const auto fault = nameFault(name)) {
        onRefusal(*fault);
        m_macros->CloseEditor();
    } else {
        if (MacroSet* set = GetMacroSet(m_library, m_macros->currentSet())) AddMacroKey(*set, name);
        m_macros->CloseEditor();
        onLibraryChanged();
    }
    m_macros->repaint();
    refresh();
}

void MacroEditor::pressAt(Point at) {
    if (!isNaming() || m_macros->hit(at)) return;
    const CControlBase* deleteButton = m_window.GetControl(m_ids.deleteMacro);
    if (!deleteButton || !deleteButton->hit(at))
        commitName();
    else if (m_rules.deleteClosesEditor)
        m_macros->DropNewName();
}

void MacroEditor::onListNotification(LParam code) {
    switch (code) {
        case NOTIFY_CLICK:
            if (!isNaming()) m_window.setFocus();
            return refresh();
        case NOTIFY_NAME_DROPPED:
            return refresh();
        case NOTIFY_NAME_ADDED:
            return onLibraryChanged();
        case NOTIFY_NAME_REPEATED:
            return onRefusal(MacroRefusal::ListNameTaken);
        case NOTIFY_NAME_TOO_LONG:
            return onRefusal(MacroRefusal::ListNameTooLong);
        default:
            return;
    }
}

// Deleting.

bool MacroEditor::isDeletable(const MacroKey&) {
    return true;
}

void MacroEditor::deleteMacro() {
    MacroKey* macro = selectedMacro();
    if (!macro) {
        onRefusal(MacroRefusal::NothingToDelete);
    } else if (!isDeletable(*macro)) {
        onRefusal(MacroRefusal::MacroInUse);
    } else {
        RemoveMacroKey(*GetMacroSet(m_library, m_macros->currentSet()), m_macros->m_nSelected);
        m_macros->m_nSelected = -1;
        onLibraryChanged();
    }
    m_macros->repaint();
    refresh();
}

// Recording.

bool MacroEditor::isRecording() const {
    return m_recordSwitch->m_bChecked;
}

void MacroEditor::toggleRecording() {
    if (!isRecording()) {
        m_hook.StopHook();
        setRecordingLook(false);
        onRecordingEnded();
    } else if (MacroKey* macro = shownMacro()) {
        startRecording(*macro);
    } else {
        m_recordSwitch->m_bChecked = false;
        m_recordSwitch->repaint();
        onRefusal(MacroRefusal::NothingToRecord);
    }
}

void MacroEditor::startRecording(MacroKey& macro) {
    m_hook.StartHook(m_window);
    m_recorder.start(macro);
    m_actions->m_nSelected = -1;
    scrollTo(*m_actions, *m_actionScrollBar, 0);
    setRecordingLook(true);
}

/// While a macro is recorded nothing else can be done than to end that, or to turn delays on and off.
void MacroEditor::setRecordingLook(bool recording) {
    m_window.controls().forEach([&](CControlBase& control) { control.m_bDisabled = recording; });
    m_recordSwitch->m_bDisabled = false;
    m_recordDelays->m_bDisabled = false;
    enableFields(!recording);
    m_window.invalidate();
}

void MacroEditor::record(WParam key, LParam time) {
    const auto answer = m_recorder.record(shownMacro(), key, time, m_recordDelays->m_bChecked);
    if (!answer.taken) return;
    if (answer.fullNotice.empty()) {
        showLastAction();
    } else {
        if (isRecording()) endFullRecording(answer.fullNotice);
        m_recorder.passOver(key, time);
    }
    m_actions->repaint();
    onRecorded();
}

void MacroEditor::showLastAction() {
    scrollTo(*m_actions, *m_actionScrollBar, m_actions->rowCount());
}

void MacroEditor::endFullRecording(std::string_view notice) {
    m_recordSwitch->m_bChecked = false;
    setRecordingLook(false);
    onRecordingEnded();
    onRecordingFull(notice);
    m_hook.StopHook();
}

void MacroEditor::onRecordingFull(std::string_view) {}

void MacroEditor::stopHook() {
    m_hook.StopHook();
}

} // namespace tarnix
