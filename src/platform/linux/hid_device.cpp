#include "platform/linux/hid_device.h"

#include <fcntl.h>
#include <hidapi/hidapi.h>
#include <poll.h>
#include <sys/eventfd.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "platform/linux/file_descriptor.h"

namespace tarnix {
namespace {

struct CloseHid {
    void operator()(hid_device* device) const { hid_close(device); }
};
using HidHandle = std::unique_ptr<hid_device, CloseHid>;

/// Feature reports go through hidapi. Input is read from a descriptor of our own, for hidapi's wait cannot be
/// interrupted.
class LinuxHidDevice final : public HidDevice {
  public:
    LinuxHidDevice(HidHandle features, FileDescriptor node, FileDescriptor stopEvent, const HidInput& input)
        : m_features(std::move(features)),
          m_node(std::move(node)),
          m_stop(std::move(stopEvent)),
          m_input(input),
          m_report(maxReportLength + 1) {}

    bool setFeature(std::span<const std::uint8_t> report) override {
        return !report.empty() &&
               hid_send_feature_report(m_features.get(), report.data(), report.size()) >= 0;
    }

    bool getFeature(std::span<std::uint8_t> report) override {
        if (report.empty()) return false;
        std::vector<std::uint8_t> answer(report.begin(), report.end());
        const int length = hid_get_feature_report(m_features.get(), answer.data(), answer.size());
        if (length < 0 || static_cast<std::size_t>(length) < report.size()) return false;
        std::copy(answer.begin(), answer.end(), report.begin());
        return true;
    }

    ReadResult read(std::span<std::uint8_t> report) override {
        while (true) {
            std::array<pollfd, 2> waits{{{m_stop.get(), POLLIN, 0}, {m_node.get(), POLLIN, 0}}};
            if (::poll(waits.data(), waits.size(), -1) < 0) {
                if (errno == EINTR) continue;
                return ReadResult::Failed;
            }
            if (waits[0].revents != 0) return ReadResult::Stopped;
            // Reports that came before an unplug are still readable, so the error counts only without input.
            if ((waits[1].revents & POLLIN) == 0) return ReadResult::Failed;
            const std::size_t idBytes = m_input.usesReportIds ? 0 : 1;
            const ssize_t got = ::read(m_node.get(), m_report.data() + idBytes, maxReportLength);
            if (got < 0 && (errno == EINTR || errno == EAGAIN)) continue;
            if (got <= 0) return ReadResult::Failed;
            if (!m_input.reports.test(m_report[0])) continue;
            const std::size_t length = static_cast<std::size_t>(got) + idBytes;
            std::copy_n(m_report.begin(), std::min(length, report.size()), report.begin());
            return ReadResult::Report;
        }
    }

    void stop() override {
        const std::uint64_t one = 1;
        // The counter is never read back, so every later read sees it too; it cannot overflow in a lifetime.
        while (::write(m_stop.get(), &one, sizeof one) < 0 && errno == EINTR) {
        }
    }

  private:
    HidHandle m_features;
    FileDescriptor m_node;
    FileDescriptor m_stop;
    HidInput m_input;
    std::vector<std::uint8_t> m_report; ///< byte 0 stays 0 for a device without report ids
};

} // namespace

std::unique_ptr<HidDevice> openHidDevice(const std::string& node, const HidInput& input) {
    HidHandle features(hid_open_path(node.c_str()));
    if (!features) return nullptr;
    FileDescriptor reader(::open(node.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    FileDescriptor stopEvent(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!reader || !stopEvent) return nullptr;
    return std::make_unique<LinuxHidDevice>(std::move(features), std::move(reader), std::move(stopEvent),
                                            input);
}

} // namespace tarnix
