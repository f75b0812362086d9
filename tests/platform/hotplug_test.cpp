#include "platform/linux/hotplug.h"

#include <gmock/gmock.h>

#include "hand_loop.h"

namespace tarnix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Milliseconds quiet{250};

TEST(HotplugBurst, TellsOneRemovalAndOneArrivalOnceItHasBeenQuiet) {
    HandLoop loop;
    std::vector<HidChange> told;
    HotplugBurst burst(loop, [&](HidChange change) { told.push_back(change); });

    for (int node = 0; node < 3; ++node) {
        burst.add(HidChange::Arrival);
        burst.add(HidChange::Removal);
        loop.advance(quiet - Milliseconds(1));
    }
    EXPECT_THAT(told, IsEmpty());
    loop.advance(Milliseconds(1));
    EXPECT_THAT(told, ElementsAre(HidChange::Removal, HidChange::Arrival));
    loop.advance(quiet * 4);
    EXPECT_EQ(told.size(), 2u);

    burst.add(HidChange::Arrival);
    loop.advance(quiet);
    EXPECT_THAT(told, ElementsAre(HidChange::Removal, HidChange::Arrival, HidChange::Arrival));
}

TEST(HotplugBurst, HoldsWhatComesDuringACallbackUntilItsEnd) {
    HandLoop loop;
    std::vector<std::string> told;
    HotplugBurst* ours = nullptr;
    HotplugBurst burst(loop, [&](HidChange change) {
        told.push_back(change == HidChange::Removal ? "removal" : "arrival");
        if (told.size() > 1) return;
        // As a notice does, which runs a loop of its own until the user closes it.
        ours->add(HidChange::Arrival);
        loop.advance(quiet * 2);
        told.push_back("closed");
    });
    ours = &burst;
    burst.add(HidChange::Removal);
    loop.advance(quiet);
    loop.advance(quiet);
    EXPECT_THAT(told, ElementsAre("removal", "closed", "arrival"));
}

} // namespace
} // namespace tarnix
