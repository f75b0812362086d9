#include <gmock/gmock.h>

#include "macro_manager/manager_layout.h"
#include "main_window_bench.h"
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
    static const std::string& textOf(const CDlgBase& notice) {
        return notice.control<CStaticText>(dialog::notice::message)->m_strLabel;
    }
    /// The text of the notice that the work shows, which is then answered.
    std::string noticeOf(const std::function<void()>& work) {
        std::string text;
        answered(work, [&text](CDlgBase& notice) {
            text = textOf(notice);
            notice.OnKey({KeyPress::Key::Enter, true});
        });
        return text;
    }
    /// With the first of these macros selected.
    void addMacros(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            AddMacroKey(set(), name);
        list().SelectSet(0);
        window->send(id::macroList, 0, NOTIFY_CLICK);
    }
    /// Types a name for a new macro into its field.
    void enterName(const std::string& name) {
        if (!list().isEditing()) click(id::macroButton1);
        EXPECT_TRUE(testing::hasKeyboard(*window));
        testing::tapKey("ctrl+a");
        testing::typeText(name);
        EXPECT_TRUE(runUntil([&] { return list().editorText() == name; }));
    }
    bool isDisabled(unsigned control) const { return window->GetControl(control)->m_bDisabled; }
    CImageShowList& steps() { return *window->control<CImageShowList>(id::actionList); }
    CEditShowList& list() { return *window->control<CEditShowList>(id::macroList); }
    MacroSet& set() { return macros.sets[0]; }
};

TEST_F(MacroPage, ALoopCountOutsideItsRangeBecomesOne) {
    addMacros({"Tap"});
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

    window->link().pending().m_bMacroLibraryChanged = false;
    click(id::loopCheck);
    EXPECT_EQ(set().keys[0].loopEnable, 0U);
    EXPECT_TRUE(window->link().pending().m_bMacroLibraryChanged);
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
    EXPECT_FALSE(isDisabled(id::macroButton1) || window->control<CCheckButton>(id::recordSwitch)->m_bChecked);
    addMacros({"Tap", "Roll"});
    list().m_nSelected = 1;
    window->send(id::macroList, 0, NOTIFY_CLICK);
    click(save);
    click(import);
    EXPECT_THAT(changes(), ElementsAre()) << "cancelled";
    EXPECT_EQ(shell.asked, Journal(2, ".mkf mkf file(*.mkf)|*.mkf mkf"));
    shell.nextFile = "/home/x.mkf";
    EXPECT_EQ(noticeAt(import), "The Import file is error!");
    set().keys[1].loopCount = 9;
    set().keys[1].loopEnable = 0;
    click(save);
    EXPECT_THAT(changes(), ElementsAre("replace /home/x.mkf"));
    set().keys[1].loopCount = 1;
    click(import);
    EXPECT_EQ(set().keys[1].loopCount, 9);
    EXPECT_FALSE(window->control<CCheckButton>(id::loopCheck)->m_bChecked);
    EXPECT_EQ(set().keys[0].loopCount, 1);
    EXPECT_THAT(changes(), ElementsAre("replace " + file("MacroLibraryFile.mlf")));

    *store.GetGKeySlot(2, 0) = {"Roll", "", keyAssignment(FunctionType::Macro)};
    EXPECT_EQ(noticeAt(id::macroButton2), "The Macro which want to delete is using,can't delete it!");

    EXPECT_EQ(steps().shownMacro(), 1);
    answered([&] { window->send(msg::runMacroManager, 0, 1); },
             [](CDlgBase& dialog) { clickControl(dialog, manager::okButton); });
    EXPECT_EQ(steps().shownMacro(), -1) << "the manager has left a library without macros";
}

TEST_F(MacroPage, ANameIsCheckedAndTheListAloneLeavesARefusedOneForCorrection) {
    addMacros({"Roll"});
    const std::function<void()> enter = [&] { EXPECT_TRUE(window->OnKey({KeyPress::Key::Enter, true})); };
    const std::function<void()> escape = [&] { EXPECT_TRUE(window->OnKey({KeyPress::Key::Escape, true})); };
    const std::function<void()> elsewhere = [&] { click(id::delayCheck); };
    const std::function<void()> inList = [&] { click(id::macroList); };
    const auto check = [&](const std::string& name, const std::function<void()>& end,
                           const std::string& notice, bool stays = false) {
        enterName(name);
        EXPECT_EQ(noticeOf(end), notice) << name;
        EXPECT_EQ(list().isEditing() && list().editorText() == name, stays) << name;
    };
    const std::string comma = "\xA3\xAC";
    for (const auto& end : {enter, elsewhere}) {
        check("Roll", end, "The macro is existen" + comma + "please new it again!");
        check("ThirteenChars", end, "The lengh of name exceed 12" + comma + "please new it again!");
    }
    check("Roll", inList, "The Macro is existent,please rename it!", true);
    check("ThirteenChars", inList, "The lengh of name is exceed 12,please new it again!", true);
    check("dropped", escape, "");
    check("", elsewhere, "");
    check("Enter", enter, "");
    check("Twelve chars", elsewhere, "");
    check("Twelve in it", inList, "");
    EXPECT_TRUE(window->isVisible()) << "Escape closed the field alone";
    const auto named = [](const char* name) { return ::testing::Field(&MacroKey::name, name); };
    EXPECT_THAT(set().keys,
                ElementsAre(named("Roll"), named("Enter"), named("Twelve chars"), named("Twelve in it")));
    EXPECT_EQ(changes(), Journal(3, "replace " + file("MacroLibraryFile.mlf")));
    enterName("kept");
    click(id::macroButton2);
    EXPECT_EQ(list().editorText(), "kept") << "a macro is deleted beside it";
    EXPECT_EQ(set().keys.size(), 3U);
    EXPECT_EQ(list().m_nSelected, -1) << "a second click deletes no other";
}

