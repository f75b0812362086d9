#include "macro_manager/manager_dlg.h"

#include <gmock/gmock.h>

#include "macro/macro_files.h"
#include "macro_manager/companion_dlgs.h"
#include "macro_manager/manager_layout.h"
#include "manager_bench.h"
#include "skin/list_popup.h"
#include "support/memory_files.h"

namespace tarnix {
namespace {

using namespace manager;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* folder = "home/";

std::string libraryPath(MemoryFiles& files) {
    SaveMacroLibrary({}, files, folder);
    return files.contents.begin()->first;
}

std::vector<std::string> setNames(const MacroLibrary& library) {
    std::vector<std::string> names;
    for (const MacroSet& set : library.sets)
        names.push_back(set.name);
    return names;
}

class MacroManager : public testing::Test {
  protected:
    /// Puts a library into the file in the manager's own form.
    void store(const MacroLibrary& library) { SaveManagerLibrary(library, files, folder); }
    MacroLibrary stored() {
        MacroLibrary library;
        LoadManagerLibrary(library, files, folder);
        return library;
    }
    int play(CMacroManagerDlg& dialog, const std::function<void(UiScenario&)>& scenario) {
        return playIn(dialog, scenario);
    }
    static std::string fieldText(const CMacroManagerDlg& dialog) {
        return dialog.control<CComboButton>(setField)->valueText();
    }
    /// What the two small dialogs send.
    static void sendName(Window& dialog, Message message, const std::string& name) {
        const Sent<std::string> sent(name);
        dialog.send(message, 0, static_cast<LParam>(sent.word()));
    }

