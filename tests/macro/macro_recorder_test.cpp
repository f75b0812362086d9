#include "macro/macro_recorder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tarnix {
namespace {

/// Plays a script of key events and pauses, such as "41 down 5 ms 41 up", into a recorder.
struct Player {
    Player(const RecordingRules& rules, bool recordDelays) : recorder(rules), delays(recordDelays) {
        recorder.start(macro);
    }

    Player& play(const std::string& script, int times = 1) {
        for (int i = 0; i < times; ++i) {
            std::istringstream words(script);
            for (std::string number, what; words >> number >> what;)
                step(number, what);
        }
        return *this;
    }

    /// The actions in the script's words.
    std::string actions() const {
        std::ostringstream text;
        for (const MacroAction& action : macro.usedActions()) {
            if (action.isDelay())
                text << std::dec << action.milliseconds() << " ms ";
            else
                text << std::hex << int{action.virtualKey()} << (action.isRelease() ? " up " : " down ");
        }
        return text.str();
    }

    void step(const std::string& number, const std::string& what) {
        if (what == "ms") {
            now += static_cast<std::uint32_t>(std::stoul(number));
        } else {
            time = static_cast<std::int32_t>((now & 0x7FFFFFFF) | (what == "up" ? 0x80000000 : 0));
            key = std::stoul(number, nullptr, 16);
            last = recorder.record(&macro, key, time, delays);
        }
    }

    void closeNotice() { recorder.passOver(key, time); }

    MacroRecorder recorder;
    bool delays;
    MacroKey macro;
    MacroRecorder::Answer last;
    std::uint32_t now = 1000;
    std::uintptr_t key = 0;
    std::int32_t time = 0;
};

TEST(MacroRecorder, RepeatsAndMouseButtonsAreLeftOut) {
    Player page(macroPageRecording, false);
    page.play("40 down 30 ms 40 down 40 down 41 down 41 up 41 up 40 up 40 down");
    EXPECT_EQ(page.macro.commandCount, 5);
    EXPECT_FALSE(page.play("7 down").last.taken);
    EXPECT_FALSE(page.play("1 up").last.taken);
    EXPECT_TRUE(page.play("8 down 141 down").last.taken) << "the low byte is the key";
    EXPECT_EQ(page.actions(), "40 down 41 down 41 up 40 up 40 down 8 down 41 down ");
    EXPECT_FALSE(page.recorder.record(nullptr, 0x42, 5, true).taken);
    page.recorder.start(page.macro);
    EXPECT_EQ(page.play("41 down").actions(), "41 down ") << "a new recording repeats nothing";
    EXPECT_EQ(page.macro.commandCount, 1);
}

TEST(MacroRecorder, DelaysStandBeforeAllKeysButTheFirstAndCountFrom1016Ms) {
    Player page(macroPageRecording, true);
    page.now = 0x7FFFFFFA;
    page.play("40 down 0 ms 41 down 1015 ms 41 up 1016 ms 40 up");
    EXPECT_EQ(page.actions(), "40 down 0 ms 41 down 1015 ms 41 up 1016 ms 40 up ")
        << "though the time ran over";
    EXPECT_EQ(page.macro.commandCount, 5);
}

TEST(MacroRecorder, LongPausesAreCutAtEachPlacesLimit) {
    const std::string script = "40 down 65535 ms 40 up 120000 ms 40 down 20000000 ms 40 up ";
    EXPECT_EQ(Player(macroPageRecording, true).play(script).actions(),
              "40 down 65535 ms 40 up 65535 ms 40 down 65535 ms 40 up ");
    EXPECT_EQ(Player(managerRecording, true).play(script).actions(),
              "40 down 65535 ms 40 up 120000 ms 40 down 16777215 ms 40 up ");
}

TEST(MacroRecorder, FullMacroOnThePageSaysWhichWayItIsFull) {
    Player plain(macroPageRecording, false);
    plain.play("41 down 41 up", 50);
    EXPECT_EQ(plain.last.fullNotice, "");
    EXPECT_EQ(plain.play("41 down").last.fullNotice, "The number of action if full!");
    EXPECT_TRUE(plain.last.taken);
    EXPECT_EQ(plain.macro.actionCount, 100u);

    Player slow(macroPageRecording, true);
    slow.play("41 down 2000 ms 41 up 2000 ms", 25);
    EXPECT_EQ(slow.macro.commandCount, 99);
    EXPECT_EQ(slow.play("41 down").last.fullNotice, "The number of action is full!");
    EXPECT_EQ(slow.play("80 ms 42 up").last.fullNotice, "The number of action is full!") << "notice open";
    slow.closeNotice();
    EXPECT_EQ(slow.play("5 ms 41 up").last.fullNotice, "") << "a short one still fits";
    EXPECT_EQ(slow.macro.commandCount, 100);
    EXPECT_EQ(slow.play("5 ms 41 down").last.fullNotice, "The Number of Action is full!");
    EXPECT_EQ(slow.macro.actionCount, 101u);
}

} // namespace
} // namespace tarnix
