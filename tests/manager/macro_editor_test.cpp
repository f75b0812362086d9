#include "macro_manager/macro_editor.h"

#include <gmock/gmock.h>

#include "manager_bench.h"

namespace tarnix {
namespace {

using ::testing::ElementsAre;

constexpr MacroEditorIds ids{.newMacro = 2100,
                             .deleteMacro = 2101,
                             .macroList = 2109,
                             .actionList = 2114,
                             .macroScrollBar = 2115,
                             .actionScrollBar = 2116,
                             .recordDelays = 2112,
                             .recordSwitch = 2113};

constexpr ControlRow controlRows[] = {
    imageButton(ids.newMacro, Rect::at(0, 120, 40, 20), 0, ""),
    imageButton(ids.deleteMacro, Rect::at(50, 120, 40, 20), 0, ""),
    checkButton(ids.recordDelays, Rect::at(100, 120, 16, 16), 0, ""),
    checkButton(ids.recordSwitch, Rect::at(120, 120, 16, 16), 0, ""),
    scrollBar(ids.macroScrollBar, Rect::at(100, 0, 20, 80), ""),
    scrollBar(ids.actionScrollBar, Rect::at(230, 0, 20, 80), ""),
};
constexpr Rect macroRect = Rect::at(0, 0, 100, 80);
constexpr Rect actionRect = Rect::at(130, 0, 100, 80);
constexpr Point elsewhere{300, 150};

std::string refused(MacroRefusal refusal) {
    return "refused " + std::to_string(static_cast<int>(refusal));
}

/// Notes what the editor asks of its window, in order.
class NotingEditor : public MacroEditor {
  public:
    using MacroEditor::MacroEditor;
    std::vector<std::string> notes;
    std::string protectedName;
    std::function<void()> showNotice; ///< shown with every refusal

  protected:
    void onRefusal(MacroRefusal refusal) override {
        notes.push_back(refused(refusal));
        if (showNotice) showNotice();
    }
    void onRecordingFull(std::string_view notice) override { notes.emplace_back(notice); }
    void onLibraryChanged() override { notes.emplace_back("changed"); }
    bool isDeletable(const MacroKey& macro) override { return macro.name != protectedName; }
    void onRecorded() override { notes.emplace_back("recorded"); }
    void onRecordingEnded() override { notes.emplace_back("ended"); }
};

class EditorWindow : public CDlgBase {
  public:
    EditorWindow(const MacroEditorRules& rules, const std::vector<std::string>& macros)
        : CDlgBase({.role = "EditorWindow"}, {400, 160}),
          library(libraryOf("Set", macros)),
          editor(*this, library, ids, rules) {
        editor.registerHandlers(m_messages);
    }
    void OnLButtonDown(unsigned flags, Point at) override {
        editor.pressAt(at);
        if (at != elsewhere) CDlgBase::OnLButtonDown(flags, at); // which would start moving the window
    }
    bool disabled(unsigned id) const { return GetControl(id)->m_bDisabled; }

    MacroLibrary library;
    NotingEditor editor;

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

class Notice : public CDlgBase {
  public:
    explicit Notice(Window& owner) : CDlgBase({.owner = &owner, .role = "Notice"}, {200, 100}) {}

