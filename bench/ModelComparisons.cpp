#include "ModelComparisons.h"

#include "Samples.h"

#include "IOLAppSettings.h"
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

#include <functional>
#include <future>
#include <string>
#include <vector>

using namespace Orlimo;
using namespace Qt::StringLiterals;

namespace Bench {

namespace {

using NodePointer = std::shared_ptr<IOLFormatNode>;
using PresetPointer = std::shared_ptr<IOLFormatPreset>;
using JsonPointer = std::shared_ptr<const IOLJsonValue>;
using Visitor = std::function<void(const PresetPointer &)>;

// Runs on a thread of its own, which uses memory that nobody has used before, as the picker's
// loading does.
template<class Work>
auto OnFreshThread(Work work)
{
    return std::async(std::launch::async, work).get();
}

Cost CostOfLoad(const QString &path)
{
    JsonPointer json;
    NodePointer root;
    return CostOf([&] {
        json = IOLJsonReader::ReadJsonFile(path.toStdString(), nullptr);
        root = IOLFormatNode::MallocFormatNode(json);
    });
}

Cost CostOfParse(const QByteArray &bytes)
{
    QJsonDocument document;
    return CostOf([&] { document = QJsonDocument::fromJson(bytes); });
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

bool IsInAny(const std::vector<std::string> &texts, const std::string &keyword)
{
    bool found = false;
    for (const std::string &text : texts)
        found |= IOLStringHelper::ToLower(text).find(keyword) != std::string::npos;
    return found;
}

void ForEachPreset(const NodePointer &node, const Visitor &visit)
{
    for (int i = 0; i < node->PresetCount(); ++i)
        visit(node->PresetAt(i));
    for (int i = 0; i < node->ChildCount(); ++i)
        ForEachPreset(node->ChildAt(i), visit);
}

bool Save(const QByteArray &bytes)
{
    QSaveFile file(Folder().filePath(u"saved"_s));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

} // namespace

NodePointer LoadedTree(const QString &path)
{
    const JsonPointer json = IOLJsonReader::ReadJsonFile(path.toStdString(), nullptr);
    return IOLFormatNode::MallocFormatNode(json);
}

std::shared_ptr<IOLFmtPresetDataSource> WithRecentChoices(const QString &path)
{
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    for (const auto &item : dataSource->GetRecentItems())
        dataSource->RemoveRecentItem(item);
    const NodePointer root = LoadedTree(path);
    const NodePointer format = root->FirstChild()->FirstChild();
    ForEachPreset(root, [&](const PresetPointer &preset) {
        dataSource->AddRecentPreset(preset, format);
    });
    return dataSource;
}

Rounds CompareLoads(const QString &path, int rounds)
{
    return OnFreshThread([&] {
        const QByteArray bytes = Contents(path);
        return RunByTurns([&] { return CostOfLoad(path); }, [&] { return CostOfParse(bytes); },
                          rounds);
    });
}

// As in the picker, one thread loads the tree and another searches it.
Rounds CompareFinds(const QString &path, int rounds)
{
    const NodePointer root = OnFreshThread([&] { return LoadedTree(path); });
    std::vector<std::string> texts;
    ForEachSearchedText(*root, [&](const std::string &text) { texts.push_back(text); });
    const std::string keyword = "~";
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    const auto searchTree = [&] {
        benchmark::DoNotOptimize(dataSource->SearchFormatNode(root, keyword, nullptr));
    };
    const auto searchTexts = [&] { benchmark::DoNotOptimize(IsInAny(texts, keyword)); };
    return RunByTurns([&] { return CostOf(searchTree); }, [&] { return CostOf(searchTexts); },
                      rounds);
}

Rounds CompareSaves(const QString &path, int rounds)
{
    const auto dataSource = WithRecentChoices(path);
    dataSource->SaveRecentPresets();
    const QByteArray bytes = QByteArray::fromStdString(
            IOLAppSettings::Shared()->Value("recent_format_preset"));
    const auto saveChoices = [&] { dataSource->SaveRecentPresets(); };
    const auto saveBytes = [&] { benchmark::DoNotOptimize(Save(bytes)); };
    return RunByTurns([&] { return CostOf(saveChoices); }, [&] { return CostOf(saveBytes); },
                      rounds);
}

} // namespace Bench
