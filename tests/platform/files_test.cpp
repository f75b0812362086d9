#include "platform/files.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "support/temp_folder.h"

namespace tarnix {
namespace {

namespace fs = std::filesystem;

class SystemFilesTest : public testing::Test {
  protected:
    std::string at(const std::string& name) const { return (folder / name).string(); }
    void put(const std::string& name, const std::string& text) const { std::ofstream(at(name)) << text; }
    std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const auto& entry : fs::directory_iterator(folder))
            found.push_back(entry.path().filename());
        return found;
    }

    TempFolder temporary;
    const fs::path folder = temporary.path();
    std::unique_ptr<Files> files = makeSystemFiles();
};

TEST_F(SystemFilesTest, ReadsWholeRegularFilesOnly) {
    const std::string text("a\r\nb\0\xFF", 6);
    put("x", text);
    EXPECT_EQ(files->read(at("x")), text);
    ASSERT_EQ(::mkfifo(at("pipe").c_str(), 0600), 0); // whose writer is not waited for
    for (const std::string& path : {at("missing"), std::string(), folder.string(), std::string("/dev/zero"),
                                    at("x") + std::string("\0y", 2), at("pipe")})
        EXPECT_EQ(files->read(path), std::nullopt) << path;
    fs::resize_file(at("x"), Files::maxFileSize);
    EXPECT_EQ(files->read(at("x"))->size(), Files::maxFileSize);
    fs::resize_file(at("x"), Files::maxFileSize + 1);
    EXPECT_EQ(files->read(at("x")), std::nullopt);
}

TEST_F(SystemFilesTest, BackslashesAreSlashesUnlessSuchAFileExists) {
    EXPECT_TRUE(files->replace(at("config\\deep\\a.psf"), "made"));
    EXPECT_EQ(files->read(at("config/deep/a.psf")), "made");
    EXPECT_EQ(files->read(at("config\\deep\\a.psf")), "made");
    put("config\\odd", "literal");
    put("config/odd", "mapped");
    EXPECT_EQ(files->read(at("config\\odd")), "literal");
    EXPECT_TRUE(files->replace(at("config\\odd"), "literal 2"));
    EXPECT_EQ(files->read(at("config/odd")), "mapped");
    EXPECT_FALSE(files->replace("C:\\Kbd\\config\\a.psf", "x"));
    EXPECT_FALSE(fs::exists("C:"));
}

TEST_F(SystemFilesTest, ReplacingNeverWritesIntoTheOldFileAndKeepsLinksAndPermissions) {
    put("real", "old");
    ASSERT_EQ(::chmod(at("real").c_str(), 0646), 0);
    fs::create_hard_link(at("real"), at("witness"));
    fs::create_symlink("real", at("link"));
    fs::create_symlink(at("link"), at("outer"));

    EXPECT_TRUE(files->replace(at("outer"), "new"));
    EXPECT_EQ(files->read(at("real")), "new");
    EXPECT_EQ(files->read(at("witness")), "old");
    EXPECT_TRUE(fs::is_symlink(at("link")) && fs::is_symlink(at("outer")));
    EXPECT_EQ(fs::status(at("real")).permissions(), fs::perms{0646});

    fs::create_symlink("new target", at("dangling"));
    EXPECT_TRUE(files->replace(at("dangling"), "made"));
    EXPECT_EQ(files->read(at("new target")), "made");
    fs::create_symlink("loop", at("loop"));
    EXPECT_FALSE(files->replace(at("loop"), "x"));
    EXPECT_THAT(names(), testing::UnorderedElementsAre("real", "witness", "link", "outer", "dangling",
                                                       "new target", "loop"));
}

TEST_F(SystemFilesTest, PlacesWhereNoFileCanBeAreRefusedAndStayAsTheyAre) {
    put("x", "old");
    ASSERT_EQ(::mkfifo(at("pipe").c_str(), 0666), 0);
    for (const std::string& path : {at("x/below"), folder.string(), std::string(), at("pipe")})
        EXPECT_FALSE(files->replace(path, "new"));
    EXPECT_FALSE(files->setAside(at("pipe")));
    EXPECT_THAT(names(), testing::UnorderedElementsAre("x", "pipe"));
}

TEST_F(SystemFilesTest, RefusedFilesMoveAsideAndNothingElseDoes) {
    put("p.psf", "second");
    put("p.psf.bak", "first");
    EXPECT_TRUE(files->setAside(folder.string() + "\\p.psf"));
    EXPECT_EQ(files->read(at("p.psf.bak")), "second");
    EXPECT_FALSE(fs::exists(at("p.psf")));
    EXPECT_TRUE(files->setAside(at("p.psf"))) << "nothing left to move";
    put("blocked", "x");
    fs::create_directory(at("blocked.bak"));
    EXPECT_FALSE(files->setAside(at("blocked")));
    EXPECT_EQ(files->read(at("blocked")), "x");
}

} // namespace
} // namespace tarnix