    MemoryFiles files;
};

TEST_F(MacroManager, OpensOnTheAskedSetAndSavesOnlyOnOk) {
    MacroLibrary library = libraryOf("One", {"a"});
    AddMacroKey(AddMacroSet(library, "Two"), "b");
    store(library);
    for (const unsigned button : {cancelButton, closeButton, okButton}) {
        CMacroManagerDlg dialog(nullptr, files, folder, 2);
        const int result = play(dialog, [&](UiScenario& ui) {
            ui.run([&] {
                EXPECT_EQ(dialog.selectedSet(), 2);
                EXPECT_EQ(fieldText(dialog), "Two");
                EXPECT_EQ(dialog.control<CImageShowList>(actionList)->shownSet(), 1);
                clickControl(dialog, deleteMacroButton);
                clickControl(dialog, button);
            });
        });
        EXPECT_EQ(result, button == okButton ? IDOK : IDCANCEL);
        EXPECT_THAT(macroNames(stored(), 1).size(), button == okButton ? 0U : 1U);
    }
    CMacroManagerDlg outside(nullptr, files, folder, 7);
    play(outside, [&](UiScenario& ui) {
        ui.run([&] {
            EXPECT_EQ(outside.selectedSet(), 0);
            EXPECT_EQ(fieldText(outside), "Disable");
        });
    });
}

TEST_F(MacroManager, SetsAreAddedChosenAndDeletedByName) {
    store(libraryOf("One", {"a"}));
    CMacroManagerDlg dialog(nullptr, files, folder, 1);
    play(dialog, [&](UiScenario& ui) {
        ui.run([&] {
            for (const char* name : {"Two", "One", "", "one", "A name that is longer than any macro's"})
                sendName(dialog, addSetByName, name);
            dialog.send(addSetByName, 0, 12345);
            EXPECT_THAT(setNames(dialog.library()),
                        ElementsAre("One", "Two", "one", "A name that is longer than any macro's"));
            dialog.send(setListChosen, setField, 2 + 2);
            EXPECT_EQ(dialog.selectedSet(), 3);
            sendName(dialog, deleteSetByName, "Two");
            sendName(dialog, deleteSetByName, "unknown");
            EXPECT_EQ(dialog.selectedSet(), 2) << "the selected set has moved up";
            EXPECT_EQ(fieldText(dialog), "one");
            sendName(dialog, deleteSetByName, "one");
            EXPECT_EQ(fieldText(dialog), "One");
            EXPECT_EQ(dialog.control<CImageShowList>(actionList)->shownMacro(), 0);
            sendName(dialog, deleteSetByName, "A name that is longer than any macro's");
            sendName(dialog, deleteSetByName, "One");
            EXPECT_EQ(dialog.selectedSet(), 0);
            EXPECT_EQ(fieldText(dialog), "Disable");
            EXPECT_EQ(dialog.control<CImageShowList>(actionList)->rowCount(), 0);
            dialog.send(setListChosen, setField, 2);
            dialog.send(setListChosen, setField, -5);
            EXPECT_EQ(dialog.selectedSet(), 0);
        });
    });
}

TEST_F(MacroManager, TheListOfSetsOpensUnderItsFieldAndLeadsToTheNameDialogs) {
    store(libraryOf("One", {}));
    CMacroManagerDlg dialog(nullptr, files, folder, 0);
    play(dialog, [&](UiScenario& ui) {
        const auto chooseRow = [&](std::size_t row) {
            ui.run([&] { clickControl(dialog, setField); });
            ui.run([&] {
                auto* popup = dynamic_cast<CListPopup*>(dialog.popups().at(PopupPlace::MacroSetList));
                ASSERT_NE(popup, nullptr);
                const auto* field = dialog.control<CComboButton>(setField);
                EXPECT_TRUE(field->m_bOpen);
                EXPECT_EQ(dialog.toClient(popup->screenRect().topLeft()),
                          (Point{field->m_rect.left, field->m_rect.bottom}));
                const Rect rect = popup->rows().at(row).rect;
                clickAt(*popup, {rect.left + 5, rect.top + 5});
                EXPECT_FALSE(field->m_bOpen);
            });
        };
        chooseRow(0);
        ui.run([&] { EXPECT_EQ(dialog.selectedSet(), 1); });
        chooseRow(2);
        ASSERT_TRUE(UiScenario::windowShown("CMacroManagerAddDlg", companionSize));
        UiScenario::type("Two");
        UiScenario::keys("Return Escape");
        ui.until([&] { return dialog.library().sets.size() == 1; });
        ui.run([&] { dialog.send(setListClosing, setField, 5); });
    });
    EXPECT_THAT(setNames(dialog.library()), ElementsAre("One")) << "Enter takes nothing, Escape cancels";
}

TEST_F(MacroManager, TheNameDialogsSendWhatWasTypedOnOkAlone) {
    class Owner : public CDlgBase {
      public:
        Owner() : CDlgBase({.role = "Owner"}, {400, 300}) {
            for (const Message message : {addSetByName, deleteSetByName})
                m_messages.on(message, [this, message](WParam, LParam name) {
                    received.push_back(std::to_string(message) + ' ' +
                                       *Sent<std::string>::find(static_cast<std::uintptr_t>(name)));
                });
        }
        void BuildControls(const Rect&) override {}
        std::vector<std::string> received;
    } owner;
    playIn(owner, [&](UiScenario& ui) {
        const auto ask = [&](auto& dialog, const char* role, unsigned button) {
            ui.start([&] { dialog.DoModal(); });
            EXPECT_TRUE(UiScenario::windowShown(role, companionSize));
            UiScenario::type("My set");
            UiScenario::keys("F9");
            ui.until([&] { return dialog.isVisible(); });
            ui.run([&] { clickControl(dialog, button); });
            ui.until([&] { return !dialog.exists(); });
        };
        CMacroManagerAddDlg add(owner);
        ask(add, "CMacroManagerAddDlg", okButton);
        CMacroManagerDelSetDlg remove(owner);
        ask(remove, "CMacroManagerDelSetDlg", okButton);
        CMacroManagerAddDlg cancelled(owner);
        ask(cancelled, "CMacroManagerAddDlg", cancelButton);
    });
    EXPECT_THAT(owner.received, ElementsAre("1057 My set", "1058 My set"));
}

TEST_F(MacroManager, ItsTextlessNoticesSayThatNothingIsSelected) {
    CMacroManagerDlg dialog(nullptr, files, folder, 0);
    play(dialog, [&](UiScenario& ui) {
        const auto expectNotice = [&](unsigned button, const char* role, const char* key) {
            ui.start([&] { clickControl(dialog, button); });
            EXPECT_TRUE(UiScenario::answer(role, companionSize, key)) << button;
        };
        expectNotice(newMacroButton, "CMacroManagerNoteDlg", "Return");
        expectNotice(recordSwitch, "CMacroManagerNoteDlg", "Escape");
        expectNotice(deleteMacroButton, "CMacroManagerAttentionDlg", "Return");
        ui.run([&] { EXPECT_FALSE(dialog.control<CCheckButton>(recordSwitch)->m_bChecked); });
    });
    EXPECT_THAT(files.contents, IsEmpty()) << "a manager that finds no file writes none by itself";
}

TEST_F(MacroManager, RecordsTheRealKeyboardAndLetsNoKeyDoAnythingElse) {
    store(libraryOf("One", {"a"}));
    CMacroManagerDlg dialog(nullptr, files, folder, 1);
    play(dialog, [&](UiScenario& ui) {
        const auto steps = [&] { return dialog.library().sets[0].keys[0].usedActions(); };
        ui.run([&] { clickControl(dialog, recordSwitch); });
        UiScenario::keys("a Escape Return");
        EXPECT_TRUE(ui.until([&] { return steps().size() == 6; }));
        ui.run([&] {
            EXPECT_THAT(steps(), ElementsAre(MacroAction::key('A', false), MacroAction::key('A', true),
                                             MacroAction::key(0x1B, false), MacroAction::key(0x1B, true),
                                             MacroAction::key(0x0D, false), MacroAction::key(0x0D, true)));
            EXPECT_TRUE(dialog.isVisible());
            clickControl(dialog, recordSwitch);
        });
        UiScenario::keys("Escape");
        EXPECT_TRUE(ui.untilOver()) << "Escape closes it again";
    });
}

TEST_F(MacroManager, RecordsLongPausesAndTwoHundredActionsWithoutCountingCommands) {
    store(libraryOf("One", {"a"}));
    CMacroManagerDlg dialog(nullptr, files, folder, 1);
    play(dialog, [&](UiScenario& ui) {
        ui.run([&] {
            clickControl(dialog, recordDelays);
            clickControl(dialog, recordSwitch);
            hookEvent(dialog, 0x07, 0);
            for (unsigned i = 0; i < 150; ++i)
                hookEvent(dialog, 0x41 + i % 2, 120000 * i);
            clickControl(dialog, recordSwitch);
        });
    });
    const MacroKey& macro = dialog.library().sets[0].keys[0];
    EXPECT_EQ(macro.actionCount, 200U);
    EXPECT_EQ(macro.commandCount, 0);
    EXPECT_EQ(macro.actions[1], MacroAction::delay(120000));
}

TEST_F(MacroManager, OkWithAMacroResetsTheMainLibraryAndALongFileOpensEmpty) {
    const std::string path = libraryPath(files);
    MacroLibrary library = libraryOf("One", {"a"});
    const auto openAndClick = [&](Point at) {
        std::atomic<bool> closed = false;
        // A click may come before the window manager has placed the window.
        std::thread user([&] {
            while (!closed)
                UiScenario::clickWindow("CMacroManagerDlg", at);
        });
        const bool answer = OpenMacroManager(nullptr, library, files, folder, 1);
        closed = true;
        user.join();
        return answer;
    };
    constexpr Point ok{540, 438};
    constexpr Point cancel{640, 438};

    SaveMacroLibrary(library, files, folder);
    EXPECT_TRUE(openAndClick(ok));
    EXPECT_THAT(library.sets, IsEmpty()) << "the manager saw nothing in the long form and wrote nothing back";

    store(libraryOf("One", {"a"}));
    EXPECT_TRUE(openAndClick(ok));
    EXPECT_THAT(setNames(library), ElementsAre(std::string(defaultMacroSetName)));
    EXPECT_THAT(macroNames(library), IsEmpty());
    EXPECT_THAT(files.contents[path], HasSubstr("MacroSet0Name=Keyboard Macro Set"));

    library = libraryOf("kept", {});
    EXPECT_FALSE(openAndClick(cancel));
    EXPECT_THAT(setNames(library), ElementsAre("kept"));
}

} // namespace
} // namespace tarnix
