#include <gmock/gmock.h>

#include "support/device_bench.h"

namespace tarnix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DeviceEventsTest : public testing::Test {
  protected:
    DeviceEventsTest() { bench.startQuietly(); }
    DeviceBench bench;
    std::array<ProfileRecord, profileCount>& records = bench.store.ProfileTable;
};

TEST_F(DeviceEventsTest, SwitchesAndLocksAreToldAndNothingIsSaved) {
    using Case = std::tuple<std::uint8_t, std::uint8_t, Words>;
    for (const auto& [code, value, told] :
         {Case{5, 2, {"show 1", "event 2"}}, Case{5, 4, {"show 3"}}, Case{5, 0, {"show -1"}},
          Case{5, 255, {"show 254"}}, Case{3, 0, {"event 4"}}, Case{3, 255, {"event 5"}},
          Case{9, 0, {"event 6"}}, Case{9, 2, {"event 7"}}, Case{0, 1, {}}, Case{8, 1, {}}, Case{0x0B, 1, {}},
          Case{0xFF, 1, {}}})
        EXPECT_EQ(bench.event(code, value), told) << int{code} << ' ' << int{value};
    EXPECT_THAT(bench.files.log, IsEmpty());
    EXPECT_THAT(bench.requests(), IsEmpty());
}

TEST_F(DeviceEventsTest, LightingChangesAreKeptAsTheyCameInTheActiveProfile) {
    bench.event(0x05, 3);
    EXPECT_EQ(bench.event(0x06, 200), Words{"show 2"});
    EXPECT_EQ(bench.event(0x07, 0), Words{"show 2"});
    EXPECT_EQ(bench.event(0x02, 3), Words{"show 2"});
    const auto value = [this](int setting) { return records[2].Settings[setting].Value; };
    EXPECT_THAT((Words{value(1), value(2), value(3)}), ElementsAre("200", "0", "3"));
    bench.keyboard.profiles[2].lighting[0] = 0x25;
    EXPECT_THAT(bench.event(0x0A, 9), IsEmpty());
    EXPECT_EQ(bench.requests(), (Words{"04 2.0", "07?"}));
    EXPECT_EQ(value(1), "5");
    EXPECT_FALSE(bench.link->pending().isMarked(PendingWrites::lightingRow, 2));
    EXPECT_THAT(bench.files.log, IsEmpty());
    EXPECT_EQ(bench.event(0x01, 4), (Words{"macros", "show 2"}));
}

} // namespace
} // namespace tarnix
