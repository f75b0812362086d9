#include "platform/linux/launch.h"

#include <gmock/gmock.h>
#include <sys/wait.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
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
    std::vector<std::string> names{"plain", "two words",   "--help",   "$(touch bad); touch bad",
                                   "a\nb",  "`id`|&;'\"*", "\xC4\xE3", std::string(255, 'x')};
    const std::string special = " \t\n$`'\"\\;&|<>*?[]{}()!#~%-=,:.@\x01\x7F\xFF";
    std::mt19937 random(1);
    while (names.size() < 60) {
        std::string& name = names.emplace_back("x");
        while (random() % 12 != 0)
            name.insert(random() % 2 * name.size(), 1, special[random() % special.size()]);
    }
    for (std::size_t number = 0; number < names.size(); ++number) {
        const std::string mark = "mark" + std::to_string(number);
        const std::string path = program(names[number], mark);
        EXPECT_THAT(opened(path), IsEmpty()) << path;
        EXPECT_EQ(result(mark), "0\n") << path;
        EXPECT_THAT(opened(path + " "), IsEmpty());
        fs::remove(path);
        fs::remove(folder / mark);
        EXPECT_TRUE(fs::is_empty(folder.path())) << path;
    }
    EXPECT_FALSE(fs::exists("bad"));
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "a child is left to wait for";
    EXPECT_EQ(errno, ECHILD);
    std::printf("counted: %zu programs of odd names\n", names.size());
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
    std::ofstream(folder / "orphan") << "#!/no/such/interpreter\n";
    fs::permissions(folder / "orphan", fs::perms::owner_all);
    for (const std::string& target :
         {std::string(), std::string("sh"), std::string("./started"), started + " -x",
          started + std::string("\0x", 2), (folder / "missing").string(), (folder / "dangling").string(),
          (folder / "orphan").string(), std::string("http://"), std::string("https://example.org/ -x"),
          std::string("http://example.org/\n"), "file://" + started, std::string("javascript:alert(1)"),
          std::string("mailto:a@example.org")})
        EXPECT_THAT(opened(target), IsEmpty()) << target;
    EXPECT_FALSE(fs::exists(folder / "mark"));
}

} // namespace
} // namespace tarnix
