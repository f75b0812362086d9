#include <gmock/gmock.h>

#include <array>

#include "profile/vocabulary.h"
#include "skin/list_popup.h"
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
            received.push_back(std::to_string(w) + ' ' + hex(static_cast<std::uint8_t>(l)));
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
    static std::string hex(std::uint8_t byte) {
        constexpr const char* digits = "0123456789ABCDEF";
        return {digits[byte >> 4], digits[byte & 15]};
    }
    static std::string record(LParam l) {
        const SelectionRecord* found = receivedSelection(l);
        if (!found) return "none";
        return found->text + ' ' + hex(found->bytes[0]) + hex(found->bytes[1]) + hex(found->bytes[2]);
    }
};

/// Plays on the user-interface thread alone: no keys of the X server, no inner dialogs.
int playSteps(CDlgBase& dialog, const std::function<void()>& steps) {
    return playIn(dialog, [&](UiScenario& ui) { ui.run(steps); });
}

void hookEvent(Window& window, unsigned virtualKey, bool released = false) {
    window.send(0x401, virtualKey, static_cast<LParam>(released ? 0x80000001U : 1U));
}

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
    /// The key "F1" with a current code; its own is 0xC0.
    static KeyToMap keyWith(std::uint8_t code) { return {2201, "F1", 0xC0, code}; }
    /// Opens the dialog for a current code, does something, and confirms.
    void map(std::uint8_t code, const std::function<void(CKeyMapSettingDlg&)>& steps) {
        CKeyMapSettingDlg dialog(keyWith(code), &owner);
        playSteps(dialog, [&] {
            steps(dialog);
            clickControl(dialog, okButton);
        });
    }
    static bool mouseSelected() { return (g_nRadioMask & 0x180) == 0x100; }
    static const std::string& mouseText(const CDlgBase& dialog) {
        return dialog.control<CComboButton>(keymap::mouseField)->valueText();
    }
    static void choose(CDlgBase& dialog, const SelectionRecord& record) {
        sendSelection(dialog, 0x414, keymap::mouseField, record);
    }
};

TEST_F(KeyMap, ShowsWhatTheKeyDoesNowAndReportsItUnchanged) {
    map(0xD3, [](CDlgBase& dialog) {
        EXPECT_EQ(mouseText(dialog), "IE Backward");
        EXPECT_EQ(label(dialog, keymap::keyFunction), "F1");
        EXPECT_TRUE(mouseSelected());
    });
    map(0x04, [](CDlgBase& dialog) {
        EXPECT_EQ(mouseText(dialog), "Click");
        EXPECT_EQ(label(dialog, keymap::keyFunction), KeyCodeName(0x04));
        EXPECT_EQ(label(dialog, keymap::keyName), "F1");
        EXPECT_FALSE(mouseSelected());
    });
    map(0x04, [](CDlgBase& dialog) {
        hookEvent(dialog, 'B');
        clickControl(dialog, cancelButton); // the OK that follows comes too late
    });
    EXPECT_THAT(owner.received, ElementsAre("2201 D3", "2201 04"));
}

TEST_F(KeyMap, ReportsTheSelectedSideAlone) {
    map(0x04, [](CDlgBase& dialog) {
        clickControl(dialog, keymap::mouseRadio);
        choose(dialog, {"Fire", {5, 0, 0, 0}});
        hookEvent(dialog, 'B');
        EXPECT_EQ(label(dialog, keymap::keyFunction), VirtualKeyName('B'));
        EXPECT_TRUE(mouseSelected()) << "a captured key does not move the selection";
    });
    map(0xD5, [](CDlgBase& dialog) {
        clickControl(dialog, keymap::keyRadio);
        hookEvent(dialog, 'B');
        hookEvent(dialog, 'B', true);
        hookEvent(dialog, 0);
        choose(dialog, {"Menu", {3, 2, 0, 0}});
    });
    map(0xD5, [](CDlgBase& dialog) { clickControl(dialog, keymap::keyRadio); });
    map(0xD5, [](CDlgBase& dialog) {
        hookEvent(dialog, 'B');
        clickControl(dialog, keymap::ownFunction);
        EXPECT_EQ(label(dialog, keymap::keyFunction), "F1");
    });
    EXPECT_THAT(owner.received, ElementsAre("2201 D6", "2201 05", "2201 C0", "2201 C0"));
}

