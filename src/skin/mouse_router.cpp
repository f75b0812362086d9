#include "skin/mouse_router.h"

#include <algorithm>

namespace tarnix {

namespace {

constexpr int hoverTime = 1;
constexpr std::size_t doubleClickGroup = 1;

/// The tabs and page switches of the main window: their click changes the whole face.
constexpr unsigned faceChangers[] = {2003, 2004, 2005, 2077, 2040, 2049, 2050, 2051, 2052, 2053};

bool changesFace(unsigned id) {
    return std::find(std::begin(faceChangers), std::end(faceChangers), id) != std::end(faceChangers);
}

} // namespace

void MouseRouter::repaint(const CControlBase* control) {
    if (control) m_window.invalidate(control->GetRect());
}

CControlBase* MouseRouter::hotAt(Point at) const {
    return m_hot && m_hot->m_bVisible && m_hot->GetRect().contains(at) ? m_hot : nullptr;
}

void MouseRouter::move(unsigned flags, Point at) {
    if (!m_tracking) m_tracking = m_window.trackMouse(hoverTime);
    if (CControlBase* hot = hotAt(at); hot && m_tracking) {
        m_last = at;
        if (hot->OnMouseMove(flags, at)) repaint(hot);
        return;
    }
    if (m_buttonDown) return;
    m_last = at;
    const CControlBase* old = m_hot;
    m_hot = m_tracking ? offer(flags, at) : nullptr;
    repaint(old);
    repaint(m_hot);
}

/// Tells every control of the pointer's place. Where controls overlap, the last one is under the pointer.
CControlBase* MouseRouter::offer(unsigned flags, Point at) {
    CControlBase* found = nullptr;
    m_controls.forEach([&](CControlBase& control) {
        if (!control.m_bVisible || !control.m_bTakesMouse) return;
        control.OnMouseMove(flags, at);
        if (control.GetRect().contains(at)) found = &control;
    });
    return found;
}

void MouseRouter::press(unsigned flags, Point at) {
    // A window that comes up under a resting pointer gets a press without a movement before it.
    if (!hotAt(at)) move(flags, at);
    dropFocus();
    CControlBase* hot = hotAt(at);
    if (!hot) return startMove();

    m_buttonDown = true;
    m_focus = hot;
    m_pressed = hot->GetRect();
    if (hot->OnLButtonDown(flags, at)) repaint(hot);
    if (!m_buttonDown) return; // the handler ran a dialog, and the release was cancelled
    if (m_captured) return startMove();
    m_captured = m_window.captureMouse();
    if (!m_captured) release(flags, outside);
}

void MouseRouter::startMove() {
    endPress();
    m_pressed = noRect;
    m_window.startMove();
}

void MouseRouter::endPress() {
    if (m_captured) m_window.releaseMouse();
    m_captured = false;
    m_buttonDown = false;
}

void MouseRouter::release(unsigned flags, Point at) {
    endPress();
    Rect hotRect = noRect;
    if (CControlBase* hot = m_hot) {
        hotRect = hot->GetRect();
        if (hot->OnLButtonUp(flags, at) && !repaintAfterRelease(hotRect)) return;
    }
    if (m_pressed.contains(at) || hotRect.contains(at)) {
        m_last = at;
    } else {
        m_last = outside;
        m_hot = nullptr;
    }
    m_pressed = noRect;
}

/// The click's handler may have changed what is under the pointer; false when nothing is any more.
bool MouseRouter::repaintAfterRelease(const Rect& released) {
    if (!m_hot) {
        m_pressed = noRect;
        return false;
    }
    if (changesFace(m_hot->m_nID))
        m_window.invalidate();
    else
        m_window.invalidate(released);
    return true;
}

void MouseRouter::doubleClick(unsigned flags, Point at) {
    const auto& groups = m_controls.groups();
    for (std::size_t group = 0; group < groups.size(); ++group)
        for (const auto& control : groups[group]) {
            if (!control->GetRect().contains(at)) continue;
            m_pressed = control->GetRect();
            if (group == doubleClickGroup) control->OnLButtonDblClk(flags, at);
            return;
        }
}

void MouseRouter::leave() {
    m_tracking = false;
    if (m_buttonDown || !m_hot) return;
    const Point cursor = m_window.cursorPosition();
    m_last = m_window.isMaximised() && m_hot->GetRect().contains(cursor) ? cursor : outside;
    CControlBase* left = m_hot;
    m_hot = nullptr;
    left->OnMouseMove(0, m_last);
    repaint(left);
}

void MouseRouter::hover() {
    const Point cursor = m_window.cursorPosition();
    if (!m_hot || !m_hot->GetRect().contains(cursor)) return;
    m_last = cursor;
    repaint(m_hot);
}

void MouseRouter::dropFocus() {
    if (!m_focus || m_focus == m_hot) return;
    m_focus->SetFocus(false);
    m_focus = nullptr;
}

} // namespace tarnix
