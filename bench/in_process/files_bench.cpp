#include <string>

#include "in_process/memory_folder.h"
#include "in_process/report.h"
#include "macro/macro_files.h"
#include "profile/profile_file.h"
#include "profile/profile_store.h"

namespace tarnix::bench {

namespace {

constexpr double profileLimit = 200; ///< us
constexpr double libraryLimit = 10;  ///< ms, for 200 macros
constexpr int macrosOfLimit = 200;

/// Every step in use, every letter of the name.
MacroLibrary fullLibrary(int macros) {
    MacroLibrary library;
    MacroSet& set = AddMacroSet(library, std::string(defaultMacroSetName));
    for (int n = 0; n < macros; ++n) {
        MacroKey& macro = AddMacroKey(set, "Macro" + std::to_string(1000000 + n));
        for (int i = 0; i < maxActionCount; ++i) {
            const auto key = static_cast<std::uint8_t>(0x30 + i % 40);
            AppendAction(macro, i % 2 == 0 ? MacroAction::key(key, i % 4 == 2) : MacroAction::delay(10 + i));
        }
        macro.commandCount = maxCommandCount;
    }
    return library;
}

void perMacro(benchmark::State& state) {
    if (state.range(0) == macrosOfLimit) limit(state, libraryLimit);
    state.counters["macros a ms"] = benchmark::Counter(static_cast<double>(state.range(0)) / 1000,
                                                       benchmark::Counter::kIsIterationInvariantRate);
}

struct ProfileDesk {
    MemoryFolder folder;
    std::unique_ptr<Files> files = makeSystemFiles();
    ProfileStore store;

    ProfileDesk() {
        store.SetSlotPath(0, folder.path() + "one.psf");
        store.ResetProfile(0);
    }
};

void profileSave(benchmark::State& state) {
    ProfileDesk desk;
    for (auto _ : state) {
        if (!SaveProfileFile(desk.store, 0, *desk.files)) state.SkipWithError("cannot save");
    }
    limit(state, profileLimit);
}

void profileLoad(benchmark::State& state) {
    ProfileDesk desk;
    SaveProfileFile(desk.store, 0, *desk.files);
    for (auto _ : state) {
        if (!LoadProfileFile(desk.store, 0, *desk.files)) state.SkipWithError("cannot load");
    }
    limit(state, profileLimit);
}

void librarySave(benchmark::State& state) {
    const MemoryFolder folder;
    const auto files = makeSystemFiles();
    MacroLibrary library = fullLibrary(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        if (!SaveMacroLibrary(library, *files, folder.path())) state.SkipWithError("cannot save");
    }
    perMacro(state);
}

void libraryLoad(benchmark::State& state) {
    const MemoryFolder folder;
    const auto files = makeSystemFiles();
    MacroLibrary library = fullLibrary(static_cast<int>(state.range(0)));
    SaveMacroLibrary(library, *files, folder.path());
    for (auto _ : state) {
        if (!LoadMacroLibrary(library, *files, folder.path())) state.SkipWithError("cannot load");
        benchmark::DoNotOptimize(library);
    }
    perMacro(state);
}

BENCHMARK(profileSave)->Name("profile save, no flush")->Unit(benchmark::kMicrosecond);
BENCHMARK(profileLoad)->Name("profile load")->Unit(benchmark::kMicrosecond);
BENCHMARK(librarySave)
    ->Name("library save, no flush; macros:")
    ->Arg(20)
    ->Arg(200)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(libraryLoad)
    ->Name("library load; macros:")
    ->Arg(20)
    ->Arg(200)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tarnix::bench
