#include "TableReporter.h"

#include <cstdio>

namespace Bench {

bool TableReporter::ReportContext(const Context &)
{
    std::printf("%-62s %10s %10s %8s %8s %s\n", "", "ours", "against", "figure", "to reach", "in");
    return true;
}

void TableReporter::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        const auto counter = [&](const char *name) { return run.counters.at(name).value; };
        if (run.error_occurred) {
            std::printf("%-62s %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
            continue;
        }
        const bool reached = counter("figure") <= counter("to_reach");
        std::printf("%-62s %10.4g %10.4g %8.2f %8.2f %-5s %s\n", run.run_name.function_name.c_str(),
                    counter("ours"), counter("against"), counter("figure"), counter("to_reach"),
                    run.report_label.c_str(), reached ? "" : "NOT REACHED");
        std::fflush(stdout);
    }
}

} // namespace Bench
