#include "HeapUse.h"
#include "Measures.h"
#include "ModelComparisons.h"
#include "Samples.h"

#include "ArtworkFileBytes.h"

#include "IOLArtworkImageMgr.h"
#include "IOLFmtPresetDataSource.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

using namespace Orlimo;
using namespace Qt::StringLiterals;

namespace Bench {

namespace {

using NodePointer = std::shared_ptr<IOLFormatNode>;
using PresetPointer = std::shared_ptr<IOLFormatPreset>;

constexpr int sizes[] = { 200, 1'000, 10'000, 100'000 };

// The bytes of all names and descriptions.
std::size_t TextSize(const IOLFormatNode &node)
{
    std::size_t size = node.Name().size() + node.Description().size();
    for (int i = 0; i < node.PresetCount(); ++i)
        size += node.PresetAt(i)->Name().size() + node.PresetAt(i)->Description().size();
    for (int i = 0; i < node.ChildCount(); ++i)
        size += TextSize(*node.ChildAt(i));
    return size;
}

Comparison MeasureMemory(const QString &path, int presets)
{
    LoadedTree(path); // what the first load of a process keeps is not the tree's
    const std::size_t before = HeapUse();
    const NodePointer root = LoadedTree(path);
    const auto used = static_cast<double>(HeapUse() - before);
    const auto texts = static_cast<double>(TextSize(*root));
    const double onTop = (used - texts) / presets;
    return { used, texts, onTop, byteUnit };
}

// Another choice of the same format as the latest.
std::shared_ptr<IOLFmtPresetRecentItem> NewChoice(const IOLFmtPresetDataSource &dataSource)
{
    static int number = 0;
    const auto latest = dataSource.GetLatestRecentItem();
    const PresetPointer preset = latest->GetFormatPreset()->Clone();
    preset->SetName("New preset " + std::to_string(++number));
    return IOLFmtPresetRecentItem::MallocFmtPresetRecentItem(preset, latest->GetFormatNode());
}

// The texts that a comparison makes of each choice: all but its own.
std::vector<std::string> ComparedTexts(const IOLFmtPresetDataSource &dataSource)
{
    std::vector<std::string> texts;
    for (const auto &item : dataSource.GetRecentItems()) {
        texts.push_back(item->GetDescription());
        texts.push_back(item->GetFormatNode()->Name());
        texts.push_back(item->GetFormatPreset()->Name());
        texts.push_back(item->GetDisplayName());
    }
    return texts;
}

Comparison MeasureAdding(int choices)
{
    const auto dataSource = WithRecentChoices(DescriptionPath(choices));
    const std::vector<std::string> texts = ComparedTexts(*dataSource);
    return Compare(
            [&] {
                const auto item = NewChoice(*dataSource);
                return CostOf([&] { dataSource->AddRecentItem(item); });
            },
            [&] {
                std::vector<std::string> copies;
                return CostOf([&] { copies = texts; });
            });
}

// A shaded disc, which takes as many bytes as an icon.
Test::ArtworkImage Disc(int face, int side)
{
    QImage image(side, side, QImage::Format_ARGB32);
    const double radius = side / 2.0;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double distance = std::hypot(x - radius, y - radius) / radius;
            const int shade = std::max(0, 255 - int(200 * distance));
            image.setPixelColor(x, y, QColor(shade, face, shade / 2, distance < 1 ? 255 : 0));
        }
    }
    return { face, image.size(), Test::Png(image) };
}

Comparison MeasureArtwork(int faces)
{
    const QString path = Folder().filePath(u"faces.icfg"_s);
    QList<Test::ArtworkImage> images;
    for (int face = 0; face < faces; ++face) {
        for (const int side : { 18, 33, 36, 66, 99 })
            images.append(Disc(face, side));
    }
    WriteFile(path, Test::ArtworkFile(images));
    return Compare(
            [&] {
                std::shared_ptr<const IOLArtworkImageMgr> artwork;
                return CostOf([&] {
                    artwork = IOLArtworkImageMgr::MallocArtworkImageMgr(path.toStdString(),
                                                                        nullptr);
                });
            },
            [&] {
                QByteArray bytes;
                return CostOf([&] { bytes = Contents(path); });
            });
}

} // namespace

void AddModelMeasures()
{
    for (const int presets : sizes) {
        const std::string size = std::to_string(presets) + " presets";
        AddMeasure("load, against QJsonDocument::fromJson", size, 1.5,
                   [=] { return CompareLoads(DescriptionPath(presets), usualRounds).Compared(); });
        AddMeasure("bytes of a loaded preset beside its texts", size, 400,
                   [=] { return MeasureMemory(DescriptionPath(presets), presets); });
        AddMeasure("search for nothing, against one flat array", size, 4,
                   [=] { return CompareFinds(DescriptionPath(presets), usualRounds).Compared(); });
    }
    for (const int choices : { 1'000, 10'000 }) {
        const std::string size = std::to_string(choices) + " choices";
        AddMeasure("add a recent choice, against copying the compared texts", size, 3,
                   [=] { return MeasureAdding(choices); });
        AddMeasure("save recent choices, against QSaveFile", size, 3,
                   [=] { return CompareSaves(DescriptionPath(choices), usualRounds).Compared(); });
    }
    AddMeasure("open artwork, against reading the file", "200 x 5 images", 3,
               [] { return MeasureArtwork(200); });
}

} // namespace Bench
