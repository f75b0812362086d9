#include "ui/macro_page.h"

#include <string>

#include "macro/macro_files.h"
#include "profile/numbers.h"
#include "ui/attention_dlg.h"
#include "ui/main_window_layout.h"
#include "ui/notices.h"

namespace tarnix {

namespace {

constexpr MacroEditorIds controlIds{.newMacro = id::macroButton1,
                                    .deleteMacro = id::macroButton2,
                                    .macroList = id::macroList,
                                    .actionList = id::actionList,
                                    .macroScrollBar = id::macroScrollBar,
                                    .actionScrollBar = id::actionScrollBar,
                                    .recordDelays = id::delayCheck,
                                    .recordSwitch = id::recordSwitch};

constexpr int minLoopCount = 1;
constexpr int maxLoopCount = 255;

FileDialog macroKeyDialog(const char* title) {
    return {.title = title, .filter = "mkf file(*.mkf)|*.mkf", .defaultExtension = "mkf", .fileName = ".mkf"};
}

std::string_view noticeOf(MacroRefusal refusal) {
    switch (refusal) {
        case MacroRefusal::NoMacroSet:
            return notices::noMacroSet;
        case MacroRefusal::NothingToDelete:
            return notices::selectToDelete;
        case MacroRefusal::MacroInUse:
            return notices::macroInUse;
        case MacroRefusal::NothingToRecord:
            return notices::selectToRecord;
        case MacroRefusal::NameTaken:
            return notices::nameTaken;
        case MacroRefusal::NameTooLong:
            return notices::nameTooLong;
        case MacroRefusal::ListNameTaken:
            return notices::listNameTaken;
        case MacroRefusal::ListNameTooLong:
            return notices::listNameTooLong;
    }
    return {};
}

} // namespace

MacroPage::MacroPage(const MainWindowContext& context)
    : MacroEditor(context.window, context.macros, controlIds, macroPageRules), m_context(context) {}

void MacroPage::build(Point origin) {
    CDlgBase& window = m_context.window;
    m_pLoopEdit = std::make_unique<EditField>(
        window, id::loopCountField, loopCountFieldRect.moved(origin.x, origin.y),
        EditStyle{.numbersOnly = true, .caption = loopCountCaption, .visible = false});
    window.addControls(group::macroPage, macroPageControls, origin);
    auto actionList =
        std::make_unique<CImageShowList>(window, id::actionList, actionListRect.moved(origin.x, origin.y),
                                         m_context.macros, actionListCaption);
    actionList->LoadImages();
    auto macroList = std::make_unique<CEditShowList>(
        window, id::macroList, macroListRect.moved(origin.x, origin.y), m_context.macros, macroListCaption);
    macroList->SelectSet(0);
    window.controls().add(group::macroPage, std::move(actionList));
    window.controls().add(group::macroPage, std::move(macroList));
    window.addControls(group::macroPage, macroPageScrollBars, origin);
    attach();
    refreshAll();
}

void MacroPage::registerHandlers(MessageMap& map) {
    MacroEditor::registerHandlers(map);
    map.onClick(id::macroButton3, [this] { ImportMacroKey(); });
    map.onClick(id::macroButton4, [this] { ExportMacroKey(); });
    map.onClick(id::loopCheck, [this] { SetLoopEnable(); });
}

void MacroPage::showLoopField(bool visible) {
    if (m_pLoopEdit) m_pLoopEdit->setVisible(visible);
}

void MacroPage::SetLoopCount() {
    MacroKey* macro = selectedMacro();
    if (!macro || !m_pLoopEdit) return;
    const int count = toNumber(m_pLoopEdit->text());
    if (count >= minLoopCount && count <= maxLoopCount) {
        macro->loopCount = static_cast<std::uint8_t>(count);
    } else {
        showNotice(notices::loopCountRange);
        // The library may have changed while the notice was open.
        if ((macro = selectedMacro())) macro->loopCount = minLoopCount;
        if (m_pLoopEdit) m_pLoopEdit->setText(toText(minLoopCount));
    }
    markChanged();
}

void MacroPage::emptyShownSet() {
    MacroSet* set = GetMacroSet(m_context.macros, macros().currentSet());
    if (!set) return;
    while (RemoveMacroKey(*set, 0)) {
    }
    macros().m_nSelected = -1;
    save();
    macros().repaint();
    if (auto* bar = m_context.window.control<CVScrollBar>(id::actionScrollBar))
        bar->SetScrollState(0, bar->page(), bar->range());
    refreshAll();
}

void MacroPage::onRefusal(MacroRefusal refusal) {
    showNotice(noticeOf(refusal));
}

void MacroPage::onRecordingFull(std::string_view notice) {
    showNotice(notice);
}

bool MacroPage::isDeletable(const MacroKey& macro) {
    return !IsMacroInUse(m_context.store, macro.name);
}

void MacroPage::onShown(MacroKey& macro) {
    if (m_pLoopEdit) m_pLoopEdit->setText(toText(macro.loopCount));
    if (auto* check = m_context.window.control<CCheckButton>(id::loopCheck)) {
        check->m_bChecked = macro.loopEnable != 0;
        check->repaint();
    }
}

void MacroPage::onRecordingEnded() {
    bool& changed = m_context.link.pending().m_bMacroLibraryChanged;
    if (changed) save();
    changed = false;
}

void MacroPage::enableFields(bool enabled) {
    if (m_pLoopEdit) m_pLoopEdit->setEnabled(enabled);
}

void MacroPage::SetLoopEnable() {
    const auto* check = m_context.window.control<CCheckButton>(id::loopCheck);
    MacroKey* macro = selectedMacro();
    if (!check || !macro) return;
    macro->loopEnable = check->m_bChecked ? 1 : 0;
    markChanged();
}

void MacroPage::ImportMacroKey() {
    if (macroForFiles() < 0) {
        showNotice(notices::selectToImport);
        return;
    }
    const auto path = m_context.shell.openFile(macroKeyDialog("Load Macro Key from..."), m_context.window);
    if (!path) return;
    MacroKey* macro = findMacro(m_context.macros, 0, macroForFiles());
    if (!macro || !readMacroKeyFile(*macro, m_context.files, *path)) {
        showNotice(notices::importFailed);
        return;
    }
    save();
    refresh();
    actions().repaint();
}

void MacroPage::ExportMacroKey() {
    if (macroForFiles() < 0) {
        showNotice(notices::selectToExport);
        return;
    }
    const auto path = m_context.shell.saveFile(macroKeyDialog("Save Macro Key as..."), m_context.window);
    const MacroKey* macro = path ? findMacro(m_context.macros, 0, macroForFiles()) : nullptr;
    if (macro) writeMacroKeyFile(*macro, m_context.files, *path);
}

/// The selection must stand in the selected set, but the macro is always the first set's at that index.
int MacroPage::macroForFiles() {
    const int index = macros().m_nSelected;
    return selectedMacro() && findMacro(m_context.macros, 0, index) ? index : -1;
}

void MacroPage::save() {
    SaveMacroLibrary(m_context.macros, m_context.files, m_context.programFolder);
}

} // namespace tarnix
