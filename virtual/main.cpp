// tarnix-virtual-keyboard: starts a program with a virtual keyboard plugged in.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "virtual/launcher.h"

namespace {

/// The mocked system is seen only by processes that preload its library, and this one must see it too to send
/// its events. The preloaded libraries are settled when a process starts, so it starts once more.
void preloadMockSystem(char** argv) {
    constexpr const char* library = "libumockdev-preload.so.0";
    const char* const present = std::getenv("LD_PRELOAD");
    if (present != nullptr && std::strstr(present, library) != nullptr) return;
    const std::string wanted = present == nullptr ? library : std::string(library) + ":" + present;
    ::setenv("LD_PRELOAD", wanted.c_str(), 1);
    ::execv("/proc/self/exe", argv);
    std::perror("/proc/self/exe");
    std::exit(EXIT_FAILURE);
}

} // namespace

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
    if (!options.kernel) preloadMockSystem(argv);
    return tarnix::Launcher(options).run();
}
