#include "macro_manager/manager_dlg.h"

#include <gmock/gmock.h>

#include "macro/macro_files.h"
#include "macro_manager/companion_dlgs.h"
#include "macro_manager/manager_layout.h"
#include "skin/list_popup.h"
#include "skin/sent.h"
#include "support/memory_files.h"
#include "support/ui_scenario.h"

namespace tarnix {
namespace {

using namespace manager;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* folder = "home/";
const auto named = [](const char* name) { return ::testing::Field(&MacroSet::name, name); };

MacroLibrary libraryOf(const std::string& set, const std::vector<std::string>& macros) {
    MacroLibrary library;
    MacroSet& added = AddMacroSet(library, set);
    for (const std::string& name : macros)
        AddMacroKey(added, name);
    return library;
}

class MacroManager : public ::testing::Test {
  protected:
    /// Puts a library into the file in the manager's own form.
    void store(const MacroLibrary& library) { SaveManagerLibrary(library, files, folder); }
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
        const int result = playIn(dialog, [&] {
            EXPECT_EQ(dialog.selectedSet(), 2);
            EXPECT_EQ(fieldText(dialog), "Two");
            EXPECT_EQ(dialog.control<CImageShowList>(actionList)->shownSet(), 1);
            clickControl(dialog, deleteMacroButton);
            clickControl(dialog, button);
        });
        EXPECT_EQ(result, button == okButton ? IDOK : IDCANCEL);
        MacroLibrary stored;
        LoadManagerLibrary(stored, files, folder);
        EXPECT_EQ(stored.sets.at(1).keys.size(), button == okButton ? 0U : 1U);
    }
    library.sets[1].keys.assign(40, {"c"});
    store(library);
    CMacroManagerDlg outside(nullptr, files, folder, 7);
    playIn(outside, [&] {
        EXPECT_EQ(fieldText(outside), "Disable");
        outside.send(setListChosen, setField, 2 + 1);
        auto* list = outside.control<CEditShowList>(macroList);
        list->m_nSelected = 1;
        outside.OnMouseMove(0, centreOf(list->GetRect()));
        outside.OnMouseWheel(-120, {});
        sendName(outside, deleteSetByName, "One");
        EXPECT_EQ(std::pair(list->m_nSelected, list->m_nFirstRow), std::pair(1, 1)) << "as it was";
    });
}

TEST_F(MacroManager, SetsAreAddedChosenAndDeletedByName) {
    store(libraryOf("One", {"a"}));
    CMacroManagerDlg dialog(nullptr, files, folder, 1);
    playIn(dialog, [&] {
        for (const char* name : {"Two", "One", "", "one", "A name longer than any macro's"})
            sendName(dialog, addSetByName, name);
        dialog.send(addSetByName, 0, 12345);
        EXPECT_THAT(dialog.library().sets, ElementsAre(named("One"), named("Two"), named("one"),
                                                       named("A name longer than any macro's")));
        dialog.send(setListChosen, setField, 2 + 2);
        EXPECT_EQ(dialog.selectedSet(), 3);
        sendName(dialog, deleteSetByName, "Two");
        sendName(dialog, deleteSetByName, "unknown");
        EXPECT_EQ(dialog.selectedSet(), 2) << "the selected set has moved up";
        EXPECT_EQ(fieldText(dialog), "one");
        sendName(dialog, deleteSetByName, "one");
        EXPECT_EQ(fieldText(dialog), "One");
        EXPECT_EQ(dialog.control<CImageShowList>(actionList)->shownMacro(), 0);
        sendName(dialog, deleteSetByName, "A name longer than any macro's");
        sendName(dialog, deleteSetByName, "One");
        EXPECT_EQ(fieldText(dialog), "Disable");
        EXPECT_EQ(dialog.control<CImageShowList>(actionList)->rowCount(), 0);
        for (const LParam row : {2, -5, 1000000})
            dialog.send(setListChosen, setField, row);
        EXPECT_EQ(dialog.selectedSet(), 0);
    });
}

TEST_F(MacroManager, RecordsTheRealKeyboardAndLetsNoKeyDoAnythingElse) {
    store(libraryOf("One", {"a"}));
    CMacroManagerDlg dialog(nullptr, files, folder, 1);
    playIn(dialog, [&] {
        const auto steps = [&] { return dialog.library().sets[0].keys[0].usedActions(); };
        EXPECT_TRUE(testing::hasKeyboard(dialog));
        clickControl(dialog, recordSwitch);
        testing::tapKey("Return");
        testing::tapKey("Escape");
        EXPECT_TRUE(testing::runUntil([&] { return steps().size() == 4; }));
        EXPECT_THAT(steps(), ElementsAre(MacroAction::key(0x0D, false), MacroAction::key(0x0D, true),
                                         MacroAction::key(0x1B, false), MacroAction::key(0x1B, true)));
        clickControl(dialog, recordSwitch);
        testing::tapKey("Escape");
        EXPECT_TRUE(endsByItself(dialog)) << "Escape closes it again";
    });
}

TEST_F(MacroManager, OkWithAMacroResetsTheMainLibraryAndALongFileOpensEmpty) {
    MacroLibrary library = libraryOf("One", {"a"});
    const auto openAndClick = [&](unsigned button) {
        bool answer = false;
        EXPECT_TRUE(answered([&] { answer = OpenMacroManager(nullptr, library, files, folder, 1); },
                             [&](CDlgBase& dialog) { clickControl(dialog, button); }));
        return answer;
    };

    SaveMacroLibrary(library, files, folder);
    EXPECT_TRUE(openAndClick(okButton));
    EXPECT_THAT(library.sets, IsEmpty()) << "the manager saw nothing in the long form and wrote nothing back";

    store(libraryOf("One", {"a"}));
    EXPECT_TRUE(openAndClick(okButton));
    EXPECT_THAT(library.sets, ElementsAre(MacroSet{std::string(defaultMacroSetName), {}}));
    EXPECT_TRUE(LoadMacroLibrary(library, files, folder))
        << "the default library is on the disk in the long form";

    EXPECT_FALSE(openAndClick(cancelButton));
    EXPECT_EQ(library.sets.size(), 1U);
}

TEST_F(MacroManager, ANameIsTakenUncheckedByAnyPressButThatOfTheDeleteButton) {
    store(libraryOf("One", {"Fire"}));
    CMacroManagerDlg dialog(nullptr, files, folder, 1);
    playIn(dialog, [&] {
        const auto& list = *dialog.control<CEditShowList>(macroList);
        const auto enterName = [&](const std::string& name) {
            if (!list.isEditing()) clickControl(dialog, newMacroButton);
            EXPECT_TRUE(testing::hasKeyboard(dialog));
            testing::typeText(name);
            EXPECT_TRUE(testing::runUntil([&] { return list.editorText() == name; }));
        };
        enterName("Fire");
        clickControl(dialog, recordDelays);
        EXPECT_FALSE(list.isEditing());
        enterName("ThirteenChars");
        clickControl(dialog, newMacroButton);
        EXPECT_TRUE(list.isEditing()) << "the press commits, the release opens the field anew";
        enterName("dropped");
        clickControl(dialog, deleteMacroButton);
        EXPECT_FALSE(list.isEditing());
        const MacroLibrary left = libraryOf("One", {"Fire", "ThirteenChars"});
        EXPECT_EQ(dialog.library(), left) << "one was deleted";
    });
}

TEST_F(MacroManager, SaysInPicturesWhatItCannotDo) {
    CMacroManagerDlg dialog(nullptr, files, folder, 0);
    playIn(dialog, [&] {
        for (const unsigned button : {newMacroButton, recordSwitch, deleteMacroButton}) {
            const auto press = [&] { clickControl(dialog, button); };
            EXPECT_TRUE(answered(press, [&](CDlgBase& notice) {
                const bool attention = dynamic_cast<CMacroManagerAttentionDlg*>(&notice);
                EXPECT_EQ(attention, button == deleteMacroButton);
                notice.OnKey({KeyPress::Key::Enter, true});
            }));
        }
    });
}

TEST_F(MacroManager, TheListOfSetsOpensUnderItsFieldAndLeadsToTheNameDialogs) {
    store(libraryOf("One", {}));
    CMacroManagerDlg dialog(nullptr, files, folder, 0);
    playIn(dialog, [&] {
        const auto chooseRow = [&](std::size_t row) {
            clickControl(dialog, setField);
            auto* popup = dynamic_cast<CListPopup*>(dialog.popups().at(PopupPlace::MacroSetList));
            ASSERT_NE(popup, nullptr);
            const auto* field = dialog.control<CComboButton>(setField);
            EXPECT_TRUE(field->m_bOpen);
            EXPECT_EQ(dialog.toClient(popup->screenRect().topLeft()),
                      (Point{field->m_rect.left, field->m_rect.bottom}));
            clickAt(*popup, popup->rows().at(row).rect.inset(5).topLeft());
            EXPECT_FALSE(field->m_bOpen || dialog.popups().any());
        };
        const auto enterName = [&](std::size_t row, const std::string& name) {
            bool entered = false;
            const auto choose = [&] {
                EXPECT_TRUE(testing::hasKeyboard(dialog));
                chooseRow(row);
                EXPECT_TRUE(testing::runUntil([&] { return entered; }));
            };
            EXPECT_TRUE(answered(choose, [&](CDlgBase& asking) {
                EXPECT_TRUE(testing::hasKeyboard(asking));
                testing::tapKey("Return"); // which takes nothing
                testing::typeText(name);
                EXPECT_TRUE(testing::runUntil([&] { return testing::focusedText() == name; }));
                clickControl(asking, okButton);
                entered = true;
            }));
        };
        chooseRow(0);
        EXPECT_EQ(dialog.selectedSet(), 1);
        enterName(2, "Two");
        enterName(4, "One");
        EXPECT_EQ(fieldText(dialog), "Two");
    });
}

} // namespace
} // namespace tarnix
