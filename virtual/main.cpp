// tarnix-virtual-keyboard: starts a program with a virtual keyboard plugged in.
#include <cstdio>
#include <cstdlib>

#include "virtual/launcher.h"
#include "virtual/launcher_bus.h"

int main(int argc, char** argv) {
    const auto [options, error] =
        tarnix::parseLauncherOptions({argv + 1, static_cast<std::size_t>(argc > 0 ? argc - 1 : 0)});
    if (options.help) {
        std::printf("%s", tarnix::launcherUsage);
        return EXIT_SUCCESS;
    }
    if (!error.empty()) {
        std::fprintf(stderr, "tarnix-virtual-keyboard: %s\n%s", error.c_str(), tarnix::launcherUsage);
        return EXIT_FAILURE;
    }
    if (!options.kernel) tarnix::preloadMockSystem(argv);
    return tarnix::Launcher(options).run();
}
