#include "macro_manager/manager_dlg.h"

#include <algorithm>
#include <utility>

#include "macro/macro_files.h"
#include "macro_manager/companion_dlgs.h"
#include "macro_manager/manager_layout.h"
#include "platform/resources.h"
#include "skin/list_popup.h"
#include "skin/selection.h"
#include "skin/sent.h"

namespace tarnix {

namespace {

constexpr MacroEditorIds editorIds{.newMacro = manager::newMacroButton,
                                   .deleteMacro = manager::deleteMacroButton,
                                   .macroList = manager::macroList,
                                   .actionList = manager::actionList,
                                   .macroScrollBar = manager::macroScrollBar,
                                   .actionScrollBar = manager::actionScrollBar,
                                   .recordDelays = manager::recordDelays,
                                   .recordSwitch = manager::recordSwitch};

// Row codes of the list of sets; from firstSetCode on they stand for the sets.
constexpr int addSetCode = 0;
constexpr int deleteSetCode = 1;
constexpr int firstSetCode = 2;

constexpr Size setListArea{400, 400};
constexpr LParam setListKind = 5;

} // namespace

CMacroManagerDlg::Editor::Editor(CMacroManagerDlg& dialog)
    : MacroEditor(dialog, dialog.m_library, editorIds, managerRules), m_dialog(dialog) {}

/// The manager has a notice where there is nothing to work on, and is silent about the rest.
void CMacroManagerDlg::Editor::onRefusal(MacroRefusal refusal) {
    switch (refusal) {
        case MacroRefusal::NoMacroSet:
        case MacroRefusal::NothingToRecord:
            CMacroManagerNoteDlg(m_dialog).DoModal();
            return;
        case MacroRefusal::NothingToDelete:
            CMacroManagerAttentionDlg(m_dialog).DoModal();
            return;
        default:
            return;
    }
}

CMacroManagerDlg::CMacroManagerDlg(Window* owner, Files& files, std::string programFolder, int set)
    : CFormDlg({.role = "CMacroManagerDlg",
                .title = manager::managerTitle,
                .size = manager::managerSize,
                .background = manager::managerBackground,
                .controls = manager::managerControls,
                .texts = manager::managerTexts},
               owner),
      m_files(files),
      m_strAppDir(std::move(programFolder)),
      m_openingSet(set),
      m_editor(*this) {
    m_editor.registerHandlers(m_messages);
    m_messages.onClick(manager::okButton, [this] { save(); })
        .onClick(manager::openSetList, [this] { openSetList(); })
        .on(manager::setListChosen, [this](WParam, LParam code) { onSetListChosen(code); })
        .on(manager::setListClosing,
            [this](WParam, LParam kind) {
                if (kind == setListKind) closeSetList();
            })
        .on(manager::runAddSet, [this] { CMacroManagerAddDlg(*this).DoModal(); })
        .on(manager::runDeleteSet, [this] { CMacroManagerDelSetDlg(*this).DoModal(); })
        .on(manager::addSetByName,
            [this](WParam, LParam name) {
                if (const auto* sent = Sent<std::string>::find(static_cast<std::uintptr_t>(name)))
                    addMacroSetByName(*sent);
            })
        .on(manager::deleteSetByName, [this](WParam, LParam name) {
            if (const auto* sent = Sent<std::string>::find(static_cast<std::uintptr_t>(name)))
                deleteMacroSetByName(*sent);
        });
}

void CMacroManagerDlg::BuildControls(const Rect& client) {
    CFormDlg::BuildControls(client);
    addControl(0, std::make_unique<CEditShowList>(*this, manager::macroList, manager::macroListRect,
                                                  m_library, manager::macroListCaption));
    auto& actions =
        addControl(0, std::make_unique<CImageShowList>(*this, manager::actionList, manager::actionListRect,
                                                       m_library, manager::actionListCaption));
    actions.LoadImages();
    m_editor.attach();
    LoadManagerLibrary(m_library, m_files, m_strAppDir);
    if (GetMacroSet(m_library, m_openingSet - 1))
        chooseMacroSet(m_openingSet - 1);
    else
        m_editor.refresh();
}

void CMacroManagerDlg::DrawWindow(Canvas& canvas, const Rect& dirty) {
    drawBackground(canvas, dirty);
    if (const Image* panel = resources().find(ResourceType::Bitmap, manager::managerPanel))
        canvas.draw(*panel, Rect::at(0, 0, panel->size().width, panel->size().height),
                    manager::managerPanelRect);
    DrawControls(canvas, dirty);
}

int CMacroManagerDlg::selectedSet() const {
    const auto* list = control<CEditShowList>(manager::macroList);
    return list && GetMacroSet(m_library, list->currentSet()) ? list->currentSet() + 1 : 0;
}

void CMacroManagerDlg::save() {
    if (end(IDOK)) SaveManagerLibrary(m_library, m_files, m_strAppDir);
}

// The list of sets.

void CMacroManagerDlg::openSetList() {
    auto* field = control<CComboButton>(manager::setField);
    field->m_bOpen = true;
    field->repaint();
    popups().open(PopupPlace::MacroSetList, std::make_unique<CMacroSetListPopup>(m_library),
                  Rect::at(field->m_rect.left, field->m_rect.bottom, setListArea.width, setListArea.height),
                  manager::setListChosen, manager::setField);
}

void CMacroManagerDlg::closeSetList() {
    auto* field = control<CComboButton>(manager::setField);
    field->m_bOpen = false;
    field->repaint();
    popups().close(PopupPlace::MacroSetList);
}

/// The code comes from any sender, and may be any number.
void CMacroManagerDlg::onSetListChosen(LParam code) {
    closeSetList();
    if (code == addSetCode)
        post(manager::runAddSet);
    else if (code == deleteSetCode)
        post(manager::runDeleteSet);
    else if (code >= firstSetCode && code < firstSetCode + std::ssize(m_library.sets))
        chooseMacroSet(static_cast<int>(code) - firstSetCode);
}

/// Outside the library: shows that there is no set.
void CMacroManagerDlg::chooseMacroSet(int index) {
    const MacroSet* set = GetMacroSet(m_library, index);
    m_editor.macros().SelectSet(set ? index : -1);
    control<CComboButton>(manager::setField)->SetValueText(set ? set->name : manager::noSetText);
    m_editor.refreshAll();
}

void CMacroManagerDlg::addMacroSetByName(const std::string& name) {
    const bool taken =
        std::ranges::any_of(m_library.sets, [&](const MacroSet& set) { return set.name == name; });
    if (!name.empty() && !taken) AddMacroSet(m_library, name);
}

void CMacroManagerDlg::deleteMacroSetByName(const std::string& name) {
    const auto found = std::ranges::find(m_library.sets, name, &MacroSet::name);
    if (found == m_library.sets.end()) return;
    const int index = static_cast<int>(found - m_library.sets.begin());
    const int selected = m_editor.macros().currentSet();
    RemoveMacroSet(m_library, index);
    if (index == selected)
        chooseMacroSet(0);
    else if (index < selected)
        followSelectedSet(selected - 1);
}

/// The selected set has another index now; what is selected in it stays.
void CMacroManagerDlg::followSelectedSet(int index) {
    CEditShowList& list = m_editor.macros();
    const int macro = list.m_nSelected;
    const int firstRow = list.m_nFirstRow;
    list.SelectSet(index);
    list.m_nSelected = macro;
    list.m_nFirstRow = firstRow;
    m_editor.refresh();
}

// Input.

void CMacroManagerDlg::OnLButtonDown(unsigned flags, Point at) {
    if (m_editor.isNaming() && !m_editor.macros().hit(at)) {
        m_editor.pressAt(at);
        setFocus();
    }
    CFormDlg::OnLButtonDown(flags, at);
}

void CMacroManagerDlg::OnMouseWheel(int delta, Point at) {
    m_editor.onMouseWheel(delta);
    CFormDlg::OnMouseWheel(delta, at);
}

void CMacroManagerDlg::OnDestroy() {
    m_editor.stopHook();
    CFormDlg::OnDestroy();
}

bool OpenMacroManager(Window* owner, MacroLibrary& library, Files& files, const std::string& programFolder,
                      int set) {
    if (CMacroManagerDlg(owner, files, programFolder, set).DoModal() != IDOK) return false;
    ClearMacroLibrary(library);
    LoadMacroLibrary(library, files, programFolder);
    return true;
}

} // namespace tarnix
