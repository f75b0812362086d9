#include "profile/configuration_file.h"

#include <gmock/gmock.h>

#include "support/memory_files.h"

namespace tarnix {
namespace {

using testing::ElementsAre;

const std::string folder = "/home/u/kbd/";
const std::string path = "/home/u/kbd/config\\config.ini";
const std::string defaults =
    "[Setting]\nCurrentProfile=0\n"
    "ProfileSlot0URL=/home/u/kbd/config\\default0.psf\nProfileSlot1URL=/home/u/kbd/config\\default1.psf\n"
    "ProfileSlot2URL=/home/u/kbd/config\\default2.psf\nProfileSlot3URL=/home/u/kbd/config\\default3.psf\n"
    "ProfileSlot4URL=/home/u/kbd/config\\default4.psf\n";

TEST(ConfigurationFile, AcceptsPairsByPlaceAndWritesThemBackAsRead) {
    for (const std::string& text :
         {defaults,
          std::string("[Setting]\nProfileSlot0URL=/a\nCurrentProfile=a=b\nx=1\ny=2\nz=3\n  w = 4 \n")}) {
        ConfigPairs pairs;
        EXPECT_FALSE(parseConfiguration(text, pairs));
        EXPECT_EQ(formatConfiguration(pairs), text);
    }
    ProfileStore store;
    EXPECT_FALSE(
        parseConfiguration("[Setting]\r\nProfileSlot0URL=/a\r\nCurrentProfile=a=b", store.ConfigTable));
    EXPECT_EQ(store.currentProfile(), 0);
    EXPECT_EQ(store.ConfigTable[1], (SettingPair{"CurrentProfile", "a=b"}));
}

TEST(ConfigurationFile, FewerLinesLeaveTheOtherPairsAlone) {
    ConfigPairs pairs;
    pairs[0].Value = "2";
    EXPECT_FALSE(parseConfiguration("[Setting]", pairs));
    EXPECT_EQ(pairs[0].Value, "2");
    EXPECT_FALSE(parseConfiguration("[Setting]\nCurrentProfile=1\n", pairs));
    EXPECT_EQ(pairs[0].Value, "1");
    EXPECT_EQ(pairs[1], SettingPair{});
}

TEST(ConfigurationFile, RefusalsNameTheLine) {
    struct Case {
        std::string text;
        std::size_t line;
    };
    for (const Case& c : {Case{"", 1},
                          {"[setting]\n", 1},
                          {"[Setting] \n", 1},
                          {"\xEF\xBB\xBF[Setting]\n", 1},
                          {"[Setting]\nCurrentProfile=\n", 2},
                          {"[Setting]\n\n", 2},
                          {"[Setting]\n=0\n", 2},
                          {"[Setting]\nA=1\nB\n", 3},
                          {defaults + "\n", 8},
                          {defaults + "More=1\n", 8},
                          {std::string("\0\xFF\n\r\0=", 6), 1}}) {
        ConfigPairs pairs;
        const auto error = parseConfiguration(c.text, pairs);
        ASSERT_TRUE(error) << c.text;
        EXPECT_EQ(error->line, c.line) << c.text;
    }
}

TEST(ConfigurationFile, MissingFileIsWrittenAndRefusedOneIsSetAsideFirst) {
    MemoryFiles files;
    ProfileStore store;
    EXPECT_FALSE(LoadConfig(store, files, folder));
    EXPECT_EQ(files.contents, (std::map<std::string, std::string>{{path, defaults}}));
    EXPECT_TRUE(LoadConfig(store, files, folder));

    files.log.clear();
    files.contents[path] = "[Setting]\nCurrentProfile=4\nbroken\n";
    EXPECT_FALSE(LoadConfig(store, files, folder));
    EXPECT_EQ(store.currentProfile(), 0);
    EXPECT_EQ(files.contents[path], defaults);
    EXPECT_EQ(files.contents[path + ".bak"], "[Setting]\nCurrentProfile=4\nbroken\n");
    EXPECT_THAT(files.log, ElementsAre("read " + path, "set aside " + path, "replace " + path));
}

TEST(ConfigurationFile, RefusedFileThatCannotBeSetAsideIsNotOverwritten) {
    MemoryFiles files;
    files.failSetAside = true;
    files.contents[path] = "broken";
    ProfileStore store;
    EXPECT_FALSE(LoadConfig(store, files, folder));
    EXPECT_EQ(files.contents[path], "broken");
    EXPECT_EQ(store.slotPath(4), folder + "config\\default4.psf");
}

TEST(ConfigurationFile, DisplayedProfileBecomesCurrentEvenWhenTheDiskIsFull) {
    MemoryFiles files;
    ProfileStore store;
    ResetConfig(store, folder);
    DisplayedProfile = 2;
    EXPECT_TRUE(SaveCurrentProfile(store, files, folder));
    EXPECT_THAT(files.contents[path], testing::HasSubstr("\nCurrentProfile=2\n"));
    files.failAllWrites = true;
    DisplayedProfile = 1;
    EXPECT_FALSE(SaveCurrentProfile(store, files, folder));
    EXPECT_EQ(store.currentProfile(), 1);
    EXPECT_THAT(files.contents[path], testing::HasSubstr("\nCurrentProfile=2\n"));
    DisplayedProfile = 0;
}

} // namespace
} // namespace tarnix
