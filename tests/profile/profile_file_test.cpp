#include "profile/profile_file.h"

#include <gmock/gmock.h>

#include "support/memory_files.h"

namespace tarnix {
namespace {

ProfileRecord defaultRecord(int n) {
    ProfileRecord record;
    resetProfileRecord(record, n);
    return record;
}

/// The first record's default file, its lines ended as on Windows, with another line and cut as asked.
std::string defaultText(std::size_t number = 0, const std::string& other = {}, std::size_t length = 29) {
    const std::string text = formatProfile(defaultRecord(0));
    LineReader reader(text);
    std::string changed;
    for (std::size_t n = 1; n <= length; ++n) {
        const std::string line(reader.next().value());
        changed += (n == number ? other : line) + "\r\n";
    }
    return changed;
}

std::size_t refusedLine(const std::string& text) {
    ProfileRecord record;
    const auto error = parseProfile(text, record);
    return error ? error->line : 0;
}

TEST(ProfileFile, EveryTextComesBackAsOneLine) {
    ProfileRecord record = defaultRecord(0), read;
    record.Settings[0] = {"profilename", "a=b"};
    record.Settings[8] = {"odd key", ""};
    record.KeyCodes[159] = 0xFF;
    record.GKeys[5] = {"\xB9\xA6=x", "/opt/a b\\c=d", {0xFF, 0x00, 0x80}};
    EXPECT_FALSE(parseProfile(formatProfile(record) + "more\n", read));
    EXPECT_EQ(read, record);

    record.GKeys[5].Name = "two\r\nlines";
    EXPECT_FALSE(parseProfile(formatProfile(record), read));
    EXPECT_EQ(read.GKeys[5].Name, "two  lines");
    EXPECT_EQ(read.GKeys[5].Url, record.GKeys[5].Url);

    EXPECT_FALSE(parseProfile(defaultText(), read));
    EXPECT_EQ(read, defaultRecord(0));
}

TEST(ProfileFile, DigitsReadAsFarAsTheyGo) {
    ProfileRecord record;
    EXPECT_FALSE(parseProfile(defaultText(11, "=zz1z=1" + std::string(314, '7')), record));
    EXPECT_EQ(record.KeyCodes[0] << 16 | record.KeyCodes[1] << 8 | record.KeyCodes[159], 0x000177);
    const std::map<std::string, KeyAssignment> values{
        {"\tx=1", {0x01, 0, 0}}, {"\tx=", {0, 0, 0}}, {"x=070102FF", {7, 1, 2}}, {"x=q1ff-", {0, 0xFF, 0}}};
    for (const auto& [line, value] : values) {
        EXPECT_FALSE(parseProfile(defaultText(13, line), record));
        EXPECT_EQ(record.GKeys[0].Value, value) << line;
    }
}

TEST(ProfileFile, RefusalsNameTheLine) {
    const std::string digits(322, '0');
    const std::map<std::size_t, std::vector<std::string>> refused{
        {1, {"[setting]", "[Setting] ", ""}},
        {2, {"ProfileName", ""}},
        {10, {"=4"}},
        {11, {"AllRCKey=", "no equals", "AllRCKey=" + digits.substr(4), "AllRCKey=" + digits}},
        {12, {"=name"}},
        {13, {"060120"}},
        {29, {"=url"}}};
    for (const auto& [line, texts] : refused) {
        for (const auto& text : texts)
            EXPECT_EQ(refusedLine(defaultText(line, text)), line) << text;
    }
    for (std::size_t length = 0; length < 29; ++length)
        EXPECT_EQ(refusedLine(defaultText(0, {}, length)), length + 1);
}

TEST(ProfileFile, ShortFileIsSetAsideAndBecomesTheDefaultsWithTheUrlsReadSoFar) {
    MemoryFiles files;
    ProfileStore store;
    store.SetSlotPath(2, "/p.psf");
    const std::string cut = defaultText(14, "\tKey0URL=/first", 23);
    files.contents["/p.psf"] = cut;
    EXPECT_FALSE(LoadProfileFile(store, 2, files));
    ProfileRecord expected = defaultRecord(2);
    expected.GKeys[0].Url = "/first";
    EXPECT_EQ(*store.record(2), expected);
    EXPECT_EQ(files.contents["/p.psf.bak"], cut);
    EXPECT_EQ(files.contents["/p.psf"], formatProfile(expected));
    EXPECT_TRUE(LoadProfileFile(store, 2, files));

    EXPECT_FALSE(LoadProfileFile(store, 4, files)) << "no path at all";
    EXPECT_EQ(*store.record(4), defaultRecord(4));
    EXPECT_FALSE(LoadProfileFile(store, 5, files));
    EXPECT_FALSE(SaveProfileFile(store, -1, files));
}

} // namespace
} // namespace tarnix
