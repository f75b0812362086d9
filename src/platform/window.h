// Top-level windows of the desktop: skinned dialogs, popup lists and the on-screen display.
//
// A Window is the native window and the hook points for what happens to it. Everything runs on the
// user-interface thread but `post`. Coordinates are pixels at 100 %; client coordinates start at the window's
// top left corner, for no window has a frame of the desktop's.
//
// Numbered messages carry two machine words and belong to the class of the window that gets them: the same
// number means different things in different windows.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "platform/accessible.h"
#include "platform/canvas.h"

namespace tarnix {

class Window;

using Message = unsigned;
using WParam = std::uintptr_t;
using LParam = std::intptr_t;
using LResult = std::intptr_t;

/// Results of a modal run (the Win32 dialog commands of the same names).
inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;

/// The title of every window; also the name of the lock and the tip of the icon.
inline constexpr const char* programTitle = "Tarnix Keyboard";

enum class WindowKind {
    Dialog, ///< takes the keyboard; has a taskbar button when its traits say so
    Popup,  ///< a list over its owner; never takes the keyboard; activation is the layer's own affair
    Overlay ///< above all windows, takes neither keyboard nor pointer
};

/// What a window is created from.
struct WindowTraits {
    WindowKind kind = WindowKind::Dialog;
    Window* owner = nullptr; ///< the window it belongs to and stays above
    std::string role = {};   ///< the class's name, for the window manager and for tools
    bool taskbarButton = false;
};

enum class Cursor { Arrow, Hand };

/// A key press for the window, before anything else sees it.
struct KeyPress {
    enum class Key { Other, Enter, Escape, Tab, Space };
    Key key = Key::Other;
    bool down = true; ///< a release otherwise
};

class Window {
  public:
    Window();
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    /// Makes the native window, hidden, at the given screen rectangle. False when it exists already.
    bool createWindow(const WindowTraits& traits, const Rect& screenRect);
    /// Ends the modal run, destroys the windows that it owns, calls OnDestroy and takes the native window
    /// away; nothing without one. Safe in the window's own handlers.
    void destroyWindow();
    bool exists() const;
    Window* owner() const;

    // Geometry.
    Rect clientRect() const;
    Rect screenRect() const;
    Rect toScreen(const Rect& client) const;
    Point toClient(Point screen) const;
    /// The pointer in client coordinates; may lie outside the window.
    Point cursorPosition() const;
    void moveTo(Point screen);
    /// Over its owner, else over the main window, else in the middle of the screen.
    void centre();
    /// The part of the screen that holds no panels (of the screen with the window, else the first).
    static Rect workArea();
    /// The same of the screen that holds the point, if one does.
    static Rect workAreaAt(Point screen);

    // Look.
    void setIcon(const Image& icon);
    void setCursor(Cursor cursor);
    /// The outline as rectangles in client coordinates; pixels outside it are neither painted nor hit.
    void setShape(std::span<const Rect> outline);
    /// 255 opaque. Needs a compositor; without one the window is opaque.
    void setOpacity(int opacity);

    // Showing.
    void show();
    void hide();
    void minimise();
    bool isVisible() const;
    bool isMinimised() const;
    bool isMaximised() const;
    /// Shows the window normally, above the others, and activates it.
    void bringToFront();
    /// Above the other windows of its kind; a popup becomes the active one among the program's windows.
    void raise();

    // Painting.
    void invalidate();
    void invalidate(const Rect& area);
    /// Paints what is invalid now instead of at the next turn of the loop.
    void update();

    // Pointer and keyboard.
    /// In the handler of a press: what the pointer does comes to this window until the release. False when
    /// that has been lost meanwhile, to a modal window that the handler ran.
    bool captureMouse();
    void releaseMouse();
    /// Asks for one OnMouseLeave, and for OnMouseHover once the pointer has rested for `hoverTime` ms. True
    /// if granted.
    bool trackMouse(int hoverTime);
    /// Starts moving the window with the pointer, whose button is down. The release that ends it reaches no
    /// control.
    void startMove();
    void setFocus();

    // Time. Identifiers are the window's own.
    void startTimer(unsigned id, int milliseconds);
    void stopTimer(unsigned id);

    // Messages.
    /// Answers at once with what OnMessage answers; 0 when the window does not exist.
    LResult send(Message message, WParam w = 0, LParam l = 0);
    /// Delivered later, in order, if the window still exists then. From any thread.
    void post(Message message, WParam w = 0, LParam l = 0);
    /// Posts a call of OnClose.
    void postClose();

    // Modal run.
    /// Shows the window, lets the user work in it (and in windows that it owns) alone, and destroys it. The
    /// answer is the one of endModal; IDCANCEL when the window was destroyed otherwise. Runs nest.
    int runModal();
    /// From any handler. Runs inside this one, file dialogs and message boxes too, are cancelled first, the
    /// innermost first. Before the run it keeps the run from showing the window.
    void endModal(int result);

    /// The layer's own side of the window; see platform/qt.
    struct Native;
    Native* native() const { return m_native.get(); }

    // What happens to the window. The defaults do nothing unless said otherwise. `flags` are the key and
    // button flags of the Win32 mouse messages.
    virtual void OnPaint(Canvas& canvas, const Rect& dirty);
    virtual void OnMouseMove(unsigned flags, Point at);
    virtual void OnLButtonDown(unsigned flags, Point at);
    /// At (-1, -1) when a modal window has taken the release away.
    virtual void OnLButtonUp(unsigned flags, Point at);
    virtual void OnLButtonDblClk(unsigned flags, Point at);
    virtual void OnMouseWheel(int delta, Point at); ///< one notch: 120, away from the user, or -120
    virtual void OnMouseLeave();
    virtual void OnMouseHover();
    /// A key for this window or a field in it. True swallows it. Escape that is not swallowed cancels the
    /// modal run; Enter does nothing. Neither repeats while it is held.
    virtual bool OnKey(const KeyPress& key);
    virtual void OnTimer(unsigned id);
    /// Among the program's own windows; synchronous.
    virtual void OnActivate(bool active);
    /// The text of the child field with this identifier was changed by the user.
    virtual void OnEditChange(unsigned id);
    /// Asked to close (by postClose or the window manager), at a moment when none of the window's handlers is
    /// running. Default: cancels the modal run, else destroyWindow.
    virtual void OnClose();
    /// The native window, hidden by now, is about to go. The object may delete itself here, and nowhere else
    /// in its handlers.
    virtual void OnDestroy();
    virtual LResult OnMessage(Message message, WParam w, LParam l);

    // For assistive technology; see platform/accessible.h.
    /// What can be seen in the window now. Default: the program's title and nothing else.
    virtual AccessibleFace accessibleFace() const;
    /// The user has moved an item with a range, within that range.
    virtual void OnAccessibleValue(unsigned number, int value);

  private:
    void releaseWindow();

    std::unique_ptr<Native> m_native;
};

} // namespace tarnix
