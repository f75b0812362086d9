// The disk fails, or the process dies, at every single call that starting and saving make of the system; and
// the process is killed at any moment. The linker puts the calls here in between.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <random>
#include <thread>

#include "macro/macro_files.h"
#include "profile/configuration_file.h"
#include "profile/numbers.h"
#include "profile/profile_file.h"
#include "support/temp_folder.h"

namespace {

constexpr int dies = -1;
int callsBeforeFault = -1; ///< none is to come
int faultError = 0;        ///< what the call fails with, or `dies`
bool faultLasts = false;   ///< all later calls fail, too
int calls = 0;             ///< since the last count
int flushes = 0;

bool meetsFault() {
    const bool met =
        callsBeforeFault >= 0 && (calls == callsBeforeFault || (faultLasts && calls > callsBeforeFault));
    ++calls;
    if (!met) return false;
    if (faultError == dies) ::kill(::getpid(), SIGKILL);
    errno = faultError;
    return true;
}

} // namespace

extern "C" {
int __real_open(const char* path, int flags, ...);
int __wrap_open(const char* path, int flags, mode_t mode) {
    return meetsFault() ? -1 : __real_open(path, flags, mode);
}
ssize_t __real_read(int file, void* bytes, std::size_t size);
ssize_t __wrap_read(int file, void* bytes, std::size_t size) {
    return meetsFault() ? -1 : __real_read(file, bytes, size);
}
ssize_t __real_write(int file, const void* bytes, std::size_t size);
ssize_t __wrap_write(int file, const void* bytes, std::size_t size) {
    const bool fails = meetsFault();
    const ssize_t written = __real_write(file, bytes, fails ? size / 2 : size);
    return fails ? -1 : written;
}
int __wrap_fsync(int) {
    ++flushes;
    return meetsFault() ? -1 : 0; // the system outlives these tests
}
int __real_linkat(int, const char* from, int, const char* to, int flags);
int __wrap_linkat(int, const char* from, int, const char* to, int flags) {
    return meetsFault() ? -1 : __real_linkat(AT_FDCWD, from, AT_FDCWD, to, flags);
}
int __real_close(int file);
int __wrap_close(int file) {
    return __real_close(file) != 0 || meetsFault() ? -1 : 0;
}
int __real_rename(const char* from, const char* to);
int __wrap_rename(const char* from, const char* to) {
    return meetsFault() ? -1 : __real_rename(from, to);
}
}

namespace tarnix {
namespace {

namespace fs = std::filesystem;
using Texts = std::map<std::string, std::string>;

/// The program's files, in an old and a new version.
class DiskFaultTest : public testing::Test {
  protected:
    DiskFaultTest() {
        ResetConfig(store, folder);
        resetMacroLibrary(macros);
        for (int version = 0; version < 2; ++version) {
            save(version);
            texts.push_back(present());
        }
    }

    void save(int version) {
        for (int n = 0; n < 100 * version && macros.sets[0].keys.size() < 100; ++n)
            AddMacroKey(macros.sets[0], "Macro" + toText(n));
        if (version == 0) macros.sets[0].keys.clear();
        store.SetCurrentProfileText(version);
        SaveConfig(store, *files, folder);
        SaveMacroLibrary(macros, *files, folder);
        for (int n = 0; n < profileCount; ++n) {
            store.ProfileTable[n].KeyCodes.fill(static_cast<std::uint8_t>(version));
            SaveProfileFile(store, n, *files);
        }
    }
    Texts present() const {
        Texts all;
        for (const auto& entry : fs::directory_iterator(config)) {
            std::ifstream file(entry.path());
            all[entry.path().filename()] = {std::istreambuf_iterator<char>(file), {}};
        }
        return all;
    }
    void lay(const Texts& given) const {
        fs::remove_all(config);
        fs::create_directory(config);
        for (const auto& [name, text] : given)
            std::ofstream(config / name) << text;
    }

