#include <gmock/gmock.h>

#include "main_window_bench.h"
#include "ui/dialog_layouts.h"

namespace tarnix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Journal profileFiles{"replace default0.psf", "replace default1.psf", "replace default2.psf",
                           "replace default3.psf", "replace default4.psf"};

Journal operator+(Journal left, const Journal& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

class ProfileCommands : public MainWindowTest {
  protected:
    /// Files without the configuration's folder, reports as far as they say of which profile they are.
    Journal headers() {
        Journal all = changes();
        for (std::string& line : all) {
            if (!line.starts_with("set 05")) line = line.substr(0, line.find(": "));
            if (const auto folder = line.find(file("")); folder != line.npos)
                line.erase(folder, file("").size());
        }
        return all;
    }
    void remapF1() { window->send(msg::keyCodeChosen, 2201, 62); }

    PendingWrites& pending = window->link().pending();
    const Journal always = Journal{"set 05 active profile: 1", "replace config.ini"} + profileFiles;
};

TEST_F(ProfileCommands, ApplySendsBeforeItSavesAndSavesAChangedLibraryOnceAndWhatTheDiskRefusedAgain) {
    const Journal library{"replace MacroLibraryFile.mlf"};
    remapF1();
    pending.mark(PendingWrites::lightingRow, 2);
    pending.m_bMacroLibraryChanged = true;
    click(id::applyButton);
    EXPECT_EQ(headers(),
              Journal({"set 07 lighting profile 3", "set 06 key codes profile 1"}) + always + library);
    for (int failing = 1; failing <= 8; ++failing) {
        pending.m_bMacroLibraryChanged |= failing < 8;
        files.failWriteNumber = failing % 8; // the last one fails nothing
        click(id::applyButton);
        Journal expected = always + library;
        if (failing < 8) expected[failing] += " failed";
        EXPECT_EQ(headers(), expected);
    }
    click(id::okButton);
    EXPECT_EQ(headers(), always);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(ProfileCommands, ResetWritesOneProfileAtOnceAndKeepsTheSixthMacroPending) {
    click(id::profileTab2);
    remapF1();
    clickAndAnswer(2201, dialog::okButton); // which shows and confirms what it does now
    for (int row = 0; row < PendingWrites::rowCount; ++row)
        pending.mark(row, 1);
    pending.mark(0, 0);
    clickAndAnswer(id::resetButton, dialog::cancelButton);
    EXPECT_THAT(headers(), IsEmpty());
    EXPECT_TRUE(cap(2201).m_bRemapped);

    clickAndAnswer(id::resetButton, dialog::okButton);
    EXPECT_THAT(headers(), ElementsAre("replace default1.psf", "set 07 lighting profile 2",
                                       "set 06 key codes profile 2", "set 05 active profile: 2"));
    for (unsigned key = id::firstKeyCap; key < id::lastKeyCap; ++key) // the last one shares a key's place
        EXPECT_FALSE(cap(key).m_bRemapped) << key;
    for (int row = 0; row < PendingWrites::rowCount; ++row)
        EXPECT_EQ(pending.isMarked(row, 1), row == 7) << row;
    EXPECT_TRUE(pending.isMarked(0, 0));
}

TEST_F(ProfileCommands, RestoreResetsTheKeyboardsProfilesTheConfigurationAndTheFirstMacroSet) {
    AddMacroKey(macros.sets[0], "One");
    AddMacroKey(AddMacroSet(macros, "Other"), "Kept");
    store.setSetting(3, settingLightMode, "9");
    click(id::profileTab3);
    remapF1();
    clickAndAnswer(id::restoreButton, dialog::okButton);
    Journal expected{"replace config.ini"};
    for (int n = 0; n < 3; ++n) {
        const std::string profile = " profile " + std::to_string(n + 1);
        expected =
            expected + Journal{profileFiles[n], "set 07 lighting" + profile, "set 06 key codes" + profile};
    }
    EXPECT_EQ(headers(), expected + Journal({"set 05 active profile: 1", "replace MacroLibraryFile.mlf"}));
    EXPECT_EQ(DisplayedProfile, 0);
    EXPECT_EQ(store.settingNumber(3, settingLightMode), 9);
    EXPECT_THAT(macros.sets[0].keys, IsEmpty());
    EXPECT_EQ(macros.sets[1].keys.size(), 1U);
    EXPECT_FALSE(pending.isMarked(PendingWrites::keyCodeRow, 2));
}

TEST_F(ProfileCommands, ProfileFilesBindTheSlotAndABadOneIsReplacedByTheDefaults) {
    store.setSetting(1, settingLightMode, "3");
    click(id::profileTab2);
    EXPECT_EQ(field(id::lightModeField).valueText(), "Flow Right");
    const auto changesBy = [&](unsigned button) {
        window->send(button, 0, NOTIFY_CLICK);
        return headers();
    };
    EXPECT_THAT(changesBy(id::saveProfileButton), IsEmpty()) << "cancelled";

    shell.nextFile = "/home/x.psf";
    store.setSetting(1, settingLightMode, "7");
    EXPECT_THAT(changesBy(id::saveProfileButton), ElementsAre("replace config.ini", "replace /home/x.psf"));
    EXPECT_EQ(store.slotPath(1), "/home/x.psf");

    store.setSetting(1, settingLightMode, "2");
    EXPECT_THAT(changesBy(id::loadProfileButton), IsEmpty());
    EXPECT_EQ(field(id::lightModeField).valueText(), "Yellow Full");

    files.contents["/home/letter.txt"] = "Dear sir";
    shell.nextFile = "/home/letter.txt";
    EXPECT_THAT(changesBy(id::loadProfileButton), ElementsAre("replace /home/letter.txt"));
    EXPECT_EQ(files.contents["/home/letter.txt.bak"], "Dear sir");

    // With no profile current there is nothing to save or to load into.
    store.SetCurrentProfileText(-1);
    for (const unsigned button : {id::saveProfileButton, id::loadProfileButton})
        EXPECT_THAT(changesBy(button), IsEmpty());
}

} // namespace
} // namespace tarnix
