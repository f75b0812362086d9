#include "profile/profile_store.h"

#include <gtest/gtest.h>

#include <climits>

#include "profile/numbers.h"

namespace tarnix {
namespace {

TEST(Numbers, TextsReadUpToTheFirstNonDigitAndSaturate) {
    struct Case {
        const char* text;
        int number;
    };
    for (const Case& c : {Case{"", 0},
                          {"x1", 0},
                          {"-", 0},
                          {"12ab", 12},
                          {"-7", -7},
                          {"+7", 7},
                          {" 5", 0},
                          {"--5", 0},
                          {"2147483648", INT_MAX},
                          {"-2147483649", INT_MIN},
                          {"99999999999999999999999999999999", INT_MAX}}) {
        EXPECT_EQ(toNumber(c.text), c.number) << c.text;
    }
    EXPECT_EQ(toUnsigned("4294967295"), UINT_MAX);
    EXPECT_EQ(toUnsigned("-1"), UINT_MAX);
    EXPECT_EQ(toUnsigned("99999999999"), UINT_MAX);
    EXPECT_EQ(toHexByte("fF0"), 0xFF);
    EXPECT_EQ(toHexByte("1g"), 0x01);
    EXPECT_EQ(toHexByte("-1"), 0x00);
}

TEST(ProfileStore, ResetRestoresDefaultsButKeepsUrls) {
    ProfileStore store;
    store.SetLightMode(3, 17);
    store.SetGKeyUrl(3, 5, "/usr/bin/editor");
    store.ResetProfile(3);

    EXPECT_EQ(store.GetSetting(3, settingProfileName, PairText::Value), "Default4");
    EXPECT_EQ(store.settingNumber(3, settingLightMode), 1);
    EXPECT_EQ(store.GetGKeyName(3, 5), "CTRL+6");
    EXPECT_EQ(store.GetGKeySlot(3, 5)->Value, keyAssignment(FunctionType::KeyCombination, 0x01, 0x23));
    EXPECT_EQ(store.GetGKeyUrl(3, 5), "/usr/bin/editor");
    EXPECT_EQ(store.record(3)->KeyCodes, DefaultKeyCodes);
    EXPECT_EQ(*store.record(2), ProfileRecord{});
}

TEST(ProfileStore, IndexesOutOfRangeReadAsNothingAndWriteNowhere) {
    ProfileStore store;
    const auto before = store.ProfileTable;
    for (const int n : {INT_MIN, -1, 5, INT_MAX}) {
        store.ResetProfile(n);
        store.SetLightSpeed(n, 2);
        store.SetGKeyName(n, 0, "x");
        store.SetGKeyUrl(0, n == 5 ? 6 : n, "x");
        store.SetCurrentProfileText(n);
        store.StoreGKey(firstGKeyFieldId, "x", {}, "x");
        store.SetKeyCode(firstKeyButtonId, 1);
        EXPECT_EQ(store.record(n), nullptr);
        EXPECT_EQ(store.slotPath(n), "");
    }
    EXPECT_EQ(store.ProfileTable, before);
    EXPECT_EQ(store.GetSetting(0, 9, PairText::Key), "");
    EXPECT_EQ(store.GetConfig(6, PairText::Value), "");
    EXPECT_EQ(store.GetGKeySlot(0, 6), nullptr);
}

TEST(ProfileStore, EditsGoToTheCurrentProfileWithTheFallbacksForStrangeControls) {
    ProfileStore store;
    store.SetCurrentProfileText(1);
    store.StoreGKey(2082, "last field", {7, 8, 9}, "/a");
    store.StoreGKey(2083, "no field", {1, 0, 0}, "/b");
    EXPECT_EQ(*store.GetGKeySlot(1, 4), (GKeySlot{"last field", "/a", {7, 8, 9}}));
    EXPECT_EQ(*store.GetGKeySlot(1, 2), (GKeySlot{"no field", "/b", {1, 0, 0}}));

    store.SetKeyCode(2251, 0x11);
    EXPECT_EQ(store.record(1)->KeyCodes[85], 0x11);
    EXPECT_EQ(GetKeyButtonPosition(103), 85);
    store.SetKeyCode(2304, 0x22);
    store.SetKeyCode(2199, 0x33);
    EXPECT_EQ(store.record(1)->KeyCodes[10], 0x33);
    EXPECT_EQ(store.ProfileTable[0], ProfileRecord{});

    store.SetSlotPath(4, "/four");
    store.SetSlotPath(7, "/seven");
    EXPECT_EQ(store.slotPath(4), "/four");
    EXPECT_EQ(store.slotPath(0), "/seven");
    store.SetSlotPath(0, "/zero");
    EXPECT_EQ(store.slotPath(0), "/zero");
}

} // namespace
} // namespace tarnix
