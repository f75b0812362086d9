// Popup windows: small borderless windows over their owner that follow the mouse and report to the owner by
// synchronous messages.
#pragma once

#include <iterator>
#include <memory>
#include <string>

#include "platform/window.h"

namespace tarnix {

class CWndPopup : public Window {
  public:
    /// The message that an owner gets when a popup is asked to close, with both words 0.
    static constexpr Message closingMessage = 1025;
    /// The message that an owner gets from a popup whose window has gone, with the popup's address in lParam.
    /// CDlgBase frees the popup then.
    static constexpr Message goneMessage = 0x3FF;

    CWndPopup(std::string role, unsigned kind);

    /// Builds the rows, makes the window at the rectangle's top left corner, in the size that the rows take,
    /// and shows it. `notify` is the number of the message that answers a choice; `tag` comes back as the
    /// wParam of all messages. True when the creation FAILED; the popup is then without a window and stays
    /// its opener's.
    [[nodiscard]] bool Create(Window& owner, const Rect& screenRect, Message notify, unsigned tag);
    /// Asks the window to close once the present handler is done. The popup says no more from now on than
    /// that it closes: a deactivation that comes on the way out would concern the popup that took its place.
    void Close();

    /// True while the pointer is within the window's rectangle.
    bool pointerInside() const;
    /// What decides which message tells of a deactivation.
    unsigned kind() const { return m_nKind; }
    unsigned tag() const { return m_nTag; }
    /// True while one of its handlers runs, or while its window exists: not the time to free it.
    bool inUse() const { return m_nBusy > 0 || exists(); }
    /// Tells the owner, as a loss of activation does, that the user has turned away from the popup.
    void sendDeactivated();

    void OnPaint(Canvas& canvas, const Rect& dirty) final;
    void OnMouseMove(unsigned flags, Point at) final;
    void OnLButtonDown(unsigned flags, Point at) final;
    void OnLButtonUp(unsigned flags, Point at) final;
    void OnMouseLeave() final;
    void OnMouseHover() final;
    void OnActivate(bool active) final;
    void OnClose() final;
    void OnDestroy() final;

  protected:
    virtual void DrawList(Canvas& canvas, const Rect& client);
    /// Called once while the window is created. Answers the size of the window.
    virtual Size BuildRows();
    // Each answers whether the face is to be painted anew.
    virtual bool OnPopupMouseMove(Point at);
    virtual bool OnPopupLButtonDown(Point at);
    virtual bool OnPopupLButtonUp(Point at);

    Message notifyMessage() const { return m_nNotifyMessage; }
    /// The width of the rectangle given to Create.
    int givenWidth() const { return m_nWidth; }

  private:
    class Busy;

    std::string m_role;
    unsigned m_nKind;
    int m_nWidth = 100;
    Message m_nNotifyMessage = 0;
    unsigned m_nTag = 0;
    int m_nBusy = 0; ///< handlers on the stack
    bool m_bTracking = false;
    bool m_bButtonDown = false;
    bool m_bCaptured = false;
    bool m_bClosing = false;
};

/// The message that tells an owner that a popup of this kind lost activation; its lParam is the kind.
constexpr Message deactivationMessage(unsigned kind) {
    constexpr Message messages[] = {1029, 1032, 1042, 1045, 1047, 1055, 1057, 1061, 1064, 1069, 1072};
    if (kind >= 100) return 1050;
    return kind < std::size(messages) ? messages[kind] : 0;
}

/// A popup of the given class, for tables.
template <class Popup>
std::unique_ptr<CWndPopup> makePopup() {
    return std::make_unique<Popup>();
}

} // namespace tarnix
