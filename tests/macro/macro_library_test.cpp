#include "macro/macro_library.h"

#include <gtest/gtest.h>

#include "profile/profile_store.h"

namespace tarnix {
namespace {

constexpr MacroAction numbered(std::uint32_t n) {
    return MacroAction::delay(n);
}

MacroKey macroWith(std::uint32_t count) {
    MacroKey macro;
    for (std::uint32_t n = 0; n < count; ++n)
        AppendAction(macro, numbered(n));
    return macro;
}

TEST(MacroLibrary, ActionsHoldKeysAndBigEndianDelays) {
    EXPECT_EQ(MacroAction::delay(70000).bytes, (std::array<std::uint8_t, 4>{0x03, 0x01, 0x11, 0x70}));
    EXPECT_EQ(MacroAction::delay(70000).milliseconds(), 70000u);
    const MacroAction release = MacroAction::key(0x41, true);
    EXPECT_EQ(release.bytes, (std::array<std::uint8_t, 4>{0x41, 0x80, 0, 0}));
    EXPECT_FALSE(release.isDelay());
    EXPECT_TRUE((MacroAction{{0x07, 0, 0, 0}}).isDelay());
    EXPECT_FALSE((MacroAction{{0x08, 0x7F, 0, 0}}).isRelease());
}

TEST(MacroLibrary, InsertMovesLaterActionsUpAndDropsOnlyTheUnusedLast) {
    MacroKey macro = macroWith(3);
    SetAction(macro, 199, numbered(77));
    EXPECT_TRUE(InsertAction(macro, 0, numbered(9)));
    EXPECT_EQ(macro.actionCount, 4u);
    for (const auto& [index, value] : {std::pair{0, 9u}, {1, 0u}, {2, 1u}, {3, 2u}, {199, 0u}}) {
        EXPECT_EQ(GetAction(macro, index), index == 199 ? MacroAction{} : numbered(value)) << index;
    }
    EXPECT_TRUE(InsertAction(macro, 4000000000u, numbered(5)));
    EXPECT_EQ(GetAction(macro, 4), numbered(5));

    MacroKey nearlyFull = macroWith(199);
    EXPECT_TRUE(InsertAction(nearlyFull, 198, numbered(9)));
    EXPECT_EQ(GetAction(nearlyFull, 198), numbered(9));
    EXPECT_EQ(GetAction(nearlyFull, 199), numbered(198));
    const MacroKey full = nearlyFull;
    EXPECT_FALSE(InsertAction(nearlyFull, 0, numbered(1)));
    EXPECT_FALSE(AppendAction(nearlyFull, numbered(1)));
    EXPECT_EQ(nearlyFull, full);
}

TEST(MacroLibrary, CountsAndIndexesBeyondTheRoomAreHarmless) {
    MacroKey macro = macroWith(2);
    EXPECT_EQ(GetAction(macro, 250), numbered(0));
    EXPECT_EQ(GetAction(macro, -1), numbered(0));
    EXPECT_FALSE(SetAction(macro, 200, numbered(1)));
    EXPECT_FALSE(SetAction(macro, -1, numbered(1)));
    macro.actionCount = 4294967295u;
    EXPECT_EQ(macro.usedActions().size(), 200u);
    EXPECT_FALSE(AppendAction(macro, numbered(1)));

    MacroLibrary library;
    resetMacroLibrary(library);
    AddMacroKey(library.sets[0], "Fire");
    for (const int index : {-1, 1}) {
        EXPECT_EQ(GetMacroSet(library, index), nullptr);
        EXPECT_EQ(findMacro(library, index, 0), nullptr);
        EXPECT_EQ(findMacro(library, 0, index), nullptr);
        EXPECT_FALSE(RemoveMacroKey(library.sets[0], index));
        EXPECT_FALSE(RemoveMacroSet(library, index));
    }
    EXPECT_EQ(findMacroName(library.sets[0], "fire"), -1);
    EXPECT_EQ(findMacroName(library.sets[0], "Fire"), 0);
    EXPECT_TRUE(RemoveMacroKey(library.sets[0], 0));
    EXPECT_TRUE(RemoveMacroSet(library, 0));
    EXPECT_EQ(library, MacroLibrary{});
}

TEST(MacroLibrary, OnlyMacroSlotsOfTheKeyboardsProfilesKeepAMacroInUse) {
    ProfileStore store;
    *store.GetGKeySlot(3, 0) = {"Fire", "", keyAssignment(FunctionType::Macro)};
    *store.GetGKeySlot(0, 0) = {"Fire", "", keyAssignment(FunctionType::KeyCombination)};
    EXPECT_FALSE(IsMacroInUse(store, "Fire"));
    *store.GetGKeySlot(2, 5) = {"Fire", "", keyAssignment(FunctionType::Macro)};
    EXPECT_TRUE(IsMacroInUse(store, "Fire"));
    EXPECT_FALSE(IsMacroInUse(store, "fire"));
}

} // namespace
} // namespace tarnix
