// Brings a window's mouse input to its windowless controls.
#pragma once

#include "skin/control_groups.h"

namespace tarnix {

class MouseRouter {
  public:
    MouseRouter(Window& window, ControlGroups& controls) : m_window(window), m_controls(controls) {}

    void move(unsigned flags, Point at);
    /// A press outside the controls starts moving the window.
    void press(unsigned flags, Point at);
    void release(unsigned flags, Point at);
    void doubleClick(unsigned flags, Point at);
    void leave();
    void hover();

    /// The control under the pointer; none if there is none.
    CControlBase* hot() const { return m_hot; }
    /// The control on which the button last went down; none if there is none.
    const CControlBase* focus() const { return m_focus; }
    /// Takes the focus from the focus control unless that is the hot control.
    void dropFocus();

  private:
    void repaint(const CControlBase* control);
    /// The hot control where it is visible and holds the point.
    CControlBase* hotAt(Point at) const;
    CControlBase* offer(unsigned flags, Point at);
    void startMove();
    void endPress();
    bool repaintAfterRelease(const Rect& released);

    static constexpr Point outside{-1, -1};
    static constexpr Rect noRect{-1, -1, -1, -1};

    Window& m_window;
    ControlGroups& m_controls;
    CControlBase* m_hot = nullptr;
    CControlBase* m_focus = nullptr;
    bool m_tracking = false;
    bool m_buttonDown = false;
    bool m_captured = false;
    Rect m_pressed = noRect; ///< of the control on which the last press or double-click landed
    Point m_last = outside;  ///< handed to the controls; outside while the pointer is known to be there
};

} // namespace tarnix
