// Measures parts of the program inside one process, on the display that it is started on.
//
//   bench-in-process [options of Google Benchmark]
#include <cstdio>

#include "in_process/report.h"
#include "in_process/window_desk.h"

int main(int argc, char** argv) {
    tarnix::Application application(argc, argv);
    tarnix::bench::setApplication(&application);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    tarnix::bench::TableReporter reporter;
    return benchmark::RunSpecifiedBenchmarks(&reporter) == 0;
}
