#include "macro/macro_recorder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tarnix {
namespace {

/// Plays a script into a recorder and tells what came of it.
///     41 down, 41 up      a message of the hook for that virtual key
///     5 ms                time passes
///     pairs N T           N times: press and T ms later release of 41, then T ms
class Player {
  public:
    Player(const RecordingRules& rules, bool delays) : m_recorder(rules), m_delays(delays) {
        m_recorder.start(macro);
    }

    Player& play(const std::string& script) {
        std::istringstream lines(script);
        for (std::string line; std::getline(lines, line, '/');)
            step(line);
        return *this;
    }

    /// The actions as text, e.g. "41 down, 5, 41 up".
    std::string actions() const {
        std::ostringstream text;
        for (const MacroAction& action : macro.usedActions()) {
            if (text.tellp() > 0) text << ", ";
            if (action.isDelay()) {
                text << action.milliseconds();
            } else {
                text << std::hex << int{action.virtualKey()} << std::dec
                     << (action.isRelease() ? " up" : " down");
            }
        }
        return text.str();
    }

    MacroKey macro;
    MacroRecorder::Answer last;
    std::uint32_t now = 1000;

  private:
    void step(const std::string& line) {
        std::istringstream words(line);
        std::string first, second;
        words >> first >> second;
        if (second == "ms") {
            now += static_cast<std::uint32_t>(std::stoul(first));
        } else if (first == "pairs") {
            std::string time;
            words >> time;
            const std::string pair = "41 down / " + time + " ms / 41 up / " + time + " ms";
            for (int i = 0; i < std::stoi(second); ++i)
                play(pair);
        } else {
            const std::uint32_t stamp = (now & 0x7FFFFFFF) | (second == "up" ? 0x80000000 : 0);
            last = m_recorder.record(&macro, std::stoul(first, nullptr, 16), static_cast<std::int32_t>(stamp),
                                     m_delays);
        }
    }

    MacroRecorder m_recorder;
    bool m_delays;
};

TEST(MacroRecorder, RepeatsAndMouseButtonsAreLeftOut) {
    Player page(macroPageRecording, false);
    page.play("40 down / 30 ms / 40 down / 40 down / 41 down / 41 up / 41 up / 40 up / 40 down");
    EXPECT_EQ(page.actions(), "40 down, 41 down, 41 up, 40 up, 40 down");
    EXPECT_EQ(page.macro.commandCount, 5);
    EXPECT_FALSE(page.play("7 down").last.taken);
    EXPECT_FALSE(page.play("1 up").last.taken);
    EXPECT_TRUE(page.play("8 down").last.taken);
    EXPECT_TRUE(page.play("141 up").last.taken) << "the low byte is the key";
    EXPECT_EQ(page.actions(), "40 down, 41 down, 41 up, 40 up, 40 down, 8 down, 41 up");

    MacroRecorder none(macroPageRecording);
    EXPECT_FALSE(none.record(nullptr, 0x41, 5, true).taken);
}

TEST(MacroRecorder, DelaysStandBeforeAllKeysButTheFirstAndCountFrom1016Ms) {
    Player page(macroPageRecording, true);
    page.play("40 down / 0 ms / 41 down / 1015 ms / 41 up / 1016 ms / 40 up");
    EXPECT_EQ(page.actions(), "40 down, 0, 41 down, 1015, 41 up, 1016, 40 up");
    EXPECT_EQ(page.macro.commandCount, 5);
}

TEST(MacroRecorder, LongPausesAreCutAtEachPlacesLimit) {
    const std::string script = "40 down / 65535 ms / 40 up / 120000 ms / 40 down / 20000000 ms / 40 up";
    EXPECT_EQ(Player(macroPageRecording, true).play(script).actions(),
              "40 down, 65535, 40 up, 65535, 40 down, 65535, 40 up");
    EXPECT_EQ(Player(managerRecording, true).play(script).actions(),
              "40 down, 65535, 40 up, 120000, 40 down, 16777215, 40 up");
}

TEST(MacroRecorder, TimeThatRunsOverGivesTheTrueDelay) {
    Player page(macroPageRecording, true);
    page.now = 0x7FFFFFFA;
    EXPECT_EQ(page.play("40 down / 10 ms / 40 up").actions(), "40 down, 10, 40 up");
}

TEST(MacroRecorder, FullMacroOnThePageSaysWhichWayItIsFull) {
    Player plain(macroPageRecording, false);
    plain.play("pairs 50 1");
    EXPECT_EQ(plain.last.fullNotice, "");
    plain.play("41 down");
    EXPECT_EQ(plain.last.fullNotice, "The number of action if full!");
    EXPECT_TRUE(plain.last.taken);
    EXPECT_EQ(plain.macro.actionCount, 100u);

    Player slow(macroPageRecording, true);
    slow.play("pairs 25 2000");
    EXPECT_EQ(slow.macro.commandCount, 99);
    EXPECT_EQ(slow.play("41 down").last.fullNotice, "The number of action is full!");
    EXPECT_EQ(slow.macro.actionCount, 99u);
    EXPECT_EQ(slow.play("5 ms / 41 up").last.fullNotice, "") << "a short one still fits";
    EXPECT_EQ(slow.macro.commandCount, 100);
    EXPECT_EQ(slow.play("5 ms / 41 down").last.fullNotice, "The Number of Action is full!");
}

TEST(MacroRecorder, ManagerCountsNothingAndStopsSilentlyAt200Actions) {
    Player manager(managerRecording, false);
    manager.macro.commandCount = 42;
    manager.play("pairs 100 1");
    EXPECT_EQ(manager.macro.actionCount, 200u);
    EXPECT_EQ(manager.play("42 down").last.fullNotice, "");
    EXPECT_EQ(manager.macro.actionCount, 200u);
    EXPECT_EQ(manager.macro.commandCount, 42);

    Player delayed(managerRecording, true);
    delayed.play("pairs 200 3");
    EXPECT_EQ(delayed.macro.actionCount, 200u);
    EXPECT_TRUE(delayed.macro.actions[199].isDelay()) << "the key after the last delay had no room";
}

TEST(MacroRecorder, NewRecordingEmptiesTheMacroAndForgetsTheLastKey) {
    MacroRecorder recorder(macroPageRecording);
    MacroKey macro;
    recorder.start(macro);
    recorder.record(&macro, 0x41, 5, true);
    recorder.start(macro);
    EXPECT_EQ(macro.actionCount, 0u);
    EXPECT_EQ(macro.commandCount, 0);
    EXPECT_TRUE(recorder.record(&macro, 0x41, 6, true).taken);

    recorder.start(macro);
    macro.commandCount = 100;
    EXPECT_EQ(recorder.record(&macro, 0x41, 7, true).fullNotice, "")
        << "the first key is not counted against the limit";
    EXPECT_EQ(macro.actionCount, 1u);

    MacroRecorder managers(managerRecording);
    macro.commandCount = 7;
    managers.start(macro);
    EXPECT_EQ(macro.actionCount, 0u);
    EXPECT_EQ(macro.commandCount, 7);
}

} // namespace
} // namespace tarnix
