#include "platform/linux/program_folder.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace tarnix {
namespace {

TEST(ProgramFolder, IsTheProgramsOwnUnlessThatIsInstalledOrNotToBeWritten) {
    TempFolder temporary;
    const std::string home = temporary / "home/.config";
    for (const char* folder : {"kbd", "bin", "sbin", "games", "libexec"})
        std::filesystem::create_directory(temporary / folder);
    const auto folderOf = [&](const std::string& program) { return programFolderOf(program, home); };
    EXPECT_EQ(folderOf(temporary / "kbd/tarnix-keyboard"), temporary / "kbd/");
    EXPECT_FALSE(std::filesystem::exists(home));
    for (const std::string folder : {"bin", "sbin", "games", "libexec", "missing"})
        EXPECT_EQ(folderOf(temporary / (folder + "/x")), home + "/tarnix-keyboard/") << folder;
    EXPECT_EQ(folderOf("x"), home + "/tarnix-keyboard/");
    EXPECT_TRUE(std::filesystem::is_directory(home + "/tarnix-keyboard"));
}

} // namespace
} // namespace tarnix
