#include <gmock/gmock.h>

#include "main_window_bench.h"
#include "ui/dialog_layouts.h"

namespace tarnix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr Point okOfReset{198, 208};
constexpr Point cancelOfReset{298, 208};

Journal written(const MainWindowBench& bench, std::initializer_list<const char*> names) {
    Journal lines;
    for (const char* name : names)
        lines.push_back("replace " + bench.file(name));
    return lines;
}

Journal operator+(Journal left, const Journal& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

/// As far as a report says what it is and of which profile and slot.
Journal headers(const Journal& lines) {
    Journal all;
    for (const std::string& line : lines)
        all.push_back(line.starts_with("set") ? line.substr(0, 15) : line);
    return all;
}

const std::initializer_list<const char*> allFiles{"config.ini",   "default0.psf", "default1.psf",
                                                  "default2.psf", "default3.psf", "default4.psf"};

TEST(ProfileCommands, ApplySendsLightingThenKeyCodesThenTheProfileAndThenWritesTheFiles) {
    MainWindowBench bench;
    bench.run([&] {
        bench.window->send(msg::keyCodeChosen, 2201, 62);
        bench.window->send(msg::openSpeed, id::speedField, NOTIFY_CLICK);
        bench.choose(PopupPlace::LightSpeed, 0);
        bench.click(id::profileTab3);
        bench.window->send(msg::keyCodeChosen, 2259, 5);
        EXPECT_THAT(bench.changes(), IsEmpty());

        bench.click(id::applyButton);
        EXPECT_THAT(headers(bench.changes()),
                    ::testing::ContainerEq(
                        Journal{"set 07 08 00 00", "set 06 B8 00 00", "set 06 B8 02 00", "set 05 03 02"} +
                        written(bench, allFiles)));
        EXPECT_EQ(bench.keyboard.profiles[0].keyCodes[17], 0xC4);
        EXPECT_EQ(bench.keyboard.activeProfile, 2);

        bench.window->link().pending().m_bMacroLibraryChanged = true;
        bench.click(id::okButton);
        EXPECT_THAT(bench.changes(),
                    ::testing::ContainerEq(Journal{"set 05 03 02"} + written(bench, allFiles) +
                                           written(bench, {"MacroLibraryFile.mlf"})));
        EXPECT_FALSE(bench.window->isVisible());
    });
}

TEST(ProfileCommands, EditsWithoutAKeyboardReachTheFilesAndAreForgottenForTheKeyboard) {
    MainWindowBench bench;
    bench.run([&] {
        bench.hid.unplug();
        bench.hid.tell(HidChange::Removal);
        bool noticed = false;
        bench.answered(testing::settle, [&] {
            noticed = noticed || !bench.active;
            testing::tapKey("Return");
        });
        EXPECT_TRUE(noticed);
        bench.window->send(msg::keyCodeChosen, 2201, 62);
        bench.changes();
        bench.click(id::applyButton);
        EXPECT_THAT(bench.changes(), ::testing::ContainerEq(written(bench, allFiles)));
        EXPECT_THAT(bench.files.contents[bench.file("default0.psf")], ::testing::HasSubstr("C4"));

        // The return reads the keyboard anew, and what it holds wins.
        bench.hid.plugIn();
        bench.hid.tell(HidChange::Arrival);
        EXPECT_FALSE(bench.cap(2201).m_bRemapped);
        bench.changes();
        bench.click(id::applyButton);
        EXPECT_EQ(bench.changes().front(), "set 05 03 00");
    });
}

TEST(ProfileCommands, AProfileSwitchOnTheKeyboardSelectsItsTab) {
    MainWindowBench bench;
    bench.keyboard.profiles[2].keyCodes[17] = 0x04;
    bench.run([&] {
        bench.keyboard.pressProfile(3);
        EXPECT_TRUE(testing::runUntil([&] { return !bench.presence.events.empty(); }));
        EXPECT_THAT(bench.presence.events, ElementsAre(3U));
        EXPECT_EQ(DisplayedProfile, 2);
        EXPECT_TRUE(bench.cap(2201).m_bRemapped);
        EXPECT_THAT(bench.changes(), IsEmpty());
        bench.window->send(id::profileTab5, 0, NOTIFY_CLICK);
        EXPECT_EQ(bench.store.currentProfile(), 4);
    });
}

TEST(ProfileCommands, ResetWritesOneProfileAtOnceAndKeepsTheSixthMacroPending) {
    MainWindowBench bench;
    bench.run([&] {
        bench.click(id::profileTab2);
        bench.window->send(msg::keyCodeChosen, 2201, 62);
        PendingWrites& pending = bench.window->link().pending();
        for (int row = 0; row < PendingWrites::rowCount; ++row)
            pending.mark(row, 1);
        pending.mark(0, 0);

        bench.clickAndAnswer(id::resetButton, dialog::wideSize, {cancelOfReset});
        EXPECT_THAT(bench.changes(), IsEmpty());
        EXPECT_TRUE(bench.cap(2201).m_bRemapped);

        bench.clickAndAnswer(id::resetButton, dialog::wideSize, {okOfReset});
        EXPECT_THAT(headers(bench.changes()),
                    ElementsAre("replace " + bench.file("default1.psf"), "set 07 08 01 00", "set 06 B8 01 00",
                                "set 05 03 01"));
        EXPECT_FALSE(bench.cap(2201).m_bRemapped);
        for (int row = 0; row < PendingWrites::rowCount; ++row)
            EXPECT_EQ(pending.isMarked(row, 1), row == 7) << row;
        EXPECT_TRUE(pending.isMarked(0, 0));
    });
}

TEST(ProfileCommands, RestoreResetsTheKeyboardsProfilesTheConfigurationAndTheFirstMacroSet) {
    MainWindowBench bench;
    bench.run([&] {
        for (const char* name : {"One", "Two"})
            AddMacroKey(bench.macros.sets[0], name);
        AddMacroKey(AddMacroSet(bench.macros, "Other"), "Kept");
        bench.store.setSetting(3, settingLightMode, "9");
        bench.store.SetSlotPath(1, "/elsewhere.psf");
        bench.click(id::profileTab3);
        bench.window->send(msg::keyCodeChosen, 2201, 62);

        bench.clickAndAnswer(id::restoreButton, dialog::wideSize, {okOfReset});
        EXPECT_THAT(headers(bench.changes()),
                    ElementsAre("replace " + bench.file("config.ini"),
                                "replace " + bench.file("default0.psf"), "set 07 08 00 00", "set 06 B8 00 00",
                                "replace " + bench.file("default1.psf"), "set 07 08 01 00", "set 06 B8 01 00",
                                "replace " + bench.file("default2.psf"), "set 07 08 02 00", "set 06 B8 02 00",
                                "set 05 03 00", "replace " + bench.file("MacroLibraryFile.mlf")));
        EXPECT_EQ(DisplayedProfile, 0);
        EXPECT_EQ(bench.store.settingNumber(3, settingLightMode), 9);
        EXPECT_THAT(bench.macros.sets[0].keys, IsEmpty());
        EXPECT_EQ(bench.macros.sets[1].keys.size(), 1U);
        EXPECT_FALSE(bench.window->link().pending().isMarked(PendingWrites::keyCodeRow, 2));
    });
}

TEST(ProfileCommands, ProfileFilesBindTheSlotAndABadOneIsReplacedByTheDefaults) {
    MainWindowBench bench;
    bench.run([&] {
        bench.click(id::profileTab2);
        bench.window->send(id::saveProfileButton, 0, NOTIFY_CLICK); // cancelled
        EXPECT_THAT(bench.changes(), IsEmpty());

        bench.shell.nextFile = "/home/x.psf";
        bench.store.setSetting(1, settingLightMode, "7");
        bench.window->send(id::saveProfileButton, 0, NOTIFY_CLICK);
        EXPECT_THAT(bench.changes(),
                    ElementsAre("replace " + bench.file("config.ini"), "replace /home/x.psf"));
        EXPECT_EQ(bench.store.slotPath(1), "/home/x.psf");

        bench.store.setSetting(1, settingLightMode, "2");
        bench.window->send(id::loadProfileButton, 0, NOTIFY_CLICK);
        EXPECT_EQ(bench.field(id::lightModeField).valueText(), "Yellow Full");
        EXPECT_THAT(bench.changes(), IsEmpty());

        bench.shell.nextFile = "/home/letter.txt";
        bench.files.contents["/home/letter.txt"] = "Dear sir";
        bench.window->send(id::loadProfileButton, 0, NOTIFY_CLICK);
        EXPECT_THAT(bench.changes(), ElementsAre("replace /home/letter.txt"));
        EXPECT_EQ(bench.files.contents["/home/letter.txt.bak"], "Dear sir");
        EXPECT_EQ(bench.field(id::lightModeField).valueText(), "RGB Full");

        // With no profile current there is nothing to save or to load into.
        bench.store.SetCurrentProfileText(-1);
        bench.window->send(id::saveProfileButton, 0, NOTIFY_CLICK);
        bench.window->send(id::loadProfileButton, 0, NOTIFY_CLICK);
        EXPECT_THAT(bench.changes(), IsEmpty());
        EXPECT_EQ(bench.store.slotPath(0), bench.file("default0.psf"));
    });
}

} // namespace
} // namespace tarnix
