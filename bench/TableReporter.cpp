#include "TableReporter.h"

#include <cstdio>

namespace Bench {

namespace {

constexpr int nameWidth = 86;

void PrintAim(const benchmark::UserCounters &counters, const std::string &unit)
{
    const auto aim = counters.find("to_reach");
    if (aim == counters.end()) {
        std::printf(" %8s %s\n", "-", unit.c_str());
        return;
    }
    const double toReach = aim->second.value;
    const bool reached = counters.at("figure").value <= toReach;
    std::printf(" %8.2f %-5s %s\n", toReach, unit.c_str(), reached ? "" : "NOT REACHED");
}

} // namespace

bool TableReporter::ReportContext(const Context &)
{
    std::printf("%-*s %10s %10s %8s %8s %s\n", nameWidth, m_heading.c_str(), "ours", "against",
                "figure", "to reach", "in");
    return true;
}

void TableReporter::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.error_occurred) {
            std::printf("%-*s %s\n", nameWidth, run.benchmark_name().c_str(),
                        run.error_message.c_str());
            continue;
        }
        const auto counter = [&](const char *name) { return run.counters.at(name).value; };
        std::printf("%-*s %10.4g %10.4g %8.2f", nameWidth, run.run_name.function_name.c_str(),
                    counter("ours"), counter("against"), counter("figure"));
        PrintAim(run.counters, run.report_label);
        std::fflush(stdout);
    }
}

} // namespace Bench
