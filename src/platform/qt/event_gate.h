// The one door through which the desktop, timers, descriptors and other threads reach the program's code.
//
// While a device sequence pauses the door is shut: whatever comes is kept, and goes in afterwards, one by one
// and in the order in which it came, from the event loop. Painting does not come through here.
#pragma once

#include <QEvent>
#include <QObject>
#include <QSocketNotifier>
#include <deque>
#include <functional>
#include <utility>

#include "platform/posted_work.h"

namespace tarnix {

class EventGate : public QObject {
  public:
    using Work = std::function<void()>;

    EventGate();
    ~EventGate() override;
    /// The application's; lives as long as it.
    static EventGate& instance();

    /// Lets the work in now; later when the door is shut or others wait. The user-interface thread only.
    void enter(Work work);
    /// Lets the work in from the event loop, in the order of the posts. From any thread.
    void post(Work work) { m_posts.post(std::move(work)); }

    /// Shut as long as one of these lives.
    class Shut {
      public:
        Shut() { ++instance().m_shut; }
        ~Shut();
        Shut(const Shut&) = delete;
        Shut& operator=(const Shut&) = delete;
    };

    bool event(QEvent* event) override;
    /// Holds back the input of all windows, the toolkit's own included.
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    bool holding() const { return m_shut > 0 || !m_waiting.empty(); }
    void keep(QObject* receiver, const QEvent& event);
    void takePosts();
    void askForDelivery();
    void deliverNext();

    PostedWork m_posts; ///< not yet seen by the user-interface thread
    QSocketNotifier m_postsNotifier{m_posts.descriptor(), QSocketNotifier::Read};

    std::deque<Work> m_waiting;
    int m_shut = 0;
    bool m_deliveryAsked = false;
    const QEvent* m_admitted = nullptr; ///< the kept input event that is on its way in
};

} // namespace tarnix
