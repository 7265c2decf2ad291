#include "Measures.h"
#include "Scenes.h"
#include "TableReporter.h"

#include "IsolatedSettings.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <optional>

namespace Bench {

namespace {

// Nothing where no time was measured.
double Seconds(const Comparison &comparison)
{
    return comparison.unit.sides == millisecondUnit.sides ? comparison.ours / 1000 : 0;
}

std::function<void()> makeApplication;

} // namespace

void NeedApplication()
{
    if (!QCoreApplication::instance())
        makeApplication();
}

void AddMeasure(std::string what, std::string size, std::optional<double> toReach,
                std::function<Comparison()> measure)
{
    const auto run = [toReach, measure](benchmark::State &state) {
        for (auto _ : state) {
            const Comparison comparison = measure();
            state.SetIterationTime(Seconds(comparison));
            state.SetLabel(std::string(comparison.unit.figure));
            state.counters["ours"] = comparison.ours;
            state.counters["against"] = comparison.other;
            state.counters["figure"] = comparison.figure;
            if (toReach)
                state.counters["to_reach"] = *toReach;
        }
    };
    const std::string name = what + ", " + size;
    benchmark::RegisterBenchmark(name.c_str(), run)
            ->UseManualTime()
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond);
}

} // namespace Bench

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    const Test::IsolatedSettings settings;
    std::optional<QApplication> application;
    Bench::makeApplication = [&] { application.emplace(argc, argv); };
    if (argc > 1 && QByteArrayView(argv[1]) == Bench::sceneArgument) {
        Bench::NeedApplication();
        Bench::RunScene(QApplication::arguments().mid(2));
        return 0;
    }
    Bench::AddModelMeasures();
    Bench::AddWidgetMeasures();
    Bench::AddPopupMeasures();
    benchmark::AddCustomContext("label",
                                "the unit of figure and to_reach; ours and against are in "
                                "ms where it is x, and otherwise in this unit");
    Bench::TableReporter table;
    benchmark::RunSpecifiedBenchmarks(&table);
    return 0;
}
