#include "macro_manager/macro_editor.h"

#include <gmock/gmock.h>

#include "manager_bench.h"

namespace tarnix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr MacroEditorIds ids{.newMacro = 2100,
                             .deleteMacro = 2101,
                             .macroList = 2109,
                             .actionList = 2114,
                             .macroScrollBar = 2115,
                             .actionScrollBar = 2116,
                             .recordDelays = 2112,
                             .recordSwitch = 2113};

constexpr ControlRow controlRows[] = {
    imageButton(ids.newMacro, Rect::at(0, 120, 40, 20), 0),
    imageButton(ids.deleteMacro, Rect::at(50, 120, 40, 20), 0),
    checkButton(ids.recordDelays, Rect::at(100, 120, 16, 16), 0),
    checkButton(ids.recordSwitch, Rect::at(120, 120, 16, 16), 0),
    scrollBar(ids.macroScrollBar, Rect::at(100, 0, 20, 80)),
    scrollBar(ids.actionScrollBar, Rect::at(230, 0, 20, 80)),
};
constexpr Rect macroRect = Rect::at(0, 0, 100, 80);
constexpr Rect actionRect = Rect::at(130, 0, 100, 80);
constexpr Point elsewhere{300, 150};

/// Tells what the editor asks of its window, in order.
class LoggingEditor : public MacroEditor {
  public:
    using MacroEditor::MacroEditor;

    std::vector<std::string> log;
    std::string protectedName;

  protected:
    void onRefusal(MacroRefusal refusal) override {
        log.push_back("refused " + std::to_string(int(refusal)));
    }
    void onRecordingFull(std::string_view notice) override { log.emplace_back(notice); }
    void onLibraryChanged() override { log.emplace_back("changed"); }
    bool isDeletable(const MacroKey& macro) override { return macro.name != protectedName; }
    void onRecorded() override { log.emplace_back("recorded"); }
    void onRecordingEnded() override { log.emplace_back("ended"); }
};

std::string refused(MacroRefusal refusal) {
    return "refused " + std::to_string(int(refusal));
}

class EditorWindow : public CDlgBase {
  public:
    EditorWindow(MacroLibrary& source, const MacroEditorRules& rules)
        : CDlgBase({.role = "EditorWindow"}, {400, 160}), library(source), editor(*this, source, ids, rules) {
        editor.registerHandlers(m_messages);
    }
    void OnLButtonDown(unsigned flags, Point at) override {
        editor.pressAt(at);
        if (at != elsewhere) CDlgBase::OnLButtonDown(flags, at); // which would start moving the window
    }

    MacroLibrary& library;
    LoggingEditor editor;

  protected:
    void BuildControls(const Rect&) override {
        addControls(0, controlRows);
        addControl(0, std::make_unique<CEditShowList>(*this, ids.macroList, macroRect, library));
        addControl(0, std::make_unique<CImageShowList>(*this, ids.actionList, actionRect, library));
        editor.attach();
        editor.macros().SelectSet(0);
        editor.refresh();
    }
};

/// Opens the name field, types, and does something that commits the name.
void nameMacro(UiScenario& ui, EditorWindow& window, const std::string& name,
               const std::function<void()>& commit) {
    ui.run([&] {
        if (!window.editor.isNaming()) clickControl(window, ids.newMacro);
    });
    if (name.empty()) {
        ui.run(commit);
        return;
    }
    UiScenario::keys("ctrl+a");
    UiScenario::type(name);
    EXPECT_TRUE(ui.until([&] { return window.editor.macros().editorText() == name; })) << name;
    ui.run(commit);
}

TEST(MacroEditor, NamingByAClickElsewhereChecksTheNameOnThePageAndAlwaysClosesTheField) {
    MacroLibrary library = libraryOf("Set", {"Fire"});
    EditorWindow window(library, macroPageRules);
    const auto clickElsewhere = [&] { clickAt(window, elsewhere); };
    playIn(window, [&](UiScenario& ui) {
        for (const char* name : {"Fire", "ThirteenChars", "TwelveChars_", ""}) {
            nameMacro(ui, window, name, clickElsewhere);
            ui.run([&] { EXPECT_FALSE(window.editor.isNaming()) << name; });
        }
    });
    EXPECT_THAT(window.editor.log,
                ElementsAre(refused(MacroRefusal::NameTaken), refused(MacroRefusal::NameTooLong), "changed"));
    EXPECT_THAT(macroNames(library), ElementsAre("Fire", "TwelveChars_"));
}