TEST_F(KeyMap, MouseFunctionsAreTakenFromTheirRecordsAndAnUnknownOneFallsBack) {
    const std::array<std::uint8_t, 4> records[] = {{3, 0x01}, {3, 0x04}, {3, 0x10},
                                                   {3, 0x03}, {4, 0x02}, {9, 0x01}};
    for (const auto& bytes : records)
        map(0xD1, [&](CDlgBase& dialog) {
            choose(dialog, {"", bytes});
            dialog.send(0x414, keymap::mouseField, 4711);
        });
    EXPECT_THAT(owner.received,
                ElementsAre("2201 D0", "2201 D2", "2201 D4", "2201 D0", "2201 D5", "2201 D6"));
}

TEST_F(KeyMap, CapturesTheRealKeyboardAndNoKeyClosesItOrPressesAnything) {
    CKeyMapSettingDlg dialog(keyWith(0x04), &owner);
    playIn(dialog, [&](UiScenario& ui) {
        EXPECT_TRUE(UiScenario::windowShown("CKeyMapSettingDlg", {496, 247}));
        for (const auto& [key, virtualKey] :
             {std::pair{"Return", 0x0D}, {"space", 0x20}, {"Tab", 0x09}, {"Escape", 0x1B}}) {
            UiScenario::keys(key);
            const std::string name(VirtualKeyName(static_cast<std::uint8_t>(virtualKey)));
            EXPECT_TRUE(ui.until([&] { return label(dialog, keymap::keyFunction) == name; })) << key;
        }
        ui.run([&] {
            EXPECT_TRUE(dialog.isVisible());
            clickControl(dialog, okButton);
        });
    });
    EXPECT_THAT(owner.received, ElementsAre("2201 29"));
}

// Shortcuts.

class Shortcut : public Dialogs {
  protected:
    /// Checks boxes, presses a key unless that is 0, confirms.
    void build(std::initializer_list<unsigned> boxes, unsigned virtualKey, Window* reportTo) {
        CShortcutDlg dialog(reportTo);
        const int result = playSteps(dialog, [&] {
            if (virtualKey) hookEvent(dialog, virtualKey);
            const auto name = VirtualKeyName(static_cast<std::uint8_t>(virtualKey));
            EXPECT_EQ(label(dialog, shortcut::keyName), virtualKey ? name : "");
            for (const unsigned box : boxes)
                clickControl(dialog, box);
            clickControl(dialog, okButton);
        });
        EXPECT_EQ(result, IDCANCEL);
    }
};

TEST_F(Shortcut, ReportsModifiersInTheirOrderAndTheKey) {
    build({shortcut::shift, shortcut::ctrl}, 'A', &owner);
    build({shortcut::alt}, 0, &owner);
    build({shortcut::singleKey}, 0x74, &owner);
    build({shortcut::win, shortcut::alt, shortcut::shift, shortcut::ctrl}, 'Z', &owner);
    build({shortcut::singleKey, shortcut::ctrl, shortcut::singleKey}, 0x74, &owner);
    build({shortcut::ctrl, shortcut::ctrl}, 0, &owner);
    build({}, 0, &owner);
    build({shortcut::ctrl}, 'A', nullptr);
    EXPECT_THAT(owner.received, ElementsAre("0 Ctrl+Shift+A 060304", "0 Alt 060400", "0 F5 06003E",
                                            "0 Ctrl+Shift+Alt+Win+Z 060F1D", "0 F5 06003E"));
}

// Programs.

TEST_F(Dialogs, QuickLaunchSendsNameAndPathOnceAProgramIsChosen) {
    const std::string program = "/opt/my game/run.exe";
    const auto launchWith = [&](std::initializer_list<std::optional<std::string>> answers,
                                const std::string& shownPath, unsigned button) {
        CQuickLaunchDlg dialog(shell, &owner);
        playSteps(dialog, [&] {
            for (const auto& answer : answers) {
                shell.nextFile = answer;
                clickControl(dialog, launch::browse);
            }
            EXPECT_EQ(label(dialog, launch::path), shownPath);
            clickControl(dialog, button);
        });
    };
    launchWith({}, "", okButton);
    launchWith({std::nullopt}, "", okButton);
    launchWith({program}, program, cancelButton);
    launchWith({program, std::nullopt}, program, okButton);
    EXPECT_THAT(owner.received, ElementsAre("/opt/my game/run.exe run.exe 070000"));
    EXPECT_EQ(shell.asked.front(), "ab.exe exe file(*.exe)|*.exe exe");
}

} // namespace
} // namespace tarnix
