#include "macro_manager/manager_dlg.h"

#include <gmock/gmock.h>

#include "macro/macro_files.h"
#include "macro_manager/manager_layout.h"
#include "manager_bench.h"
#include "skin/list_popup.h"
#include "skin/selection.h"
#include "skin/sent.h"
#include "support/memory_files.h"

namespace tarnix {
namespace {

using namespace manager;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* folder = "home/";
const auto named = [](const char* name) { return ::testing::Field(&MacroSet::name, name); };

class MacroManager : public ::testing::Test {
  protected:
    /// Puts a library into the file in the manager's own form.
    void store(const MacroLibrary& library) { SaveManagerLibrary(library, files, folder); }
    MacroLibrary stored() {
        MacroLibrary library;
        LoadManagerLibrary(library, files, folder);
        return library;
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
        const int result = playIn(dialog, [&] {
            EXPECT_EQ(dialog.selectedSet(), 2);
            EXPECT_EQ(fieldText(dialog), "Two");
            EXPECT_EQ(dialog.control<CImageShowList>(actionList)->shownSet(), 1);
            clickControl(dialog, deleteMacroButton);
            clickControl(dialog, button);
        });
        EXPECT_EQ(result, button == okButton ? IDOK : IDCANCEL);
        EXPECT_EQ(macroNames(stored(), 1).size(), button == okButton ? 0U : 1U);
    }
    AddMacroKey(library.sets[1], "c");
    store(library);
    CMacroManagerDlg outside(nullptr, files, folder, 7);
    playIn(outside, [&] {
        EXPECT_EQ(fieldText(outside), "Disable");
        outside.send(setListChosen, setField, 2 + 1);
        auto* list = outside.control<CEditShowList>(macroList);
        list->m_nSelected = 1;
        sendName(outside, deleteSetByName, "One");
        EXPECT_EQ(list->m_nSelected, 1) << "what is selected in the set stays";
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
    playIn(dialog, [&](UiScenario& ui) {
        const auto steps = [&] { return dialog.library().sets[0].keys[0].usedActions(); };
        ui.run([&] { clickControl(dialog, recordSwitch); });
        EXPECT_TRUE(UiScenario::windowShown("CMacroManagerDlg", managerSize));
        UiScenario::keys("Return Escape");
        EXPECT_TRUE(ui.until([&] { return steps().size() == 4; }));
        ui.run([&] {
            EXPECT_THAT(steps(), ElementsAre(MacroAction::key(0x0D, false), MacroAction::key(0x0D, true),
                                             MacroAction::key(0x1B, false), MacroAction::key(0x1B, true)));
            clickControl(dialog, recordSwitch);
        });
        UiScenario::keys("Escape");
        EXPECT_TRUE(ui.untilOver()) << "Escape closes it again";
    });
}

TEST_F(MacroManager, OkWithAMacroResetsTheMainLibraryAndALongFileOpensEmpty) {
    MacroLibrary library = libraryOf("One", {"a"});
    const auto openAndClick = [&](Point at) {
        std::atomic<bool> closed = false;
        // A click may come before the window manager has placed the window.
        const auto user = std::async(std::launch::async, [&] {
            while (!closed)
                UiScenario::clickWindow("CMacroManagerDlg", at);
        });
        const bool answer = OpenMacroManager(nullptr, library, files, folder, 1);
        closed = true;
        return answer;
    };
    constexpr Point ok{540, 438};

    SaveMacroLibrary(library, files, folder);
    EXPECT_TRUE(openAndClick(ok));
    EXPECT_THAT(library.sets, IsEmpty()) << "the manager saw nothing in the long form and wrote nothing back";

    store(libraryOf("One", {"a"}));
    EXPECT_TRUE(openAndClick(ok));
    EXPECT_THAT(library.sets, ElementsAre(MacroSet{std::string(defaultMacroSetName), {}}));
    EXPECT_TRUE(LoadMacroLibrary(library, files, folder))
        << "the default library is on the disk in the long form";

    EXPECT_FALSE(openAndClick({640, 438}));
    EXPECT_EQ(library.sets.size(), 1U);
}

TEST_F(MacroManager, SaysInPicturesWhatItCannotDo) {
    CMacroManagerDlg dialog(nullptr, files, folder, 0);
    playIn(dialog, [&](UiScenario& ui) {
        for (const auto& [button, role] : {std::pair{newMacroButton, "CMacroManagerNoteDlg"},
                                           {recordSwitch, "CMacroManagerNoteDlg"},
                                           {deleteMacroButton, "CMacroManagerAttentionDlg"}}) {
            ui.start([&dialog, control = button] { clickControl(dialog, control); });
            EXPECT_TRUE(UiScenario::windowShown(role, companionSize)) << button;
            UiScenario::keys("Return");
            EXPECT_TRUE(UiScenario::windowShown("CMacroManagerDlg", managerSize)) << button;
        }
    });
}

TEST_F(MacroManager, TheListOfSetsOpensUnderItsFieldAndLeadsToTheNameDialogs) {
    store(libraryOf("One", {}));
    CMacroManagerDlg dialog(nullptr, files, folder, 0);
    playIn(dialog, [&](UiScenario& ui) {
        const auto chooseRow = [&](std::size_t row) {
            ui.run([&] {
                clickControl(dialog, setField);
                auto* popup = dynamic_cast<CListPopup*>(dialog.popups().at(PopupPlace::MacroSetList));
                ASSERT_NE(popup, nullptr);
                const auto* field = dialog.control<CComboButton>(setField);
                EXPECT_TRUE(field->m_bOpen);
                EXPECT_EQ(dialog.toClient(popup->screenRect().topLeft()),
                          (Point{field->m_rect.left, field->m_rect.bottom}));
                clickAt(*popup, popup->rows().at(row).rect.inset(5).topLeft());
                EXPECT_FALSE(field->m_bOpen);
            });
        };
        const auto enterName = [&](const char* role, const char* name, Point button, std::size_t setsThen) {
            EXPECT_TRUE(UiScenario::windowShown(role, companionSize));
            UiScenario::type(name);
            UiScenario::keys("Return"); // which takes nothing
            EXPECT_TRUE(ui.until([&] {
                UiScenario::clickWindow(role, button);
                return dialog.library().sets.size() == setsThen;
            })) << role;
        };
        chooseRow(0);
        ui.run([&] { EXPECT_EQ(dialog.selectedSet(), 1); });
        chooseRow(2);
        enterName("CMacroManagerAddDlg", "Two", {101, 176}, 2);
        chooseRow(4);
        enterName("CMacroManagerDelSetDlg", "One", {101, 176}, 1);
        ui.run([&] { EXPECT_EQ(fieldText(dialog), "Two"); });
    });
}

} // namespace
} // namespace tarnix
