#include "platform/linux/launch.h"

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

#include "support/temp_folder.h"

namespace tarnix {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class LaunchTest : public testing::Test {
  protected:
    /// An executable of any name that writes its arguments' number and its standard input to a file.
    std::string program(const std::string& name, const std::string& mark) const {
        const fs::path path = folder / name;
        std::ofstream(path) << "#!/bin/sh\n{ echo $#; cat; } >'" << (folder / "new").string() << "'\nmv '"
                            << (folder / "new").string() << "' '" << (folder / mark).string() << "'\n";
        fs::permissions(path, fs::perms::owner_all);
        return path;
    }

    std::vector<std::string> opened(const std::string& target) const {
        std::vector<std::string> texts;
        launchTarget(target, [&](const std::string& text) { texts.push_back(text); });
        return texts;
    }

    /// What a started program has written.
    std::string result(const std::string& mark) const {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (!fs::exists(folder / mark) && std::chrono::steady_clock::now() < deadline)
            std::this_thread::yield();
        std::ifstream file(folder / mark);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    TempFolder folder;
};

TEST_F(LaunchTest, StartsAProgramOfAnyNameWithoutAShellOrArguments) {
    int number = 0;
    for (const std::string name :
         {"plain", "two words", "--help", "$(touch bad); touch bad", "a\nb", "`id`|&;'\"*"}) {
        const std::string mark = "mark" + std::to_string(number++);
        EXPECT_THAT(opened(program(name, mark)), IsEmpty()) << name;
        EXPECT_EQ(result(mark), "0\n") << name;
    }
    EXPECT_FALSE(fs::exists(folder / "bad") || fs::exists("bad"));
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "a child is left to wait for";
    EXPECT_EQ(errno, ECHILD);
}

TEST_F(LaunchTest, OpensWhatExistsAndIsNoProgram) {
    std::ofstream(folder / "letter.txt") << "text";
    std::ofstream(folder / "marked.txt") << "text on a file system that marks everything executable";
    fs::permissions(folder / "marked.txt", fs::perms::owner_all);
    for (const std::string& target :
         {(folder / "letter.txt").string(), (folder / "marked.txt").string(), folder.path().string(),
          std::string("http://example.org/a?b=c&d"), std::string("HTTPS://example.org/%20")})
        EXPECT_THAT(opened(target), ElementsAre(target));
}

TEST_F(LaunchTest, DoesNothingWithAnythingElse) {
    const std::string started = program("started", "mark");
    fs::create_symlink(folder / "nowhere", folder / "dangling");
    for (const std::string& target :
         {std::string(), std::string("sh"), std::string("./started"), started + " -x",
          started + std::string("\0x", 2), (folder / "missing").string(), (folder / "dangling").string(),
          std::string("http://"), std::string("https://example.org/ -x"),
          std::string("http://example.org/\n"), "file://" + started, std::string("javascript:alert(1)"),
          std::string("mailto:a@example.org")})
        EXPECT_THAT(opened(target), IsEmpty()) << target;
    EXPECT_FALSE(fs::exists(folder / "mark"));
}

} // namespace
} // namespace tarnix
