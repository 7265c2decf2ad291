#include "OLFmtPresetStore.h"

#include "IOLAppSettings.h"
#include "IOLArtworkImageMgr.h"
#include "IOLBase64Codec.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLJsonReader.h"
#include "IOLJsonValue.h"
#include "IOLJsonWriter.h"

namespace Orlimo {

namespace {

std::shared_ptr<IOLFormatNode> BuildNode(const char *name, const char *description, int faceID)
{
    auto node = IOLFormatNode::MallocFormatNode(std::shared_ptr<IOLFormatNode>());
    node->SetName(name);
    node->SetDescription(description);
    node->SetFaceID(faceID);
    return node;
}

} // namespace

std::shared_ptr<IOLFormatNode> LoadPresetNode(const std::string &key)
{
    const std::string encoded = IOLAppSettings::Shared()->Value(key);
    if (encoded.empty())
        return nullptr;
    const std::string text = IOLBase64Codec::Decode(encoded);
    if (text.empty())
        return nullptr;
    return IOLFormatNode::MallocFormatNode(
            std::shared_ptr<const IOLJsonValue>(IOLJsonReader::ReadJsonString(text, nullptr)));
}

void StorePresetNode(const std::shared_ptr<IOLFormatNode> &node, const std::string &key)
{
    if (!node || key.empty())
        return;
    const std::string text = IOLJsonWriter::WriteJsonString(node->ToJsonValue());
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

std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> BuildRecentList(
        const IOLFormatNode &recentRoot)
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
