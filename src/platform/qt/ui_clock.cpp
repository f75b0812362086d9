#include "ui_clock.h"

#include <time.h>

#include <QAbstractEventDispatcher>
#include <QBasicTimer>
#include <QCoreApplication>
#include <QObject>
#include <QThread>

#include "event_gate.h"

namespace tarnix {

namespace {

using std::chrono::nanoseconds;
using namespace std::chrono_literals;

/// The event loop's timers may be a millisecond late: the last stretch of a pause is slept through to the
/// point.
constexpr nanoseconds lastStretch = 2ms;

nanoseconds monotonicNow() {
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return std::chrono::seconds{time.tv_sec} + nanoseconds{time.tv_nsec};
}

void sleepUntil(nanoseconds end) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(end);
    const timespec time{seconds.count(), (end - seconds).count()};
    while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &time, nullptr) != 0) {
    }
}

/// Wakes the event loop once.
class Alarm : public QObject {
  public:
    explicit Alarm(nanoseconds time) {
        const auto whole = std::chrono::duration_cast<std::chrono::milliseconds>(time);
        m_timer.start(static_cast<int>(whole.count()), Qt::PreciseTimer, this);
    }

    bool rung() const { return !m_timer.isActive(); }

  protected:
    void timerEvent(QTimerEvent*) override { m_timer.stop(); }

  private:
    QBasicTimer m_timer;
};

/// Serves the event loop, whose door to the program is shut, until shortly before the end.
void paintUntil(nanoseconds end) {
    QAbstractEventDispatcher* loop = QAbstractEventDispatcher::instance();
    if (!loop) return;
    QCoreApplication::processEvents();
    const nanoseconds limit = end - lastStretch;
    if (monotonicNow() >= limit) return;
    const Alarm alarm(limit - monotonicNow());
    while (!alarm.rung())
        loop->processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace

Milliseconds UiClock::now() {
    return std::chrono::duration_cast<Milliseconds>(monotonicNow());
}

void UiClock::pause(Milliseconds time) {
    const nanoseconds end = monotonicNow() + time;
    const EventGate::Shut shut;
    paintUntil(end);
    sleepUntil(end);
}

} // namespace tarnix
