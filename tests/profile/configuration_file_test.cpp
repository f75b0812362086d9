#include "profile/configuration_file.h"

#include <gmock/gmock.h>

#include "support/memory_files.h"

namespace tarnix {
namespace {

const std::string folder = "/home/u/kbd/";
const std::string path = "/home/u/kbd/config\\config.ini";
const std::string defaults =
    "[Setting]\nCurrentProfile=0\n"
    "ProfileSlot0URL=/home/u/kbd/config\\default0.psf\nProfileSlot1URL=/home/u/kbd/config\\default1.psf\n"
    "ProfileSlot2URL=/home/u/kbd/config\\default2.psf\nProfileSlot3URL=/home/u/kbd/config\\default3.psf\n"
    "ProfileSlot4URL=/home/u/kbd/config\\default4.psf\n";

TEST(ConfigurationFile, PairsAreTakenByPlaceAndMissingOnesStay) {
    ProfileStore store;
    const std::string swapped =
        "[Setting]\nProfileSlot0URL=/a\nCurrentProfile=a=b\nx=1\ny=2\nz=3\n  w = 4 \n";
    EXPECT_FALSE(parseConfiguration(swapped, store.ConfigTable));
    EXPECT_EQ(formatConfiguration(store.ConfigTable), swapped);
    EXPECT_EQ(store.currentProfile(), 0);
    EXPECT_EQ(store.slotPath(0), "a=b");

    EXPECT_FALSE(
        parseConfiguration("[Setting]\r\nCurrentProfile=2\r\nProfileSlot0URL=/b", store.ConfigTable));
    EXPECT_EQ(store.currentProfile(), 2);
    EXPECT_EQ(store.slotPath(0) + store.slotPath(1), "/b1");
    EXPECT_FALSE(parseConfiguration("[Setting]", store.ConfigTable));
    EXPECT_EQ(store.currentProfile(), 2);
}

TEST(ConfigurationFile, RefusalsNameTheLine) {
    const std::map<std::size_t, std::vector<std::string>> refused{
        {1, {"", "[setting]\n", "[Setting] \n", "\xEF\xBB\xBF[Setting]\n", std::string("\0\xFF\n\r\0=", 6)}},
        {2, {"[Setting]\nCurrentProfile=\n", "[Setting]\n\n", "[Setting]\n=0\n"}},
        {3, {"[Setting]\nA=1\nB\n"}},
        {8, {defaults + "\n", defaults + "More=1\n"}}};
    for (const auto& [line, texts] : refused) {
        for (const auto& text : texts) {
            ConfigPairs pairs;
            const auto error = parseConfiguration(text, pairs);
            EXPECT_EQ(error ? error->line : 0, line) << text;
        }
    }
}

TEST(ConfigurationFile, RefusedFileIsSetAsideAndTheShownProfileBecomesCurrent) {
    MemoryFiles files;
    ProfileStore store;
    const std::string broken = "[Setting]\nCurrentProfile=4\nbroken\n";
    files.contents[path] = broken;
    EXPECT_FALSE(LoadConfig(store, files, folder));
    EXPECT_EQ(store.currentProfile(), 0);
    EXPECT_EQ(files.contents,
              (std::map<std::string, std::string>{{path, defaults}, {path + ".bak", broken}}));
    EXPECT_TRUE(LoadConfig(store, files, folder));

    DisplayedProfile = 2;
    EXPECT_TRUE(SaveCurrentProfile(store, files, folder));
    EXPECT_EQ(std::exchange(DisplayedProfile, 0), store.currentProfile()) << "what is shown becomes current";
    EXPECT_THAT(files.contents[path], testing::HasSubstr("=2\n"));
}

} // namespace
} // namespace tarnix
