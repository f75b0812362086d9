#include <gmock/gmock.h>

#include "main_window_bench.h"
#include "ui/dialog_layouts.h"

namespace tarnix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

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

TEST(ProfileCommands, ApplySendsBeforeItSavesAndSavesAChangedLibraryOnce) {
    MainWindowBench bench;
    bench.run([&] {
        bench.window->send(msg::keyCodeChosen, 2201, 62);
        PendingWrites& pending = bench.window->link().pending();
        pending.mark(PendingWrites::lightingRow, 2);
        pending.m_bMacroLibraryChanged = true;
        const Journal always =
            Journal{"set 05 03 00"} + written(bench, {"config.ini", "default0.psf", "default1.psf",
                                                      "default2.psf", "default3.psf", "default4.psf"});
        bench.click(id::applyButton);
        EXPECT_EQ(headers(bench.changes()), Journal({"set 07 08 02 00", "set 06 B8 00 00"}) + always +
                                                written(bench, {"MacroLibraryFile.mlf"}));
        bench.click(id::okButton);
        EXPECT_EQ(headers(bench.changes()), always);
        EXPECT_FALSE(bench.window->isVisible());
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

        bench.clickAndAnswer(id::resetButton, dialog::cancelButton);
        EXPECT_THAT(bench.changes(), IsEmpty());
        EXPECT_TRUE(bench.cap(2201).m_bRemapped);

        bench.clickAndAnswer(id::resetButton, dialog::okButton);
        EXPECT_THAT(headers(bench.changes()),
                    ElementsAre("replace " + bench.file("default1.psf"), "set 07 08 01 00", "set 06 B8 01 00",
                                "set 05 03 01"));
        for (unsigned key = id::firstKeyCap; key < id::lastKeyCap; ++key) // the last one shares a key's place
            EXPECT_FALSE(bench.cap(key).m_bRemapped) << key;
        for (int row = 0; row < PendingWrites::rowCount; ++row)
            EXPECT_EQ(pending.isMarked(row, 1), row == 7) << row;
        EXPECT_TRUE(pending.isMarked(0, 0));
    });
}

TEST(ProfileCommands, RestoreResetsTheKeyboardsProfilesTheConfigurationAndTheFirstMacroSet) {
    MainWindowBench bench;
    bench.run([&] {
        AddMacroKey(bench.macros.sets[0], "One");
        AddMacroKey(AddMacroSet(bench.macros, "Other"), "Kept");
        bench.store.setSetting(3, settingLightMode, "9");
        bench.click(id::profileTab3);
        bench.window->send(msg::keyCodeChosen, 2201, 62);

        bench.clickAndAnswer(id::restoreButton, dialog::okButton);
        Journal expected = written(bench, {"config.ini"});
        for (const std::string n : {"0", "1", "2"})
            expected = expected + Journal{"replace " + bench.file("default" + n + ".psf"),
                                          "set 07 08 0" + n + " 00", "set 06 B8 0" + n + " 00"};
        EXPECT_EQ(headers(bench.changes()),
                  expected + Journal{"set 05 03 00"} + written(bench, {"MacroLibraryFile.mlf"}));
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
        bench.store.setSetting(1, settingLightMode, "3");
        bench.click(id::profileTab2);
        EXPECT_EQ(bench.field(id::lightModeField).valueText(), "Flow Right");
        const auto changesBy = [&](unsigned button) {
            bench.window->send(button, 0, NOTIFY_CLICK);
            return bench.changes();
        };
        EXPECT_THAT(changesBy(id::saveProfileButton), IsEmpty()) << "cancelled";

        bench.shell.nextFile = "/home/x.psf";
        bench.store.setSetting(1, settingLightMode, "7");
        EXPECT_THAT(changesBy(id::saveProfileButton),
                    ElementsAre("replace " + bench.file("config.ini"), "replace /home/x.psf"));
        EXPECT_EQ(bench.store.slotPath(1), "/home/x.psf");

        bench.store.setSetting(1, settingLightMode, "2");
        EXPECT_THAT(changesBy(id::loadProfileButton), IsEmpty());
        EXPECT_EQ(bench.field(id::lightModeField).valueText(), "Yellow Full");

        bench.files.contents["/home/letter.txt"] = "Dear sir";
        bench.shell.nextFile = "/home/letter.txt";
        EXPECT_THAT(changesBy(id::loadProfileButton), ElementsAre("replace /home/letter.txt"));
        EXPECT_EQ(bench.files.contents["/home/letter.txt.bak"], "Dear sir");

        // With no profile current there is nothing to save or to load into.
        bench.store.SetCurrentProfileText(-1);
        for (const unsigned button : {id::saveProfileButton, id::loadProfileButton})
            EXPECT_THAT(changesBy(button), IsEmpty());
    });
}

TEST(ProfileCommands, WhatTheDiskRefusesToAnApplyIsSavedByTheNext) {
    MainWindowBench bench;
    bench.run([&] {
        Journal whole = written(bench, {"config.ini"});
        for (const char* name : {"default0.psf", "default1.psf", "default2.psf", "default3.psf",
                                 "default4.psf", "MacroLibraryFile.mlf"})
            whole = whole + written(bench, {name});
        for (int failing = 0; failing < 7; ++failing) {
            bench.window->link().pending().m_bMacroLibraryChanged = true;
            bench.files.failWriteNumber = failing + 1;
            bench.window->send(id::applyButton, 0, NOTIFY_CLICK);
            Journal expected = Journal{"set 05 03 00"} + whole;
            expected[1 + failing] += " failed";
            EXPECT_EQ(headers(bench.changes()), expected);
        }
        bench.window->send(id::applyButton, 0, NOTIFY_CLICK);
        EXPECT_EQ(headers(bench.changes()), Journal{"set 05 03 00"} + whole);
    });
}

} // namespace
} // namespace tarnix
