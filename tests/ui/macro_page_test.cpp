#include <gmock/gmock.h>

#include "main_window_bench.h"
#include "platform/edit_field.h"

namespace tarnix {
namespace {

using tarnix::testing::runUntil;
using ::testing::ElementsAre;

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

} // namespace
} // namespace tarnix
