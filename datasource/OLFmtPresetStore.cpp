#include "OLFmtPresetStore.h"

#include "IOLAppSettings.h"
#include "IOLArtworkImageMgr.h"
#include "IOLBase64Codec.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLJsonReader.h"
#include "IOLJsonValue.h"
#include "IOLJsonWriter.h"

#include <map>
#include <string>

namespace Orlimo {

namespace {

constexpr int mostValuesAside = 9;

// The stored values that could not be read, by their keys, until the next save takes their place.
std::map<std::string, std::string> unreadableValues;

std::shared_ptr<IOLFormatNode> BuildNode(const char *name, const char *description, int faceID)
{
    auto node = IOLFormatNode::MallocFormatNode(std::shared_ptr<IOLFormatNode>());
    node->SetName(name);
    node->SetDescription(description);
    node->SetFaceID(faceID);
    return node;
}

std::shared_ptr<IOLFormatNode> ReadNode(const std::string &encoded)
{
    const std::string text = IOLBase64Codec::Decode(encoded);
    if (text.empty())
        return nullptr;
    return IOLFormatNode::MallocFormatNode(
            std::shared_ptr<const IOLJsonValue>(IOLJsonReader::ReadJsonString(text, nullptr)));
}

// Under a key that is free, or that holds the value already. Where no key is free any more, the
// last takes the newest value.
void KeepAside(const std::string &value, const std::string &key)
{
    const auto settings = IOLAppSettings::Shared();
    std::string aside = "unreadable/" + key;
    std::string kept = settings->Value(aside);
    for (int i = 2; i <= mostValuesAside && !kept.empty() && kept != value; ++i) {
        aside = "unreadable/" + key + '_' + std::to_string(i);
        kept = settings->Value(aside);
    }
    if (kept != value)
        settings->SetValue(value, aside);
}

} // namespace

std::shared_ptr<IOLFormatNode> LoadPresetNode(const std::string &key)
{
    unreadableValues.erase(key);
    const std::string encoded = IOLAppSettings::Shared()->Value(key);
    if (encoded.empty())
        return nullptr;
    auto node = ReadNode(encoded);
    if (!node)
        unreadableValues.emplace(key, encoded);
    return node;
}

void StorePresetNode(const std::shared_ptr<IOLFormatNode> &node, const std::string &key)
{
    if (!node || key.empty())
        return;
    const std::string text = IOLJsonWriter::WriteJsonString(node->ToJsonValue());
    if (const auto unreadable = unreadableValues.extract(key))
        KeepAside(unreadable.mapped(), key);
    const auto settings = IOLAppSettings::Shared();
    settings->SetValue(IOLBase64Codec::Encode(text), key);
    settings->Save();
}

std::shared_ptr<IOLFormatNode> BuildRecentNode()
{
    return BuildNode("Recent", "Recent Selection", IOLArtworkImageMgr::CategoryFaceIDRecentList);
}

std::shared_ptr<IOLFormatNode> BuildCustomNode()
{
    return BuildNode("Custom", "Custom Preset", IOLArtworkImageMgr::CategoryFaceIDCustomize);
}

std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> BuildRecentList(IOLFormatNode &recentRoot)
{
    std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> list;
    for (int i = recentRoot.ChildCount() - 1; i >= 0; --i) {
        const std::shared_ptr<const IOLFormatNode> child = recentRoot.ChildAt(i);
        const auto preset = child ? child->FirstFormatPreset() : nullptr;
        if (preset)
            list.push_back(IOLFmtPresetRecentItem::MallocFmtPresetRecentItem(preset, child));
    }
    return list;
}

} // namespace Orlimo
