#include "TableReporter.h"

#include <cstdio>

namespace Bench {

bool TableReporter::ReportContext(const Context &)
{
    std::printf("%-58s %12s %12s %8s %8s\n", "", "ours", "against", "ratio", "to reach");
    return true;
}

void TableReporter::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        const auto counter = [&](const char *name) { return run.counters.at(name).value; };
        if (run.error_occurred) {
            std::printf("%-58s %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
            continue;
        }
        const bool reached = counter("ratio") <= counter("to_reach");
        std::printf("%-58s %12.4g %12.4g %8.2f %8.2f %s\n", run.run_name.function_name.c_str(),
                    counter("ours"), counter("against"), counter("ratio"), counter("to_reach"),
                    reached ? "" : "NOT REACHED");
        std::fflush(stdout);
    }
}

} // namespace Bench
