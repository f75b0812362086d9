#include <gmock/gmock.h>

#include "support/device_bench.h"

namespace tarnix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string eventPath = VirtualHid::pathOf(VirtualKeyboard::eventInterface);
const std::string featurePath = VirtualHid::pathOf(VirtualKeyboard::featureInterface);

const Words plainRead{"05?",    "04 0.0", "07?",    "04 1.0", "07?",    "04 2.0", "07?",
                      "04 0.0", "06?",    "04 1.0", "06?",    "04 2.0", "06?"};

TEST(DeviceLink, FullReadTakesProfilesThenMacrosAndSavesTheLibrary) {
    DeviceBench plain;
    plain.start();
    EXPECT_EQ(plain.requests(), plainRead);
    EXPECT_EQ(plain.told(), Words{"show 0"});
    EXPECT_THAT(plain.files.log, IsEmpty());
    plain.link->ReadDeviceState();
    EXPECT_THAT(plain.requests(), IsEmpty()) << "once is enough until the keyboard has been away";

    DeviceBench used;
    used.keyboard.activeProfile = 2;
    used.keyboard.profiles[0].macros[5] = {"Named", 1, 1, {4, 0}};
    used.keyboard.profiles[2].macros[0] = {std::nullopt, 0, 1, {5, 0}};
    used.keyboard.profiles[0].gKeys[15] = used.keyboard.profiles[2].gKeys[0] = 0x01;
    used.start();
    Words expected = plainRead;
    expected.insert(expected.end(), {"04 0.5", "08?", "04 2.0", "08?", "08 2.0"});
    EXPECT_EQ(used.requests(), expected);
    EXPECT_EQ(used.told(), (Words{"macros", "show 2"}));
    EXPECT_EQ(used.files.log.size(), 1u);
    EXPECT_EQ(used.protocol().deviceProfile(), 2);
    EXPECT_EQ(used.store.GetGKeyName(0, 5) + used.store.GetGKeyName(2, 0), "NamedProfile3_G1");
    EXPECT_EQ(used.keyboard.profiles[2].macros[0].name, "Profile3_G1");
}

TEST(DeviceLink, AnImpossibleActiveProfileEndsTheFullReadUntilTheNextUnplugging) {
    DeviceBench bench;
    bench.keyboard.activeProfile = 0x0B;
    bench.start();
    bench.keyboard.activeProfile = 0;
    bench.link->ReadDeviceState();
    EXPECT_EQ(bench.requests(), Words{"05?"});
    EXPECT_THAT(bench.told(), IsEmpty());
    bench.unplug();
    bench.replug();
    EXPECT_EQ(bench.requests(), plainRead);
}

TEST(DeviceLink, TheLastMatchAmongTheFirstThirtyInterfacesIsTaken) {
    DeviceBench bench;
    bench.hid.before.assign(29, VirtualHid::mouse("mouse"));
    bench.start();
    EXPECT_FALSE(bench.link->isDeviceFound());
    bench.hid.before.resize(27);
    bench.hid.tell(HidChange::Arrival);
    EXPECT_EQ(bench.requests(), plainRead);
    bench.hid.before.clear();
    bench.hid.after.push_back({"second", VirtualKeyboard::vendor, VirtualKeyboard::product, 0x000B, 0});
    bench.link->FindDevice();
    EXPECT_FALSE(bench.protocol().SetActiveProfile(0)) << "the second keyboard takes no reports here";
}

TEST(DeviceLink, AKeyboardThatIsBackBeforeItsRemovalIsToldWorksOnWithoutANotice) {
    DeviceBench bench;
    bench.startQuietly();
    bench.hid.unplug();
    bench.hid.plugIn();
    bench.hid.tell(HidChange::Removal);
    bench.hid.tell(HidChange::Arrival);
    EXPECT_THAT(bench.requests(), IsEmpty()) << "it is not read again";
    ASSERT_TRUE(bench.loop.runOne()) << "the listener's end";
    EXPECT_EQ(bench.event(eventReport::profileChanged, 2), (Words{"show 1", "event 2"}));
    EXPECT_TRUE(bench.protocol().SetActiveProfile(1));
}

TEST(DeviceLink, ReplugsLeaveOneListenerAndOneNoticeUntilThatIsClosed) {
    DeviceBench bench;
    bench.link->pending().mark(PendingWrites::lightingRow, 0);
    bench.startQuietly();
    EXPECT_FALSE(bench.link->pending().isMarked(PendingWrites::lightingRow, 0));
    for (int round = 0; round < 2; ++round) {
        for (int times = 0; times < 2; ++times) {
            bench.hid.unplug();
            bench.hid.tell(HidChange::Removal);
            EXPECT_EQ(bench.hid.openDevices(), 0);
            (times == 0 ? bench.macros.saveFailed : bench.link->pending().m_bMacroLibraryChanged) = true;
            bench.replug();
            EXPECT_FALSE(bench.link->pending().m_bMacroLibraryChanged);
            EXPECT_EQ(bench.hid.openDevices(), 2);
        }
        EXPECT_EQ(bench.settle(), (Words{"show 0", "show 0", "notice"}));
    }
    EXPECT_EQ(bench.files.log.size(), 4u);
}

TEST(DeviceLink, HalfAKeyboardDoesWhatItCan) {
    DeviceBench bench;
    bench.hid.locked = {eventPath, featurePath};
    bench.start();
    EXPECT_FALSE(bench.link->isDeviceFound());
    bench.hid.locked = {featurePath};
    bench.hid.tell(HidChange::Arrival);
    EXPECT_TRUE(bench.link->isDeviceFound());
    EXPECT_FALSE(bench.protocol().hasHandle());
    EXPECT_EQ(bench.event(eventReport::profileChanged, 2), (Words{"show 1", "event 2"}));
    bench.unplug();

    bench.hid.locked = {eventPath};
    bench.replug();
    EXPECT_EQ(bench.requests(), plainRead);
    bench.hid.locked = {featurePath}; // found once, not to be opened any more
    bench.link->FindDevice();
    bench.pauses();
    EXPECT_FALSE(bench.protocol().WriteKeyCodes(0));
    EXPECT_THAT(bench.requests(), IsEmpty());
    EXPECT_THAT(bench.pauses(), ElementsAre(350));
}

} // namespace
} // namespace tarnix
