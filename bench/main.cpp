#include "Measures.h"
#include "Samples.h"
#include "Scenes.h"
#include "TableReporter.h"

#include "IsolatedSettings.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QStringList>

#include <optional>

namespace Bench {

namespace {

// Nothing where no time was measured.
double Seconds(const Comparison &comparison)
{
    return comparison.unit.sides == millisecondUnit.sides ? comparison.ours / 1000 : 0;
}

std::function<void()> makeApplication;

constexpr char writeArgument[] = "--write"; // the folder, and the numbers of presets
constexpr char countArgument[] = "--count";

QStringList ArgumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

void WriteDescriptions(const QStringList &arguments)
{
    for (const QString &presets : arguments.mid(1))
        WriteDescription(arguments.constFirst(), presets.toInt());
}

void PrintTable(const std::string &unitOfSides)
{
    benchmark::AddCustomContext("label",
                                "the unit of figure and to_reach; ours and against are in "
                                        + unitOfSides
                                        + " where it is x, and otherwise in this unit");
    TableReporter table("in " + unitOfSides + " where the figure is x");
    benchmark::RunSpecifiedBenchmarks(&table);
}

void PrintMeasures()
{
    AddModelMeasures();
    AddWidgetMeasures();
    AddPopupMeasures();
    AddGrowthMeasures();
    PrintTable(std::string(ratioUnit.sides));
}

void PrintCounts()
{
    if (!CanCount())
        qFatal("built without valgrind/callgrind.h");
    AddCounts();
    PrintTable(std::string(instructionUnit.sides));
}

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
    const QStringList arguments = Bench::ArgumentsOf(argc, argv);
    const QString command = arguments.value(0);
    if (command == QLatin1StringView(Bench::sceneArgument))
        Bench::RunScene(arguments.mid(1));
    else if (command == QLatin1StringView(Bench::writeArgument))
        Bench::WriteDescriptions(arguments.mid(1));
    else if (command == QLatin1StringView(Bench::countArgument))
        Bench::PrintCounts();
    else if (!command.isEmpty())
        qFatal("there is no command %s", qUtf8Printable(command));
    else
        Bench::PrintMeasures();
    return 0;
}
