#include "platform/linux/hotplug.h"

#include <gmock/gmock.h>

namespace tarnix {
namespace {

using testing::ElementsAre;

/// A loop whose timers ring when the test says so.
class Timers final : public MainLoop {
  public:
    std::unique_ptr<Subscription> watch(int, std::function<void()>) override { return {}; }
    std::unique_ptr<Subscription> after(Milliseconds time, std::function<void()> callback) override {
        times.push_back(static_cast<int>(time.count()));
        return std::make_unique<Timer>(*this, std::move(callback));
    }
    void post(std::function<void()>) override {}

    /// How many were set.
    std::size_t ring() {
        const auto ringing = std::exchange(m_set, {});
        for (Timer* timer : ringing)
            std::function(timer->callback)();
        return ringing.size();
    }

    std::vector<int> times;

  private:
    struct Timer : Subscription {
        Timer(Timers& all, std::function<void()> work) : timers(all), callback(std::move(work)) {
            timers.m_set.push_back(this);
        }
        ~Timer() override { std::erase(timers.m_set, this); }
        Timers& timers;
        std::function<void()> callback;
    };

    std::vector<Timer*> m_set;
};

TEST(HotplugBurst, IsToldAfterAQuarterOfASecondsQuietRemovalFirstAndOneAtATime) {
    Timers loop;
    std::vector<HidChange> told;
    HotplugBurst burst(loop, [&](HidChange change) {
        told.push_back(change);
        if (told.size() > 1) return;
        burst.add(HidChange::Arrival); // while a notice is open
        EXPECT_EQ(loop.ring(), 1u);
        EXPECT_EQ(told.size(), 1u);
    });
    for (const HidChange change : {HidChange::Arrival, HidChange::Removal, HidChange::Arrival})
        burst.add(change);
    EXPECT_EQ(loop.ring(), 1u);
    EXPECT_EQ(loop.ring(), 1u);
    EXPECT_THAT(told, ElementsAre(HidChange::Removal, HidChange::Arrival, HidChange::Arrival));
    EXPECT_THAT(loop.times, testing::AllOf(testing::SizeIs(5), testing::Each(250)));
    EXPECT_EQ(loop.ring(), 0u);
}

} // namespace
} // namespace tarnix
