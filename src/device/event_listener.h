// The thread that waits for the keyboard's event reports.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <thread>

#include "platform/hid.h"
#include "platform/main_loop.h"

namespace tarnix {

/// Reads one HID interface and hands each report, in order, to the user-interface thread. Used by that
/// thread; at most one listener thread exists, and it ends by itself when its device is gone.
class EventListener {
  public:
    using Handler = std::function<void(std::span<const std::uint8_t> report)>;

    /// The handler runs on the user-interface thread, and never after the listener's destruction.
    EventListener(Hid& hid, MainLoop& loop, Handler handler);
    ~EventListener();
    EventListener(const EventListener&) = delete;
    EventListener& operator=(const EventListener&) = delete;

    /// Starts to read the interface. A listener that reads it already goes on; as it may be dying of the
    /// unplugging that led here, the interface is opened once more should it end by itself. A listener of
    /// another interface is stopped first.
    void start(const HidInterface& interface);
    /// Ends the thread and waits for its end; reports that wait for the handler still reach it.
    void stop();
    /// Stops for good: no report reaches the handler any more.
    void close();

  private:
    struct Mailbox;

    void run(const HidInterface& interface);
    static void deliver(Mailbox& mailbox, EventListener* const& self);
    void onEnded(const std::shared_ptr<Mailbox>& mailbox);

    Hid& m_hid;
    MainLoop& m_loop;
    Handler m_handler;
    std::shared_ptr<EventListener*> m_self; ///< read and cleared by the user-interface thread alone
    std::shared_ptr<HidDevice> m_device;
    std::shared_ptr<Mailbox> m_mailbox;
    std::string m_path; ///< of the interface that the thread reads
    std::thread m_thread;
};

} // namespace tarnix
