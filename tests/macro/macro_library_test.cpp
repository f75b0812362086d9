#include "macro/macro_library.h"

#include <gtest/gtest.h>

#include "profile/profile_store.h"

namespace tarnix {
namespace {

MacroKey macroWith(std::uint32_t count) {
    MacroKey macro;
    for (std::uint32_t n = 0; n < count; ++n)
        AppendAction(macro, MacroAction::delay(n));
    return macro;
}

std::string delays(const MacroKey& macro) {
    std::string text;
    for (const MacroAction& action : macro.usedActions())
        text += std::to_string(action.milliseconds()) + ' ';
    return text;
}

TEST(MacroLibrary, InsertMovesLaterActionsUpAndRefusesAFullMacro) {
    MacroKey macro = macroWith(3);
    SetAction(macro, 199, MacroAction::delay(77));
    EXPECT_TRUE(InsertAction(macro, 0, MacroAction::delay(70000)));
    EXPECT_TRUE(InsertAction(macro, 2, MacroAction::delay(9)));
    EXPECT_TRUE(InsertAction(macro, 4000000000u, MacroAction::delay(5)));
    EXPECT_EQ(delays(macro), "70000 0 9 1 2 5 ");
    EXPECT_EQ(GetAction(macro, 199), MacroAction{}) << "the last of the unused ones is dropped";

    MacroKey nearlyFull = macroWith(199);
    EXPECT_TRUE(InsertAction(nearlyFull, 198, MacroAction::delay(9)));
    const MacroKey full = nearlyFull;
    EXPECT_EQ(GetAction(full, 199), MacroAction::delay(198));
    EXPECT_FALSE(InsertAction(nearlyFull, 0, MacroAction::delay(1)));
    nearlyFull.actionCount = 4294967295u;
    EXPECT_FALSE(AppendAction(nearlyFull, MacroAction::delay(1)));
    EXPECT_EQ(delays(nearlyFull), delays(full));
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
