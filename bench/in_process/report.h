// The table of the in-process measures: medians beside what they must not exceed.
#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "figures.h"

namespace tarnix::bench {

/// A benchmark says its limit, in its own unit of time, by this.
inline void limit(benchmark::State& state, double most) {
    state.counters["limit"] = most;
}

class TableReporter : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override { m_table.print(); }

  private:
    Table m_table{{"In process", "median", "limit", "beside it"}};
};

} // namespace tarnix::bench
