#include "skin/control_base.h"

#include <utility>

namespace tarnix {

CControlBase::CControlBase(Window& owner, unsigned id, const Rect& rect, std::string text, bool visible,
                           bool disabled, bool takesMouse)
    : m_nID(id),
      m_rect(rect),
      m_bVisible(visible),
      m_bDisabled(disabled),
      m_bTakesMouse(takesMouse),
      m_strText(std::move(text)),
      m_hOwner(owner) {}

CControlBase::~CControlBase() = default;

int CControlBase::Notify(int, int) {
    return 0;
}

int CControlBase::SetFocus(bool) {
    return 0;
}

void CControlBase::SetRect(const Rect& rect) {
    m_rect = rect;
}

Rect CControlBase::GetRect() const {
    return m_rect;
}

void CControlBase::SetText(const std::string& text) {
    if (text == m_strText) return;
    m_strText = text;
    repaint();
}

std::string CControlBase::GetText() const {
    return m_strText;
}

bool CControlBase::SetVisible(bool visible) {
    return m_bVisible = visible;
}

bool CControlBase::OnMouseMove(unsigned, Point) {
    return false;
}

bool CControlBase::OnLButtonDown(unsigned, Point) {
    return false;
}

bool CControlBase::OnLButtonUp(unsigned, Point) {
    return false;
}

bool CControlBase::OnLButtonDblClk(unsigned, Point) {
    return false;
}

bool CControlBase::IsReady() const {
    return true;
}

void CControlBase::describe(AccessibleItem&) const {}

void CControlBase::moveTo(int) {}

void CControlBase::repaint() const {
    m_hOwner.invalidate(m_rect);
}

void CControlBase::notifyOwner(LParam code, WParam word) const {
    m_hOwner.send(m_nID, word, code);
}

bool CMouseControl::OnMouseMove(unsigned, Point at) {
    if (m_bDisabled || m_nMouseState == mousePressed) return false;
    const int before = std::exchange(m_nMouseState, hit(at) ? mouseHover : mouseNormal);
    return m_nMouseState != before;
}

bool CMouseControl::OnLButtonDown(unsigned, Point at) {
    if (m_bDisabled || !hit(at)) return false;
    const int before = std::exchange(m_nMouseState, mousePressed);
    pressed(at);
    return m_nMouseState != before;
}

bool CMouseControl::OnLButtonUp(unsigned, Point at) {
    if (m_bDisabled) return false;
    const bool inside = hit(at);
    const int before = std::exchange(m_nMouseState, inside ? mouseHover : mouseNormal);
    if (inside) clicked(at);
    return m_nMouseState != before;
}

void CMouseControl::pressed(Point) {
    notifyOwner(NOTIFY_DOWN);
}

void CMouseControl::clicked(Point) {
    notifyOwner(NOTIFY_CLICK);
}

} // namespace tarnix
