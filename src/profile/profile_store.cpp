#include "profile/profile_store.h"

#include <string_view>
#include <utility>

#include "profile/item_at.h"
#include "profile/numbers.h"

namespace tarnix {

// clang-format off
constexpr KeyCodeTable DefaultKeyCodes{
    0x1D, 0xF0, 0x81, 0xA4, 0xE6, 0xA5, 0x82, 0x83, 0x06, 0xF2, 0x00, 0xA1, 0xA2, 0xAD, 0xE4, 0xAE,
    0x09, 0xC0, 0xC4, 0xA8, 0x98, 0xAB, 0xAC, 0xA8, 0xE1, 0x18, 0xC5, 0xC1, 0x99, 0x28, 0x9A, 0xBC,
    0xE0, 0x0E, 0x13, 0x9B, 0x9C, 0x9D, 0xF5, 0xAF, 0x2C, 0x0C, 0x87, 0xEF, 0xA9, 0x8B, 0x8A, 0x88,
    0x04, 0xC3, 0x12, 0xB1, 0x64, 0x90, 0x91, 0xB9, 0x2B, 0x35, 0xC6, 0x1C, 0xEB, 0x24, 0x33, 0xE7,
    0x16, 0x2D, 0xC7, 0x36, 0x2F, 0x25, 0xE8, 0x11, 0x07, 0x2E, 0xC8, 0x00, 0x30, 0x26, 0x34, 0xBB,
    0xEE, 0x2A, 0xCA, 0x46, 0xEA, 0xE9, 0x0B, 0x37, 0x08, 0x0F, 0xCB, 0x47, 0x48, 0xEC, 0x32, 0x38,
    0x14, 0x0D, 0xC9, 0x89, 0x31, 0x27, 0xED, 0xF3, 0x05, 0x00, 0x00, 0x53, 0x5F, 0x5C, 0x59, 0x00,
    0x19, 0xF4, 0x00, 0x54, 0x60, 0x5D, 0x5A, 0x62, 0x15, 0x23, 0x00, 0x55, 0x61, 0x5E, 0x5B, 0x63,
    0x17, 0xC2, 0x00, 0x56, 0x57, 0x85, 0x58, 0x39, 0x1B, 0xF1, 0xB0, 0xA6, 0xA3, 0xE5, 0xA0, 0xA7,
    0x65, 0x0A, 0xCC, 0xCE, 0xCD, 0x10, 0xE2, 0xCF, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00};

namespace {

constexpr std::array<std::uint8_t, keyButtonCount> keyButtonPositions{
     38,  17,  27, 129,  49,  18,  26,  58,  66,  74,  98,  82,  90,  83,  91,  92,
     57,   1, 137,   9, 103, 113, 121,  61,  69,  77, 101,  65,  73,  81,  70,  84,
     93, 107, 115, 123, 131,  56,  96,  80,  88, 120, 128,  59,  25,  41,  50,  34,
     68,  76, 100,  85,  60, 102, 108, 116, 124, 132, 135,  48,  64,  72,  16, 145,
     86,  97,  33,  89,  62,  78,  29, 109, 117, 125,  24,   0, 136,   8, 112, 104,
     71, 149,  67,  87,  95, 141, 146, 110, 118, 126, 134,  32,  43, 150,  40,   4,
    144,  14, 147, 148, 151, 119, 127,  85};
// clang-format on

constexpr int fallbackKeyPosition = 10;
constexpr int fallbackGKeySlot = 2;

/// Keys and values of the defaults but the name's value, which depends on the record.
constexpr std::array<std::pair<std::string_view, std::string_view>, settingCount> defaultSettings{{
    {"ProfileName", ""},
    {"LightMode", "1"},
    {"LightBrightness", "4"},
    {"LightSpeed", "1"},
    {"LightArea1Color", "4"},
    {"LightArea2Color", "4"},
    {"LightArea3Color", "4"},
    {"LightArea4Color", "4"},
    {"LightArea5Color", "4"},
}};

constexpr std::uint8_t ctrlBit = 0x01;
constexpr std::uint8_t keyCodeOfDigit1 = 0x1E;

const std::string& textOf(const SettingPair& pair, PairText part) {
    return part == PairText::Key ? pair.Key : pair.Value;
}

} // namespace

int GetKeyButtonPosition(int buttonIndex) {
    const std::uint8_t* position = itemAt(keyButtonPositions, buttonIndex);
    return position ? *position : fallbackKeyPosition;
}

GKeySlot standardGKey(int slot) {
    return {"CTRL+" + toText(slot + 1),
            {},
            keyAssignment(FunctionType::KeyCombination, ctrlBit,
                          static_cast<std::uint8_t>(keyCodeOfDigit1 + slot))};
}

void resetProfileRecord(ProfileRecord& record, int index) {
    for (std::size_t i = 0; i < defaultSettings.size(); ++i) {
        record.Settings[i] = {std::string(defaultSettings[i].first), std::string(defaultSettings[i].second)};
    }
    record.Settings[settingProfileName].Value = "Default" + toText(index + 1);
    record.KeyCodes = DefaultKeyCodes;
    for (int slot = 0; slot < gKeyCount; ++slot) {
        const GKeySlot standard = standardGKey(slot);
        record.GKeys[slot].Name = standard.Name;
        record.GKeys[slot].Value = standard.Value;
    }
}

ProfileRecord* ProfileStore::record(int index) {
    return itemAt(ProfileTable, index);
}

const ProfileRecord* ProfileStore::record(int index) const {
    return itemAt(ProfileTable, index);
}

void ProfileStore::ResetProfile(int n) {
    if (ProfileRecord* found = record(n)) resetProfileRecord(*found, n);
}

std::string ProfileStore::GetSetting(int n, int pair, PairText part) const {
    const ProfileRecord* found = record(n);
    const SettingPair* setting = found ? itemAt(found->Settings, pair) : nullptr;
    return setting ? textOf(*setting, part) : std::string();
}

int ProfileStore::settingNumber(int n, int pair) const {
    return toNumber(GetSetting(n, pair, PairText::Value));
}

void ProfileStore::setSetting(int n, int pair, std::string value) {
    ProfileRecord* found = record(n);
    SettingPair* setting = found ? itemAt(found->Settings, pair) : nullptr;
    if (setting) setting->Value = std::move(value);
}

void ProfileStore::SetLightMode(int n, int mode) {
    setSetting(n, settingLightMode, toText(mode));
}

void ProfileStore::SetLightBrightness(int n, int brightness) {
    setSetting(n, settingLightBrightness, toText(brightness));
}

void ProfileStore::SetLightSpeed(int n, int speed) {
    setSetting(n, settingLightSpeed, toText(speed));
}

GKeySlot* ProfileStore::GetGKeySlot(int n, int slot) {
    ProfileRecord* found = record(n);
    return found ? itemAt(found->GKeys, slot) : nullptr;
}

const GKeySlot* ProfileStore::GetGKeySlot(int n, int slot) const {
    const ProfileRecord* found = record(n);
    return found ? itemAt(found->GKeys, slot) : nullptr;
}

std::string ProfileStore::GetGKeyName(int n, int slot) const {
    const GKeySlot* found = GetGKeySlot(n, slot);
    return found ? found->Name : std::string();
}

void ProfileStore::SetGKeyName(int n, int slot, std::string name) {
    if (GKeySlot* found = GetGKeySlot(n, slot)) found->Name = std::move(name);
}

std::string ProfileStore::GetGKeyUrl(int n, int slot) const {
    const GKeySlot* found = GetGKeySlot(n, slot);
    return found ? found->Url : std::string();
}

void ProfileStore::SetGKeyUrl(int n, int slot, std::string url) {
    if (GKeySlot* found = GetGKeySlot(n, slot)) found->Url = std::move(url);
}

std::string ProfileStore::GetConfig(int pair, PairText part) const {
    const SettingPair* found = itemAt(ConfigTable, pair);
    return found ? textOf(*found, part) : std::string();
}

int ProfileStore::currentProfile() const {
    return toNumber(ConfigTable[0].Value);
}

void ProfileStore::SetCurrentProfileText(int profile) {
    ConfigTable[0].Value = toText(profile);
}

std::string ProfileStore::slotPath(int slot) const {
    return record(slot) ? GetConfig(1 + slot, PairText::Value) : std::string();
}

void ProfileStore::SetSlotPath(int slot, std::string path) {
    const int written = record(slot) ? slot : 0;
    ConfigTable[1 + written].Value = std::move(path);
}

void ProfileStore::StoreGKey(unsigned fieldId, std::string name, const KeyAssignment& value,
                             std::string url) {
    const unsigned field = fieldId - firstGKeyFieldId;
    const int slot = field < gKeyFieldCount ? static_cast<int>(field) : fallbackGKeySlot;
    if (GKeySlot* found = GetGKeySlot(currentProfile(), slot)) {
        *found = {std::move(name), std::move(url), value};
    }
}

void ProfileStore::SetKeyCode(unsigned keyButtonId, std::uint8_t code) {
    ProfileRecord* found = record(currentProfile());
    if (!found) return;
    const unsigned button = keyButtonId - firstKeyButtonId;
    const int position = GetKeyButtonPosition(button < keyButtonCount ? static_cast<int>(button) : -1);
    found->KeyCodes[position] = code;
}

} // namespace tarnix
