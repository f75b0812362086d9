#include "platform/hid.h"

#include <fcntl.h>
#include <hidapi/hidapi.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <tuple>
#include <utility>

#include "platform/linux/file_descriptor.h"
#include "platform/linux/hid_device.h"
#include "platform/linux/hid_path.h"
#include "platform/linux/hotplug.h"
#include "platform/linux/report_descriptor.h"

namespace tarnix {
namespace {

/// What the kernel hands out at most (HID_MAX_DESCRIPTOR_SIZE).
constexpr std::size_t maxDescriptorSize = 4096;

std::string nodeName(const std::string& node) {
    return node.substr(node.rfind('/') + 1);
}

std::string sysfsFolder(const std::string& node) {
    return "/sys/class/hidraw/" + nodeName(node);
}

ReportDescriptor readDescriptor(const std::string& node) {
    const std::string path = sysfsFolder(node) + "/device/report_descriptor";
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    std::array<std::uint8_t, maxDescriptorSize> bytes{};
    std::size_t length = 0;
    while (file && length < bytes.size()) {
        const ssize_t got = ::read(file.get(), bytes.data() + length, bytes.size() - length);
        if (got <= 0) break;
        length += static_cast<std::size_t>(got);
    }
    return parseReportDescriptor(std::span(bytes).first(length));
}

/// The nodes and where each is on the bus: a look at a folder, where an enumeration takes milliseconds.
using NodeLinks = std::set<std::pair<std::string, std::string>>;

NodeLinks nodeLinks() {
    NodeLinks links;
    std::error_code error;
    for (std::filesystem::directory_iterator entry("/sys/class/hidraw", error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code noLink;
        links.emplace(entry->path().filename(), std::filesystem::read_symlink(entry->path(), noLink));
    }
    return links;
}

/// The system's nodes, each once, by their place on the bus and then by their number.
std::vector<HidInterface> enumerateNodes() {
    using Place = std::tuple<std::string, std::size_t, std::string>;
    std::vector<std::pair<Place, HidInterface>> nodes;
    hid_device_info* const list = hid_enumerate(0, 0);
    for (const hid_device_info* info = list; info != nullptr; info = info->next) {
        HidInterface node;
        node.path = info->path;
        node.vendor = info->vendor_id;
        node.product = info->product_id;
        std::error_code error;
        const auto device = std::filesystem::canonical(sysfsFolder(node.path) + "/device", error);
        // The HID device's own folder is numbered anew at every plugging; its parent is the place on the bus.
        const std::string name = nodeName(node.path);
        nodes.emplace_back(Place{device.parent_path().string(), name.size(), name}, std::move(node));
    }
    hid_free_enumeration(list);
    std::sort(nodes.begin(), nodes.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    nodes.erase(std::unique(nodes.begin(), nodes.end(),
                            [](const auto& a, const auto& b) { return a.second.path == b.second.path; }),
                nodes.end());
    std::vector<HidInterface> result;
    result.reserve(nodes.size());
    for (auto& [place, node] : nodes)
        result.push_back(std::move(node));
    return result;
}

/// A node with several outermost collections stands for as many interfaces.
void addInterfaces(const HidInterface& node, std::vector<HidInterface>& interfaces) {
    const ReportDescriptor descriptor = readDescriptor(node.path);
    interfaces.push_back(node);
    for (std::size_t i = 0; i < descriptor.collections.size(); ++i) {
        if (i > 0) interfaces.push_back(node);
        HidInterface& interface = interfaces.back();
        interface.usagePage = descriptor.collections[i].usagePage;
        interface.inputReportLength = descriptor.collections[i].inputReportLength;
        if (descriptor.collections.size() > 1) interface.path += collectionMark + std::to_string(i);
    }
}

class LinuxHid final : public Hid {
  public:
    explicit LinuxHid(MainLoop& loop) : m_loop(loop) { hid_init(); }
    ~LinuxHid() override { hid_exit(); }

    /// A search asks several times in a row; what is there is looked at closely when it has changed.
    std::vector<HidInterface> enumerate() override {
        const NodeLinks links = nodeLinks();
        if (links.empty() || links != m_links) {
            m_interfaces.clear();
            for (const HidInterface& node : enumerateNodes())
                addInterfaces(node, m_interfaces);
            m_links = links;
        }
        return m_interfaces;
    }

    std::unique_ptr<HidDevice> open(const std::string& path) override {
        const std::size_t mark = path.find(collectionMark);
        const std::string node = nodeOfHidPath(path);
        const ReportDescriptor descriptor = readDescriptor(node);
        HidInput input{descriptor.usesReportIds, std::bitset<256>().set()};
        if (mark != std::string::npos && descriptor.usesReportIds) {
            const auto index = static_cast<std::size_t>(std::atoi(path.c_str() + mark + 1));
            if (index >= descriptor.collections.size()) return nullptr;
            input.reports = descriptor.collections[index].inputReports;
        }
        return openHidDevice(node, input);
    }

    void onChange(std::function<void(HidChange)> callback) override {
        m_monitor.reset();
        if (callback) m_monitor = std::make_unique<HotplugMonitor>(m_loop, std::move(callback));
    }

  private:
    MainLoop& m_loop;
    NodeLinks m_links; ///< at the last close look
    std::vector<HidInterface> m_interfaces;
    std::unique_ptr<HotplugMonitor> m_monitor;
};

} // namespace

std::unique_ptr<Hid> makeSystemHid(MainLoop& loop) {
    return std::make_unique<LinuxHid>(loop);
}

} // namespace tarnix