TEST_F(MacroPage, ANoticeThatOpensInAPressTakesItsReleaseAndTheNextClickWorks) {
    addMacros({"Roll"});
    const auto press = [&](Point client) {
        EXPECT_TRUE(testing::hasKeyboard(*window));
        testing::click(window->toScreen(Rect::at(client.x, client.y, 0, 0)).topLeft());
    };
    const auto placeOf = [&](unsigned control) { return window->GetControl(control)->GetRect().inset(5); };
    const auto pressAndDismiss = [&](unsigned control) {
        enterName("Roll");
        bool dismissed = false;
        const auto work = [&] {
            press(placeOf(control).topLeft());
            EXPECT_TRUE(runUntil([&] { return dismissed; }));
        };
        EXPECT_TRUE(answered(work, [&](CDlgBase& notice) {
            EXPECT_TRUE(testing::hasKeyboard(notice));
            testing::tapKey("Escape");
            dismissed = endsByItself(notice);
        }));
        testing::settle();
    };
    pressAndDismiss(id::macroButton1);
    EXPECT_FALSE(list().isEditing()) << "the button was not clicked";
    press(centreOf(placeOf(id::macroButton1))); // elsewhere on it: no double click
    EXPECT_TRUE(runUntil([&] { return list().isEditing(); }));
    pressAndDismiss(id::macroList);
    press(centreOf(placeOf(id::macroButton2)));
    EXPECT_TRUE(runUntil([&] { return set().keys.empty(); })) << "deleted";
}

TEST_F(MacroPage, ListsScrollByWheelAndBarAsFarAsTheirRowsGo) {
    addMacros(std::vector<std::string>(30, "M"));
    window->OnMouseMove(0, centreOf(list().GetRect()));
    for (const auto& [delta, first] : {std::pair{120, 0}, {-120, 1}, {-120, 2}, {120, 1}}) {
        window->OnMouseWheel(delta, {});
        EXPECT_EQ(list().m_nFirstRow, first);
    }
    using Bar = CVScrollBar;
    const int rows = list().m_nVisibleRows;
    const int last = 30 - rows;
    const std::pair<unsigned, int> presses[] = {{Bar::partDown, 2},      {Bar::partBelow, 2 + rows},
                                                {Bar::partBelow, last},  {Bar::partDown, last},
                                                {Bar::partUp, last - 1}, {Bar::partAbove, last - 1 - rows}};
    for (const auto& [part, first] : presses) {
        window->send(id::macroScrollBar, part, NOTIFY_DOWN);
        EXPECT_EQ(list().m_nFirstRow, first);
    }
    window->control<Bar>(id::macroScrollBar)->SetScrollState(3, rows, 30);
    window->send(id::macroScrollBar, Bar::partThumb, NOTIFY_DOWN);
    EXPECT_EQ(list().m_nFirstRow, last - 1 - rows);
    window->send(id::macroScrollBar, 0, NOTIFY_DRAG);
    EXPECT_EQ(list().m_nFirstRow, 3);
    EXPECT_EQ(steps().m_nFirstRow, 0);
    click(id::macroButton1);
    window->OnKey({KeyPress::Key::Escape, true});
    EXPECT_EQ(list().m_nFirstRow, last) << "no line is left for the name";
}

TEST_F(MacroPage, RecordingReplacesTheMacroWithTheOtherControlsDisabled) {
    addMacros({"Tap"});
    AppendAction(set().keys[0], MacroAction::key(0x5A, false));
    click(id::recordSwitch);
    EXPECT_EQ(set().keys[0].actionCount, 0U);
    EXPECT_TRUE(isDisabled(id::macroButton1) && isDisabled(id::macroList) && isDisabled(id::actionScrollBar));
    click(id::delayCheck);
    for (unsigned i = 0; i < 10; ++i)
        hookEvent(*window, 0x41 + i, 100 * i);
    EXPECT_EQ(steps().m_nFirstRow, 19 - steps().m_nVisibleRows) << "the last action is shown";
    EXPECT_THAT(changes(), ElementsAre());
    click(id::recordSwitch);
    EXPECT_THAT(changes(), ElementsAre("replace " + file("MacroLibraryFile.mlf")));
    EXPECT_FALSE(isDisabled(id::macroButton1) || isDisabled(id::macroList) || isDisabled(id::delayCheck));
    EXPECT_THAT(
        set().keys[0].usedActions().first(3),
        ElementsAre(MacroAction::key(0x41, false), MacroAction::delay(100), MacroAction::key(0x42, false)));
}

TEST_F(MacroPage, AFullMacroEndsItsRecordingBeforeTheNotice) {
    addMacros({"Tap"});
    click(id::recordSwitch);
    for (unsigned i = 0; i < 100; ++i)
        hookEvent(*window, 0x41 + i % 2, i);
    EXPECT_TRUE(answered([&] { hookEvent(*window, 0x5A, 1000); },
                         [&](CDlgBase& notice) {
                             EXPECT_EQ(textOf(notice), "The number of action if full!");
                             EXPECT_FALSE(isDisabled(id::macroButton1));
                             EXPECT_THAT(changes(), ElementsAre("replace " + file("MacroLibraryFile.mlf")));
                             notice.OnKey({KeyPress::Key::Enter, true});
                         }));
    EXPECT_EQ(noticeOf([&] { hookEvent(*window, 0x5B, 1001); }), "") << "a straggler brings no second notice";
    EXPECT_EQ(set().keys[0].actionCount, 100U);
    enterName("keys work again");
}

} // namespace
} // namespace tarnix
