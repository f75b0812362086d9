#include <cstdio>
#include <utility>

#include "ctl/commands.h"
#include "ctl/describe.h"
#include "ctl/keyboard_access.h"
#include "ctl/output.h"
#include "device/device_events.h"
#include "device/device_link.h"
#include "device/event_listener.h"
#include "platform/hid_node.h"
#include "profile/numbers.h"

namespace tarnix {

namespace {

/// Seconds since the start, the report's bytes from the event code on, and what they mean.
std::string eventLine(Milliseconds time, std::span<const std::uint8_t> report) {
    char seconds[32];
    std::snprintf(seconds, sizeof seconds, "%8lld.%03lld ", static_cast<long long>(time.count() / 1000),
                  static_cast<long long>(time.count() % 1000));
    std::string line(seconds);
    for (const std::uint8_t byte : report.subspan(eventReport::codeByte))
        appendHexByte(line.append(" "), byte);
    line += "  " + describeEvent(report[eventReport::codeByte], report[eventReport::valueByte]);
    return line;
}

/// Reads the event interface as long as the keyboard is attached, and again when it is back.
class Monitor {
  public:
    explicit Monitor(const Context& context)
        : m_context(context),
          m_start(context.clock.now()),
          m_listener(context.hid, context.loop, [this](std::span<const std::uint8_t> report) {
              if (report.size() < eventReport::minLength) return;
              printLine(eventLine(m_context.clock.now() - m_start, report));
          }) {}

    ExitStatus run() {
        const auto interrupted = m_context.loop.onInterrupt([this] { m_context.loop.quit(); });
        const OpenedInterface probe = openInterface(m_context.hid, keyboardIdentity::eventUsagePage);
        if (!probe.device) return probe.status;
        m_context.hid.onChange([this](HidChange) { follow(); });
        follow();
        m_context.loop.run();
        m_listener.close();
        return ExitStatus::Done;
    }

  private:
    void follow() {
        const auto interface = findInterface(m_context.hid, keyboardIdentity::eventUsagePage);
        // A keyboard that was out for a moment may have its old node again, but not its old listener.
        if (interface)
            m_listener.start(*interface);
        else
            m_listener.stop();
        const std::string path = interface ? interface->path : "";
        if (std::exchange(m_path, path) == path) return;
        complain(interface ? "listening to " + examineHidNode(*interface).path
                           : "the keyboard is gone; waiting for it");
    }

    const Context& m_context;
    Milliseconds m_start;
    std::string m_path; ///< of the interface that is listened to
    EventListener m_listener;
};

} // namespace

ExitStatus runMonitor(const Context& context, const Arguments&) {
    return Monitor(context).run();
}

} // namespace tarnix
