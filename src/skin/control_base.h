// The base of all windowless controls.
//
// A control lives in a control group of its owner window, which paints it, feeds it with mouse input and
// deletes it. It tells the owner what happened by sending it, synchronously, a message whose number is the
// control's identifier, with wParam 0 and a notification code in lParam. Two classes depart from that: a key
// cap sends its click with its identifier as wParam, and a drop-down field sends its click with a message
// number of its own and its identifier as wParam.
#pragma once

#include <string>

#include "platform/window.h"

namespace tarnix {

/// Notification codes, the lParam of a control's message.
inline constexpr LParam NOTIFY_DOWN = 1;  ///< the button went down inside an enabled control
inline constexpr LParam NOTIFY_CLICK = 2; ///< the button came up inside, whether or not it went down there
inline constexpr LParam NOTIFY_DRAG = 3;  ///< the thumb of a scroll bar moved the position
inline constexpr LParam NOTIFY_ENTER = 4; ///< the pointer entered a link
inline constexpr LParam NOTIFY_LEAVE = 5; ///< the pointer left a link
inline constexpr LParam NOTIFY_NAME_ADDED = 11;    ///< a macro list took a new name
inline constexpr LParam NOTIFY_NAME_REPEATED = 12; ///< the typed name exists already
inline constexpr LParam NOTIFY_NAME_TOO_LONG = 13; ///< the typed name is longer than a macro's name may be
inline constexpr LParam NOTIFY_NAME_DROPPED = 14;  ///< the user closed the field without a name

/// Looks of a control under the pointer; the values are frame numbers too.
inline constexpr int mouseNormal = 0;
inline constexpr int mouseHover = 1;   ///< pointer inside, button up
inline constexpr int mousePressed = 2; ///< the button went down inside and has not come up

class CControlBase {
  public:
    CControlBase(Window& owner, unsigned id, const Rect& rect, std::string text = {}, bool visible = true,
                 bool disabled = false, bool takesMouse = true);
    virtual ~CControlBase();
    CControlBase(const CControlBase&) = delete;
    CControlBase& operator=(const CControlBase&) = delete;

    /// Paints the control; `clip` is the part of the window that is being painted.
    virtual void Draw(Canvas& canvas, const Rect& clip) = 0;
    virtual int Notify(int first, int second);
    /// Called with false when the button goes down elsewhere after it last went down on this control.
    virtual int SetFocus(bool focus);
    virtual void SetRect(const Rect& rect);
    virtual Rect GetRect() const;
    /// Repaints when the text differs, in letter case too.
    virtual void SetText(const std::string& text);
    virtual std::string GetText() const;
    /// Does not repaint. Answers what it was given.
    virtual bool SetVisible(bool visible);
    // The mouse handlers answer whether the control's look changed; the owner repaints it then.
    virtual bool OnMouseMove(unsigned flags, Point at);
    virtual bool OnLButtonDown(unsigned flags, Point at);
    virtual bool OnLButtonUp(unsigned flags, Point at);
    virtual bool OnLButtonDblClk(unsigned flags, Point at);
    virtual bool IsReady() const;
    /// Gives up what the user types into the control. False when that is nothing.
    virtual bool OnEscape() { return false; }
    /// What assistive technology is told of the control; `item` holds its place, its caption, and whether it
    /// is disabled. Default: nothing, the control is left out.
    virtual void describe(AccessibleItem& item) const;
    /// Moves a control that has a range, as the user does. Default: nothing.
    virtual void moveTo(int value);

    /// Half-open: the right and bottom edges are outside.
    bool hit(Point at) const { return m_rect.contains(at); }
    /// Asks the owner to repaint the control.
    void repaint() const;

    unsigned m_nID;
    Rect m_rect; ///< in the owner's client coordinates
    bool m_bVisible;
    bool m_bDisabled; ///< the mouse leaves the control's state alone
    bool m_bTakesMouse;
    std::string m_strText; ///< the caption: no control draws it, assistive technology reads it
    Window& m_hOwner;

  protected:
    /// Sends the control's message.
    void notifyOwner(LParam code, WParam word = 0) const;
};

/// A control that follows the mouse as all buttons do: hover inside, pressed from a press inside to the next
/// release wherever the pointer wanders meanwhile, a click when the release is inside.
class CMouseControl : public CControlBase {
  public:
    using CControlBase::CControlBase;

    bool OnMouseMove(unsigned flags, Point at) override;
    bool OnLButtonDown(unsigned flags, Point at) override;
    bool OnLButtonUp(unsigned flags, Point at) override;

    int m_nMouseState = mouseNormal;

  protected:
    /// The button went down inside. Default: NOTIFY_DOWN.
    virtual void pressed(Point at);
    /// The button came up inside. Default: NOTIFY_CLICK.
    virtual void clicked(Point at);
};

} // namespace tarnix
