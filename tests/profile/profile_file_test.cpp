#include "profile/profile_file.h"

#include <gmock/gmock.h>

#include "support/memory_files.h"

namespace tarnix {
namespace {

using testing::StartsWith;

ProfileRecord defaultRecord(int n) {
    ProfileRecord record;
    resetProfileRecord(record, n);
    return record;
}

std::string defaultText() {
    return formatProfile(defaultRecord(0));
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    LineReader reader(text);
    while (const auto line = reader.next())
        lines.emplace_back(*line);
    return lines;
}

std::string joined(const std::vector<std::string>& lines, const std::string& end = "\n") {
    std::string text;
    for (const auto& line : lines)
        text += line + end;
    return text;
}

std::string withLine(std::size_t number, const std::string& line) {
    auto lines = linesOf(defaultText());
    lines[number - 1] = line;
    return joined(lines);
}

TEST(ProfileFile, DefaultRecordIsWrittenByteByByte) {
    const auto lines = linesOf(defaultText());
    ASSERT_EQ(lines.size(), 29u);
    EXPECT_EQ(lines[0], "[Setting]");
    EXPECT_EQ(lines[1], "ProfileName=Default1");
    EXPECT_EQ(lines[9], "LightArea5Color=4");
    EXPECT_THAT(lines[10], StartsWith("AllRCKey=1DF081A4E6A5828306F200A1"));
    EXPECT_EQ(lines[10].size(), 9u + 320u);
    EXPECT_EQ(lines[11], "Key0Name=CTRL+1");
    EXPECT_EQ(lines[12], "\tKey0Value=06011E");
    EXPECT_EQ(lines[13], "\tKey0URL=");
    EXPECT_EQ(lines[27], "\tKey5Value=060123");
    EXPECT_EQ(defaultText().back(), '\n');
}

TEST(ProfileFile, EveryTextThatIsOneLineComesBack) {
    ProfileRecord record = defaultRecord(0);
    record.Settings[0] = {"profilename", "a=b"};
    record.Settings[8] = {"odd key", ""};
    record.KeyCodes[159] = 0xFF;
    record.GKeys[5] = {"\xB9\xA6=x", "/opt/a b\\c=d", {0xFF, 0x00, 0x80}};
    ProfileRecord read;
    EXPECT_FALSE(parseProfile(formatProfile(record), read));
    EXPECT_EQ(read, record);
    EXPECT_FALSE(parseProfile(joined(linesOf(formatProfile(record)), "\r\n") + "more\n", read));
    EXPECT_EQ(read, record);

    record.GKeys[5].Name = "two\r\nlines";
    EXPECT_FALSE(parseProfile(formatProfile(record), read));
    EXPECT_EQ(read.GKeys[5].Name, "two  lines");
    EXPECT_EQ(read.GKeys[5].Url, record.GKeys[5].Url);
}

TEST(ProfileFile, OddButAcceptableLinesReadAsFarAsTheyGo) {
    const std::string digits(320, '7');
    ProfileRecord record;
    EXPECT_FALSE(parseProfile(withLine(11, "=" + digits), record));
    EXPECT_EQ(record.KeyCodes[159], 0x77);
    EXPECT_FALSE(parseProfile(withLine(11, "AllRCKey=zz1z=1" + digits.substr(6)), record));
    EXPECT_EQ(record.KeyCodes[0], 0x00);
    EXPECT_EQ(record.KeyCodes[1], 0x01);
    EXPECT_EQ(record.KeyCodes[2], 0x00);
    for (const auto& [line, value] : {std::pair<std::string, KeyAssignment>{"\tKey0Value=1", {0x01, 0, 0}},
                                      {"\tKey0Value=", {0, 0, 0}},
                                      {"x=070102FF", {0x07, 0x01, 0x02}},
                                      {"\tKey0Value=q1ff-", {0x00, 0xFF, 0x00}}}) {
        EXPECT_FALSE(parseProfile(withLine(13, line), record));
        EXPECT_EQ(record.GKeys[0].Value, value) << line;
    }
}

TEST(ProfileFile, RefusalsNameTheLine) {
    struct Case {
        std::size_t line;
        std::string text;
    };
    for (const Case& c : {Case{1, "[setting]"},
                          {1, "[Setting] "},
                          {2, "ProfileName"},
                          {10, "=4"},
                          {11, "AllRCKey="},
                          {11, "no equals"},
                          {11, "AllRCKey=" + std::string(318, '0')},
                          {11, "AllRCKey=" + std::string(322, '0')},
                          {12, "=name"},
                          {13, "060120"},
                          {29, "=url"}}) {
        ProfileRecord record;
        const auto error = parseProfile(withLine(c.line, c.text), record);
        ASSERT_TRUE(error) << c.text;
        EXPECT_EQ(error->line, c.line) << c.text;
    }
    auto lines = linesOf(defaultText());
    while (!lines.empty()) {
        lines.pop_back();
        ProfileRecord record;
        const auto error = parseProfile(joined(lines), record);
        ASSERT_TRUE(error) << lines.size();
        EXPECT_EQ(error->line, lines.size() + 1);
    }
}

TEST(ProfileFile, ShortFileIsSetAsideAndBecomesTheDefaultsWithTheUrlsReadSoFar) {
    MemoryFiles files;
    ProfileStore store;
    store.SetSlotPath(2, "/p.psf");
    auto lines = linesOf(defaultText());
    lines[1] = "ProfileName=Work";
    lines[13] = "\tKey0URL=/first";
    lines.resize(23);
    files.contents["/p.psf"] = joined(lines);

    EXPECT_FALSE(LoadProfileFile(store, 2, files));
    EXPECT_EQ(files.contents["/p.psf.bak"], joined(lines));
    ProfileRecord expected = defaultRecord(2);
    expected.GKeys[0].Url = "/first";
    EXPECT_EQ(*store.record(2), expected);
    EXPECT_EQ(files.contents["/p.psf"], formatProfile(expected));
    EXPECT_TRUE(LoadProfileFile(store, 2, files));
}

TEST(ProfileFile, UnusableFilesAndFoldersLeaveDefaultsInMemory) {
    MemoryFiles files;
    ProfileStore store;
    EXPECT_FALSE(LoadProfileFile(store, 4, files)) << "no path at all";
    EXPECT_EQ(*store.record(4), defaultRecord(4));
    EXPECT_FALSE(LoadProfileFile(store, 5, files));
    EXPECT_FALSE(SaveProfileFile(store, -1, files));

    store.SetSlotPath(0, "/p.psf");
    files.contents["/p.psf"] = std::string(1 << 20, '\xFF');
    files.failSetAside = true;
    EXPECT_FALSE(LoadProfileFile(store, 0, files));
    EXPECT_EQ(*store.record(0), defaultRecord(0));
    EXPECT_EQ(files.contents["/p.psf"].size(), 1u << 20) << "not overwritten without a copy";

    files.failAllWrites = true;
    EXPECT_FALSE(SaveProfileFile(store, 0, files));
}

} // namespace
} // namespace tarnix
