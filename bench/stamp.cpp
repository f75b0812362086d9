// Notes its process's number and the time in a file and becomes the program: the moment before the exec,
// whoever starts it.
//
//   stamp FILE PROGRAM [ARGUMENT...]
#include <time.h>
#include <unistd.h>

#include <cstdio>

int main(int argc, char** argv) {
    if (argc < 3) return 2;
    std::FILE* file = std::fopen(argv[1], "we");
    if (!file) return 2;
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    std::fprintf(file, "%d %lld end\n", static_cast<int>(getpid()), now.tv_sec * 1000000000LL + now.tv_nsec);
    std::fclose(file);
    execv(argv[2], argv + 2);
    std::perror(argv[2]);
    return 127;
}
