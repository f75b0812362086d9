// Hidraw nodes under umockdev: a folder that stands for /sys and /dev in every process that preloads its
// library.
#include <fcntl.h>
#include <linux/hidraw.h>
#include <linux/input.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <umockdev.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <filesystem>

#include "platform/linux/file_descriptor.h"
#include "platform/posted_work.h"
#include "virtual/glib_source.h"
#include "virtual/launcher_bus.h"

namespace tarnix {
namespace {

struct Unref {
    void operator()(void* object) const { g_object_unref(object); }
};
template <class T>
using GObjectPtr = std::unique_ptr<T, Unref>;

std::string formatted(const char* format, auto... values) {
    std::string text(256, '\0');
    const int length = std::snprintf(text.data(), text.size(), format, values...);
    text.resize(std::min(text.size() - 1, static_cast<std::size_t>(std::max(length, 0))));
    return text;
}

std::string hexText(std::span<const std::uint8_t> bytes) {
    std::string text;
    for (const std::uint8_t byte : bytes)
        text += formatted("%02X", byte);
    return text;
}

/// Where a node stands in the mocked system, and what stands there.
struct NodePlace {
    NodePlace(const BusInterface& interface, unsigned number)
        : usb(formatted("/devices/pci0000:00/0000:00:14.0/usb1/1-%u/1-%u:1.%u", interface.port,
                        interface.port, interface.interfaceNumber)),
          hid(usb + formatted("/0003:%04X:%04X.%04X", interface.vendor, interface.product, number)),
          name(formatted("hidraw%u", number)),
          node(hid + "/hidraw/" + name),
          device("/dev/" + name) {}

    std::string usb, hid, name, node, device;
};

/// The two devices of a node as umockdev reads them.
std::string deviceText(const NodePlace& place, const BusInterface& interface, unsigned number) {
    return "P: " + place.hid + "\nE: SUBSYSTEM=hid\n" +
           formatted("E: HID_ID=0003:%08X:%08X\n", interface.vendor, interface.product) +
           "E: HID_NAME=" + interface.name + "\nE: HID_UNIQ=\n" +
           formatted("E: HID_PHYS=usb-0000:00:14.0-%u/input%u\n", interface.port, interface.interfaceNumber) +
           "H: report_descriptor=" + hexText(interface.descriptor) + "\n\n" + //
           "P: " + place.node + "\nN: " + place.name + "\nE: SUBSYSTEM=hidraw\nE: DEVNAME=" + place.device +
           formatted("\nE: MAJOR=240\nE: MINOR=%u\n", number) + "L: device=../../../" +
           place.hid.substr(place.hid.rfind('/') + 1) + "\n\n";
}

std::string rootFolder(UMockdevTestbed* testbed) {
    const std::unique_ptr<char, decltype(&g_free)> root(umockdev_testbed_get_root_dir(testbed), g_free);
    return root.get();
}

/// True while the listener behind a socket takes another event.
bool takesEvents(const std::string& socketPath) {
    const FileDescriptor sender(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    socketPath.copy(address.sun_path, sizeof address.sun_path - 1);
    if (::connect(sender.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        return true;
    pollfd state{sender.get(), POLLOUT, 0};
    return ::poll(&state, 1, 0) == 1;
}

/// Tells the listeners of an arrival or a removal. A listener that lets its events lie loses the later ones,
/// as it would with the kernel; the test bed would end this process over it.
void announce(UMockdevTestbed* testbed, const std::string& sysPath, const char* action) {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(rootFolder(testbed), error)) {
        if (entry.path().filename().string().starts_with("event") && !takesEvents(entry.path())) return;
    }
    umockdev_testbed_uevent(testbed, sysPath.c_str(), action);
}

/// While it lives, nobody listens. The test bed itself tells of a device that is added, before that one
/// answers, and ends this process over a listener that is full.
class Unheard {
  public:
    explicit Unheard(UMockdevTestbed* testbed) : m_root(rootFolder(testbed)) { rename("event", "unheard"); }
    ~Unheard() { rename("unheard", "event"); }
    Unheard(const Unheard&) = delete;
    Unheard& operator=(const Unheard&) = delete;

  private:
    void rename(const std::string& from, const std::string& to) const {
        std::error_code error;
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_root, error))
            names.push_back(entry.path().filename().string());
        for (const std::string& name : names) {
            if (!name.starts_with(from)) continue;
            std::filesystem::rename(m_root / name, m_root / (to + name.substr(from.size())), error);
        }
    }

    std::filesystem::path m_root;
};

/// A request whose answer takes its time. Ends with an error when the device is unplugged first.
class DelayedAnswer {
  public:
    DelayedAnswer(UMockdevIoctlClient* client, Milliseconds delay, std::function<void()> finish)
        : m_client(static_cast<UMockdevIoctlClient*>(g_object_ref(client))) {
        m_timer = GlibSource::every(delay, [this, finish = std::move(finish)] {
            m_done = true;
            finish();
            return false;
        });
    }
    ~DelayedAnswer() {
        if (!m_done) umockdev_ioctl_client_complete(m_client.get(), -1, ENODEV);
    }
    DelayedAnswer(const DelayedAnswer&) = delete;
    DelayedAnswer& operator=(const DelayedAnswer&) = delete;

