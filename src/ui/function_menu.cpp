#include "ui/function_menu.h"

#include <algorithm>
#include <memory>

#include "skin/list_popup.h"
#include "ui/main_window_layout.h"

namespace tarnix {

namespace {

template <class Popup>
std::unique_ptr<CWndPopup> make(MacroLibrary&) {
    return makePopup<Popup>();
}

std::unique_ptr<CWndPopup> makeMacroList(MacroLibrary& library) {
    return std::make_unique<CMacroLibraryPopup>(library);
}

/// Where a macro set list stands, counted from the field's bottom right corner: beside the list of macros.
constexpr Rect macroSetFromCorner{146, -2, 446, 298};

/// Kinds of the macro set lists count from here.
constexpr LParam firstMacroSetKind = 100;

} // namespace

/// A list beside the menu.
struct FunctionMenu::SubPopup {
    PopupPlace place;
    Rect fromCorner; ///< its rectangle, counted from the field's bottom right corner
    LParam kind;
    std::unique_ptr<CWndPopup> (*make)(MacroLibrary& library);
    Message opens;
    Message closes;
    Message answers;
};

/// In the order in which they are brought to the front. The list of mouse functions takes nothing but its
/// width from its rectangle, which is why that one may stand on its head.
const FunctionMenu::SubPopup FunctionMenu::subPopups[] = {
    {PopupPlace::Web, {-6, 32, 294, 332}, 2, make<CDPIPopup>, msg::openWeb, msg::webClosing, msg::webChosen},
    {PopupPlace::Multimedia,
     {-6, 16, 294, 316},
     1,
     make<CProfilePopup>,
     msg::openMultimedia,
     msg::multimediaClosing,
     msg::multimediaChosen},
    {PopupPlace::Mouse,
     {-6, 48, 151, 0},
     3,
     make<CMultimediaPopup>,
     msg::openMouse,
     msg::mouseClosing,
     msg::mouseChosen},
    {PopupPlace::MacroLibrary,
     {-6, -2, 294, 298},
     4,
     makeMacroList,
     msg::openMacroLibrary,
     msg::macroLibraryClosing,
     msg::macroChosen},
};

void FunctionMenu::registerHandlers(MessageMap& map) {
    map.onClick(msg::openFunctionMenu, [this](WParam w, LParam) { OpenFunctionMenu(w); });
    map.on(msg::categoryClosing, [this](WParam w, LParam l) { onCategoryClosing(w, l); });
    for (const SubPopup& sub : subPopups) {
        map.on(sub.opens, [this, &sub](WParam w, LParam) { OpenSubPopup(sub, w); });
        map.on(sub.closes, [this, &sub](WParam w, LParam l) { onSubPopupClosing(sub, w, l); });
    }
    map.on(msg::closeSubPopups, [this] {
        closeSubPopups();
        if (CWndPopup* menu = m_context.window.popups().at(PopupPlace::Category)) menu->raise();
    });
    map.on(msg::openMacroSet, [this](WParam, LParam l) { openMacroSet(l); });
    map.on(msg::closeMacroSets, [this] { closeMacroSetsBesideLibrary(); });
    map.on(msg::macroSetClosing, [this](WParam, LParam l) { onMacroSetClosing(l); });
    map.on(msg::furtherPopupClosing, [] {});
}

void FunctionMenu::closeSubPopup(Message answer) {
    for (const SubPopup& sub : subPopups)
        if (sub.answers == answer) m_context.window.popups().close(sub.place);
}

void FunctionMenu::closeMacroPopups() {
    PopupPlaces& popups = m_context.window.popups();
    popups.closeMacroSets();
    popups.close(PopupPlace::MacroLibrary);
    popups.close(PopupPlace::Category);
}

void FunctionMenu::raiseSubPopups() {
    for (const SubPopup& sub : subPopups)
        if (CWndPopup* popup = m_context.window.popups().at(sub.place)) popup->raise();
}

void FunctionMenu::raiseMacroSets() {
    for (unsigned row = 0; row < macroSetCount(); ++row)
        if (CWndPopup* popup = m_context.window.popups().macroSet(row)) popup->raise();
}

int FunctionMenu::lastMacroSetRow() const {
    int row = static_cast<int>(macroSetCount()) - 1;
    while (row >= 0 && !m_context.window.popups().macroSet(static_cast<unsigned>(row)))
        --row;
    return row;
}

void FunctionMenu::OpenFunctionMenu(WParam fieldId) {
    CComboButton* field = m_context.field(fieldId);
    if (!field) return;
    field->m_bOpen = true;
    field->repaint();
    const Rect rect = Rect::at(field->m_rect.left, field->m_rect.bottom, 300, 300);
    m_context.window.popups().open(PopupPlace::Category, std::make_unique<CComboPopup>(), rect,
                                   msg::categoryChosen, field->m_nID);
}

void FunctionMenu::OpenSubPopup(const SubPopup& sub, WParam fieldId) {
    if (isOpen(sub.place)) return;
    closeSubPopups();
    const CComboButton* field = m_context.field(fieldId);
    if (!field) return;
    const Rect rect = sub.fromCorner.moved(field->m_rect.right, field->m_rect.bottom);
    m_context.window.popups().open(sub.place, sub.make(m_context.macros), rect, sub.answers, field->m_nID);
}

void FunctionMenu::closeSubPopups() {
    for (const SubPopup& sub : subPopups)
        m_context.window.popups().close(sub.place);
    m_context.window.popups().closeMacroSets();
}

void FunctionMenu::onCategoryClosing(WParam fieldId, LParam kind) {
    if (kind != 0 || anySubPopup() || m_context.window.popups().anyMacroSet()) return;
    endMenu(fieldId);
}

void FunctionMenu::onSubPopupClosing(const SubPopup& sub, WParam fieldId, LParam kind) {
    if (kind != sub.kind || !isOpen(sub.place) || pointerOver(PopupPlace::Category)) return;
    if (const CComboButton* field = m_context.field(fieldId)) field->repaint();
    m_context.window.popups().close(sub.place);
    if (!anySubPopup() && !m_context.window.popups().anyMacroSet()) endMenu(fieldId);
}

void FunctionMenu::openMacroSet(LParam number) {
    if (number < 1 || number > static_cast<LParam>(macroSetCount())) return;
    const auto row = static_cast<unsigned>(number - 1);
    PopupPlaces& popups = m_context.window.popups();
    if (popups.macroSet(row)) return;
    popups.closeMacroSets();
    const CWndPopup* menu = popups.at(PopupPlace::Category);
    const CComboButton* field = m_context.field(menu ? menu->tag() : id::gKeyField1);
    if (!field) return;
    const Rect beside = macroSetFromCorner.moved(field->m_rect.right, field->m_rect.bottom);
    popups.openMacroSet(std::make_unique<CMacroSetPopup>(m_context.macros, row), beside, row, row);
}

void FunctionMenu::closeMacroSetsBesideLibrary() {
    PopupPlaces& popups = m_context.window.popups();
    for (unsigned row = 0; row < macroSetCount(); ++row) {
        if (!popups.macroSet(row)) continue;
        popups.closeMacroSet(row);
        if (CWndPopup* library = popups.at(PopupPlace::MacroLibrary)) library->raise();
    }
}

void FunctionMenu::onMacroSetClosing(LParam kind) {
    if (kind < firstMacroSetKind) return;
    const auto row = static_cast<unsigned>(kind - firstMacroSetKind);
    PopupPlaces& popups = m_context.window.popups();
    if (!popups.macroSet(row) || pointerOver(PopupPlace::MacroLibrary)) return;
    popups.closeMacroSet(row);
    if (!popups.anyMacroSet()) popups.close(PopupPlace::MacroLibrary);
    const CWndPopup* menu = popups.at(PopupPlace::Category);
    if (menu && !isOpen(PopupPlace::Web) && !isOpen(PopupPlace::Multimedia) && !isOpen(PopupPlace::Mouse))
        endMenu(menu->tag());
}

bool FunctionMenu::anySubPopup() const {
    return std::any_of(std::begin(subPopups), std::end(subPopups),
                       [this](const SubPopup& sub) { return isOpen(sub.place); });
}

bool FunctionMenu::pointerOver(PopupPlace place) const {
    const CWndPopup* popup = m_context.window.popups().at(place);
    return popup && popup->pointerInside();
}

void FunctionMenu::endMenu(WParam fieldId) {
    if (CComboButton* field = m_context.field(fieldId)) {
        field->m_bOpen = false;
        field->repaint();
    }
    closeCategory();
}

} // namespace tarnix
