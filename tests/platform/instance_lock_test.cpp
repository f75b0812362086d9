#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <barrier>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <thread>
#include <vector>

#include "platform/shell.h"
#include "support/temp_folder.h"

namespace tarnix {
namespace {

namespace fs = std::filesystem;

/// A session of its own: a runtime folder, and a temporary folder for the case that there is none.
class InstanceLockTest : public testing::Test {
  protected:
    void SetUp() override {
        fs::create_directory(folder / "run");
        fs::permissions(folder / "run", fs::perms::owner_all);
        ::setenv("XDG_RUNTIME_DIR", (folder / "run").c_str(), 1);
        ::setenv("TMPDIR", folder.path().c_str(), 1);
    }
    void TearDown() override { ::unsetenv("TMPDIR"); }

    /// Whether another process gets the lock.
    static bool otherProcessGetsLock(const std::string& name) {
        const pid_t child = ::fork();
        if (child == 0) ::_exit(acquireInstanceLock(name) ? 1 : 0);
        int status = 0;
        ::waitpid(child, &status, 0);
        return WEXITSTATUS(status) == 1;
    }

    TempFolder folder;
};

TEST_F(InstanceLockTest, OneOfThoseThatStartAtOnceGetsIt) {
    constexpr int rounds = 200;
    for (int round = 0; round < rounds; ++round) {
        std::array<std::unique_ptr<InstanceLock>, 4> locks;
        std::barrier start(static_cast<std::ptrdiff_t>(locks.size()));
        {
            std::vector<std::jthread> starts;
            for (auto& lock : locks)
                starts.emplace_back([&] {
                    start.arrive_and_wait();
                    lock = acquireInstanceLock("Some Program");
                });
        }
        ASSERT_EQ(std::count(locks.begin(), locks.end(), nullptr), 3);
    }
    std::printf("counted: %d races of four starts\n", rounds);
}

TEST_F(InstanceLockTest, TakesAFolderOfTheUsersOwnWhereTheSessionsIsOpenToOthers) {
    fs::permissions(folder / "run", fs::perms::all);
    const auto lock = acquireInstanceLock("Some Program");
    ASSERT_NE(lock, nullptr);
    EXPECT_FALSE(otherProcessGetsLock("Some Program"));
    const fs::path own = folder / ("tarnix-keyboard-" + std::to_string(::geteuid()));
    EXPECT_EQ(fs::status(own).permissions(), fs::perms::owner_all);

    // Where somebody else could have put it, the folder is not used: no lock is said to be held, and no link
    // followed.
    fs::permissions(own, fs::perms::all);
    EXPECT_TRUE(otherProcessGetsLock("Some Program"));
    fs::remove_all(own);
    fs::create_directory(folder / "trap");
    fs::create_directory_symlink(folder / "trap", own);
    EXPECT_TRUE(otherProcessGetsLock("Some Program"));
    EXPECT_TRUE(fs::is_empty(folder / "trap"));
}

} // namespace
} // namespace tarnix
