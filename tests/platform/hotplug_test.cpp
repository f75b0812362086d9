#include "platform/linux/hotplug.h"

#include <gmock/gmock.h>

#include "support/queue_loop.h"

namespace tarnix {
namespace {

using testing::ElementsAre;

TEST(HotplugBurst, IsToldAfterAQuarterOfASecondsQuietRemovalFirstAndOneAtATime) {
    QueueLoop loop;
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
