#include "ctl/describe.h"

#include <array>
#include <string_view>

#include "device/device_events.h"
#include "profile/numbers.h"
#include "profile/vocabulary.h"

namespace tarnix {

namespace {

/// The function's name among a popup's items, which are known by their values.
std::string nameOfItem(const KeyAssignment& value, int first, int last, KeyAssignment (*valueOf)(int),
                       std::string_view (*nameOf)(int)) {
    for (int item = first; item <= last; ++item) {
        if (valueOf(item) == value) return std::string(nameOf(item));
    }
    return {};
}

std::string describeCombination(const KeyAssignment& value) {
    constexpr std::array<std::string_view, 4> modifiers{"CTRL+", "SHIFT+", "ALT+", "WIN+"};
    std::string text;
    for (std::size_t bit = 0; bit < modifiers.size(); ++bit) {
        if ((value[1] >> bit & 1) != 0) text += modifiers[bit];
    }
    return text += KeyCodeName(value[2]);
}

std::string named(std::string_view what, std::string_view name, int value) {
    return std::string(what) + ' ' + (name.empty() ? toText(value) : std::string(name));
}

} // namespace

std::string describeAssignment(const KeyAssignment& value) {
    std::string name;
    switch (functionType(value)) {
        case FunctionType::None:
            return "no function";
        case FunctionType::Macro:
            return "macro";
        case FunctionType::Launch:
            return "program launch";
        case FunctionType::KeyCombination:
            return describeCombination(value);
        case FunctionType::Media:
            name = nameOfItem(value, 18, 25, multimediaFunctionValue, MultimediaFunctionName);
            if (name.empty()) name = nameOfItem(value, 21, 30, webFunctionValue, WebFunctionName);
            break;
        case FunctionType::MouseButton:
        case FunctionType::DoubleClick:
        case FunctionType::Fire:
            name = nameOfItem(value, 24, 30, mouseFunctionValue, MouseFunctionName);
            break;
    }
    return name.empty() ? "unknown function" : name;
}

std::string describeEvent(std::uint8_t code, std::uint8_t value) {
    switch (code) {
        case eventReport::macroRecorded:
            return named("macro recorded on G-key", {}, value);
        case eventReport::speedChanged:
            return named("light speed", SpeedName(value), value);
        case eventReport::windowsKeyLock:
            return value == 0 ? "Windows key disabled" : "Windows key enabled";
        case eventReport::launch:
            return named("program launch by G-key", {}, value);
        case eventReport::profileChanged:
            return named("profile", {}, value);
        case eventReport::modeChanged:
            return named("light mode", LightModeName(value), value);
        case eventReport::brightnessChanged:
            return named("light brightness", BrightnessName(value), value);
        case eventReport::allKeyLock:
            return value == 0 ? "all keys disabled" : "all keys enabled";
        case eventReport::lightingChanged:
            return "lighting changed";
        default:
            return "unknown event";
    }
}

} // namespace tarnix
