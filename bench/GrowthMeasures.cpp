#include "Measures.h"
#include "Samples.h"
#include "Scenes.h"
#include "Turns.h"

namespace Bench {

namespace {

constexpr int many = 100'000;
constexpr int fewer = 10'000;

// How many times as long a scene takes with many presets as with fewer.
Comparison MeasureGrowth(const std::function<QStringList(int presets)> &scene)
{
    Turns turns(
            fewTurns, [&](int) { return scene(many); }, [&](int) { return scene(fewer); });
    Rounds compared;
    for (qsizetype i = 0; i < turns.First().size(); ++i)
        compared.Add(turns.First().at(i).at(0), turns.Second().at(i).at(0));
    return compared.Compared();
}

QStringList LoadScene(int presets)
{
    return { QLatin1StringView(loadScene), DescriptionPath(presets), RoundsOfTurn() };
}

QStringList SearchScene(const Key &key, int presets)
{
    return { QLatin1StringView(searchScene), QLatin1StringView(popupPicker),
             DescriptionWithArtwork(presets), QLatin1StringView(key.text), RoundsOfTurn() };
}

} // namespace

void AddGrowthMeasures()
{
    const std::string size = std::to_string(many) + " presets";
    const std::string against = ", against that of " + std::to_string(fewer);
    AddMeasure("load" + against, size, mostGrowth, [] { return MeasureGrowth(LoadScene); });
    for (const Key &key : keys) {
        AddMeasure("key press that finds " + std::string(key.finds) + against, size, mostGrowth,
                   [&key] { return MeasureGrowth([&](int n) { return SearchScene(key, n); }); });
    }
}

} // namespace Bench
