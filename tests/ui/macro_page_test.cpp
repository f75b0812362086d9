#include <gmock/gmock.h>

#include "main_window_bench.h"
#include "platform/edit_field.h"
#include "ui/notices.h"

namespace tarnix {
namespace {

using tarnix::testing::runUntil;
using tarnix::testing::settle;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MacroPage : public ::testing::Test {
  public:
    /// Runs a scenario on the macro page.
    void run(const std::function<void()>& scenario) {
        bench.run([&] {
            g_nMainPage = 1;
            bench.window->send(id::macroPageTab, 0, NOTIFY_CLICK);
            scenario();
        });
    }
    /// True when the work shows a notice, which is then answered.
    bool raisesNotice(const std::function<void()>& work) {
        return bench.answered(work, [] { testing::tapKey("Return"); });
    }
    void addMacro(const std::string& name) {
        bench.click(id::macroButton1);
        bench.awaitKeyboard();
        testing::typeText(name);
        EXPECT_TRUE(runUntil([&] { return list().editorText() == name; }));
    }
    CEditShowList& list() { return *bench.window->control<CEditShowList>(id::macroList); }
    MacroSet& set() { return bench.macros.sets[0]; }

    MainWindowBench bench;
};

TEST_F(MacroPage, ANameIsCommittedByEnterAndSavedAtOnce) {
    run([&] {
        addMacro("Tap");
        bench.changes();
        testing::tapKey("Return");
        EXPECT_TRUE(runUntil([&] { return !list().isEditing(); }));
        ASSERT_EQ(set().keys.size(), 1U);
        EXPECT_EQ(set().keys[0].name, "Tap");
        EXPECT_THAT(bench.changes(), ElementsAre("replace " + bench.file("MacroLibraryFile.mlf")));
        EXPECT_TRUE(bench.window->exists());

        for (const char* refused : {"Tap", "AName13Bytes!"}) {
            addMacro(refused);
            EXPECT_TRUE(raisesNotice([&] { clickAt(*bench.window, {600, 230}); })) << refused;
            EXPECT_FALSE(list().isEditing());
        }
        EXPECT_EQ(set().keys.size(), 1U);
    });
}

TEST_F(MacroPage, AMacroThatAGKeyPlaysCannotBeDeleted) {
    run([&] {
        AddMacroKey(set(), "Used");
        AddMacroKey(set(), "Free");
        bench.store.SetGKeyName(1, 0, "Used");
        bench.store.GetGKeySlot(1, 0)->Value = {1, 0, 0};
        list().SelectSet(0);
        EXPECT_TRUE(raisesNotice([&] { bench.click(id::macroButton2); }));
        EXPECT_EQ(set().keys.size(), 2U);
        list().m_nSelected = 1;
        bench.click(id::macroButton2);
        ASSERT_EQ(set().keys.size(), 1U);
        EXPECT_EQ(set().keys[0].name, "Used");
        EXPECT_TRUE(raisesNotice([&] { bench.click(id::macroButton2); })) << "nothing is selected any more";
    });
}

TEST_F(MacroPage, ALoopCountOutsideItsRangeBecomesOne) {
    run([&] {
        AddMacroKey(set(), "Tap");
        list().SelectSet(0);
        bench.window->send(id::macroList, 0, NOTIFY_CLICK);
        const Rect window = bench.window->screenRect();
        testing::click({window.left + loopCountFieldRect.left + 5, window.top + loopCountFieldRect.top + 11});
        testing::tapKey("ctrl+a");
        testing::typeText("255");
        EXPECT_TRUE(runUntil([&] { return set().keys[0].loopCount == 255; }));
        EXPECT_TRUE(bench.window->link().pending().m_bMacroLibraryChanged);
        // What the program writes into the field raises no notice; the change that is told after it does.
        set().keys[0].loopCount = 0;
        bench.window->send(id::macroList, 0, NOTIFY_CLICK);
        EXPECT_EQ(set().keys[0].loopCount, 0);
        EXPECT_TRUE(raisesNotice([&] { bench.window->OnEditChange(id::loopCountField); }));
        EXPECT_EQ(set().keys[0].loopCount, 1);

        bench.click(id::loopCheck);
        EXPECT_EQ(set().keys[0].loopEnable, 0U);
    });
}

TEST_F(MacroPage, AMacroRecordedOnTheKeyboardAppears) {
    run([&] {
        const std::uint8_t keyA[] = {0x04, 0x00, 0x04, 0x80};
        bench.keyboard.recordMacro(2, keyA);
        EXPECT_TRUE(runUntil([&] { return !set().keys.empty(); }));
        EXPECT_EQ(bench.store.GetGKeyName(0, 1), set().keys[0].name);
        list().SelectSet(0);
        bench.window->send(id::macroList, 0, NOTIFY_CLICK);
        EXPECT_EQ(bench.window->control<CImageShowList>(id::actionList)->rowCount(), 2);
    });
}

} // namespace
} // namespace tarnix
