#include <gmock/gmock.h>

#include <array>

#include "profile/numbers.h"
#include "profile/vocabulary.h"
#include "skin/selection.h"
#include "skin/sent.h"
#include "support/prepared_shell.h"
#include "support/ui_scenario.h"
#include "ui/dialog_layouts.h"
#include "ui/key_map_setting_dlg.h"
#include "ui/quick_launch_dlg.h"
#include "ui/shortcut_dlg.h"

namespace tarnix {
namespace {

using namespace dialog;
using ::testing::ElementsAre;

/// Notes what the dialogs send their owner.
class Owner : public CDlgBase {
  public:
    Owner() : CDlgBase({.role = "Owner", .taskbarButton = true}, {600, 400}) { Create(); }

    LResult OnMessage(Message message, WParam w, LParam l) override {
        if (message == 0x42A)
            appendHexByte(received.emplace_back(std::to_string(w) + ' '), static_cast<std::uint8_t>(l));
        else if (message == 0x40C)
            received.push_back(std::to_string(w) + ' ' + record(l));
        else if (message == 0x40F)
            received.push_back(*Sent<std::string>::find(w) + ' ' + record(l));
        return CDlgBase::OnMessage(message, w, l);
    }

    std::vector<std::string> received;

  protected:
    void BuildControls(const Rect&) override {}

