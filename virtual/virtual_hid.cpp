#include "virtual/virtual_hid.h"

#include <algorithm>
#include <utility>

namespace tarnix {

/// What an open device waits on: event reports, a stop, the end of its keyboard.
class VirtualHid::Node {
  public:
    explicit Node(bool hearsEvents) : m_hearsEvents(hearsEvents) {}

    void push(std::span<const std::uint8_t> report) {
        const std::lock_guard lock(m_mutex);
        if (!m_hearsEvents || m_dead) return;
        m_reports.emplace_back(report.begin(), report.end());
        m_changed.notify_all();
    }

    void stop() {
        const std::lock_guard lock(m_mutex);
        m_stopped = true;
        m_changed.notify_all();
    }

    void die() {
        const std::lock_guard lock(m_mutex);
        m_dead = true;
        m_changed.notify_all();
    }

    bool isDead() const {
        const std::lock_guard lock(m_mutex);
        return m_dead;
    }

    /// The interface has no report ids, so a 0 goes in front.
    HidDevice::ReadResult read(std::span<std::uint8_t> report) {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_stopped || m_dead || !m_reports.empty(); });
        if (m_stopped) return HidDevice::ReadResult::Stopped;
        if (m_reports.empty()) return HidDevice::ReadResult::Failed;
        const std::vector<std::uint8_t> next = std::move(m_reports.front());
        m_reports.pop_front();
        if (report.empty()) return HidDevice::ReadResult::Report;
        report[0] = 0;
        std::copy_n(next.begin(), std::min(next.size(), report.size() - 1), report.begin() + 1);
        return HidDevice::ReadResult::Report;
    }

  private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::vector<std::uint8_t>> m_reports;
    const bool m_hearsEvents;
    bool m_stopped = false;
    bool m_dead = false;
};

class VirtualHid::Device final : public HidDevice {
  public:
    /// Without a keyboard, a device that takes no feature reports.
    Device(std::shared_ptr<Node> node, VirtualKeyboard* keyboard)
        : m_node(std::move(node)), m_keyboard(keyboard) {}

    bool setFeature(std::span<const std::uint8_t> report) override {
        return reachesKeyboard() && m_keyboard->setFeature(report);
    }
    bool getFeature(std::span<std::uint8_t> report) override {
        return reachesKeyboard() && m_keyboard->getFeature(report);
    }
    ReadResult read(std::span<std::uint8_t> report) override { return m_node->read(report); }
    void stop() override { m_node->stop(); }

  private:
    /// While the keyboard is away it refuses by itself, and notes it; what comes back has nodes of its own.
    bool reachesKeyboard() const {
        return m_keyboard != nullptr && !(m_node->isDead() && m_keyboard->isPluggedIn());
    }

    std::shared_ptr<Node> m_node;
    VirtualKeyboard* m_keyboard;
};

VirtualHid::VirtualHid(VirtualKeyboard& keyboard) : m_keyboard(keyboard) {
    m_keyboard.onEvent = [this](std::span<const std::uint8_t> report) { deliver(report); };
}

VirtualHid::~VirtualHid() {
    m_keyboard.onEvent = nullptr;
}

std::string VirtualHid::pathOf(std::size_t interface) {
    return "keyboard/" + std::to_string(interface);
}

HidInterface VirtualHid::mouse(const std::string& path) {
    return {path, 0x046D, 0xC077, 0x0001, 5};
}

std::vector<HidInterface> VirtualHid::enumerate() {
    std::vector<HidInterface> all = before;
    const auto& interfaces = VirtualKeyboard::interfaces();
    for (std::size_t i = 0; i < interfaces.size() && m_keyboard.isPluggedIn(); ++i) {
        if (missing.count(i) != 0) continue;
        all.push_back({pathOf(i), VirtualKeyboard::vendor, VirtualKeyboard::product, interfaces[i].usagePage,
                       interfaces[i].inputReportLength});
    }
    all.insert(all.end(), after.begin(), after.end());
    return all;
}

std::unique_ptr<HidDevice> VirtualHid::open(const std::string& path) {
    const std::vector<HidInterface> all = enumerate();
    const bool present =
        std::any_of(all.begin(), all.end(), [&](const HidInterface& each) { return each.path == path; });
    if (!present || locked.count(path) != 0) return nullptr;
    const bool features = path == pathOf(VirtualKeyboard::featureInterface);
    const auto node = std::make_shared<Node>(path == pathOf(VirtualKeyboard::eventInterface));
    std::erase_if(m_nodes, [](const auto& each) { return each.expired(); });
    m_nodes.push_back(node);
    return std::make_unique<Device>(node, features ? &m_keyboard : nullptr);
}

void VirtualHid::deliver(std::span<const std::uint8_t> report) {
    for (const auto& each : m_nodes) {
        if (const auto node = each.lock()) node->push(report);
    }
}

void VirtualHid::unplug() {
    m_keyboard.setPluggedIn(false);
    for (const auto& each : m_nodes) {
        if (const auto node = each.lock()) node->die();
    }
}

void VirtualHid::plugIn() {
    m_keyboard.setPluggedIn(true);
}

int VirtualHid::openDevices() const {
    return static_cast<int>(
        std::count_if(m_nodes.begin(), m_nodes.end(), [](const auto& each) { return !each.expired(); }));
}

} // namespace tarnix
