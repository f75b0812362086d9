// Measures whole processes in turn, on the display that it is started on, which should be its own.
//
//   bench-processes [--rounds N] [--idle SECONDS]
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string_view>

#include "processes/measures.h"

namespace {

using namespace tarnix::bench;

bool readOptions(int argc, char** argv, Extent& extent) {
    for (int i = 1; i < argc; i += 2) {
        const std::string_view option = argv[i];
        const int value = i + 1 < argc ? std::atoi(argv[i + 1]) : 0;
        if (value <= 0) return false;
        if (option == "--rounds")
            extent.rounds = value;
        else if (option == "--idle")
            extent.idle = std::chrono::seconds(value);
        else
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    Extent extent;
    if (!readOptions(argc, argv, extent)) {
        std::fprintf(stderr, "Usage: bench-processes [--rounds N] [--idle SECONDS]\n");
        return 2;
    }
    try {
        Tools tools(std::filesystem::canonical("/proc/self/exe").parent_path());
        Screen screen;
        measureStarts(screen, tools, extent.rounds);
        measurePress(screen, tools, extent.rounds);
        measureApply(screen, tools, 5);
        measureIdle(screen, tools, extent.idle);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench-processes: %s\n", error.what());
        return 1;
    }
    return 0;
}