TEST(MacroEditor, NamingByAClickElsewhereTakesAnyNameInTheManager) {
    MacroLibrary library = libraryOf("Set", {"Fire"});
    EditorWindow window(library, managerRules);
    playIn(window, [&](UiScenario& ui) {
        nameMacro(ui, window, "Fire", [&] { clickAt(window, elsewhere); });
        // The press on the button commits the name, and its release opens the field for the next one.
        nameMacro(ui, window, "ThirteenChars", [&] { clickControl(window, ids.newMacro); });
        ui.run([&] { EXPECT_TRUE(window.editor.isNaming()); });
        nameMacro(ui, window, "dropped", [&] { clickControl(window, ids.deleteMacro); });
        ui.run([&] { EXPECT_FALSE(window.editor.isNaming()); });
    });
    EXPECT_THAT(macroNames(library), ElementsAre("Fire", "ThirteenChars"))
        << "the delete button took the first one";
}

TEST(MacroEditor, ANameThatTheListRefusesStaysInItsFieldForCorrection) {
    MacroLibrary library = libraryOf("Set", {"Fire"});
    EditorWindow window(library, macroPageRules);
    const auto clickList = [&] { clickControl(window, ids.macroList); };
    playIn(window, [&](UiScenario& ui) {
        for (const char* name : {"Fire", "ThirteenChars"}) {
            nameMacro(ui, window, name, clickList);
            ui.run([&] { EXPECT_EQ(window.editor.macros().editorText(), name); });
        }
        nameMacro(ui, window, "kept", [&] { clickControl(window, ids.deleteMacro); });
        ui.run([&] { EXPECT_EQ(window.editor.macros().editorText(), "kept") << "while the page deletes"; });
        nameMacro(ui, window, "Ice", clickList);
        ui.run([&] { EXPECT_FALSE(window.editor.isNaming()); });
    });
    EXPECT_THAT(window.editor.log, ElementsAre(refused(MacroRefusal::ListNameTaken),
                                               refused(MacroRefusal::ListNameTooLong), "changed", "changed"));
    EXPECT_THAT(macroNames(library), ElementsAre("Ice"));
}

TEST(MacroEditor, DeletingSparesAMacroInUseAndNeedsASelection) {
    MacroLibrary library = libraryOf("Set", {"Fire", "Ice"});
    EditorWindow window(library, macroPageRules);
    window.editor.protectedName = "Fire";
    playIn(window, [&](UiScenario& ui) {
        ui.run([&] {
            clickControl(window, ids.deleteMacro);
            clickAt(window, {50, 30});
            EXPECT_EQ(window.editor.shownMacro(), &library.sets[0].keys[1]);
            clickControl(window, ids.deleteMacro);
            EXPECT_EQ(window.editor.shownMacro(), nullptr);
            clickControl(window, ids.deleteMacro);
        });
    });
    EXPECT_THAT(window.editor.log, ElementsAre(refused(MacroRefusal::MacroInUse), "changed",
                                               refused(MacroRefusal::NothingToDelete)));
    EXPECT_THAT(macroNames(library), ElementsAre("Fire"));
}

TEST(MacroEditor, WithoutAnySetNothingOpensAndTheWindowIsTold) {
    MacroLibrary library;
    EditorWindow window(library, macroPageRules);
    playIn(window, [&](UiScenario& ui) {
        ui.run([&] {
            clickControl(window, ids.newMacro);
            EXPECT_FALSE(window.editor.isNaming());
            clickControl(window, ids.recordSwitch);
            EXPECT_FALSE(window.editor.isRecording());
        });
    });
    EXPECT_THAT(window.editor.log,
                ElementsAre(refused(MacroRefusal::NoMacroSet), refused(MacroRefusal::NothingToRecord)));
}

