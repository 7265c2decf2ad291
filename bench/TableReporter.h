#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <utility>

namespace Bench {

// Prints one line for each comparison: the medians, its figure, the figure to reach or "-", and the
// unit of both. Where the unit is x, the figure is a ratio and the medians are in what the heading
// says; otherwise they are in that unit too.
class TableReporter final : public benchmark::BenchmarkReporter
{
public:
    explicit TableReporter(std::string heading)
        : m_heading(std::move(heading))
    {
    }

    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;

private:
    std::string m_heading;
};

} // namespace Bench
