// The toolkit's window below a Window: turns the toolkit's events into the window's operations.
#pragma once

#include <QPointer>
#include <QRegion>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "platform/window.h"
#include "pointer.h"

class QKeyEvent;

namespace tarnix {

class WindowWidget : public QWidget {
  public:
    WindowWidget(Window& window, const WindowTraits& traits);

    /// None once the window let go of its widget.
    Window* window() const { return m_window; }
    WindowKind kind() const { return m_kind; }

    /// Runs a handler of the window, which may destroy the window: the widget lives until it has returned.
    template <typename Handler>
    void call(Handler handler) {
        if (!m_window) return;
        ++m_handlers;
        handler(*m_window);
        --m_handlers;
        if (m_handlers == 0) handlersReturned();
    }

    /// Lets go of the window. The widget goes when none of its handlers is running.
    void dispose();
    bool beingDestroyed() const { return m_beingDestroyed; }
    void markDestroyed() { m_beingDestroyed = true; }

    /// Calls OnClose once no handler of the window is running; a popup disappears from the screen meanwhile.
    void requestClose();
    /// True when the key goes no further: the window swallowed it, or it was Escape and ended a modal run.
    bool offerKey(const QKeyEvent& event);

    /// The window takes the keyboard back from it.
    void hideChild(QWidget& child);
    /// Deletes a child when none of the window's handlers is running: one of the child's own may have led
    /// here.
    void discard(QWidget& child);

    void invalidate(const QRect& area);
    void paintNow();
    void setTimer(unsigned id, int milliseconds);
    void endTimer(unsigned id) { m_timers.erase(id); }
    /// The release of a press that the window has heard of belongs to nobody: the press did nothing.
    void cancelPress();
    Pointer& pointer() { return m_pointer; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void handlersReturned();
    void tick(unsigned id);

    Window* m_window;
    WindowKind m_kind;
    Pointer m_pointer{*this};
    QRegion m_invalid;
    std::map<unsigned, std::unique_ptr<QTimer>> m_timers;
    std::vector<QPointer<QWidget>> m_discarded;
    int m_turned = 0;   ///< what the wheel has turned towards its next notch; touchpads turn it finely
    int m_handlers = 0; ///< how many of the window's handlers are running
    bool m_beingDestroyed = false;
    bool m_closeAsked = false; ///< while a handler was running
};

/// Calls back from the event loop once the first window has painted itself; soon, when that has happened
/// already.
void afterFirstPaint(QObject& context, std::function<void()> callback);

} // namespace tarnix
