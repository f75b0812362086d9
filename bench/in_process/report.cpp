#include "in_process/report.h"

#include <cstdio>

namespace tarnix::bench {

namespace {

std::string besides(const benchmark::BenchmarkReporter::Run& run) {
    std::string text;
    for (const auto& [name, counter] : run.counters) {
        if (name == "limit") continue;
        if (!text.empty()) text += ", ";
        text += name + " " + number(counter.value, counter.value < 100 ? 2 : 0);
    }
    return text;
}

} // namespace

void TableReporter::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.error_occurred) {
            std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
            continue;
        }
        if (run.aggregate_name != "median") continue;
        const std::string unit = std::string(" ") + benchmark::GetTimeUnitString(run.time_unit);
        const double median = run.GetAdjustedRealTime();
        const auto limit = run.counters.find("limit");
        m_table.row({run.run_name.function_name + (run.run_name.args.empty() ? "" : " " + run.run_name.args),
                     number(median, 3, unit.c_str()),
                     limit == run.counters.end() ? "" : verdict(median, limit->second.value, 3, unit.c_str()),
                     besides(run)});
    }
}

} // namespace tarnix::bench
