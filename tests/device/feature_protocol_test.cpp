#include <gmock/gmock.h>

#include "support/device_bench.h"

namespace tarnix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A bench whose profile 2 (index 1) has the macro "Fire" on G3.
class FeatureProtocolTest : public testing::Test {
  protected:
    FeatureProtocolTest() {
        bench.startQuietly();
        AddMacroKey(bench.macros.sets[0], "Fire");
        *bench.store.GetGKeySlot(1, 2) = {"Fire", "", keyAssignment(FunctionType::Macro)};
    }

    std::vector<bool> runAll() {
        return {protocol.SetActiveProfile(2), protocol.ReadLighting(1),      protocol.WriteLighting(1),
                protocol.ReadKeyCodes(2),     protocol.WriteKeyCodes(0),     protocol.WriteGKeyMacro(1, 2),
                protocol.ReadGKeyMacro(1, 2), protocol.UploadGKeyMacro(1, 2)};
    }

    DeviceBench bench;
    FeatureProtocol& protocol = bench.protocol();
    KeyboardMacro& keyboardMacro = bench.keyboard.profiles[1].macros[2];
};

TEST_F(FeatureProtocolTest, OperationsSendTheirReportsAndTakeTheirPausesEvenWhenRefused) {
    const Words sent{"05 2", "04 1.0", "07?",    "07 1", "04 2.0", "06?",
                     "06 0", "08 1.2", "04 1.2", "08?",  "04 1.2", "08?"};
    const auto records = bench.store.ProfileTable;
    bench.keyboard.failEveryRequest(true);
    EXPECT_THAT(runAll(), ElementsAre(false, false, false, false, false, false, true, false))
        << "a macro that was asked for counts: the library is saved either way";
    Words refused = sent;
    for (std::string& word : refused)
        word += '!';
    EXPECT_EQ(bench.requests(), refused);
    EXPECT_THAT(bench.pauses(), ElementsAre(15, 8, 8, 15, 8, 8, 350, 350, 8, 8, 8, 8));
    EXPECT_EQ(bench.store.ProfileTable, records);

    bench.keyboard.failEveryRequest(false);
    keyboardMacro.name = "Fire";
    EXPECT_THAT(runAll(), testing::Each(true));
    Words accepted = sent;
    accepted.push_back("08 1.2");
    EXPECT_EQ(bench.requests(), accepted);
    EXPECT_THAT(bench.pauses(), ElementsAre(15, 8, 8, 15, 8, 8, 350, 350, 8, 8, 8, 8, 350));
    EXPECT_EQ(protocol.deviceProfile(), 2);

    protocol.setHandle(nullptr);
    EXPECT_THAT(runAll(), testing::Each(false));
    EXPECT_EQ(protocol.GetActiveProfile(), -1);
    EXPECT_THAT(bench.requests(), IsEmpty());
    EXPECT_THAT(bench.pauses(), IsEmpty());
}

TEST_F(FeatureProtocolTest, AMacroWithoutANameGetsOneAndGoesBackWithIt) {
    for (const char* when : {"the first time", "the second, when it is found"}) {
        keyboardMacro = {std::nullopt, 4, 1, {0x05, 0x01}};
        EXPECT_TRUE(protocol.ReadGKeyMacro(1, 2));
        EXPECT_EQ(bench.requests(), (Words{"04 1.2", "08?", "08 1.2"}));
        EXPECT_EQ(keyboardMacro, (KeyboardMacro{"Profile2_G3", 4, 1, {0x05, 0x01}}));
        EXPECT_EQ(bench.store.GetGKeyName(1, 2), "Profile2_G3");
        EXPECT_EQ(bench.macros.sets[0].keys.size(), 2u) << when;
    }
    ClearMacroLibrary(bench.macros);
    keyboardMacro.name.reset();
    EXPECT_TRUE(protocol.ReadGKeyMacro(1, 2));
    EXPECT_EQ(bench.requests(), (Words{"04 1.2", "08?"})) << "no set to hold it, nothing to send";
}

TEST_F(FeatureProtocolTest, ANamedMacroIsLookedUpInTheFirstSetAloneAndByCase) {
    AddMacroKey(AddMacroSet(bench.macros, "Other"), "fire").commandCount = 77;
    keyboardMacro = {"fire", 0, 1, {0x04, 0x80}};
    protocol.ReadGKeyMacro(1, 2);
    EXPECT_EQ(bench.requests(), (Words{"04 1.2", "08?"}));
    EXPECT_EQ(bench.macros.sets[0].keys.at(1).name, "fire");
    EXPECT_EQ(bench.macros.sets[1].keys.at(0).commandCount, 77);
    bench.store.GetGKeySlot(1, 2)->Value = keyAssignment(FunctionType::KeyCombination, 1, 4);
    EXPECT_FALSE(protocol.ReadGKeyMacro(1, 2));
    RemoveMacroKey(bench.macros.sets[0], 1);
    EXPECT_FALSE(protocol.WriteGKeyMacro(1, 2));
    EXPECT_THAT(bench.requests(), IsEmpty());
    EXPECT_TRUE(protocol.UploadGKeyMacro(1, 2));
    EXPECT_EQ(bench.store.GetGKeySlot(1, 2)->Value, keyAssignment(FunctionType::Macro));
}

TEST_F(FeatureProtocolTest, PendingWritesGoOutByKindAndProfile) {
    PendingWrites& pending = bench.link->pending();
    for (int row = PendingWrites::rowCount; row >= -1; --row)
        for (int profile = profileCount; profile >= -1; --profile)
            pending.mark(row, profile);
    bench.link->FlushPendingWrites();
    EXPECT_EQ(bench.requests(), (Words{"07 0", "07 1", "07 2", "06 0", "06 1", "06 2", "08 1.2"}))
        << "other slots name no macro";
    EXPECT_TRUE(pending.isMarked(0, 3)) << "the keyboard has three profiles";
}

} // namespace
} // namespace tarnix
