#pragma once

#include <benchmark/benchmark.h>

namespace Bench {

// Prints one line for each comparison: the medians, their ratio, and the ratio to reach.
class TableReporter final : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;
};

} // namespace Bench
