#include "profile/configuration_file.h"

#include "profile/numbers.h"

namespace tarnix {

namespace {

std::string configurationPath(const std::string& programFolder) {
    return programFolder + "config\\config.ini";
}

} // namespace

std::optional<FileError> parseConfiguration(std::string_view text, ConfigPairs& pairs) {
    LineReader lines(text);
    if (lines.next() != settingHeader) return lines.refuse(noSettingHeader);
    for (SettingPair& pair : pairs) {
        const auto line = lines.next();
        if (!line) return std::nullopt;
        const auto parts = splitAtEquals(*line);
        if (!parts || parts->key.empty() || parts->value.empty()) return lines.refuse(noKeyValue);
        pair = {std::string(parts->key), std::string(parts->value)};
    }
    if (lines.next()) return lines.refuse("more lines than the six settings");
    return std::nullopt;
}

std::string formatConfiguration(const ConfigPairs& pairs) {
    std::string text;
    appendLine(text, settingHeader);
    for (const SettingPair& pair : pairs)
        appendLine(text, pair.Key + '=' + pair.Value);
    return text;
}

bool LoadConfig(ProfileStore& store, Files& files, const std::string& programFolder) {
    const std::string path = configurationPath(programFolder);
    const auto text = files.read(path);
    if (text && !parseConfiguration(*text, store.ConfigTable)) return true;
    ResetConfig(store, programFolder);
    if (files.setAside(path)) SaveConfig(store, files, programFolder);
    return false;
}

bool SaveConfig(const ProfileStore& store, Files& files, const std::string& programFolder) {
    return files.replace(configurationPath(programFolder), formatConfiguration(store.ConfigTable));
}

void ResetConfig(ProfileStore& store, const std::string& programFolder) {
    store.ConfigTable[0] = {"CurrentProfile", "0"};
    for (int slot = 0; slot < profileCount; ++slot) {
        SettingPair& pair = store.ConfigTable[1 + slot];
        pair.Key = "ProfileSlot" + toText(slot) + "URL";
        pair.Value = programFolder;
        pair.Value.append("config\\default").append(toText(slot)).append(".psf");
    }
}

bool SaveCurrentProfile(ProfileStore& store, Files& files, const std::string& programFolder) {
    store.SetCurrentProfileText(DisplayedProfile);
    return SaveConfig(store, files, programFolder);
}

} // namespace tarnix
