#include "skin/buttons.h"

#include <utility>

#include "profile/vocabulary.h"
#include "skin/fonts.h"

namespace tarnix {

namespace {

constexpr unsigned firstRadio = 2006;
constexpr unsigned lastRadio = 2014;
/// One button of each group is selected at a time.
constexpr std::uint32_t radioGroups[] = {0x007, 0x018, 0x060, 0x180};

constexpr Color black = 0x000000;
constexpr std::string_view disabledFieldText = "Disable";

} // namespace

std::uint32_t radioBit(unsigned id) {
    return id >= firstRadio && id <= lastRadio ? 1u << (id - firstRadio) : 0;
}

void selectRadio(unsigned id) {
    const std::uint32_t bit = radioBit(id);
    for (std::uint32_t group : radioGroups)
        if (group & bit) g_nRadioMask = (g_nRadioMask & ~group) | bit;
}

CStripButton::CStripButton(int frames, Window& owner, unsigned id, const Rect& rect, std::string text,
                           bool visible, bool disabled)
    : CMouseControl(owner, id, rect, std::move(text), visible, disabled), m_strip(frames) {}

void CStripButton::Draw(Canvas& canvas, const Rect&) {
    m_strip.draw(canvas, frame(), m_rect);
}

void CStripButton::describe(AccessibleItem& item) const {
    item.role = AccessibleRole::Button;
}

CImageButton::CImageButton(Window& owner, unsigned id, const Rect& rect, std::string text, bool visible,
                           bool disabled)
    : CStripButton(3, owner, id, rect, std::move(text), visible, disabled) {}

CCheckButton::CCheckButton(Window& owner, unsigned id, const Rect& rect, std::string text, bool visible,
                           bool disabled)
    : CStripButton(7, owner, id, rect, std::move(text), visible, disabled) {}

int CCheckButton::frame() const {
    constexpr int firstCheckedFrame = 3;
    constexpr int disabledFrame = 6;
    if (m_bDisabled) return disabledFrame;
    return m_bChecked ? m_nMouseState + firstCheckedFrame : m_nMouseState;
}

void CCheckButton::describe(AccessibleItem& item) const {
    item.role = AccessibleRole::CheckBox;
    item.checked = m_bChecked;
}

void CCheckButton::clicked(Point) {
    m_bChecked = !m_bChecked;
    repaint(); // the second click of a double-click changes the mark but not the mouse state
    notifyOwner(NOTIFY_CLICK);
}

CRadioButton::CRadioButton(Window& owner, unsigned id, const Rect& rect, std::string text, bool visible,
                           bool disabled)
    : CStripButton(3, owner, id, rect, std::move(text), visible, disabled) {}

int CRadioButton::frame() const {
    return g_nRadioMask & radioBit(m_nID) ? mousePressed : m_nMouseState;
}

void CRadioButton::describe(AccessibleItem& item) const {
    item.role = AccessibleRole::RadioButton;
    item.checked = (g_nRadioMask & radioBit(m_nID)) != 0;
}

void CRadioButton::clicked(Point) {
    selectRadio(m_nID);
    notifyOwner(NOTIFY_CLICK);
}

CComboButton::CComboButton(Window& owner, Message notifyMessage, unsigned id, const Rect& rect,
                           std::string caption, bool visible, bool disabled, std::string value)
    : CStripButton(5, owner, id, rect, std::move(caption), visible, disabled),
      m_strValue(std::move(value)),
      m_nNotifyMessage(notifyMessage) {}

void CComboButton::SetValueText(const std::string& value) {
    m_strValue = value;
    repaint();
}

int CComboButton::frame() const {
    constexpr int inactiveFrame = 3;
    constexpr int inactiveHoverFrame = 4;
    if (m_bInactive) return m_nMouseState == mouseNormal ? inactiveFrame : inactiveHoverFrame;
    return m_bOpen ? mouseHover : m_nMouseState;
}

void CComboButton::Draw(Canvas& canvas, const Rect& clip) {
    CStripButton::Draw(canvas, clip);
    if (shownText().empty()) return;
    canvas.drawText(shownText(), {m_rect.left + 4, m_rect.top + 1, m_rect.right, m_rect.bottom},
                    colored(valueFont, black));
    const Rect arrow{m_rect.width() - arrowWidth, 5, m_rect.width() - 1, m_rect.height() - 5};
    m_strip.drawPart(canvas, frame(), arrow, {m_rect.left + arrow.left, m_rect.top + arrow.top});
}

std::string_view CComboButton::shownText() const {
    return m_bDisable ? disabledFieldText : std::string_view(m_strValue);
}

void CComboButton::describe(AccessibleItem& item) const {
    item.role = AccessibleRole::DropDown;
    item.value = shownText();
    item.expanded = m_bOpen;
    item.disabled = item.disabled || m_bInactive;
}

void CComboButton::pressed(Point) {
    if (!m_bInactive) notifyOwner(NOTIFY_DOWN);
}

void CComboButton::clicked(Point) {
    if (!m_bInactive) m_hOwner.send(m_nNotifyMessage, m_nID, NOTIFY_CLICK);
}

CKeyboardButton::CKeyboardButton(Window& owner, unsigned id, const Rect& rect, std::string text, bool visible,
                                 bool disabled)
    : CStripButton(3, owner, id, rect, std::move(text), visible, disabled) {}

void CKeyboardButton::SetKey(const std::string& name, std::uint8_t defaultCode, std::uint8_t currentCode) {
    m_strKeyName = name;
    m_nDefaultCode = defaultCode;
    SetCurrentCode(currentCode);
}

void CKeyboardButton::SetCurrentCode(std::uint8_t code) {
    m_nCurrentCode = code;
    m_bRemapped = code != m_nDefaultCode;
}

void CKeyboardButton::describe(AccessibleItem& item) const {
    item.role = AccessibleRole::Button;
    item.name = "Key " + m_strKeyName;
    if (m_bRemapped) item.value = "assigned " + std::string(keyFunctionName(m_nCurrentCode)) + ", changed";
}

int CKeyboardButton::frame() const {
    return m_bRemapped && m_nMouseState == mouseNormal ? mousePressed : m_nMouseState;
}

void CKeyboardButton::clicked(Point) {
    notifyOwner(NOTIFY_CLICK, m_nID);
}

CLinkButton::CLinkButton(Window& owner, unsigned, const Rect& rect, std::string text, bool visible,
                         bool disabled)
    : CStripButton(3, owner, linkId, rect, std::move(text), visible, disabled) {}

bool CLinkButton::OnMouseMove(unsigned flags, Point at) {
    const bool changed = CMouseControl::OnMouseMove(flags, at);
    if (m_bDisabled || m_nMouseState == mousePressed) return changed;
    const bool inside = hit(at);
    if (std::exchange(m_bInside, inside) != inside) notifyOwner(inside ? NOTIFY_ENTER : NOTIFY_LEAVE);
    return changed;
}

void CLinkButton::describe(AccessibleItem& item) const {
    item.role = AccessibleRole::Link;
}

CRegionButton::CRegionButton(Window& owner, unsigned id, const Rect& rect, std::string text, bool visible,
                             bool disabled)
    : CMouseControl(owner, id, rect, std::move(text), visible, disabled) {}

void CRegionButton::Draw(Canvas& canvas, const Rect&) {
    const Image* bitmap = nullptr;
    const auto& [resource, second, keyX, keyY, width, height] = m_region;
    if (width < 1 || height < 1) return;
    if (!LoadPngResource(static_cast<unsigned>(resource), bitmap, ResourceType::Bitmap)) return;
    canvas.drawKeyed(*bitmap, Rect::at(m_nMouseState * width, 0, width, height), m_rect.topLeft(),
                     bitmap->pixel({keyX, keyY}));
}

void CRegionButton::describe(AccessibleItem& item) const {
    item.role = AccessibleRole::Button;
}

} // namespace tarnix
