#include "virtual/uhid_plug.h"

#include <fcntl.h>
#include <linux/input.h>
#include <linux/uhid.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace tarnix {
namespace {

template <std::size_t size>
void putText(__u8 (&target)[size], const std::string& text) {
    std::copy_n(text.begin(), std::min(text.size(), size - 1), target);
}

class UhidBus final : public Bus {
  public:
    std::unique_ptr<BusPlug> plug(const BusInterface& interface, BusFunction& function) override {
        FileDescriptor device(::open("/dev/uhid", O_RDWR | O_CLOEXEC));
        if (!device) return nullptr;
        return std::make_unique<UhidPlug>(std::move(device), interface, function);
    }
};

} // namespace

UhidPlug::UhidPlug(FileDescriptor device, const BusInterface& interface, BusFunction& function)
    : m_device(std::move(device)), m_function(function) {
    uhid_event event{};
    event.type = UHID_CREATE2;
    uhid_create2_req& create = event.u.create2;
    putText(create.name, interface.name);
    putText(create.phys, "usb-virtual-" + std::to_string(interface.port) + "/input" +
                             std::to_string(interface.interfaceNumber));
    create.bus = BUS_USB;
    create.vendor = interface.vendor;
    create.product = interface.product;
    const std::size_t length = std::min(interface.descriptor.size(), sizeof create.rd_data);
    create.rd_size = static_cast<__u16>(length);
    std::copy_n(interface.descriptor.begin(), length, create.rd_data);
    write(event);
    m_requests = GlibSource::readable(m_device.get(), [this] { return receive(); });
}

UhidPlug::~UhidPlug() {
    uhid_event event{};
    event.type = UHID_DESTROY;
    write(event);
}

void UhidPlug::sendInput(std::span<const std::uint8_t> report) {
    uhid_event event{};
    event.type = UHID_INPUT2;
    const std::size_t length = std::min(report.size(), sizeof event.u.input2.data);
    event.u.input2.size = static_cast<__u16>(length);
    std::copy_n(report.begin(), length, event.u.input2.data);
    write(event);
}

bool UhidPlug::receive() {
    uhid_event event{};
    if (::read(m_device.get(), &event, sizeof event) <= 0) return false;
    if (event.type == UHID_GET_REPORT) answerGet(event);
    if (event.type == UHID_SET_REPORT) answerSet(event);
    return true;
}

void UhidPlug::answerGet(const uhid_event& event) {
    const uhid_get_report_req& request = event.u.get_report;
    FeatureAnswer said;
    // The kernel does not say how much the asker has room for; the device knows the length of its reports.
    if (request.rtype == UHID_FEATURE_REPORT) said = m_function.getFeature(request.rnum, 0);
    uhid_event reply{};
    reply.type = UHID_GET_REPORT_REPLY;
    uhid_get_report_reply_req& content = reply.u.get_report_reply;
    content.id = request.id;
    content.err = said.accepted ? 0 : EIO;
    const std::size_t length = said.accepted ? std::min(said.report.size(), sizeof content.data) : 0;
    content.size = static_cast<__u16>(length);
    std::copy_n(said.report.begin(), length, content.data);
    answer(reply, said.delay);
}

void UhidPlug::answerSet(const uhid_event& event) {
    const uhid_set_report_req& request = event.u.set_report;
    FeatureAnswer said;
    const std::size_t length = std::min<std::size_t>(request.size, sizeof request.data);
    if (request.rtype == UHID_FEATURE_REPORT && length > 0)
        said = m_function.setFeature({request.data, length});
    uhid_event reply{};
    reply.type = UHID_SET_REPORT_REPLY;
    reply.u.set_report_reply.id = request.id;
    reply.u.set_report_reply.err = said.accepted ? 0 : EIO;
    answer(reply, said.delay);
}

void UhidPlug::answer(const uhid_event& event, Milliseconds delay) {
    if (delay == Milliseconds(0)) {
        write(event);
        return;
    }
    m_delayed.push_back(GlibSource::every(delay, [this, event] {
        write(event);
        return false;
    }));
}

bool UhidPlug::write(const uhid_event& event) {
    return ::write(m_device.get(), &event, sizeof event) == static_cast<ssize_t>(sizeof event);
}

std::unique_ptr<Bus> makeUhidBus() {
    if (::access("/dev/uhid", R_OK | W_OK) != 0) return nullptr;
    return std::make_unique<UhidBus>();
}

} // namespace tarnix