TEST(MacroEditor, RecordingReplacesTheMacroWithAllOtherControlsDisabledUntilTheSwitchGoesOff) {
    MacroLibrary library = libraryOf("Set", {"Fire"});
    MacroKey& macro = library.sets[0].keys[0];
    AppendAction(macro, MacroAction::key(0x5A, false));
    EditorWindow window(library, macroPageRules);
    playIn(window, [&](UiScenario& ui) {
        ui.run([&] {
            clickControl(window, ids.recordSwitch);
            EXPECT_EQ(macro.actionCount, 0U);
            for (const unsigned id : {ids.newMacro, ids.macroList, ids.actionList, ids.actionScrollBar})
                EXPECT_TRUE(window.GetControl(id)->m_bDisabled) << id;
            clickControl(window, ids.recordDelays);
            for (unsigned i = 0; i < 3; ++i)
                hookEvent(window, 0x41 + i, 100 * i);
            EXPECT_EQ(window.editor.actions().m_nFirstRow, 1) << "four rows show the last of five actions";
            clickControl(window, ids.recordSwitch);
            for (const unsigned id : {ids.newMacro, ids.macroList, ids.recordDelays})
                EXPECT_FALSE(window.GetControl(id)->m_bDisabled) << id;
        });
    });
    EXPECT_THAT(macro.usedActions(), ElementsAre(MacroAction::key(0x41, false), MacroAction::delay(100),
                                                 MacroAction::key(0x42, false), MacroAction::delay(100),
                                                 MacroAction::key(0x43, false)));
    EXPECT_THAT(window.editor.log, ElementsAre("recorded", "recorded", "recorded", "ended"));
}

TEST(MacroEditor, AFullMacroEndsItsRecordingOnThePageBeforeTheNotice) {
    MacroLibrary library = libraryOf("Set", {"Fire"});
    EditorWindow window(library, macroPageRules);
    playIn(window, [&](UiScenario& ui) {
        ui.run([&] {
            clickControl(window, ids.recordSwitch);
            for (unsigned i = 0; i < 100; ++i)
                hookEvent(window, 0x41 + i % 2, i);
            window.editor.log.clear();
            hookEvent(window, 0x5A, 1000);
            EXPECT_FALSE(window.editor.isRecording());
            EXPECT_FALSE(window.GetControl(ids.newMacro)->m_bDisabled);
            hookEvent(window, 0x5B, 1001);
        });
    });
    EXPECT_THAT(window.editor.log,
                ElementsAre("ended", "The number of action if full!", "recorded", "recorded"))
        << "a straggler changes nothing and brings no second notice";
    EXPECT_EQ(library.sets[0].keys[0].actionCount, 100U);
}

TEST(MacroEditor, WheelAndScrollBarMoveTheListWithinItsRows) {
    MacroLibrary library = libraryOf("Set", {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"});
    EditorWindow window(library, macroPageRules);
    playIn(window, [&](UiScenario& ui) {
        ui.run([&] {
            int& first = window.editor.macros().m_nFirstRow;
            auto* bar = window.control<CVScrollBar>(ids.macroScrollBar);
            window.editor.onMouseWheel(-120);
            EXPECT_EQ(first, 0) << "the pointer is over neither list";
            window.OnMouseMove(0, {50, 50});
            window.editor.onMouseWheel(120);
            EXPECT_EQ(first, 0);
            window.editor.onMouseWheel(-120);
            EXPECT_EQ(first, 1);
            EXPECT_EQ(bar->position(), 1);
            const auto press = [&](unsigned part) { window.send(ids.macroScrollBar, part, NOTIFY_DOWN); };
            press(CVScrollBar::partBelow);
            EXPECT_EQ(first, 5);
            press(CVScrollBar::partBelow);
            EXPECT_EQ(first, 6) << "ten rows, four on the screen";
            window.editor.onMouseWheel(-120);
            EXPECT_EQ(first, 6);
            press(CVScrollBar::partUp);
            press(CVScrollBar::partThumb);
            EXPECT_EQ(first, 5);
            press(CVScrollBar::partAbove);
            press(CVScrollBar::partAbove);
            EXPECT_EQ(first, 0);
            bar->SetScrollState(3, 4, 10);
            window.send(ids.macroScrollBar, 0, NOTIFY_DRAG);
            EXPECT_EQ(first, 3);
        });
    });
    EXPECT_THAT(window.editor.log, IsEmpty());
}

} // namespace
} // namespace tarnix
