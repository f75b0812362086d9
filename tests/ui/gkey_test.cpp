#include "main_window_bench.h"
#include "skin/selection.h"
#include "skin/sent.h"
#include "ui/shortcut_dlg.h"

namespace tarnix {
namespace {

using tarnix::testing::settle;

/// Rows of the function menu.
enum : std::size_t { macroRow, multimediaRow, webRow, mouseRow, defaultRow, noFunctionRow = 7 };

class GKeyPage : public MainWindowTest {
  protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        AddMacroKey(macros.sets[0], "Fire");
        AddMacroKey(macros.sets[0], "Tap");
        g_nMainPage = 2;
        window->send(id::gKeyPageTab, 0, NOTIFY_CLICK);
    }

    void openMenu(unsigned id) {
        click(id);
        settle();
        ASSERT_TRUE(isOpen(PopupPlace::Category));
        EXPECT_TRUE(field(id).m_bOpen);
    }
    void expectClosed(unsigned id) {
        EXPECT_FALSE(window->popups().any());
        EXPECT_FALSE(field(id).m_bOpen);
    }
    bool marked(int row) { return window->link().pending().isMarked(row, 0); }
    const GKeySlot& slot(int n) { return *store.GetGKeySlot(0, n); }
};

TEST_F(GKeyPage, AFunctionFromAListBesideTheMenuIsStoredUnderItsName) {
    using Choice =
        std::tuple<unsigned, int, std::size_t, PopupPlace, std::size_t, const char*, KeyAssignment>;
    const Choice choices[] = {
        {id::gKeyField1, 0, multimediaRow, PopupPlace::Multimedia, 7, "Stop", {2, 0xA7, 0}},
        {id::gKeyField2, 1, webRow, PopupPlace::Web, 0, "WWW Search", {2, 0xA8, 0}},
        {id::gKeyField3, 2, mouseRow, PopupPlace::Mouse, 6, "Fire", {5, 0, 0}},
        {id::gKeyField4, 3, mouseRow, PopupPlace::Mouse, 1, "Menu", {3, 2, 0}},
        {id::gKeyField5, 4, macroRow, PopupPlace::MacroLibrary, 1, "Tap", {1, 0, 0}},
    };
    for (const auto& [id, n, menuRow, place, row, name, value] : choices) {
        store.SetGKeyUrl(0, n, "/old");
        window->link().pending().clearAll();
        openMenu(id);
        point(PopupPlace::Category, menuRow);
        ASSERT_TRUE(isOpen(place)) << name;
        EXPECT_TRUE(isOpen(PopupPlace::Category));
        choose(place, row);
        expectClosed(id);
        EXPECT_EQ(field(id).valueText(), name);
        EXPECT_EQ(slot(n), (GKeySlot{name, "", value}));
        EXPECT_TRUE(marked(PendingWrites::keyCodeRow));
    }
    for (int row = PendingWrites::firstMacroRow; row < PendingWrites::rowCount; ++row)
        EXPECT_EQ(marked(row), row == 6) << row;
    click(id::applyButton);
    EXPECT_EQ(keyboard.profiles[0].gKeys[12], 1);
    EXPECT_EQ(keyboard.profiles[0].macros[4].name, "Tap");
}

TEST_F(GKeyPage, AListBesideTheMenuGivesWayToTheNextAndClosesWithItUnlessThePointerIsOnTheMenu) {
    openMenu(id::gKeyField1);
    point(PopupPlace::Category, multimediaRow);
    point(PopupPlace::Category, webRow);
    EXPECT_FALSE(isOpen(PopupPlace::Multimedia));
    point(PopupPlace::Category, defaultRow);
    EXPECT_FALSE(isOpen(PopupPlace::Web));
    point(PopupPlace::Category, webRow);
    const auto staysOpen = [&](Message closing, LParam kind) {
        window->send(closing, id::gKeyField1, kind);
        return isOpen(PopupPlace::Category) && isOpen(PopupPlace::Web);
    };
    EXPECT_TRUE(staysOpen(msg::categoryClosing, 0) && staysOpen(msg::webClosing, 1));
    const Rect menu = list(PopupPlace::Category).screenRect();
    testing::movePointer({menu.left + 20, menu.top + 45}); // its third row, which is hot
    settle();
    EXPECT_TRUE(staysOpen(msg::webClosing, 2));
    testing::movePointer({1200, 1000});
    settle();
    EXPECT_FALSE(staysOpen(msg::webClosing, 2));
    expectClosed(id::gKeyField1);
    openMenu(id::gKeyField1);
    window->send(msg::categoryClosing, id::gKeyField1, 1);
    EXPECT_TRUE(isOpen(PopupPlace::Category));
    click(id::closeButton);
    EXPECT_FALSE(window->isVisible() || window->popups().any());
    window->send(msg::categoryClosing, id::gKeyField1, 0);
    expectClosed(id::gKeyField1);
}

TEST_F(GKeyPage, TheMenusOwnFunctionsNeedNoList) {
    openMenu(id::gKeyField4);
    choose(PopupPlace::Category, noFunctionRow);
    expectClosed(id::gKeyField4);
    EXPECT_EQ(slot(3), (GKeySlot{"No Function", "", {0, 0, 0}}));
    openMenu(id::gKeyField4);
    choose(PopupPlace::Category, defaultRow);
    EXPECT_EQ(slot(3), (GKeySlot{"CTRL+4", "", {6, 1, 0x21}}));
    store.SetGKeyName(0, 5, "sixth");
    window->ShowCurrentProfile();
    EXPECT_EQ(field(id::gKeyField2).valueText(), "sixth") << "the slot without a field";
}

TEST_F(GKeyPage, DialogsAnswerForTheFieldThatOpenedThem) {
    const SelectionRecord shortcut{"Ctrl+Shift+A", {6, 3, 4}};
    sendSelection(*window, msg::shortcutChosen, 0, shortcut);
    EXPECT_EQ(slot(1).Name, "CTRL+2") << "no field is waiting yet";
    for (const Message wanted : {msg::shortcutWanted, msg::launchWanted}) {
        openMenu(id::gKeyField2);
        window->send(wanted, id::gKeyField2);
        expectClosed(id::gKeyField2);
        EXPECT_TRUE(answered(settle, [wanted](CDlgBase& dialog) {
            EXPECT_EQ(dynamic_cast<CShortcutDlg*>(&dialog) != nullptr, wanted == msg::shortcutWanted);
            dialog.endModal(IDCANCEL);
        }));
    }
    sendSelection(*window, msg::shortcutChosen, 0, shortcut);
    EXPECT_EQ(slot(1), (GKeySlot{"Ctrl+Shift+A", "", {6, 3, 4}}));
    EXPECT_TRUE(marked(PendingWrites::keyCodeRow));

    window->link().pending().clearAll();
    const std::string path = "/usr/bin/editor";
    const Sent<std::string> sent(path);
    sendSelection(*window, msg::launchChosen, sent.word(), {"editor", {7, 0, 0}});
    sendSelection(*window, msg::launchChosen, 0, {"none", {7, 0, 0}});
    EXPECT_EQ(slot(1), (GKeySlot{"editor", path, {7, 0, 0}}));
    EXPECT_TRUE(marked(PendingWrites::keyCodeRow));
}

} // namespace
} // namespace tarnix
