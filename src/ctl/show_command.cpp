#include "ctl/commands.h"
#include "ctl/describe.h"
#include "ctl/file_content.h"
#include "ctl/outline.h"
#include "ctl/output.h"
#include "profile/numbers.h"
#include "profile/vocabulary.h"

namespace tarnix {

namespace {

/// A setting as a number, with its name where it has one.
Outline setting(const ProfileRecord& record, int index, std::string_view (*nameOf)(int)) {
    const int value = toNumber(record.Settings[static_cast<std::size_t>(index)].Value);
    return Outline::number(value, nameOf(value));
}

Outline outlineLight(const ProfileRecord& record) {
    constexpr int areaCount = settingCount - settingArea1Colour;
    Outline::Items areas;
    for (int area = 0; area < areaCount; ++area)
        areas.push_back(setting(record, settingArea1Colour + area, ColourName));
    return Outline::record({{"mode", setting(record, settingLightMode, LightModeName)},
                            {"brightness", setting(record, settingLightBrightness, BrightnessName)},
                            {"speed", setting(record, settingLightSpeed, SpeedName)},
                            {"areas", Outline::list(std::move(areas))}});
}

Outline keyCode(std::uint8_t code) {
    return Outline::number(code, KeyCodeName(code));
}

/// The positions whose code is not the factory's.
Outline outlineKeys(const KeyCodeTable& codes) {
    Outline::Items changed;
    for (std::size_t p = 0; p < codes.size(); ++p) {
        if (codes[p] == DefaultKeyCodes[p]) continue;
        changed.push_back(Outline::record({{"position", Outline::number(static_cast<int>(p))},
                                           {"factory", keyCode(DefaultKeyCodes[p])},
                                           {"code", keyCode(codes[p])}}));
    }
    return Outline::list(std::move(changed));
}

Outline outlineGKeys(const ProfileRecord& record) {
    Outline::Items keys;
    for (std::size_t s = 0; s < record.GKeys.size(); ++s) {
        const GKeySlot& slot = record.GKeys[s];
        std::string value;
        for (const std::uint8_t byte : slot.Value)
            appendHexByte(value, byte);
        keys.push_back(Outline::record({{"key", Outline::text("G" + std::to_string(s + 1))},
                                        {"name", Outline::text(slot.Name)},
                                        {"function", Outline::text(describeAssignment(slot.Value))},
                                        {"value", Outline::text(std::move(value))},
                                        {"url", Outline::text(slot.Url)}}));
    }
    return Outline::list(std::move(keys));
}

Outline outline(const ProfileRecord& record) {
    return Outline::record({{"profile", Outline::text(record.Settings[settingProfileName].Value)},
                            {"light", outlineLight(record)},
                            {"remapped", outlineKeys(record.KeyCodes)},
                            {"gkeys", outlineGKeys(record)}});
}

Outline outline(const ConfigPairs& pairs) {
    Outline::Items paths;
    for (std::size_t i = 1; i < pairs.size(); ++i)
        paths.push_back(Outline::text(pairs[i].Value));
    return Outline::record({{"currentProfile", Outline::number(toNumber(pairs[0].Value))},
                            {"profileFiles", Outline::list(std::move(paths))}});
}

Outline outlineAction(const MacroAction& action) {
    if (action.isDelay()) return Outline::record({{"delay", Outline::number(action.milliseconds())}});
    const std::uint8_t key = action.virtualKey();
    return Outline::record(
        {{action.isRelease() ? "release" : "press", Outline::number(key, VirtualKeyName(key))}});
}

Outline::Members macroMembers(const MacroKey& macro) {
    Outline::Items actions;
    for (const MacroAction& action : macro.usedActions())
        actions.push_back(outlineAction(action));
    return {{"loops", Outline::number(macro.loopEnable != 0 ? macro.loopCount : 0)},
            {"keyboardSteps", Outline::number(macro.commandCount)},
            {"actions", Outline::list(std::move(actions))}};
}

Outline outline(const MacroKey& macro) {
    return Outline::record(macroMembers(macro));
}

Outline outline(const MacroLibrary& library) {
    Outline::Items sets;
    for (const MacroSet& set : library.sets) {
        Outline::Items macros;
        for (const MacroKey& macro : set.keys) {
            Outline::Members members = macroMembers(macro);
            members.insert(members.begin(), {"macro", Outline::text(macro.name)});
            macros.push_back(Outline::record(std::move(members)));
        }
        sets.push_back(Outline::record(
            {{"set", Outline::text(set.name)}, {"macros", Outline::list(std::move(macros))}}));
    }
    return Outline::record({{"sets", Outline::list(std::move(sets))}});
}

} // namespace

ExitStatus runShow(const Context& context, const Arguments& arguments) {
    const std::string& path = arguments.words[0];
    const CheckedFile file = readFileContent(context.files, path);
    if (!file.refusal.empty()) {
        complainAboutFile(path, file, {});
        return ExitStatus::RefusedFile;
    }
    const Outline content = std::visit([](const auto& value) { return outline(value); }, file.content);
    printLine(arguments.has("--json") ? content.asJson() : content.forPeople());
    return ExitStatus::Done;
}

} // namespace tarnix