  protected:
    void BuildControls(const Rect&) override {}
};

/// Opens the name field unless it is open, types the name, does what ends naming, and answers what stands in
/// the field then; "-" when it is closed.
std::string nameMacro(UiScenario& ui, EditorWindow& window, const std::string& name,
                      const std::function<void()>& end) {
    ui.run([&] {
        if (!window.editor.isNaming()) clickControl(window, ids.newMacro);
    });
    if (!name.empty()) {
        EXPECT_TRUE(UiScenario::windowShown("EditorWindow", {400, 160}));
        UiScenario::keys("ctrl+a");
        UiScenario::type(name);
    }
    EXPECT_TRUE(ui.until([&] { return window.editor.macros().editorText() == name; })) << name;
    std::string left;
    ui.run([&] {
        end();
        left = window.editor.isNaming() ? window.editor.macros().editorText() : "-";
    });
    return left;
}

TEST(MacroEditor, NamingByAClickElsewhereChecksTheNameOnThePageButNotInTheManager) {
    EditorWindow page(macroPageRules, {"Fire"});
    playIn(page, [&](UiScenario& ui) {
        for (const char* name : {"Fire", "ThirteenChars", "TwelveChars_", ""})
            EXPECT_EQ(nameMacro(ui, page, name, [&] { clickAt(page, elsewhere); }), "-") << name;
    });
    EXPECT_THAT(page.editor.notes,
                ElementsAre(refused(MacroRefusal::NameTaken), refused(MacroRefusal::NameTooLong), "changed"));
    EXPECT_THAT(macroNames(page.library), ElementsAre("Fire", "TwelveChars_"));

    EditorWindow manager(managerRules, {"Fire"});
    playIn(manager, [&](UiScenario& ui) {
        nameMacro(ui, manager, "Fire", [&] { clickAt(manager, elsewhere); });
        EXPECT_EQ(nameMacro(ui, manager, "ThirteenChars", [&] { clickControl(manager, ids.newMacro); }), "")
            << "the press commits, the release opens the field anew";
        EXPECT_EQ(nameMacro(ui, manager, "dropped", [&] { clickControl(manager, ids.deleteMacro); }), "-");
    });
    EXPECT_THAT(macroNames(manager.library), ElementsAre("Fire", "ThirteenChars"))
        << "the first one was deleted";
}

TEST(MacroEditor, ANameThatTheListRefusesStaysInItsFieldForCorrection) {
    EditorWindow page(macroPageRules, {"Fire"});
    const auto clickList = [&] { clickControl(page, ids.macroList); };
    playIn(page, [&](UiScenario& ui) {
        EXPECT_EQ(nameMacro(ui, page, "Fire", clickList), "Fire");
        EXPECT_EQ(nameMacro(ui, page, "ThirteenChars", clickList), "ThirteenChars");
        EXPECT_EQ(nameMacro(ui, page, "kept", [&] { clickControl(page, ids.deleteMacro); }), "kept");
        EXPECT_EQ(nameMacro(ui, page, "TwelveChars_", clickList), "-");
    });
    EXPECT_THAT(page.editor.notes, ElementsAre(refused(MacroRefusal::ListNameTaken),
                                               refused(MacroRefusal::ListNameTooLong), "changed", "changed"));
    EXPECT_THAT(macroNames(page.library), ElementsAre("TwelveChars_"));
}

TEST(MacroEditor, ANoticeThatOpensInAPressTakesItsReleaseAndTheNextClickWorks) {
    EditorWindow page(macroPageRules, {"Fire"});
    page.editor.showNotice = [&page] { Notice(page).DoModal(); };
    playIn(page, [&](UiScenario& ui) {
        const auto clickAndDismiss = [&](Point at) {
            EXPECT_TRUE(UiScenario::clickWindow("EditorWindow", at));
            EXPECT_TRUE(UiScenario::windowShown("Notice", {200, 100}));
            UiScenario::keys("Escape");
            EXPECT_TRUE(UiScenario::windowShown("EditorWindow", {400, 160}));
        };
        nameMacro(ui, page, "Fire", [] {});
        clickAndDismiss({5, 125});
        EXPECT_TRUE(ui.until([&] { return !page.editor.isNaming(); })) << "the button was not clicked";
        EXPECT_TRUE(UiScenario::clickWindow("EditorWindow", {35, 135}));
        EXPECT_TRUE(ui.until([&] { return page.editor.isNaming(); }));
        nameMacro(ui, page, "Fire", [] {});
        clickAndDismiss({50, 50});
        EXPECT_TRUE(UiScenario::clickWindow("EditorWindow", {70, 130}));
        EXPECT_TRUE(ui.until([&] { return page.library.sets[0].keys.empty(); })) << "deleted";
    });
}

TEST(MacroEditor, SaysWhatItCannotDo) {
    EditorWindow page(macroPageRules, {"Fire", "Ice"});
    page.editor.protectedName = "Ice";
    playIn(page, [&] {
        clickAt(page, {50, 30});
        EXPECT_EQ(page.editor.shownMacro(), &page.library.sets[0].keys[1]);
        clickControl(page, ids.deleteMacro);
        clickAt(page, {50, 10});
        clickControl(page, ids.deleteMacro);
        EXPECT_EQ(page.editor.shownMacro(), nullptr);
        clickControl(page, ids.deleteMacro);
        clickControl(page, ids.recordSwitch);
        EXPECT_FALSE(page.editor.isRecording());
        ClearMacroLibrary(page.library);
        clickControl(page, ids.newMacro);
        EXPECT_FALSE(page.editor.isNaming());
    });
    EXPECT_THAT(
        page.editor.notes,
        ElementsAre(refused(MacroRefusal::MacroInUse), "changed", refused(MacroRefusal::NothingToDelete),
                    refused(MacroRefusal::NothingToRecord), refused(MacroRefusal::NoMacroSet)));
}

TEST(MacroEditor, ListsScrollByWheelAndBarAsFarAsTheirRowsGo) {
    EditorWindow page(macroPageRules, std::vector<std::string>(10, "M"));
    playIn(page, [&] {
        page.OnMouseMove(0, {50, 30});
        for (const auto& [delta, first] : {std::pair{120, 0}, {-120, 1}, {-120, 2}, {120, 1}}) {
            page.editor.onMouseWheel(delta);
            EXPECT_EQ(page.editor.macros().m_nFirstRow, first);
        }
        using Bar = CVScrollBar;
        const std::pair<unsigned, int> presses[] = {{Bar::partDown, 2},  {Bar::partBelow, 6},
                                                    {Bar::partDown, 6},  {Bar::partUp, 5},
                                                    {Bar::partAbove, 1}, {Bar::partThumb, 1}};
        for (const auto& [part, first] : presses) {
            page.send(ids.macroScrollBar, part, NOTIFY_DOWN);
            EXPECT_EQ(page.editor.macros().m_nFirstRow, first);
        }
        page.control<Bar>(ids.macroScrollBar)->SetScrollState(3, 4, 10);
        page.send(ids.macroScrollBar, 0, NOTIFY_DRAG);
        EXPECT_EQ(page.editor.macros().m_nFirstRow, 3);
        EXPECT_EQ(page.editor.actions().m_nFirstRow, 0);
    });
}

TEST(MacroEditor, RecordingReplacesTheMacroWithTheOtherControlsDisabled) {
    EditorWindow page(macroPageRules, {"Fire"});
    MacroKey& macro = page.library.sets[0].keys[0];
    AppendAction(macro, MacroAction::key(0x5A, false));
    playIn(page, [&] {
        clickControl(page, ids.recordSwitch);
        EXPECT_EQ(macro.actionCount, 0U);
        EXPECT_TRUE(page.disabled(ids.newMacro) && page.disabled(ids.macroList) &&
                    page.disabled(ids.actionScrollBar));
        clickControl(page, ids.recordDelays);
        for (unsigned i = 0; i < 3; ++i)
            hookEvent(page, 0x41 + i, 100 * i);
        EXPECT_EQ(page.editor.actions().m_nFirstRow, 1) << "four rows show the last of five actions";
        clickControl(page, ids.recordSwitch);
        EXPECT_FALSE(page.disabled(ids.newMacro) || page.disabled(ids.macroList) ||
                     page.disabled(ids.recordDelays));
    });
    EXPECT_THAT(macro.usedActions(), ElementsAre(MacroAction::key(0x41, false), MacroAction::delay(100),
                                                 MacroAction::key(0x42, false), MacroAction::delay(100),
                                                 MacroAction::key(0x43, false)));
    EXPECT_THAT(page.editor.notes, ElementsAre("recorded", "recorded", "recorded", "ended"));
}

TEST(MacroEditor, AFullMacroEndsItsRecordingBeforeTheNotice) {
    EditorWindow page(macroPageRules, {"Fire"});
    playIn(page, [&] {
        clickControl(page, ids.recordSwitch);
        for (unsigned i = 0; i < 100; ++i)
            hookEvent(page, 0x41 + i % 2, i);
        page.editor.notes.clear();
        hookEvent(page, 0x5A, 1000);
        EXPECT_FALSE(page.editor.isRecording() || page.disabled(ids.newMacro));
        hookEvent(page, 0x5B, 1001);
    });
    EXPECT_THAT(page.editor.notes,
                ElementsAre("ended", "The number of action if full!", "recorded", "recorded"))
        << "a straggler brings no second notice";
    EXPECT_EQ(page.library.sets[0].keys[0].actionCount, 100U);
}

} // namespace
} // namespace tarnix
