#include "virtual/keyboard_day.h"

#include <algorithm>
#include <array>

#include "virtual/launcher.h"

namespace tarnix {
namespace {

struct Action {
    int weight;
    void (*act)(Launcher& launcher, int dice);
};

/// A short word typed: code and parameter of each press and release.
constexpr std::array<std::uint8_t, 8> typedWord{0x0B, 0x00, 0x0B, 0x88, 0x0C, 0x06, 0x0C, 0x87};

/// `dice` is 0 to 59.
constexpr std::array<Action, 10> actions{{
    {20, [](Launcher& l, int dice) { l.keyboard().changeBrightness(static_cast<std::uint8_t>(dice % 5)); }},
    {20, [](Launcher& l, int dice) { l.keyboard().changeMode(static_cast<std::uint8_t>(dice % 16)); }},
    {10, [](Launcher& l, int dice) { l.keyboard().changeSpeed(static_cast<std::uint8_t>(dice % 3)); }},
    {20, [](Launcher& l, int dice) { l.keyboard().pressProfile(static_cast<std::uint8_t>(1 + dice % 3)); }},
    {8, [](Launcher& l, int dice) { l.keyboard().lockWindowsKey(dice % 2 == 0); }},
    {4, [](Launcher& l, int dice) { l.keyboard().lockAllKeys(dice % 2 == 0); }},
    {8, [](Launcher& l, int dice) { l.keyboard().pressGKey(static_cast<std::uint8_t>(1 + dice % 6)); }},
    {5, [](Launcher& l,
           int dice) { l.keyboard().recordMacro(static_cast<std::uint8_t>(1 + dice % 6), typedWord); }},
    {3, [](Launcher& l, int) { l.unplugKeyboard(); }},
    {2, [](Launcher& l, int dice) { dice % 2 == 0 ? static_cast<void>(l.plugMouse()) : l.unplugMouse(); }},
}};

} // namespace

KeyboardDay::KeyboardDay(Launcher& launcher, Milliseconds pause) : m_launcher(launcher), m_pause(pause) {
    schedule();
}

int KeyboardDay::roll(int sides) {
    return static_cast<int>(m_dice() % static_cast<unsigned>(sides));
}

void KeyboardDay::schedule() {
    // A person does several things in a row and then nothing for a while.
    const Milliseconds pause = roll(3) > 0 ? m_pause / 4 : m_pause * 5 / 2;
    m_next = GlibSource::every(std::max(pause, Milliseconds(1)), [this] {
        act();
        return false;
    });
}

void KeyboardDay::act() {
    if (!m_launcher.keyboard().isPluggedIn()) {
        m_launcher.plugKeyboard();
        return schedule();
    }
    int total = 0;
    for (const Action& action : actions)
        total += action.weight;
    int pick = roll(total);
    const int dice = roll(60);
    for (const Action& action : actions) {
        pick -= action.weight;
        if (pick >= 0) continue;
        action.act(m_launcher, dice);
        break;
    }
    schedule();
}

} // namespace tarnix
