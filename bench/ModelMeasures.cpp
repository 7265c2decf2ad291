#include "HeapUse.h"
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

#include <algorithm>
#include <cmath>
#include <functional>
#include <future>
#include <memory>

using namespace Orlimo;
using namespace Qt::StringLiterals;

namespace Bench {

namespace {

using NodePointer = std::shared_ptr<IOLFormatNode>;
using PresetPointer = std::shared_ptr<IOLFormatPreset>;
using JsonPointer = std::shared_ptr<const IOLJsonValue>;

constexpr int sizes[] = { 200, 1'000, 10'000, 100'000 };

NodePointer Load(const QString &path)
{
    const JsonPointer json = IOLJsonReader::ReadJsonFile(path.toStdString(), nullptr);
    return IOLFormatNode::MallocFormatNode(json);
}

// Measures on a thread of its own, which uses memory that nobody has used before, as the picker's
// loading does.
template<class Measure>
Comparison OnFreshThread(Measure measure)
{
    return std::async(std::launch::async, measure).get();
}

// Calls visit with the texts that a search looks at.
template<class Visit>
void ForEachSearchedText(IOLFormatNode &node, const Visit &visit)
{
    for (int i = 0; i < node.PresetCount(); ++i) {
        visit(node.PresetAt(i)->Name());
        visit(node.PresetAt(i)->Description());
    }
    for (int i = 0; i < node.ChildCount(); ++i) {
        const NodePointer child = node.ChildAt(i);
        visit(child->Name());
        ForEachSearchedText(*child, visit);
    }
}

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

Comparison MeasureLoad(const QString &path)
{
    const QByteArray bytes = Contents(path);
    return Compare(
            [&] {
                JsonPointer json;
                NodePointer root;
                return Elapsed([&] {
                    json = IOLJsonReader::ReadJsonFile(path.toStdString(), nullptr);
                    root = IOLFormatNode::MallocFormatNode(json);
                });
            },
            [&] {
                QJsonDocument document;
                return Elapsed([&] { document = QJsonDocument::fromJson(bytes); });
            });
}

Comparison MeasureMemory(const QString &path, int presets)
{
    Load(path); // what the first load of a process keeps is not the tree's
    const std::size_t before = HeapUse();
    const NodePointer root = Load(path);
    const auto used = static_cast<double>(HeapUse() - before);
    const auto texts = static_cast<double>(TextSize(*root));
    const double onTop = (used - texts) / presets;
    return { used, texts, onTop, byteUnit };
}

Comparison MeasureSearch(const QString &path)
{
    const NodePointer root = Load(path);
    std::vector<std::string> texts;
    ForEachSearchedText(*root, [&](const std::string &text) { texts.push_back(text); });
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

using Visitor = std::function<void(const PresetPointer &)>;

void ForEachPreset(const NodePointer &node, const Visitor &visit)
{
    for (int i = 0; i < node->PresetCount(); ++i)
        visit(node->PresetAt(i));
    for (int i = 0; i < node->ChildCount(); ++i)
        ForEachPreset(node->ChildAt(i), visit);
}

// The data source with every preset of a description of so many chosen once, and no other. All are
// chosen under one format, so that no two choices differ before their names.
std::shared_ptr<IOLFmtPresetDataSource> WithRecentChoices(int count)
{
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    for (const auto &item : dataSource->GetRecentItems())
        dataSource->RemoveRecentItem(item);
    const NodePointer root = Load(DescriptionPath(count));
    const NodePointer format = root->FirstChild()->FirstChild();
    ForEachPreset(root, [&](const PresetPointer &preset) {
        dataSource->AddRecentPreset(preset, format);
    });
    return dataSource;
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

Comparison MeasureAdding(int choices)
{
    const auto dataSource = WithRecentChoices(choices);
    return Compare(
            [&] {
                const auto item = NewChoice(*dataSource);
                return Elapsed([&] { dataSource->AddRecentItem(item); });
            },
            [&] {
                const auto items = dataSource->GetRecentItems();
                std::vector<std::string> copies;
                copies.reserve(4 * items.size());
                return Elapsed([&] {
                    for (const auto &item : items) {
                        copies.push_back(item->GetFormatNode()->Name());
                        copies.push_back(item->GetFormatNode()->Description());
                        copies.push_back(item->GetFormatPreset()->Name());
                        copies.push_back(item->GetFormatPreset()->Description());
                    }
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
        AddMeasure("load, against QJsonDocument::fromJson", size, 1.5, [=] {
            return OnFreshThread([path = DescriptionPath(presets)] { return MeasureLoad(path); });
        });
        AddMeasure("bytes of a loaded preset beside its texts", size, 400,
                   [=] { return MeasureMemory(DescriptionPath(presets), presets); });
        AddMeasure("search for nothing, against one flat array", size, 4, [=] {
            return OnFreshThread([path = DescriptionPath(presets)] { return MeasureSearch(path); });
        });
    }
    for (const int choices : { 1'000, 10'000 }) {
        const std::string size = std::to_string(choices) + " choices";
        AddMeasure("add a recent choice, against copying the texts of all", size, 3,
                   [=] { return MeasureAdding(choices); });
        AddMeasure("save recent choices, against QSaveFile", size, 3,
                   [=] { return MeasureSaving(choices); });
    }
    AddMeasure("open artwork, against reading the file", "200 x 5 images", 3,
               [] { return MeasureArtwork(200); });
}

} // namespace Bench