    /// Every file is whole, old or new. What was not finished is taken away, and counted.
    void expectWhole() {
        Texts all = present();
        unfinished += static_cast<int>(std::erase_if(all, [this](const auto& each) {
            return each.first[0] == '.' && fs::remove(config / each.first);
        }));
        for (auto& [name, text] : all)
            if (text == texts[1][name]) text = texts[0][name];
        EXPECT_EQ(all, texts[0]);
    }

    /// Does the work in a process of its own; whether that was killed.
    static pid_t begin(const std::function<void()>& work) {
        const pid_t process = ::fork();
        if (process == 0) calls = 0, work(), ::_exit(calls > callsBeforeFault ? 0 : 1);
        return process;
    }
    static int ended(pid_t process) {
        int status = 0;
        EXPECT_EQ(::waitpid(process, &status, 0), process);
        return status;
    }

    /// Does the work with the fault at call 0, 1 ... until it makes no more calls, and checks each time.
    int sweep(int error, bool lasts, const Texts& given, const std::function<void()>& work,
              const std::function<void()>& check) {
        faultError = error;
        faultLasts = lasts;
        for (callsBeforeFault = 0;; ++callsBeforeFault) {
            SCOPED_TRACE("error " + toText(error) + " at " + toText(callsBeforeFault));
            lay(given);
            const int status = ended(begin(work));
            check();
            if (HasFailure() || (WIFEXITED(status) && WEXITSTATUS(status) == 1))
                return std::exchange(callsBeforeFault, -1);
        }
    }

    const TempFolder temporary;
    const std::string folder = temporary.path().string() + "/";
    const fs::path config = temporary / "config";
    const std::unique_ptr<Files> files = makeSystemFiles();
    ProfileStore store;
    MacroLibrary macros;
    std::vector<Texts> texts;
    int unfinished = 0;
};

TEST_F(DiskFaultTest, AFailureAtAnyCallKeepsTheOldFileAndLeavesNothingBehind) {
    EXPECT_EQ(flushes, 4 * texts[0].size()) << "each file and its folder, in both versions";
    int count = 0;
    Texts damaged = texts[1];
    for (const char* name : {"config.ini", "MacroLibraryFile.mlf", "default3.psf"})
        damaged[name].resize(20);
    for (const auto& [error, lasts] :
         {std::pair{ENOSPC, true}, {ENOSPC, false}, {EROFS, true}, {EIO, false}, {EMFILE, false}}) {
        count += sweep(
            error, lasts, texts[0], [this] { save(1); }, [this] { expectWhole(); });
        count += sweep(
            error, lasts, damaged,
            [this] {
                LoadMacroLibrary(macros, *files, folder);
                LoadConfig(store, *files, folder);
                for (int n = 0; n < profileCount; ++n)
                    LoadProfileFile(store, n, *files);
            },
            [&] {
                Texts left = present();
                for (const auto& [name, text] : damaged)
                    EXPECT_EQ(left[left.contains(name + ".bak") ? name + ".bak" : name], text);
            });
    }
    EXPECT_EQ(unfinished, 0);
    std::printf("counted: %d faults of the disk\n", count);
}

TEST_F(DiskFaultTest, DeathAtAnyCallOrMomentLeavesEveryFileWholeOldOrNew) {
    const int atCalls = sweep(
        dies, false, texts[0], [this] { save(1); }, [this] { expectWhole(); });
    const char* wanted = std::getenv("TARNIX_KILLS");
    const int kills = wanted != nullptr ? std::atoi(wanted) : 100;
    std::mt19937 random(1);
    for (int n = 0; n < kills && !HasFailure(); ++n) {
        const pid_t process = begin([&] {
            for (int version = n;; ++version)
                save(version % 2);
        });
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 5000));
        ::kill(process, SIGKILL);
        EXPECT_TRUE(WIFSIGNALED(ended(process)));
        expectWhole();
    }
    std::printf("counted: %d kills, %d at each call in turn; %d unfinished files left beside\n",
                atCalls + kills, atCalls, unfinished);
}

} // namespace
} // namespace tarnix