    bool done() const { return m_done; }

  private:
    GObjectPtr<UMockdevIoctlClient> m_client;
    GlibSource m_timer;
    bool m_done = false;
};

class MockPlug final : public BusPlug {
  public:
    MockPlug(UMockdevTestbed* testbed, PostedWork& queue, const BusInterface& interface,
             BusFunction& function, unsigned number)
        : m_testbed(testbed),
          m_interface(interface),
          m_function(function),
          m_place(interface, number),
          m_handler(umockdev_ioctl_base_new()) {
        const std::string text = deviceText(m_place, interface, number);
        {
            const Unheard unheard(testbed);
            if (!umockdev_testbed_add_from_string(testbed, text.c_str(), nullptr)) return;
        }
        m_terminal = FileDescriptor(umockdev_testbed_get_dev_fd(testbed, m_place.device.c_str()));
        // Inherited by the program, it would keep its own node alive after an unplug.
        ::fcntl(m_terminal.get(), F_SETFD, FD_CLOEXEC);
        m_peer = FileDescriptor(
            ::ioctl(m_terminal.get(), TIOCGPTPEER, O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
        const auto connect = [&](const char* signal, GCallback handler) {
            g_signal_connect_data(m_handler.get(), signal, handler, new Line{queue, m_self},
                                  [](void* line, GClosure*) { delete static_cast<Line*>(line); }, {});
        };
        connect("handle-ioctl", G_CALLBACK(onIoctl));
        connect("handle-read", G_CALLBACK(onRead));
        connect("client-connected", G_CALLBACK(onOpen));
        connect("client-vanished", G_CALLBACK(onClose));
        umockdev_testbed_attach_ioctl(testbed, m_place.device.c_str(), m_handler.get(), nullptr);
        announce(testbed, sysPath(m_place.node), "add");
    }

    ~MockPlug() override {
        *m_self = nullptr;
        if (!plugged()) return;
        m_answers.clear();
        m_terminal = {};
        m_peer = {};
        announce(m_testbed, sysPath(m_place.node), "remove");
        umockdev_testbed_detach_ioctl(m_testbed, m_place.device.c_str(), nullptr);
        umockdev_testbed_remove_device(m_testbed, sysPath(m_place.node).c_str());
        umockdev_testbed_remove_device(m_testbed, sysPath(m_place.hid).c_str());
        // The test bed leaves the node's name behind.
        ::unlink((rootFolder(m_testbed) + m_place.device).c_str());
    }

    MockPlug(const MockPlug&) = delete;
    MockPlug& operator=(const MockPlug&) = delete;

    bool plugged() const { return static_cast<bool>(m_terminal); }

    void sendInput(std::span<const std::uint8_t> report) override {
        // As in the kernel, a report that nobody waits for is lost, and so is one that finds the queue full.
        if (m_clients == 0 || m_reports.size() == queueLength) return;
        m_reports.emplace_back(report.begin(), report.end());
        if (::write(m_terminal.get(), &readable, sizeof readable) < 0) m_reports.pop_back();
    }

  private:
    /// A terminal keeps no borders between reports, so it carries none of them: one byte a report makes the
    /// node readable, and the reader is handed the report in its place.
    static constexpr std::uint8_t readable = 0;
    static constexpr std::size_t queueLength = 64;

    static std::string sysPath(const std::string& device) { return "/sys" + device; }

    /// What the test bed has of a plug. It calls from a thread of its own: what it asks is answered from the
    /// main loop, if the plug is still there by then.
    struct Line {
        PostedWork& queue;
        std::shared_ptr<MockPlug*> plug;

        void post(UMockdevIoctlClient* client, void (MockPlug::*handle)(UMockdevIoctlClient*),
                  bool awaitsAnswer) const {
            const std::shared_ptr<UMockdevIoctlClient> held(
                static_cast<UMockdevIoctlClient*>(g_object_ref(client)), Unref());
            queue.post([self = plug, held, handle, awaitsAnswer] {
                if (*self)
                    (*self->*handle)(held.get());
                else if (awaitsAnswer)
                    umockdev_ioctl_client_complete(held.get(), -1, ENODEV);
            });
        }
    };

    static gboolean onIoctl(UMockdevIoctlBase*, UMockdevIoctlClient* client, void* line) {
        static_cast<const Line*>(line)->post(client, &MockPlug::answerIoctl, true);
        return TRUE;
    }
    static gboolean onRead(UMockdevIoctlBase*, UMockdevIoctlClient* client, void* line) {
        static_cast<const Line*>(line)->post(client, &MockPlug::answerRead, true);
        return TRUE;
    }
    static void onOpen(UMockdevIoctlBase*, UMockdevIoctlClient* client, void* line) {
        static_cast<const Line*>(line)->post(client, &MockPlug::addClient, false);
    }
    static void onClose(UMockdevIoctlBase*, UMockdevIoctlClient* client, void* line) {
        static_cast<const Line*>(line)->post(client, &MockPlug::removeClient, false);
    }

    void answerRead(UMockdevIoctlClient* client) {
        takeMarks();
        if (m_reports.empty()) {
            umockdev_ioctl_client_complete(client, -1, EAGAIN);
            return;
        }
        UMockdevIoctlData* const buffer = umockdev_ioctl_client_get_arg(client);
        std::vector<std::uint8_t> report = std::move(m_reports.front());
        m_reports.pop_front();
        report.resize(std::min(report.size(), static_cast<std::size_t>(buffer->data_len)));
        umockdev_ioctl_data_update(buffer, 0, report.data(), static_cast<int>(report.size()));
        ++m_marksToTake;
        takeMarks();
        umockdev_ioctl_client_complete(client, static_cast<long>(report.size()), 0);
    }

    /// Takes back the bytes of reports that were read. The kernel may pass a byte on a little later than it
    /// was written.
    void takeMarks() {
        std::uint8_t mark = 0;
        while (m_marksToTake > 0 && ::read(m_peer.get(), &mark, sizeof mark) == sizeof mark)
            --m_marksToTake;
    }

    void addClient(UMockdevIoctlClient*) { ++m_clients; }

    void removeClient(UMockdevIoctlClient*) {
        if (--m_clients > 0) return;
        m_marksToTake += static_cast<int>(m_reports.size());
        m_reports.clear();
        takeMarks();
    }

    void answerIoctl(UMockdevIoctlClient* client) {
        if (!answer(client)) umockdev_ioctl_client_complete(client, -1, ENOTTY);
    }

    /// True when the request was one that a hidraw node knows.
    bool answer(UMockdevIoctlClient* client) {
        const unsigned long request = umockdev_ioctl_client_get_request(client);
        if (_IOC_TYPE(request) != 'H') return false;
        const std::shared_ptr<UMockdevIoctlData> data(
            umockdev_ioctl_data_resolve(umockdev_ioctl_client_get_arg(client), 0, _IOC_SIZE(request),
                                        nullptr),
            [](UMockdevIoctlData* resolved) { g_clear_object(&resolved); });
        if (!data) return false;
        switch (_IOC_NR(request)) {
            case _IOC_NR(HIDIOCGRDESCSIZE):
                return describeSize(client, *data);
            case _IOC_NR(HIDIOCGRDESC):
                return describe(client, *data);
            case _IOC_NR(HIDIOCGRAWINFO):
                return identify(client, *data);
            case _IOC_NR(HIDIOCSFEATURE(0)):
                return setFeature(client, *data);
            case _IOC_NR(HIDIOCGFEATURE(0)):
                return getFeature(client, data);
            default:
                return false;
        }
    }

    template <class T>
    static bool put(UMockdevIoctlClient* client, UMockdevIoctlData& data, T value) {
        std::array<std::uint8_t, sizeof(T)> bytes{};
        std::memcpy(bytes.data(), &value, sizeof value);
        umockdev_ioctl_data_update(&data, 0, bytes.data(), bytes.size());
        umockdev_ioctl_client_complete(client, 0, 0);
        return true;
    }

    bool describeSize(UMockdevIoctlClient* client, UMockdevIoctlData& data) {
        return put(client, data, static_cast<int>(m_interface.descriptor.size()));
    }

    bool describe(UMockdevIoctlClient* client, UMockdevIoctlData& data) {
        hidraw_report_descriptor descriptor{};
        descriptor.size = static_cast<unsigned>(m_interface.descriptor.size());
        std::copy(m_interface.descriptor.begin(), m_interface.descriptor.end(), descriptor.value);
        return put(client, data, descriptor);
    }

    bool identify(UMockdevIoctlClient* client, UMockdevIoctlData& data) {
        return put(client, data,
                   hidraw_devinfo{BUS_USB, static_cast<short>(m_interface.vendor),
                                  static_cast<short>(m_interface.product)});
    }

    bool setFeature(UMockdevIoctlClient* client, UMockdevIoctlData& data) {
        const std::span report(data.data, static_cast<std::size_t>(data.data_len));
        const FeatureAnswer said = m_function.setFeature(report);
        finish(client, said, [client, length = report.size()] {
            umockdev_ioctl_client_complete(client, static_cast<long>(length), 0);
        });
        return true;
    }

    bool getFeature(UMockdevIoctlClient* client, const std::shared_ptr<UMockdevIoctlData>& data) {
        const auto room = static_cast<std::size_t>(data->data_len);
        const FeatureAnswer said = m_function.getFeature(data->data[0], room);
        std::vector<std::uint8_t> report = said.report;
        report.resize(std::min(report.size(), room));
        finish(client, said, [client, data, report = std::move(report)]() mutable {
            umockdev_ioctl_data_update(data.get(), 0, report.data(), static_cast<int>(report.size()));
            umockdev_ioctl_client_complete(client, static_cast<long>(report.size()), 0);
        });
        return true;
    }

    void finish(UMockdevIoctlClient* client, const FeatureAnswer& said, std::function<void()> accept) {
        // A stalled control transfer is what a device refuses with.
        auto complete = said.accepted ? std::move(accept)
                                      : [client] { umockdev_ioctl_client_complete(client, -1, EPIPE); };
        if (said.delay == Milliseconds(0)) return complete();
        std::erase_if(m_answers, [](const auto& each) { return each->done(); });
        m_answers.push_back(std::make_unique<DelayedAnswer>(client, said.delay, std::move(complete)));
    }

    UMockdevTestbed* m_testbed;
    BusInterface m_interface;
    BusFunction& m_function;
    NodePlace m_place;
    std::shared_ptr<MockPlug*> m_self = std::make_shared<MockPlug*>(this); ///< none once it is gone
    GObjectPtr<UMockdevIoctlBase> m_handler;
    FileDescriptor m_terminal; ///< behind the node; closing it hangs up the node's readers
    FileDescriptor m_peer;     ///< the readers' end
    int m_clients = 0;
    std::deque<std::vector<std::uint8_t>> m_reports;
    int m_marksToTake = 0;
    std::vector<std::unique_ptr<DelayedAnswer>> m_answers;
};

class MockBus final : public Bus {
  public:
    MockBus()
        : m_queueWatch(GlibSource::readable(m_queue.descriptor(),
                                            [this] {
                                                for (const auto& work : m_queue.take())
                                                    work();
                                                return true;
                                            })),
          m_testbed(umockdev_testbed_new()) {}

    std::unique_ptr<BusPlug> plug(const BusInterface& interface, BusFunction& function) override {
        // A number that was used is not used again: the test bed cannot make the same node twice.
        auto plug = std::make_unique<MockPlug>(m_testbed.get(), m_queue, interface, function, m_nextNode++);
        if (!plug->plugged()) return nullptr;
        return plug;
    }

  private:
    PostedWork m_queue; ///< from the test bed's thread, which it outlives
    GlibSource m_queueWatch;
    GObjectPtr<UMockdevTestbed> m_testbed;
    unsigned m_nextNode = 0;
};

} // namespace

void preloadMockSystem(char** argv) {
    const std::string library = "libumockdev-preload.so.0";
    const auto variable = [](const char* name) {
        const char* const value = std::getenv(name);
        return std::string(value == nullptr ? "" : value);
    };
    const std::string present = variable("LD_PRELOAD");
    if (present.find(library) != std::string::npos) return;
    ::setenv("LD_PRELOAD", (present.empty() ? library : library + ":" + present).c_str(), 1);
    // A program with the address sanitizer in it would object to a library before the sanitizer's own.
    ::setenv("ASAN_OPTIONS", (variable("ASAN_OPTIONS") + ":verify_asan_link_order=0").c_str(), 1);
    ::execv("/proc/self/exe", argv);
    std::perror("/proc/self/exe");
    std::exit(EXIT_FAILURE);
}

std::unique_ptr<Bus> makeMockBus() {
    return std::make_unique<MockBus>();
}

} // namespace tarnix
