#include "Measures.h"
#include "TableReporter.h"

#include "IsolatedSettings.h"

#include <benchmark/benchmark.h>

#include <QApplication>

namespace Bench {

void AddMeasure(std::string what, std::string size, double toReach,
                std::function<Comparison()> measure)
{
    const auto run = [toReach, measure](benchmark::State &state) {
        for (auto _ : state) {
            const Comparison comparison = measure();
            state.SetIterationTime(comparison.ours * 1e-9);
            state.counters["ours"] = comparison.ours;
            state.counters["against"] = comparison.other;
            state.counters["ratio"] = comparison.ratio;
            state.counters["to_reach"] = toReach;
        }
    };
    const std::string name = what + ", " + size;
    benchmark::RegisterBenchmark(name.c_str(), run)->UseManualTime()->Iterations(1);
}

} // namespace Bench

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    const Test::IsolatedSettings settings;
    Bench::AddModelMeasures();
    Bench::AddWidgetMeasures();
    Bench::TableReporter table;
    benchmark::RunSpecifiedBenchmarks(&table);
    return 0;
}
