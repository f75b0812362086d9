#include "skin/wnd_popup.h"

#include <algorithm>
#include <utility>

namespace tarnix {

namespace {

constexpr int hoverTime = 50;
constexpr Color borderColor = 0x6BD2B9;
constexpr Color faceColor = 0x80ACA1;
/// A library from a file may have more macros than a window can be high.
constexpr int greatestHeight = 8192;

/// Moves a rectangle onto the area, as far as it fits; its top left corner comes first.
Rect shiftedInto(const Rect& area, Rect rect) {
    if (area.empty()) return rect;
    const int x = std::max(area.left, std::min(rect.left, area.right - rect.width()));
    const int y = std::max(area.top, std::min(rect.top, area.bottom - rect.height()));
    return rect.moved(x - rect.left, y - rect.top);
}

} // namespace

/// Marks that one of the popup's handlers is running.
class CWndPopup::Busy {
  public:
    explicit Busy(CWndPopup& popup) : m_popup(popup) { ++m_popup.m_nBusy; }
    ~Busy() { --m_popup.m_nBusy; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

  private:
    CWndPopup& m_popup;
};

CWndPopup::CWndPopup(std::string role, unsigned kind) : m_role(std::move(role)), m_nKind(kind) {}

bool CWndPopup::Create(Window& owner, const Rect& screenRect, Message notify, unsigned tag) {
    m_nWidth = screenRect.width();
    m_nNotifyMessage = notify;
    m_nTag = tag;
    const Size rows = BuildRows();
    const Size size{std::max(rows.width, 1), std::clamp(rows.height, 1, greatestHeight)};
    const Rect place = Rect::at(screenRect.left, screenRect.top, size.width, size.height);
    const WindowTraits traits{.kind = WindowKind::Popup, .owner = &owner, .role = m_role};
    if (!createWindow(traits, shiftedInto(workAreaAt({place.left, place.top}), place))) return true;
    show();
    return false;
}

void CWndPopup::Close() {
    m_bClosing = true;
    postClose();
}

bool CWndPopup::pointerInside() const {
    return exists() && clientRect().contains(cursorPosition());
}

void CWndPopup::sendDeactivated() {
    if (Window* to = owner()) to->send(deactivationMessage(m_nKind), m_nTag, static_cast<LParam>(m_nKind));
}

void CWndPopup::OnPaint(Canvas& canvas, const Rect&) {
    canvas.fill(clientRect(), borderColor);
    canvas.fill(clientRect().inset(1), faceColor);
    DrawList(canvas, clientRect());
}

void CWndPopup::OnMouseMove(unsigned, Point at) {
    const Busy busy(*this);
    if (!m_bTracking) m_bTracking = trackMouse(hoverTime);
    if (!m_bButtonDown && OnPopupMouseMove(at)) invalidate();
}

void CWndPopup::OnLButtonDown(unsigned, Point at) {
    const Busy busy(*this);
    m_bButtonDown = true;
    m_bCaptured = captureMouse();
    if (OnPopupLButtonDown(at)) invalidate();
}

void CWndPopup::OnLButtonUp(unsigned, Point at) {
    const Busy busy(*this);
    if (m_bCaptured) releaseMouse();
    m_bCaptured = false;
    m_bButtonDown = false;
    if (OnPopupLButtonUp(at)) invalidate();
}

/// The face is not painted anew: the last highlight stays to be seen.
void CWndPopup::OnMouseLeave() {
    const Busy busy(*this);
    m_bTracking = false;
    if (!m_bButtonDown) OnPopupMouseMove(cursorPosition());
}

void CWndPopup::OnMouseHover() {
    const Busy busy(*this);
    OnPopupMouseMove(cursorPosition());
}

void CWndPopup::OnActivate(bool active) {
    const Busy busy(*this);
    if (!active && !m_bClosing) sendDeactivated();
}

void CWndPopup::OnClose() {
    m_bClosing = true;
    if (Window* to = owner()) to->send(closingMessage);
    destroyWindow();
}

void CWndPopup::OnDestroy() {
    m_bClosing = true;
    if (Window* to = owner()) to->post(goneMessage, 0, reinterpret_cast<LParam>(this));
}

void CWndPopup::DrawList(Canvas&, const Rect&) {}

Size CWndPopup::BuildRows() {
    return {m_nWidth, 0};
}

bool CWndPopup::OnPopupMouseMove(Point) {
    return false;
}

bool CWndPopup::OnPopupLButtonDown(Point) {
    return false;
}

bool CWndPopup::OnPopupLButtonUp(Point) {
    return false;
}

} // namespace tarnix
