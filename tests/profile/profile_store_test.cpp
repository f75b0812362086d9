#include "profile/profile_store.h"

#include <gtest/gtest.h>

#include <climits>

#include "profile/numbers.h"

namespace tarnix {
namespace {

TEST(Numbers, TextsReadUpToTheFirstNonDigitAndSaturate) {
    for (const char* nothing : {"", "x1", "-", " 5", "--5", "+-5"})
        EXPECT_EQ(toNumber(nothing), 0) << nothing;
    EXPECT_EQ(toNumber("12ab"), 12);
    EXPECT_EQ(toNumber("-7.9"), -7);
    EXPECT_EQ(toNumber("2147483648"), INT_MAX);
    EXPECT_EQ(toNumber("-99999999999999999999999999999999"), INT_MIN);
    EXPECT_EQ(toUnsigned("4294967295"), UINT_MAX);
    EXPECT_EQ(toUnsigned("-1"), UINT_MAX);
    EXPECT_EQ(toHexByte("fF0"), 0xFF);
    EXPECT_EQ(toHexByte("1g"), 0x01);
    EXPECT_EQ(toHexByte("-1"), 0x00);
}

TEST(ProfileStore, IndexesOutOfRangeReadAsNothingAndWriteNowhere) {
    ProfileStore store;
    for (const int n : {INT_MIN, -1, 9, INT_MAX}) {
        store.ResetProfile(n);
        store.SetLightSpeed(n, 2);
        store.setSetting(0, n, "x");
        store.SetGKeyName(0, n, "x");
        store.SetCurrentProfileText(n);
        store.StoreGKey(firstGKeyFieldId, "x", {}, "x");
        store.SetKeyCode(firstKeyButtonId, 1);
        EXPECT_EQ(
            store.slotPath(n) + store.GetSetting(0, n, PairText::Key) + store.GetConfig(n, PairText::Value),
            "");
    }
    EXPECT_EQ(store.ProfileTable, ProfileStore{}.ProfileTable);
}

TEST(ProfileStore, EditsGoToTheCurrentProfileWithTheFallbacksForStrangeControls) {
    ProfileStore store;
    store.SetCurrentProfileText(1);
    store.StoreGKey(2082, "last field", {7, 8, 9}, "/a");
    store.StoreGKey(2083, "no field", {1, 0, 0}, "/b");
    EXPECT_EQ(*store.GetGKeySlot(1, 4), (GKeySlot{"last field", "/a", {7, 8, 9}}));
    EXPECT_EQ(*store.GetGKeySlot(1, 2), (GKeySlot{"no field", "/b", {1, 0, 0}}));

    store.SetKeyCode(2251, 0x11);
    EXPECT_EQ(store.record(1)->KeyCodes[GetKeyButtonPosition(103)], 0x11);
    for (const unsigned noButton : {2199u, 2304u, 0u}) {
        store.record(1)->KeyCodes[10] = 0;
        store.SetKeyCode(noButton, 0x33);
        EXPECT_EQ(store.record(1)->KeyCodes[10], 0x33);
    }
    EXPECT_EQ(store.ProfileTable[0], ProfileRecord{});
    store.SetSlotPath(7, "/seven");
    EXPECT_EQ(store.slotPath(0), "/seven");
}

} // namespace
} // namespace tarnix
