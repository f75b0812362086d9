#include "device/event_listener.h"

#include <algorithm>
#include <atomic>
#include <deque>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

namespace tarnix {

namespace {

/// No HID transport delivers longer reports; a descriptor that claims one must not make us allocate it.
constexpr std::size_t maxReportLength = 4096;

/// Reports that may wait for the user-interface thread. A device that floods it is read no faster than it is
/// heard.
constexpr int maxWaiting = 4096;

/// Reports that are heard in one turn of the loop; more would hold up input and painting.
constexpr int maxInOneTurn = 64;

} // namespace

/// What one listener thread shares with the user-interface thread: the reports in their order.
struct EventListener::Mailbox {
    std::mutex mutex;
    std::deque<std::vector<std::uint8_t>> reports;
    std::atomic<int> waiting{0}; ///< their number
    std::atomic<bool> stopping{false};
    bool startAgain = false; ///< user-interface thread only
    HidInterface next;       ///< the same; what to open then

    void waitForRoom() {
        for (int count = waiting.load(); count >= maxWaiting && !stopping.load(); count = waiting.load()) {
            waiting.wait(count);
        }
    }

    void put(const std::vector<std::uint8_t>& report) {
        const std::lock_guard lock(mutex);
        reports.push_back(report);
        waiting.fetch_add(1);
    }

    /// None when there is none.
    std::optional<std::vector<std::uint8_t>> take() {
        const std::lock_guard lock(mutex);
        if (reports.empty()) return std::nullopt;
        std::vector<std::uint8_t> first = std::move(reports.front());
        reports.pop_front();
        removeOne();
        return first;
    }

    void removeOne() {
        waiting.fetch_sub(1);
        waiting.notify_one();
    }

    /// The count changes with it: a thread that waits on the count wakes only when it has changed.
    void stop() {
        stopping.store(true);
        removeOne();
    }
};

EventListener::EventListener(Hid& hid, MainLoop& loop, Handler handler)
    : m_hid(hid),
      m_loop(loop),
      m_handler(std::move(handler)),
      m_self(std::make_shared<EventListener*>(this)) {}

EventListener::~EventListener() {
    close();
}

void EventListener::start(const HidInterface& interface) {
    if (m_thread.joinable() && interface.path == m_path) {
        m_mailbox->startAgain = true;
        m_mailbox->next = interface;
        return;
    }
    stop();
    run(interface);
}

void EventListener::run(const HidInterface& interface) {
    m_device = m_hid.open(interface.path);
    if (!m_device) return;
    m_path = interface.path;
    m_mailbox = std::make_shared<Mailbox>();
    // Byte 0 is the report id; what the keyboard leaves unfilled reads FF, and is not filled again between
    // reads.
    std::vector<std::uint8_t> report(std::min(interface.inputReportLength, maxReportLength), 0xFF);
    if (!report.empty()) report[0] = 0;
    m_thread = std::thread([&loop = m_loop, device = m_device, mailbox = m_mailbox, self = m_self,
                            report = std::move(report)]() mutable {
        while (device->read(report) == HidDevice::ReadResult::Report) {
            mailbox->waitForRoom();
            if (mailbox->stopping.load()) return;
            mailbox->put(report);
            loop.post([mailbox, self] { deliver(*mailbox, *self); });
        }
        loop.post([mailbox, self] {
            if (EventListener* listener = *self) listener->onEnded(mailbox);
        });
    });
}

/// Each report is announced by itself, but those that have come meanwhile are heard in the same turn, so that
/// the windows are painted once for all of them. `self` is none once the listener is closed.
void EventListener::deliver(Mailbox& mailbox, EventListener* const& self) {
    for (int n = 0; n < maxInOneTurn && self; ++n) {
        const auto report = mailbox.take();
        if (!report) return;
        self->m_handler(*report);
    }
}

void EventListener::onEnded(const std::shared_ptr<Mailbox>& mailbox) {
    if (mailbox != m_mailbox) return; // another one runs by now
    const bool again = mailbox->startAgain;
    const HidInterface next = mailbox->next;
    stop();
    if (again) run(next);
}

void EventListener::stop() {
    if (!m_thread.joinable()) return;
    m_mailbox->stop();
    m_device->stop();
    m_thread.join();
    m_device.reset();
    m_mailbox.reset();
}

void EventListener::close() {
    stop();
    *m_self = nullptr;
}

} // namespace tarnix
