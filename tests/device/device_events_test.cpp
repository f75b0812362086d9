#include <gmock/gmock.h>

#include "device_bench.h"

namespace tarnix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Bytes = std::vector<std::uint8_t>;

class DeviceEventsTest : public testing::Test {
  protected:
    DeviceEventsTest() { bench.startQuietly(); }
    DeviceBench bench;
    std::array<ProfileRecord, profileCount>& records = bench.store.ProfileTable;
};

TEST_F(DeviceEventsTest, SwitchesAndLocksAreToldAndNothingIsSaved) {
    EXPECT_EQ(bench.event(0x05, 2), (Words{"show 1", "event 2"}));
    EXPECT_EQ(bench.event(0x05, 4), Words{"show 3"});
    EXPECT_EQ(bench.protocol().deviceProfile(), 3);
    EXPECT_EQ(bench.event(0x05, 0), Words{"show -1"});
    EXPECT_EQ(bench.protocol().deviceProfile(), -1);
    EXPECT_EQ(bench.event(0x05, 255), Words{"show 254"});
    EXPECT_EQ(bench.event(0x03, 0), Words{"event 4"});
    EXPECT_EQ(bench.event(0x03, 255), Words{"event 5"});
    EXPECT_EQ(bench.event(0x09, 0), Words{"event 6"});
    EXPECT_EQ(bench.event(0x09, 2), Words{"event 7"});
    for (const std::uint8_t code : Bytes{0x00, 0x08, 0x0B, 0xFF})
        EXPECT_THAT(bench.event(code, 1), IsEmpty());
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
}

TEST_F(DeviceEventsTest, LaunchTakesTheActiveProfilesAddressWhereThereIsOne) {
    bench.store.SetGKeyUrl(0, 0, "/usr/bin/true");
    bench.store.SetGKeyUrl(1, 5, "https://example.org/");
    EXPECT_EQ(bench.event(0x04, 1), Words{"launch /usr/bin/true"});
    for (const std::uint8_t value : Bytes{0, 2, 7, 255})
        EXPECT_THAT(bench.event(0x04, value), IsEmpty());
    bench.event(0x05, 2);
    EXPECT_EQ(bench.event(0x04, 6), Words{"launch https://example.org/"});
}

TEST_F(DeviceEventsTest, WithoutOneOfTheFiveProfilesActiveTheEventsThatNeedItDoNothing) {
    bench.store.SetGKeyUrl(0, 0, "/usr/bin/true");
    const auto before = records;
    for (const std::uint8_t active : Bytes{0, 6}) {
        bench.event(0x05, active);
        for (const std::uint8_t code : Bytes{1, 2, 4, 6, 7, 10})
            EXPECT_THAT(bench.event(code, 1), IsEmpty());
    }
    EXPECT_EQ(records, before);
    EXPECT_THAT(bench.requests(), IsEmpty());
}

TEST_F(DeviceEventsTest, ARecordedMacroIsNamedStoredSentBackAndSaved) {
    bench.keyboard.recordMacro(2, Bytes{0x04, 0x00, 0x04, 0x8F}, 3);
    EXPECT_EQ(bench.settle(), (Words{"macros", "show 0"}));
    EXPECT_EQ(bench.requests(), (Words{"04 0.1", "08?", "08 0.1"}));
    EXPECT_THAT(bench.pauses(), ElementsAre(8, 8, 350));
    EXPECT_EQ(records[0].GKeys[1], (GKeySlot{"Profile1_G2", "", {1, 0, 0}}));
    KeyboardMacro& held = bench.keyboard.profiles[0].macros[1];
    EXPECT_EQ(held, (KeyboardMacro{"Profile1_G2", 3, 2, {0x04, 0x00, 0x04, 0x8F}}));
    EXPECT_THAT(bench.files.log, ElementsAre("replace p0", testing::HasSubstr("MacroLibraryFile.mlf")));

    held.name = "Combo";
    held.loopCount = 0;
    bench.event(0x01, 2);
    EXPECT_EQ(bench.requests().back(), "08 0.1") << "a named macro goes back too";
    EXPECT_EQ(bench.macros.sets[0].keys.at(1).loopEnable, 0u);
}

TEST_F(DeviceEventsTest, AnUploadIsAbandonedWithoutAnswerSlotHandleOrSet) {
    const auto before = records;
    for (std::size_t failing = 0; failing < 3; ++failing) {
        bench.keyboard.recordMacro(1, Bytes{0x04, 0x00});
        bench.keyboard.failRequest(failing);
        const bool abandoned = failing == 1;
        EXPECT_EQ(bench.settle().empty(), abandoned) << failing;
        EXPECT_EQ(records == before, abandoned);
        EXPECT_EQ(std::exchange(bench.files.log, {}).empty(), abandoned);
        EXPECT_EQ(bench.totalPause(), abandoned ? 16 : 366);
        records = before;
    }
    bench.requests();
    for (const std::uint8_t value : Bytes{0, 7, 255})
        EXPECT_THAT(bench.event(0x01, value), IsEmpty());
    bench.protocol().setHandle(nullptr);
    EXPECT_THAT(bench.event(0x01, 1), IsEmpty());
    EXPECT_THAT(bench.requests(), IsEmpty());
    EXPECT_EQ(records, before);

    bench.link->FindDevice();
    ClearMacroLibrary(bench.macros);
    bench.keyboard.recordMacro(1, Bytes{0x04, 0x00});
    EXPECT_THAT(bench.settle(), IsEmpty());
    EXPECT_EQ(bench.requests(), (Words{"04 0.0", "08?"}));
    EXPECT_EQ(records[0].GKeys[0], (GKeySlot{"Profile1_G1", "", before[0].GKeys[0].Value}));
    EXPECT_THAT(bench.files.log, IsEmpty());
}

} // namespace
} // namespace tarnix
