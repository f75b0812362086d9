#include "profile/profile_file.h"

#include "profile/numbers.h"

namespace tarnix {

namespace {

constexpr std::string_view missingLine = "the file ends too early";
constexpr std::size_t keyCodeDigits = std::size_t{2} * keyPositionCount;

std::optional<FileError> readSettings(LineReader& lines, ProfileRecord& record) {
    for (SettingPair& pair : record.Settings) {
        const auto line = lines.next();
        if (!line) return lines.refuse(missingLine);
        const auto parts = splitAtEquals(*line);
        if (!parts || parts->key.empty()) return lines.refuse(noKeyValue);
        pair = {std::string(parts->key), std::string(parts->value)};
    }
    return std::nullopt;
}

/// The one line whose key may be empty.
std::optional<FileError> readKeyCodes(LineReader& lines, ProfileRecord& record) {
    const auto line = lines.next();
    if (!line) return lines.refuse(missingLine);
    const auto parts = splitAtEquals(*line);
    if (!parts) return lines.refuse(noKeyValue);
    if (parts->value.size() != keyCodeDigits) return lines.refuse("not 320 digits of key codes");
    for (std::size_t p = 0; p < record.KeyCodes.size(); ++p) {
        record.KeyCodes[p] = toHexByte(parts->value.substr(2 * p));
    }
    return std::nullopt;
}

/// What is too short to hold a byte's digits reads as 0.
KeyAssignment assignmentOf(std::string_view digits) {
    KeyAssignment value{};
    for (std::size_t i = 0; i < value.size() && 2 * i < digits.size(); ++i) {
        value[i] = toHexByte(digits.substr(2 * i));
    }
    return value;
}

std::optional<FileError> readGKeys(LineReader& lines, ProfileRecord& record) {
    for (GKeySlot& slot : record.GKeys) {
        for (const int part : {0, 1, 2}) {
            const auto line = lines.next();
            if (!line) return lines.refuse(missingLine);
            const auto parts = splitAtEquals(*line);
            if (!parts || parts->key.empty()) return lines.refuse(noKeyValue);
            if (part == 0) slot.Name = parts->value;
            if (part == 1) slot.Value = assignmentOf(parts->value);
            if (part == 2) slot.Url = parts->value;
        }
    }
    return std::nullopt;
}

void appendGKey(std::string& text, const std::string& key, const GKeySlot& slot) {
    std::string digits;
    for (const std::uint8_t byte : slot.Value)
        appendHexByte(digits, byte);
    appendLine(text, key + "Name=" + slot.Name);
    appendLine(text, '\t' + key + "Value=" + digits);
    appendLine(text, '\t' + key + "URL=" + slot.Url);
}

} // namespace

std::optional<FileError> parseProfile(std::string_view text, ProfileRecord& record) {
    LineReader lines(text);
    if (lines.next() != settingHeader) return lines.refuse(noSettingHeader);
    if (auto error = readSettings(lines, record)) return error;
    if (auto error = readKeyCodes(lines, record)) return error;
    return readGKeys(lines, record);
}

std::string formatProfile(const ProfileRecord& record) {
    std::string text;
    appendLine(text, settingHeader);
    for (const SettingPair& pair : record.Settings)
        appendLine(text, pair.Key + '=' + pair.Value);

    std::string codes = "AllRCKey=";
    for (const std::uint8_t code : record.KeyCodes)
        appendHexByte(codes, code);
    appendLine(text, codes);

    for (int s = 0; s < gKeyCount; ++s)
        appendGKey(text, "Key" + toText(s), record.GKeys[s]);
    return text;
}

bool SaveProfileFile(const ProfileStore& store, int n, Files& files) {
    const ProfileRecord* record = store.record(n);
    return record && files.replace(store.slotPath(n), formatProfile(*record));
}

bool LoadProfileFile(ProfileStore& store, int n, Files& files) {
    ProfileRecord* record = store.record(n);
    if (!record) return false;
    const std::string path = store.slotPath(n);
    const auto text = files.read(path);
    if (text && !parseProfile(*text, *record)) return true;
    store.ResetProfile(n);
    if (files.setAside(path)) SaveProfileFile(store, n, files);
    return false;
}

} // namespace tarnix
