// A HID interface that the kernel lends to the system (linux/uhid.h).
#pragma once

#include <memory>
#include <vector>

#include "platform/linux/file_descriptor.h"
#include "virtual/glib_source.h"
#include "virtual/launcher_bus.h"

struct uhid_event;

namespace tarnix {

/// Speaks the kernel's protocol on a descriptor of /dev/uhid; every read and write there is one event.
class UhidPlug final : public BusPlug {
  public:
    UhidPlug(FileDescriptor device, const BusInterface& interface, BusFunction& function);
    ~UhidPlug() override;
    UhidPlug(const UhidPlug&) = delete;
    UhidPlug& operator=(const UhidPlug&) = delete;

    void sendInput(std::span<const std::uint8_t> report) override;

  private:
    bool receive();
    void answerGet(const uhid_event& event);
    void answerSet(const uhid_event& event);
    void answer(const uhid_event& event, Milliseconds delay);
    bool write(const uhid_event& event);

    FileDescriptor m_device;
    BusFunction& m_function;
    GlibSource m_requests;
    std::vector<GlibSource> m_delayed;
};

} // namespace tarnix
