#include "ctl/transfer.h"

#include <utility>

#include "ctl/output.h"
#include "device/feature_reports.h"

namespace tarnix {

namespace {

/// Passes reports on and remembers a failure, which the protocol absorbs in places.
class WatchedDevice final : public HidDevice {
  public:
    WatchedDevice(std::unique_ptr<HidDevice> device, Transfer::Access access, std::shared_ptr<bool> failed)
        : m_device(std::move(device)), m_access(access), m_failed(std::move(failed)) {}

    bool setFeature(std::span<const std::uint8_t> report) override {
        // Reading gives names to macros that have none; the keyboard shall not learn them from a mere look.
        if (m_access == Transfer::Access::ReadOnly && report[0] != selectReport::id) return false;
        return note(m_device->setFeature(report));
    }
    bool getFeature(std::span<std::uint8_t> report) override { return note(m_device->getFeature(report)); }
    ReadResult read(std::span<std::uint8_t> report) override { return m_device->read(report); }
    void stop() override { m_device->stop(); }

  private:
    bool note(bool done) {
        *m_failed |= !done;
        return done;
    }

    std::unique_ptr<HidDevice> m_device;
    Transfer::Access m_access;
    std::shared_ptr<bool> m_failed;
};

} // namespace

Transfer::Transfer(std::unique_ptr<HidDevice> device, Clock& clock, Access access)
    : m_failed(std::make_shared<bool>(false)), m_protocol(clock, store, macros) {
    m_protocol.setHandle(std::make_unique<WatchedDevice>(std::move(device), access, m_failed));
}

void Transfer::add(std::string name, std::function<void(FeatureProtocol&)> exchange) {
    m_steps.push_back({std::move(name), std::move(exchange)});
}

bool Transfer::run() {
    Progress progress(static_cast<int>(m_steps.size()));
    for (const Step& step : m_steps) {
        progress.step(step.name);
        step.exchange(m_protocol);
        if (!*m_failed) continue;
        progress.end();
        complain("the keyboard does not take part in: " + step.name);
        return false;
    }
    return true;
}

} // namespace tarnix
