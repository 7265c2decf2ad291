#include "Measures.h"
#include "Samples.h"
#include "SceneProcess.h"
#include "Scenes.h"

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

constexpr auto popup = QLatin1StringView(popupPicker);
constexpr auto bare = QLatin1StringView(barePicker);
const QString oneRound = u"1"_s;

Comparison Compared(double ours, double other)
{
    return { ours, other, ours / other, instructionUnit };
}

// A scene of one round with both sides.
Comparison Count(const QStringList &scene)
{
    const Figures round = CountInProcess(scene).constFirst();
    return Compared(round.at(0), round.at(1));
}

std::string Presets(int count)
{
    return std::to_string(count) + " presets";
}

void AddCount(const std::string &what, const std::string &size,
              const std::function<Comparison()> &count)
{
    AddMeasure(what, size, noAim, count);
}

void AddModelCounts()
{
    for (const int presets : { 200, 1'000, 10'000 }) {
        AddCount("load, against QJsonDocument::fromJson", Presets(presets), [=] {
            return Count({ QLatin1StringView(loadScene), DescriptionPath(presets), oneRound });
        });
    }
    AddCount("search for nothing, against one flat array", Presets(10'000), [] {
        return Count({ QLatin1StringView(findScene), DescriptionPath(10'000), oneRound });
    });
}

Comparison CountSearch(const QString &picker, int presets, const Key &key)
{
    return Count({ QLatin1StringView(searchScene), picker, DescriptionWithArtwork(presets),
                   QLatin1StringView(key.text), oneRound });
}

void AddSearchCounts()
{
    for (const int presets : { 200, 10'000 }) {
        for (const Key &key : keys) {
            const std::string what = "key press that finds " + std::string(key.finds);
            AddCount(what + ", against a tree view", Presets(presets),
                     [=] { return CountSearch(popup, presets, key); });
            AddCount("bound: " + what + ", bare widgets against a tree view", Presets(presets),
                     [=] { return CountSearch(bare, presets, key); });
        }
    }
}

Comparison CountOpening(const QString &picker, int presets)
{
    return Count({ QLatin1StringView(openingScene), picker, DescriptionWithArtwork(presets),
                   u"picker"_s });
}

Comparison CountReopening(const QString &picker, int presets)
{
    return Count({ QLatin1StringView(reopeningScene), picker, DescriptionWithArtwork(presets),
                   oneRound });
}

void AddOpeningCounts()
{
    constexpr int presets = 200;
    AddCount("open the popup first, against an empty window", Presets(presets),
             [] { return CountOpening(popup, presets); });
    AddCount("bound: open first, bare widgets against an empty window", Presets(presets),
             [] { return CountOpening(bare, presets); });
    AddCount("open the popup again, against an empty window", Presets(presets),
             [] { return CountReopening(popup, presets); });
    AddCount("bound: open again, bare widgets against an empty window", Presets(presets),
             [] { return CountReopening(bare, presets); });
}

double CountInsertion(const QString &picker, int presets)
{
    const QStringList scene { QLatin1StringView(insertionScene), picker,
                              DescriptionWithArtwork(presets) };
    return CountInProcess(scene).constFirst().constFirst();
}

void AddInsertionCount()
{
    constexpr int presets = 10'000;
    AddCount("insertion of the categories, against bare widgets", Presets(presets), [] {
        return Compared(CountInsertion(popup, presets), CountInsertion(bare, presets));
    });
}

} // namespace

void AddCounts()
{
    AddModelCounts();
    AddSearchCounts();
    AddOpeningCounts();
    AddInsertionCount();
}

} // namespace Bench
