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
    if (!meetsFault()) return __real_write(file, bytes, size);
    static_cast<void>(__real_write(file, bytes, size / 2)); // what had room
    errno = faultError;
    return -1;
}
int __wrap_fsync(int) {
    return meetsFault() ? -1 : 0; // the system outlives these tests
}
int __real_linkat(int, const char* from, int, const char* to, int flags);
int __wrap_linkat(int, const char* from, int, const char* to, int flags) {
    return meetsFault() ? -1 : __real_linkat(AT_FDCWD, from, AT_FDCWD, to, flags);
}
int __real_close(int file);
int __wrap_close(int file) {
    const bool failed = meetsFault();
    return __real_close(file) != 0 || failed ? -1 : 0;
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

/// The program's files, in one of two versions.
class DiskFaultTest : public testing::Test {
  protected:
    struct State {
        ProfileStore store;
        MacroLibrary macros;
    };
    DiskFaultTest() {
        for (int version = 0; version < 2; ++version) {
            State& state = states[version];
            ResetConfig(state.store, folder);
            state.store.SetCurrentProfileText(version);
            resetMacroLibrary(state.macros);
            for (int n = 0; n < profileCount; ++n) {
                state.store.ResetProfile(n);
                state.store.ProfileTable[n].KeyCodes.fill(static_cast<std::uint8_t>(version));
            }
            for (int n = 0; n < 100 * version; ++n)
                AddMacroKey(state.macros.sets[0], "Macro" + toText(n));
            save(states[version]);
            texts[version] = present();
        }
    }

    /// What each save answered, by the file's name.
    std::map<std::string, bool> save(State& state) {
        std::map<std::string, bool> done{
            {"config.ini", SaveConfig(state.store, *files, folder)},
            {"MacroLibraryFile.mlf", SaveMacroLibrary(state.macros, *files, folder)}};
        for (int n = 0; n < profileCount; ++n)
            done["default" + toText(n) + ".psf"] = SaveProfileFile(state.store, n, *files);
        return done;
    }
    void start(State& state) {
        LoadMacroLibrary(state.macros, *files, folder);
        LoadConfig(state.store, *files, folder);
        for (int n = 0; n < profileCount; ++n)
            LoadProfileFile(state.store, n, *files);
    }

    Texts present() const {
        Texts all;
        for (const auto& entry : fs::directory_iterator(temporary / "config")) {
            std::ifstream file(entry.path());
            all[entry.path().filename()] = {std::istreambuf_iterator<char>(file), {}};
        }
        return all;
    }
    void lay(const Texts& given) const {
        fs::remove_all(temporary / "config");
        fs::create_directory(temporary / "config");
        for (const auto& [name, text] : given)
            std::ofstream(temporary / "config" / name) << text;
    }

    /// Runs the work with the fault at call 0, 1 ... until it makes no more calls, and checks each time.
    int sweep(int error, bool lasts, const std::function<void()>& work, const std::function<void()>& check) {
        int place = 0;
        for (calls = place + 1; calls > place && !HasFailure(); ++place) {
            SCOPED_TRACE("error " + toText(error) + " at " + toText(place));
            calls = 0;
            faultError = error;
            faultLasts = lasts;
            callsBeforeFault = place;
            work();
            callsBeforeFault = -1;
            check();
        }
        return place - 1;
    }

    const TempFolder temporary;
    const std::string folder = temporary.path().string() + "/";
    const std::unique_ptr<Files> files = makeSystemFiles();
    State states[2];
    Texts texts[2];
};

TEST_F(DiskFaultTest, AFailureAtAnyCallKeepsTheOldFileAndLeavesNothingBehind) {
    int count = 0;
    std::map<std::string, bool> done;
    for (const auto& [error, lasts] :
         {std::pair{ENOSPC, true}, {ENOSPC, false}, {EROFS, true}, {EIO, false}, {EMFILE, false}}) {
        const auto work = [&] {
            lay(texts[0]);
            done = save(states[1]);
        };
        count += sweep(error, lasts, work, [&] {
            Texts expected = texts[0];
            for (const auto& [name, saved] : done)
                if (saved) expected[name] = texts[1].at(name);
            EXPECT_EQ(present(), expected);
            save(states[1]);
            EXPECT_EQ(present(), texts[1]) << "the next time";
        });
        const auto begin = [&] {
            Texts given = texts[1];
            given["default3.psf"].resize(20);
            lay(given);
            State state;
            start(state);
        };
        count += sweep(error, lasts, begin, [&] {
            Texts left = present();
            for (const auto& [name, text] : texts[1]) {
                const bool aside = left.contains(name + ".bak");
                EXPECT_EQ(left[aside ? name + ".bak" : name],
                          name == "default3.psf" ? text.substr(0, 20) : text);
            }
        });
    }
    std::printf("counted: %d faults of the disk\n", count);
}

TEST_F(DiskFaultTest, DeathAtAnyCallOrMomentLeavesEveryFileWholeOldOrNew) {
    std::mt19937 random(1);
    const auto child = [&](const std::function<void()>& work) {
        const pid_t process = ::fork();
        if (process == 0) calls = 0, work(), ::_exit(0);
        return process;
    };
    int left = 0;
    const auto check = [&] {
        Texts all = present();
        left += static_cast<int>(std::erase_if(all, [this](const auto& each) {
            return each.first[0] == '.' && fs::remove(temporary / "config" / each.first);
        }));
        for (auto& [name, text] : all)
            if (text == texts[1].at(name)) text = texts[0].at(name);
        EXPECT_EQ(all, texts[0]);
    };
    const auto killed = [](pid_t process) {
        int status = 0;
        EXPECT_EQ(::waitpid(process, &status, 0), process);
        return WIFSIGNALED(status);
    };

    int atCalls = 0;
    faultError = dies;
    for (bool more = true; more && !HasFailure(); ++atCalls) {
        lay(texts[0]);
        more = killed(child([&] {
            callsBeforeFault = atCalls;
            save(states[1]);
        }));
        check();
    }

    const char* wanted = std::getenv("TARNIX_KILLS");
    const int kills = wanted != nullptr ? std::atoi(wanted) : 100;
    callsBeforeFault = -1;
    for (int n = 0; n < kills && !HasFailure(); ++n) {
        const pid_t process = child([&] {
            for (int version = n % 2;; version = 1 - version)
                save(states[version]);
        });
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 5000));
        ::kill(process, SIGKILL);
        EXPECT_TRUE(killed(process));
        check();
    }
    std::printf("counted: %d kills (%d at each call in turn), %d unfinished files left beside\n",
                atCalls - 1 + kills, atCalls - 1, left);
}

} // namespace
} // namespace tarnix
