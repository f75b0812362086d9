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

class MacroPage : public MainWindowTest {
  protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        g_nMainPage = 1;
        window->send(id::macroPageTab, 0, NOTIFY_CLICK);
    }
    /// The text of the notice that the work shows, which is then answered.
    std::string noticeOf(const std::function<void()>& work) {
        std::string text;
        answered(work, [&text](CDlgBase& notice) {
            text = notice.control<CStaticText>(dialog::notice::message)->m_strLabel;
            notice.OnKey({KeyPress::Key::Enter, true});
        });
        return text;
    }
    void addMacro(const std::string& name) {
        click(id::macroButton1);
        awaitKeyboard();
        testing::typeText(name);
        EXPECT_TRUE(runUntil([&] { return list().editorText() == name; }));
    }
    CEditShowList& list() { return *window->control<CEditShowList>(id::macroList); }
    MacroSet& set() { return macros.sets[0]; }
};

TEST_F(MacroPage, ALoopCountOutsideItsRangeBecomesOne) {
    AddMacroKey(set(), "Tap");
    list().SelectSet(0);
    window->send(id::macroList, 0, NOTIFY_CLICK);
    const Rect place = window->screenRect();
    const Point field{place.left + loopCountFieldRect.left + 5, place.top + loopCountFieldRect.top + 11};
    testing::click(field);
    testing::tapKey("ctrl+a");
    testing::typeText("255");
    EXPECT_TRUE(runUntil([&] { return set().keys[0].loopCount == 255; }));
    EXPECT_TRUE(window->link().pending().m_bMacroLibraryChanged);
    // What the program writes into the field raises no notice; the change that is told after it does.
    set().keys[0].loopCount = 0;
    window->send(id::macroList, 0, NOTIFY_CLICK);
    EXPECT_EQ(set().keys[0].loopCount, 0);
    EXPECT_EQ(noticeOf([&] { window->OnEditChange(id::loopCountField); }),
              "The range of loop times is 1~255\xA3\xACPlease input again!");
    EXPECT_EQ(set().keys[0].loopCount, 1);

    click(id::loopCheck);
    EXPECT_EQ(set().keys[0].loopEnable, 0U);
    for (const unsigned tab : {id::keyPageTab, id::gKeyPageTab, id::lightingPageTab}) {
        window->send(id::macroPageTab, 0, NOTIFY_CLICK);
        testing::click(field);
        testing::settle();
        window->send(tab, 0, NOTIFY_CLICK);
        testing::typeText("7");
        testing::settle();
        EXPECT_EQ(set().keys[0].loopCount, 1) << "the field is away";
    }
}

TEST_F(MacroPage, MacrosTravelThroughFilesByTheSelectedRow) {
    const unsigned import = id::macroButton3;
    const unsigned save = id::macroButton4;
    const auto noticeAt = [&](unsigned button) { return noticeOf([&] { click(button); }); };
    EXPECT_EQ(noticeAt(import), "Please select which Macro to import!");
    EXPECT_EQ(noticeAt(save), "Please select which Macro to export!");
    EXPECT_EQ(noticeAt(id::macroButton2), "Please select which Macro to delete!");
    EXPECT_EQ(noticeAt(id::recordSwitch), "Please select the macro which to record!");
    for (const char* name : {"Tap", "Roll"})
        AddMacroKey(set(), name);
    list().SelectSet(0);
    list().m_nSelected = 1;
    window->send(id::macroList, 0, NOTIFY_CLICK);
    click(save);
    click(import);
    EXPECT_THAT(changes(), ElementsAre()) << "cancelled";
    EXPECT_THAT(shell.asked, ::testing::Each(".mkf mkf file(*.mkf)|*.mkf mkf"));
    shell.nextFile = "/home/x.mkf";
    EXPECT_EQ(noticeAt(import), "The Import file is error!");
    set().keys[1].loopCount = 9;
    click(save);
    EXPECT_THAT(changes(), ElementsAre("replace /home/x.mkf"));
    set().keys[1].loopCount = 1;
    click(import);
    EXPECT_EQ(set().keys[1].loopCount, 9);
    EXPECT_EQ(set().keys[0].loopCount, 1);
    EXPECT_THAT(changes(), ElementsAre("replace " + file("MacroLibraryFile.mlf")));

    click(id::recordSwitch);
    window->send(0x401, 0x41, 5);
    EXPECT_THAT(changes(), ElementsAre());
    click(id::recordSwitch);
    EXPECT_THAT(changes(), ElementsAre("replace " + file("MacroLibraryFile.mlf")));
    EXPECT_THAT(set().keys[1].usedActions(), ElementsAre(MacroAction::key(0x41, false)));

    *store.GetGKeySlot(2, 0) = {"Roll", "", keyAssignment(FunctionType::Macro)};
    EXPECT_EQ(noticeAt(id::macroButton2), "The Macro which want to delete is using,can't delete it!");
    const std::string comma = "\xA3\xAC";
    const std::pair<std::string, std::string> names[] = {
        {"Roll", "The macro is existen" + comma + "please new it again!"},
        {"ThirteenChars", "The lengh of name exceed 12" + comma + "please new it again!"},
        {"New", ""}};
    for (const auto& [name, notice] : names) {
        addMacro(name);
        EXPECT_EQ(noticeOf([&] { window->OnKey({KeyPress::Key::Enter, true}); }), notice);
    }
    EXPECT_EQ(set().keys.size(), 3U);
    EXPECT_THAT(changes(), ElementsAre("replace " + file("MacroLibraryFile.mlf")));

    auto& actions = *window->control<CImageShowList>(id::actionList);
    EXPECT_EQ(actions.shownMacro(), 1);
    answered([&] { window->send(msg::runMacroManager, 0, 1); },
             [](CDlgBase& dialog) { clickControl(dialog, manager::okButton); });
    EXPECT_EQ(actions.shownMacro(), -1) << "the manager has left a library without macros";
}

} // namespace
} // namespace tarnix
