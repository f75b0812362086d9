#include "qt_main_loop.h"

#include <QSocketNotifier>
#include <QTimer>
#include <utility>

#include "event_gate.h"

namespace tarnix {

namespace {

template <typename Source>
struct DeleteLater {
    void operator()(Source* source) const { source->deleteLater(); }
};

/// A source of the toolkit's with its callback. The source may fire and its owner be destroyed in any order:
/// the callback runs only while the owner lives.
template <typename Source>
class SourceSubscription : public MainLoop::Subscription {
  public:
    struct State {
        std::unique_ptr<Source, DeleteLater<Source>> source;
        std::function<void()> callback;
    };

    SourceSubscription(Source* source, std::function<void()> callback)
        : m_state(std::make_shared<State>(
              State{std::unique_ptr<Source, DeleteLater<Source>>(source), std::move(callback)})) {}
    ~SourceSubscription() override { disarm(*m_state->source); }

    std::weak_ptr<State> state() const { return m_state; }

  private:
    static void disarm(QSocketNotifier& notifier) { notifier.setEnabled(false); }
    static void disarm(QTimer& timer) { timer.stop(); }

    std::shared_ptr<State> m_state;
};

} // namespace

std::unique_ptr<MainLoop::Subscription> QtMainLoop::watch(int descriptor, std::function<void()> readable) {
    auto* notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read);
    auto subscription = std::make_unique<SourceSubscription<QSocketNotifier>>(notifier, std::move(readable));
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [state = subscription->state()] {
        // Off until it has been read: a readable descriptor would fire again and again while the door is
        // shut.
        if (const auto now = state.lock()) now->source->setEnabled(false);
        EventGate::instance().enter([state] {
            if (const auto alive = state.lock()) alive->callback();
            if (const auto alive = state.lock()) alive->source->setEnabled(true);
        });
    });
    return subscription;
}

std::unique_ptr<MainLoop::Subscription> QtMainLoop::after(Milliseconds time, std::function<void()> callback) {
    auto* timer = new QTimer;
    timer->setSingleShot(true);
    timer->setTimerType(Qt::PreciseTimer);
    auto subscription = std::make_unique<SourceSubscription<QTimer>>(timer, std::move(callback));
    QObject::connect(timer, &QTimer::timeout, timer, [state = subscription->state()] {
        EventGate::instance().enter([state] {
            if (const auto alive = state.lock()) alive->callback();
        });
    });
    timer->start(time);
    return subscription;
}

void QtMainLoop::post(std::function<void()> work) {
    EventGate::instance().post(std::move(work));
}

} // namespace tarnix
