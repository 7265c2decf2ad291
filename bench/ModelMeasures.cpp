#include "Measures.h"
#include "Samples.h"

#include "ArtworkFileBytes.h"

#include "IOLAppSettings.h"
#include "IOLArtworkImageMgr.h"
#include "IOLFmtPresetDataSource.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLJsonReader.h"
#include "IOLJsonValue.h"
#include "IOLStringHelper.h"

#include <benchmark/benchmark.h>

#include <QJsonDocument>
#include <QSaveFile>

#include <malloc.h>

#include <memory>

using namespace Orlimo;
using namespace Qt::StringLiterals;

namespace Bench {

namespace {

using NodePointer = std::shared_ptr<IOLFormatNode>;

constexpr int sizes[] = { 200, 1'000, 10'000, 100'000 };

NodePointer Load(const QString &path)
{
    const std::shared_ptr<const IOLJsonValue> json = IOLJsonReader::ReadJsonFile(path.toStdString(),
                                                                                 nullptr);
    return IOLFormatNode::MallocFormatNode(json);
}

template<class Visit>
void ForEachText(IOLFormatNode &node, const Visit &visit)
{
    for (int i = 0; i < node.PresetCount(); ++i) {
        visit(node.PresetAt(i)->Name());
        visit(node.PresetAt(i)->Description());
    }
    for (int i = 0; i < node.ChildCount(); ++i) {
        const NodePointer child = node.ChildAt(i);
        visit(child->Name());
        ForEachText(*child, visit);
    }
}

Comparison MeasureLoad(int presets)
{
    const QString path = DescriptionPath(presets);
    const QByteArray bytes = Contents(path);
    return Compare(
            [&] {
                NodePointer root;
                return Elapsed([&] { root = Load(path); });
            },
            [&] {
                QJsonDocument document;
                return Elapsed([&] { document = QJsonDocument::fromJson(bytes); });
            });
}

std::shared_ptr<IOLFmtPresetRecentItem> RecentChoice(int number)
{
    const auto node = IOLFormatNode::MallocFormatNode(NodePointer());
    node->SetName("Format " + std::to_string(number / 8));
    const auto preset = IOLFormatPreset::MallocFormatPreset("MP4", "MP4");
    preset->SetName("Preset " + std::to_string(number));
    node->AddPreset(preset);
    return IOLFmtPresetRecentItem::MallocFmtPresetRecentItem(preset, node);
}

double HeapInUse()
{
    return static_cast<double>(mallinfo2().uordblks) + static_cast<double>(mallinfo2().hblkhd);
}

Comparison MeasureMemory(int presets)
{
    const QString path = DescriptionPath(presets);
    const double before = HeapInUse();
    const NodePointer root = Load(path);
    const double used = HeapInUse() - before;
    double texts = 0;
    ForEachText(*root, [&](const std::string &text) { texts += double(text.size()); });
    const double onTop = (used - texts) / presets;
    return { used, texts, onTop };
}

Comparison MeasureSearch(int presets)
{
    const NodePointer root = Load(DescriptionPath(presets));
    std::vector<std::string> texts;
    ForEachText(*root, [&](const std::string &text) { texts.push_back(text); });
    const std::string keyword = "~";
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    return Compare(
            [&] {
                return Elapsed([&] {
                    benchmark::DoNotOptimize(dataSource->SearchFormatNode(root, keyword, nullptr));
                });
            },
            [&] {
                return Elapsed([&] {
                    bool found = false;
                    for (const std::string &text : texts)
                        found |= IOLStringHelper::ToLower(text).find(keyword) != std::string::npos;
                    benchmark::DoNotOptimize(found);
                });
            });
}

// The data source with at least so many recent choices.
std::shared_ptr<IOLFmtPresetDataSource> WithRecentChoices(int count)
{
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    for (auto i = int(dataSource->GetRecentItems().size()); i < count; ++i)
        dataSource->AddRecentItem(RecentChoice(i));
    return dataSource;
}

Comparison MeasureAdding(int choices)
{
    const auto dataSource = WithRecentChoices(choices);
    int next = choices;
    return Compare(
            [&] {
                const auto item = RecentChoice(next++);
                return Elapsed([&] { dataSource->AddRecentItem(item); });
            },
            [&] {
                const auto items = dataSource->GetRecentItems();
                std::vector<std::string> copies;
                copies.reserve(items.size());
                return Elapsed([&] {
                    for (const auto &item : items)
                        copies.push_back(item->GetFormatPreset()->Name());
                });
            });
}

Comparison MeasureSaving(int choices)
{
    const auto dataSource = WithRecentChoices(choices);
    dataSource->SaveRecentPresets();
    const QByteArray bytes = QByteArray::fromStdString(
            IOLAppSettings::Shared()->Value("recent_format_preset"));
    return Compare([&] { return Elapsed([&] { dataSource->SaveRecentPresets(); }); },
                   [&] {
                       return Elapsed([&] {
                           QSaveFile file(Folder().filePath(u"saved"_s));
                           const bool saved = file.open(QIODevice::WriteOnly)
                                   && file.write(bytes) == bytes.size() && file.commit();
                           benchmark::DoNotOptimize(saved);
                       });
                   });
}

Comparison MeasureArtwork(int faces)
{
    const QString path = Folder().filePath(u"faces.icfg"_s);
    QList<Test::ArtworkImage> images;
    for (int face = 0; face < faces; ++face) {
        for (const int side : { 18, 33, 36, 66, 99 })
            images.append(Test::PlainImage(face, side, QColor::fromRgb(QRgb(face) * 40503u)));
    }
    WriteFile(path, Test::ArtworkFile(images));
    return Compare(
            [&] {
                std::shared_ptr<const IOLArtworkImageMgr> artwork;
                return Elapsed([&] {
                    artwork = IOLArtworkImageMgr::MallocArtworkImageMgr(path.toStdString(),
                                                                        nullptr);
                });
            },
            [&] {
                QByteArray bytes;
                return Elapsed([&] { bytes = Contents(path); });
            });
}

} // namespace

void AddModelMeasures()
{
    for (const int presets : sizes) {
        const std::string size = std::to_string(presets) + " presets";
        AddMeasure("load, against QJsonDocument::fromJson", size, 1.5,
                   [=] { return MeasureLoad(presets); });
        AddMeasure("bytes of a loaded preset beside its texts", size, 400,
                   [=] { return MeasureMemory(presets); });
        AddMeasure("search for nothing, against one flat array", size, 4,
                   [=] { return MeasureSearch(presets); });
    }
    for (const int choices : { 1'000, 10'000 }) {
        const std::string size = std::to_string(choices) + " choices";
        AddMeasure("add a recent choice, against copying strings", size, 3,
                   [=] { return MeasureAdding(choices); });
        AddMeasure("save recent choices, against QSaveFile", size, 3,
                   [=] { return MeasureSaving(choices); });
    }
    AddMeasure("open artwork, against reading the file", "200 x 5 images", 3,
               [] { return MeasureArtwork(200); });
}

} // namespace Bench