  private:
    static std::string record(LParam l) {
        const SelectionRecord* found = receivedSelection(l);
        std::string text = found ? found->text + ' ' : "none";
        for (std::size_t i = 0; found && i < 3; ++i)
            appendHexByte(text, found->bytes[i]);
        return text;
    }
};

const std::string& label(const CDlgBase& window, unsigned id) {
    return window.control<CStaticText>(id)->m_strLabel;
}

class Dialogs : public ::testing::Test {
  protected:
    Owner owner;
    PreparedShell shell;
};

// The key map.

class KeyMap : public Dialogs {
  protected:
    /// Opens the dialog for the key "F1", whose own code is 0xC0, with a current one, does something, and
    /// confirms.
    void map(std::uint8_t code, const std::function<void(CKeyMapSettingDlg&)>& steps) {
        CKeyMapSettingDlg dialog({2201, "F1", 0xC0, code}, &owner);
        playIn(dialog, [&] {
            steps(dialog);
            clickControl(dialog, okButton);
        });
    }
    static void expectShown(CDlgBase& dialog, bool mouse, std::string_view function, std::string_view key) {
        EXPECT_EQ((g_nRadioMask & 0x180) == 0x100, mouse);
        EXPECT_EQ(dialog.control<CComboButton>(keymap::mouseField)->valueText(), function);
        EXPECT_EQ(label(dialog, keymap::keyFunction), key);
        EXPECT_EQ(label(dialog, keymap::keyName), "F1");
    }
    static void choose(CDlgBase& dialog, const SelectionRecord& record) {
        sendSelection(dialog, 0x414, keymap::mouseField, record);
    }
};

TEST_F(KeyMap, ShowsWhatTheKeyDoesNowAndReportsTheSelectedSideAlone) {
    map(0xD3, [](CDlgBase& dialog) { expectShown(dialog, true, "IE Backward", "F1"); });
    map(0x04, [](CDlgBase& dialog) { expectShown(dialog, false, "Click", KeyCodeName(0x04)); });
    map(0x04, [](CDlgBase& dialog) {
        hookEvent(dialog, 'B', 1);
        clickControl(dialog, cancelButton); // the OK that follows comes too late
    });
    map(0x04, [](CDlgBase& dialog) {
        clickControl(dialog, keymap::mouseRadio);
        choose(dialog, {"Fire", {5, 0, 0, 0}});
        hookEvent(dialog, 'B', 1);
        expectShown(dialog, true, "Fire", VirtualKeyName('B')); // a captured key does not move the selection
    });
    map(0xD5, [](CDlgBase& dialog) {
        clickControl(dialog, keymap::keyRadio);
        hookEvent(dialog, 'B', 1);
        hookEvent(dialog, 'B', 1, true);
        hookEvent(dialog, 0, 1);
        choose(dialog, {"Menu", {3, 2, 0, 0}});
    });
    map(0xD5, [](CDlgBase& dialog) { clickControl(dialog, keymap::keyRadio); });
    map(0xD5, [](CDlgBase& dialog) {
        hookEvent(dialog, 'B', 1);
        clickControl(dialog, keymap::ownFunction);
    });
    map(0x04, [](CDlgBase& dialog) { hookEvent(dialog, 0x1B, 1); });
    EXPECT_THAT(owner.received,
                ElementsAre("2201 D3", "2201 04", "2201 D6", "2201 05", "2201 C0", "2201 C0", "2201 29"));
}

TEST_F(KeyMap, MouseFunctionsAreTakenFromTheirRecordsAndAnUnknownOneFallsBack) {
    const std::pair<std::array<std::uint8_t, 4>, const char*> records[] = {
        {{3, 0x01}, "2201 D0"}, {{3, 0x04}, "2201 D2"}, {{3, 0x10}, "2201 D4"},
        {{3, 0x03}, "2201 D0"}, {{4, 0x02}, "2201 D5"}, {{9, 0x01}, "2201 D6"}};
    for (const auto& [bytes, code] : records) {
        map(0xD1, [&record = bytes](CDlgBase& dialog) {
            clickControl(dialog, keymap::mouseField);
            EXPECT_TRUE(dialog.popups().any());
            choose(dialog, {"", record});
            EXPECT_FALSE(dialog.popups().any());
            dialog.send(0x414, keymap::mouseField, 4711);
        });
        EXPECT_EQ(owner.received.back(), code);
    }
}

TEST_F(Dialogs, ShortcutReportsModifiersInTheirOrderAndTheKey) {
    using namespace shortcut;
    const struct {
        std::vector<unsigned> boxes;
        std::uint8_t key; ///< 0: none
        Window* reportTo;
    } cases[] = {{{shift, ctrl}, 'A', &owner},
                 {{alt}, 0, &owner},
                 {{singleKey}, 0x74, &owner},
                 {{win, alt, shift, ctrl}, 'Z', &owner},
                 {{singleKey, ctrl, singleKey}, 0x74, &owner},
                 {{ctrl, ctrl}, 0, &owner},
                 {{}, 0, &owner},
                 {{ctrl}, 'A', nullptr}};
    for (const auto& [boxes, key, reportTo] : cases) {
        CShortcutDlg dialog(reportTo);
        const int result = playIn(dialog, [&dialog, &boxes = boxes, key = key] {
            if (key != 0) hookEvent(dialog, key, 1);
            EXPECT_EQ(label(dialog, keyName), key != 0 ? VirtualKeyName(key) : "");
            for (const unsigned box : boxes)
                clickControl(dialog, box);
            clickControl(dialog, okButton);
        });
        EXPECT_EQ(result, IDCANCEL);
    }
    CShortcutDlg real(&owner);
    playIn(real, [&] {
        EXPECT_TRUE(testing::hasKeyboard(real));
        testing::tapKey("F5");
        EXPECT_TRUE(testing::runUntil([&] { return label(real, keyName) == "F5"; }));
    });
    EXPECT_THAT(owner.received, ElementsAre("0 Ctrl+Shift+A 060304", "0 Alt 060400", "0 F5 06003E",
                                            "0 Ctrl+Shift+Alt+Win+Z 060F1D", "0 F5 06003E"));
}

TEST_F(Dialogs, QuickLaunchSendsNameAndPathOnceAProgramIsChosen) {
    const std::string program = "/opt/my game/run.exe";
    const auto launchWith = [&](std::initializer_list<std::optional<std::string>> answers,
                                const std::string& shownPath, unsigned button) {
        CQuickLaunchDlg dialog(shell, &owner);
        playIn(dialog, [&] {
            for (const auto& answer : answers) {
                shell.nextFile = answer;
                clickControl(dialog, launch::browse);
            }
            EXPECT_EQ(label(dialog, launch::path), shownPath);
            clickControl(dialog, button);
        });
    };
    launchWith({std::nullopt}, "", okButton);
    launchWith({program}, program, cancelButton);
    launchWith({program, std::nullopt}, program, okButton);
    EXPECT_THAT(owner.received, ElementsAre("/opt/my game/run.exe run.exe 070000"));
    EXPECT_EQ(shell.asked.front(), "ab.exe exe file(*.exe)|*.exe exe");
}

} // namespace
} // namespace tarnix
