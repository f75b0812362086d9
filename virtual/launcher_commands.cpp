#include "virtual/launcher_commands.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string_view>
#include <vector>

#include "device/macro_report.h"
#include "profile/numbers.h"
#include "virtual/launcher.h"

namespace tarnix {
namespace {

using Words = std::span<const std::string>;

std::optional<unsigned> number(std::string_view text, int base, unsigned maximum) {
    unsigned value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
    if (error != std::errc() || end != text.data() + text.size() || value > maximum) return std::nullopt;
    return value;
}

/// Decimal, or hexadecimal after 0x.
std::optional<unsigned> number(std::string_view text, unsigned maximum) {
    return text.starts_with("0x") ? number(text.substr(2), 16, maximum) : number(text, 10, maximum);
}

std::optional<std::uint8_t> byte(std::string_view text) {
    const auto value = number(text, 0xFF);
    if (!value) return std::nullopt;
    return static_cast<std::uint8_t>(*value);
}

/// One of 1 to `count`.
std::optional<std::uint8_t> counted(std::string_view text, unsigned count) {
    const auto value = number(text, count);
    if (!value || *value == 0) return std::nullopt;
    return static_cast<std::uint8_t>(*value);
}

struct Recording {
    std::uint8_t loopCount = 0;
    std::vector<std::uint8_t> steps;
};

/// "x3 04:00 04:80": the loop count, if any, and steps of code and parameter in hexadecimal.
std::optional<Recording> recording(Words words) {
    Recording result;
    if (!words.empty() && words[0].starts_with('x')) {
        const auto loops = byte(std::string_view(words[0]).substr(1));
        if (!loops) return std::nullopt;
        result.loopCount = *loops;
        words = words.subspan(1);
    }
    for (const std::string_view word : words) {
        const std::size_t colon = word.find(':');
        if (colon == std::string_view::npos) return std::nullopt;
        for (const auto half :
             {number(word.substr(0, colon), 16, 0xFF), number(word.substr(colon + 1), 16, 0xFF)}) {
            if (!half) return std::nullopt;
            result.steps.push_back(static_cast<std::uint8_t>(*half));
        }
    }
    if (result.steps.size() > KeyboardMacro{}.steps.size()) return std::nullopt;
    return result;
}

bool emitEvent(Launcher& launcher, Words words) {
    const auto code = byte(words[0]);
    const auto value = byte(words[1]);
    if (code && value) launcher.keyboard().emit(*code, *value);
    return code && value;
}

bool pressProfile(Launcher& launcher, Words words) {
    const auto profile = counted(words[0], VirtualKeyboard::profileCount);
    if (profile) launcher.keyboard().pressProfile(*profile);
    return profile.has_value();
}

bool changeAllLighting(Launcher& launcher, Words fields) {
    std::array<std::uint8_t, 4> lighting{};
    if (fields.size() != lighting.size()) return false;
    for (std::size_t i = 0; i < lighting.size(); ++i) {
        const auto field = number(fields[i], 16, 0xFF);
        if (!field) return false;
        lighting[i] = static_cast<std::uint8_t>(*field);
    }
    launcher.keyboard().changeLighting(lighting);
    return true;
}

bool changeLight(Launcher& launcher, Words words) {
    if (words[0] == "all") return changeAllLighting(launcher, words.subspan(1));
    const auto value = byte(words[1]);
    if (!value || words.size() != 2) return false;
    VirtualKeyboard& keyboard = launcher.keyboard();
    if (words[0] == "mode")
        keyboard.changeMode(*value);
    else if (words[0] == "brightness")
        keyboard.changeBrightness(*value);
    else if (words[0] == "speed")
        keyboard.changeSpeed(*value);
    else
        return false;
    return true;
}

bool lock(Launcher& launcher, Words words) {
    const auto on = number(words[1], 1);
    if (!on) return false;
    if (words[0] == "win")
        launcher.keyboard().lockWindowsKey(*on == 1);
    else if (words[0] == "all")
        launcher.keyboard().lockAllKeys(*on == 1);
    else
        return false;
    return true;
}

bool record(Launcher& launcher, Words words) {
    const auto gKey = counted(words[0], 6);
    const auto macro = recording(words.subspan(1));
    if (gKey && macro) launcher.keyboard().recordMacro(*gKey, macro->steps, macro->loopCount);
    return gKey && macro;
}

bool seed(Launcher& launcher, Words words) {
    const auto profile = counted(words[0], VirtualKeyboard::profileCount);
    const auto gKey = counted(words[1], 6);
    const auto steps = recording(words.subspan(3));
    if (!profile || !gKey || !steps || words[2].size() > KeyboardMacro::nameLength) return false;
    KeyboardProfile& held = launcher.keyboard().profiles[*profile - 1u];
    KeyboardMacro& macro = held.macros[*gKey - 1u];
    macro = {};
    if (words[2] != "-") macro.name = words[2];
    macro.loopCount = steps->loopCount;
    macro.stepCount = static_cast<std::uint8_t>(steps->steps.size() / macroReport::stepLength);
    std::copy(steps->steps.begin(), steps->steps.end(), macro.steps.begin());
    constexpr std::array<std::uint8_t, 3> macroValue{0x01, 0x00, 0x00};
    std::copy(macroValue.begin(), macroValue.end(),
              held.gKeys.begin() + (*gKey - 1) * static_cast<std::ptrdiff_t>(macroValue.size()));
    return true;
}

bool launchProgram(Launcher& launcher, Words words) {
    const auto gKey = counted(words[0], 6);
    if (gKey) launcher.keyboard().pressGKey(*gKey);
    return gKey.has_value();
}

bool fail(Launcher& launcher, Words words) {
    VirtualKeyboard& keyboard = launcher.keyboard();
    if (words[0] == "all" || words[0] == "none") {
        keyboard.forgetFaults();
        keyboard.failEveryRequest(words[0] == "all");
        return true;
    }
    const auto count = number(words[0], 1000);
    for (unsigned i = 0; count && i < *count; ++i)
        keyboard.failRequest(i);
    return count.has_value();
}

bool delay(Launcher& launcher, Words words) {
    const auto time = number(words[0], 60000);
    const auto count = words.size() > 1 ? number(words[1], 1000) : 1u;
    if (!time || !count) return false;
    for (unsigned i = 0; i < *count; ++i)
        launcher.keyboard().delayRequest(i, Milliseconds(*time));
    return true;
}

bool vanish(Launcher& launcher, Words words) {
    const auto count = number(words[0], 1000);
    if (count) launcher.unplugAtRequest(*count);
    return count.has_value();
}

bool plug(Launcher& launcher, Words) {
    return launcher.plugKeyboard();
}

bool unplug(Launcher& launcher, Words) {
    launcher.unplugKeyboard();
    return true;
}

bool mouse(Launcher& launcher, Words words) {
    if (words[0] == "in") return launcher.plugMouse();
    if (words[0] != "out") return false;
    launcher.unplugMouse();
    return true;
}

std::string hexBytes(std::span<const std::uint8_t> bytes) {
    std::string text;
    for (const std::uint8_t each : bytes)
        appendHexByte(text.append(1, ' '), each);
    return text;
}

void showMacro(Launcher& launcher, const std::string& place, const KeyboardMacro& macro) {
    if (macro == KeyboardMacro{}) return;
    const std::size_t length =
        std::min<std::size_t>(macro.steps.size(), macro.stepCount * macroReport::stepLength);
    launcher.print(place + ' ' + (macro.name ? '"' + *macro.name + '"' : "unnamed") + " loops " +
                   toText(macro.loopCount) + " steps " + toText(macro.stepCount) + ':' +
                   hexBytes(std::span(macro.steps).first(length)));
}

bool show(Launcher& launcher, Words) {
    const VirtualKeyboard& keyboard = launcher.keyboard();
    launcher.print("active profile " + toText(keyboard.activeProfile + 1));
    for (std::size_t p = 0; p < keyboard.profiles.size(); ++p) {
        const KeyboardProfile& profile = keyboard.profiles[p];
        const std::string name = "profile " + toText(static_cast<int>(p) + 1);
        launcher.print(name + " lighting" + hexBytes(profile.lighting));
        launcher.print(name + " keys" + hexBytes(profile.keyCodes));
        launcher.print(name + " G-keys" + hexBytes(profile.gKeys));
        for (std::size_t g = 0; g < profile.macros.size(); ++g)
            showMacro(launcher, name + " macro G" + toText(static_cast<int>(g) + 1), profile.macros[g]);
    }
    return true;
}

bool quit(Launcher& launcher, Words) {
    launcher.quit();
    return true;
}

bool help(Launcher& launcher, Words);

struct Command {
    std::string_view name;
    std::size_t words; ///< that must follow, at least
    std::string_view usage;
    bool (*run)(Launcher&, Words);
};

constexpr std::array<Command, 17> commands{{
    {"emit", 2, "CODE VALUE: sends any event report", emitEvent},
    {"profile", 1, "N: switches to profile 1 to 3 on the keyboard", pressProfile},
    {"light", 2, "mode|brightness|speed N, or all B4 B5 B6 B7 (hex): changes the lighting on the keyboard",
     changeLight},
    {"lock", 2, "win|all 0|1: locks keys on the keyboard", lock},
    {"record", 1, "G [xLOOPS] CODE:PARAMETER... (hex): records on G-key 1 to 6 of the active profile",
     record},
    {"seed", 3, "PROFILE G NAME [xLOOPS] CODE:PARAMETER...: what the keyboard holds; no name with -", seed},
    {"launch", 1, "G: presses a G-key that launches a program", launchProgram},
    {"fail", 1, "N|all|none: refuses the next N requests, all, or no more", fail},
    {"delay", 1, "MS [N]: takes its time for the next N requests", delay},
    {"vanish", 1, "N: is unplugged at the request that follows N others", vanish},
    {"plug", 0, ": plugs the keyboard in", plug},
    {"unplug", 0, ": unplugs the keyboard", unplug},
    {"mouse", 1, "in|out: plugs another HID device in or out", mouse},
    {"show", 0, ": what the keyboard holds", show},
    {"wait", 1, "MS: holds back the commands that follow", nullptr},
    {"help", 0, ": this list", help},
    {"quit", 0, ": ends the program and the launcher", quit},
}};

bool help(Launcher& launcher, Words) {
    for (const Command& command : commands)
        launcher.print(std::string(command.name) + ' ' + std::string(command.usage));
    return true;
}

std::vector<std::string> split(const std::string& line) {
    std::vector<std::string> words;
    constexpr const char* blanks = " \t\r";
    for (std::size_t start = 0; (start = line.find_first_not_of(blanks, start)) != std::string::npos;) {
        const std::size_t end = std::min(line.find_first_of(blanks, start), line.size());
        words.push_back(line.substr(start, end - start));
        start = end;
    }
    return words;
}

} // namespace

void CommandQueue::add(const std::string& line) {
    m_lines.push_back(line);
    if (m_started) run();
}

void CommandQueue::start() {
    m_started = true;
    run();
}

bool CommandQueue::execute(const std::string& line) {
    const std::vector<std::string> words = split(line);
    if (words.empty()) return false;
    const auto* const found = std::find_if(commands.begin(), commands.end(),
                                           [&](const Command& each) { return each.name == words[0]; });
    if (found == commands.end() || words.size() <= found->words) return false;
    const Words arguments = Words(words).subspan(1);
    return found->run != nullptr ? found->run(m_launcher, arguments) : hold(arguments[0]);
}

bool CommandQueue::hold(const std::string& time) {
    const auto milliseconds = number(time, 3600000);
    if (!milliseconds) return false;
    m_waiting = true;
    m_wait = GlibSource::every(Milliseconds(*milliseconds), [this] {
        m_waiting = false;
        run();
        return false;
    });
    return true;
}

void CommandQueue::run() {
    while (!m_waiting && !m_lines.empty()) {
        const std::string line = std::move(m_lines.front());
        m_lines.pop_front();
        // Empty lines and remarks make command files readable.
        const std::size_t first = line.find_first_not_of(" \t\r");
        if (first == std::string::npos || line[first] == '#') continue;
        m_launcher.print(execute(line) ? "ok " + line : "error: " + line);
    }
}

} // namespace tarnix
