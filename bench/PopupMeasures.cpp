#include "Measures.h"
#include "Samples.h"
#include "Scenes.h"
#include "Turns.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

constexpr int sizes[] = { 200, 1'000, 10'000, 100'000 };
constexpr int loadedPresets = 100'000;
constexpr int openedPresets = 200;
constexpr auto popup = QLatin1StringView(popupPicker);
constexpr auto bare = QLatin1StringView(barePicker);

using SharedTurns = std::shared_ptr<Turns>;

// A scene of the popup and of the bare widgets that it consists of.
SharedTurns TurnsOfPickers(int turns,
                           const std::function<QStringList(const QString &picker, int turn)> &scene)
{
    return std::make_shared<Turns>(
            turns, [scene](int turn) { return scene(popup, turn); },
            [scene](int turn) { return scene(bare, turn); });
}

Comparison Compared(const QList<Figures> &rounds)
{
    Rounds compared;
    for (const Figures &round : rounds)
        compared.Add(round.at(0), round.at(1));
    return compared.Compared();
}

double MedianOf(const QList<Figures> &rounds, int column)
{
    std::vector<double> values;
    for (const Figures &round : rounds)
        values.push_back(round.at(column));
    return Median(values);
}

// The column of the loading's figures, against the one without a load.
Comparison StallOf(const QList<Figures> &rounds, int column)
{
    const double stall = MedianOf(rounds, column);
    return { stall, MedianOf(rounds, 2), stall, millisecondUnit };
}

std::string Presets(int count)
{
    return std::to_string(count) + " presets";
}

void AddSearch(int presets, const Key &key)
{
    const double toReach = presets < 10'000 ? 1 : 0.5;
    const std::string what = "key press that finds " + std::string(key.finds);
    const SharedTurns turns = TurnsOfPickers(fewTurns, [=](const QString &picker, int) {
        return QStringList { QLatin1StringView(searchScene), picker,
                             DescriptionWithArtwork(presets), QLatin1StringView(key.text),
                             RoundsOfTurn() };
    });
    AddMeasure(what + ", against a tree view", Presets(presets), toReach,
               [=] { return Compared(turns->First()); });
    AddMeasure("bound: " + what + ", bare widgets against a tree view", Presets(presets), noAim,
               [=] { return Compared(turns->Second()); });
}

void AddOpening()
{
    const SharedTurns turns = TurnsOfPickers(usualRounds, [](const QString &picker, int turn) {
        const QString first = turn % 2 == 0 ? u"picker"_s : u"window"_s;
        return QStringList { QLatin1StringView(openingScene), picker,
                             DescriptionWithArtwork(openedPresets), first };
    });
    AddMeasure("open the popup first, against an empty window", Presets(openedPresets), 5,
               [=] { return Compared(turns->First()); });
    AddMeasure("bound: open first, bare widgets against an empty window", Presets(openedPresets),
               noAim, [=] { return Compared(turns->Second()); });
}

void AddReopening()
{
    const SharedTurns turns = TurnsOfPickers(fewTurns, [](const QString &picker, int) {
        return QStringList { QLatin1StringView(reopeningScene), picker,
                             DescriptionWithArtwork(openedPresets), RoundsOfTurn() };
    });
    AddMeasure("open the popup again, against an empty window", Presets(openedPresets), 1.5,
               [=] { return Compared(turns->First()); });
    AddMeasure("bound: open again, bare widgets against an empty window", Presets(openedPresets),
               noAim, [=] { return Compared(turns->Second()); });
}

void AddLoading()
{
    const SharedTurns turns = TurnsOfPickers(usualRounds, [](const QString &picker, int) {
        return QStringList { QLatin1StringView(loadingScene), picker,
                             DescriptionWithArtwork(loadedPresets) };
    });
    AddMeasure("longest stall of a load, insertion apart", Presets(loadedPresets), 16,
               [=] { return StallOf(turns->First(), 0); });
    AddMeasure("stall at the insertion of the categories", Presets(loadedPresets), 50,
               [=] { return StallOf(turns->First(), 1); });
    AddMeasure("bound: insertion of the categories, bare widgets", Presets(loadedPresets), noAim,
               [=] { return StallOf(turns->Second(), 1); });
}

} // namespace

// What has a bound is followed by it: what the widgets take that the picker has to consist of,
// measured as the picker is.
void AddPopupMeasures()
{
    for (const int presets : sizes) {
        for (const Key &key : keys)
            AddSearch(presets, key);
    }
    AddOpening();
    AddReopening();
    AddLoading();
}

} // namespace Bench
