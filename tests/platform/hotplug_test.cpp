#include "platform/linux/hotplug.h"

#include <gmock/gmock.h>

#include "support/queue_loop.h"

namespace tarnix {
namespace {

using testing::ElementsAre;

/// A loop with one timer at a time, which rings when the test says so.
class OneTimer final : public QueueLoop {
  public:
    std::unique_ptr<Subscription> after(Milliseconds time, std::function<void()> callback) override {
        times.push_back(static_cast<int>(time.count()));
        m_callback = std::move(callback);
        return std::make_unique<Subscription>();
    }

    /// False when none is set.
    bool ring() {
        const auto callback = std::exchange(m_callback, nullptr);
        if (callback) callback();
        return callback != nullptr;
    }

    std::vector<int> times;

  private:
    std::function<void()> m_callback;
};

TEST(HotplugBurst, IsToldAfterAQuarterOfASecondsQuietRemovalFirstAndOneAtATime) {
    OneTimer loop;
    std::vector<HidChange> told;
    HotplugBurst burst(loop, [&](HidChange change) {
        told.push_back(change);
        if (told.size() > 1) return;
        burst.add(HidChange::Arrival); // while a notice is open
        EXPECT_TRUE(loop.ring());
        EXPECT_EQ(told.size(), 1u);
    });
    for (const HidChange change : {HidChange::Arrival, HidChange::Removal, HidChange::Arrival})
        burst.add(change);
    EXPECT_TRUE(loop.ring());
    EXPECT_TRUE(loop.ring());
    EXPECT_THAT(told, ElementsAre(HidChange::Removal, HidChange::Arrival, HidChange::Arrival));
    EXPECT_THAT(loop.times, testing::AllOf(testing::SizeIs(5), testing::Each(250)));
    EXPECT_FALSE(loop.ring());
}

} // namespace
} // namespace tarnix
