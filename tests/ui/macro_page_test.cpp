#include <gmock/gmock.h>

#include "macro_manager/manager_layout.h"
#include "main_window_bench.h"
#include "platform/edit_field.h"
#include "skin/static_text.h"
#include "ui/dialog_layouts.h"

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
    /// The text of the notice that the work shows, which is then answered.
    std::string noticeOf(const std::function<void()>& work) {
        std::string text;
        bench.answered(work, [&text](CDlgBase& notice) {
            text = notice.control<CStaticText>(dialog::notice::message)->m_strLabel;
            notice.OnKey({KeyPress::Key::Enter, true});
        });
        return text;
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

TEST_F(MacroPage, ALoopCountOutsideItsRangeBecomesOne) {
    run([&] {
        AddMacroKey(set(), "Tap");
        list().SelectSet(0);
        bench.window->send(id::macroList, 0, NOTIFY_CLICK);
        const Rect window = bench.window->screenRect();
        const Point field{window.left + loopCountFieldRect.left + 5,
                          window.top + loopCountFieldRect.top + 11};
        testing::click(field);
        testing::tapKey("ctrl+a");
        testing::typeText("255");
        EXPECT_TRUE(runUntil([&] { return set().keys[0].loopCount == 255; }));
        EXPECT_TRUE(bench.window->link().pending().m_bMacroLibraryChanged);
        // What the program writes into the field raises no notice; the change that is told after it does.
        set().keys[0].loopCount = 0;
        bench.window->send(id::macroList, 0, NOTIFY_CLICK);
        EXPECT_EQ(set().keys[0].loopCount, 0);
        EXPECT_EQ(noticeOf([&] { bench.window->OnEditChange(id::loopCountField); }),
                  "The range of loop times is 1~255\xA3\xACPlease input again!");
        EXPECT_EQ(set().keys[0].loopCount, 1);

        bench.click(id::loopCheck);
        EXPECT_EQ(set().keys[0].loopEnable, 0U);
        for (const unsigned tab : {id::keyPageTab, id::gKeyPageTab, id::lightingPageTab}) {
            bench.window->send(id::macroPageTab, 0, NOTIFY_CLICK);
            testing::click(field);
            bench.window->send(tab, 0, NOTIFY_CLICK);
            testing::typeText("7");
            testing::settle();
            EXPECT_EQ(set().keys[0].loopCount, 1) << "the field is away";
        }
    });
}

TEST_F(MacroPage, MacrosTravelThroughFilesByTheSelectedRow) {
    run([&] {
        const unsigned import = id::macroButton3;
        const unsigned save = id::macroButton4;
        const auto noticeAt = [&](unsigned button) { return noticeOf([&] { bench.click(button); }); };
        EXPECT_EQ(noticeAt(import), "Please select which Macro to import!");
        EXPECT_EQ(noticeAt(save), "Please select which Macro to export!");
        EXPECT_EQ(noticeAt(id::macroButton2), "Please select which Macro to delete!");
        EXPECT_EQ(noticeAt(id::recordSwitch), "Please select the macro which to record!");
        for (const char* name : {"Tap", "Roll"})
            AddMacroKey(set(), name);
        list().SelectSet(0);
        list().m_nSelected = 1;
        bench.window->send(id::macroList, 0, NOTIFY_CLICK);
        bench.click(save);
        bench.click(import);
        EXPECT_THAT(bench.changes(), ElementsAre()) << "cancelled";
        EXPECT_THAT(bench.shell.asked, ::testing::Each(".mkf mkf file(*.mkf)|*.mkf mkf"));
        bench.shell.nextFile = "/home/x.mkf";
        EXPECT_EQ(noticeAt(import), "The Import file is error!");
        set().keys[1].loopCount = 9;
        bench.click(save);
        EXPECT_THAT(bench.changes(), ElementsAre("replace /home/x.mkf"));
        set().keys[1].loopCount = 1;
        bench.click(import);
        EXPECT_EQ(set().keys[1].loopCount, 9);
        EXPECT_EQ(set().keys[0].loopCount, 1);
        EXPECT_THAT(bench.changes(), ElementsAre("replace " + bench.file("MacroLibraryFile.mlf")));

        bench.click(id::recordSwitch);
        bench.window->send(0x401, 0x41, 5);
        EXPECT_THAT(bench.changes(), ElementsAre());
        bench.click(id::recordSwitch);
        EXPECT_THAT(bench.changes(), ElementsAre("replace " + bench.file("MacroLibraryFile.mlf")));
        EXPECT_THAT(set().keys[1].usedActions(), ElementsAre(MacroAction::key(0x41, false)));

        *bench.store.GetGKeySlot(2, 0) = {"Roll", "", keyAssignment(FunctionType::Macro)};
        EXPECT_EQ(noticeAt(id::macroButton2), "The Macro which want to delete is using,can't delete it!");
        const std::pair<const char*, const char*> names[] = {{"Roll",
                                                              "The macro is existen\xA3\xAC"
                                                              "please new it again!"},
                                                             {"ThirteenChars",
                                                              "The lengh of name exceed 12\xA3\xAC"
                                                              "please new it again!"},
                                                             {"New", ""}};
        for (const auto& [name, notice] : names) {
            addMacro(name);
            EXPECT_EQ(noticeOf([&] { bench.window->OnKey({KeyPress::Key::Enter, true}); }), notice);
        }
        EXPECT_EQ(set().keys.size(), 3U);
        EXPECT_THAT(bench.changes(), ElementsAre("replace " + bench.file("MacroLibraryFile.mlf")));

        auto& actions = *bench.window->control<CImageShowList>(id::actionList);
        EXPECT_EQ(actions.shownMacro(), 1);
        bench.answered([&] { bench.window->send(msg::runMacroManager, 0, 1); },
                       [](CDlgBase& dialog) { clickControl(dialog, manager::okButton); });
        EXPECT_EQ(actions.shownMacro(), -1) << "the manager has left a library without macros";
    });
}

} // namespace
} // namespace tarnix
