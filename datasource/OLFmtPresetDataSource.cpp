#include "OLFmtPresetDataSource.h"

#include "IOLArtworkImageGroup.h"
#include "IOLArtworkImageMgr.h"
#include "IOLFileProvider.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLJsonReader.h"
#include "IOLJsonValue.h"
#include "IOLLogConfig.h"
#include "IOLStringHelper.h"
#include "OLFmtPresetSearch.h"
#include "OLFmtPresetStore.h"
#include "OLMediaCodecs.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace Orlimo {

namespace {

constexpr int cloneAttributes = 1;
constexpr std::chrono::milliseconds longestWait { 1 };

std::shared_ptr<IOLFmtPresetRecentItem> BuildDefaultItem()
{
    auto node = IOLFormatNode::MallocFormatNode(std::shared_ptr<IOLFormatNode>());
    node->SetFaceID(IOLArtworkImageMgr::FormatFaceIDMP4);
    node->SetName("MP4");
    node->SetDescription("MP4 Format");
    auto preset = IOLFormatPreset::MallocFormatPreset(OLFormatNameMP4, "");
    preset->SetFaceID(IOLArtworkImageMgr::FormatFaceIDMP4);
    node->AddPreset(preset);
    return IOLFmtPresetRecentItem::MallocFmtPresetRecentItem(preset, node);
}

std::shared_ptr<IOLFormatNode> Otherwise(std::shared_ptr<IOLFormatNode> loaded,
                                         std::shared_ptr<IOLFormatNode> (*build)())
{
    return loaded ? loaded : build();
}

// Runs on the background task. Whatever is thrown there, such as the lack of memory, must not reach
// the thread that collects the result.
std::shared_ptr<IOLFormatNode> LoadExternalFormatNode(const std::string &path)
{
    try {
        if (const std::shared_ptr<const IOLJsonValue> json = IOLJsonReader::ReadJsonFile(path,
                                                                                         nullptr))
            return IOLFormatNode::MallocFormatNode(json);
    } catch (...) {
        // reported below, as any other description that cannot be read
    }
    IOLLogConfig::Printf("Failed load external format %s", path.c_str());
    return nullptr;
}

bool IsComplete(const std::shared_ptr<IOLFmtPresetRecentItem> &item)
{
    return item && item->GetFormatPreset() && item->GetFormatNode();
}

} // namespace

OLFmtPresetDataSource::OLFmtPresetDataSource()
    : m_defaultItem(BuildDefaultItem())
{
    m_recentRoot = Otherwise(LoadPresetNode(OLRecentPresetsKey), BuildRecentNode);
    m_recentList = BuildRecentList(*m_recentRoot);
    m_customRoot = Otherwise(LoadPresetNode(OLCustomPresetsKey), BuildCustomNode);
}

void OLFmtPresetDataSource::AsyncLoadExternalDataSource(const std::string &path,
                                                        std::function<void()> onLoaded)
{
    const std::string artworkFile =
            IOLFileProvider::AppendPathExtension(IOLFileProvider::RemovePathExtension(path),
                                                 "icfg");
    m_artworkManager = IOLArtworkImageMgr::MallocArtworkImageMgr(artworkFile, nullptr);
    m_loadResult = std::async(std::launch::async, LoadExternalFormatNode, path);
    // The action must find its thread in the member, even where the load is over at once.
    std::promise<void> assigned;
    m_loadingThread = std::thread([result = m_loadResult, onLoaded = std::move(onLoaded),
                                   threadIsAssigned = assigned.get_future()] {
        threadIsAssigned.wait();
        result.wait();
        onLoaded();
    });
    assigned.set_value();
}

void OLFmtPresetDataSource::WaitForLoadingComplete()
{
    if (m_loadingThread.joinable())
        m_loadingThread.join();
}

std::shared_ptr<IOLFormatNode> OLFmtPresetDataSource::GetDefaultFormatNode()
{
    if (m_defaultRoot || !m_loadResult.valid())
        return m_defaultRoot;
    if (m_loadResult.wait_for(longestWait) == std::future_status::ready)
        m_defaultRoot = std::exchange(m_loadResult, {}).get();
    return m_defaultRoot;
}

std::shared_ptr<IOLFmtPresetRecentItem> OLFmtPresetDataSource::GetLatestRecentItem() const
{
    return m_recentList.empty() ? m_defaultItem : m_recentList.front();
}

std::shared_ptr<IOLFmtPresetRecentItem> OLFmtPresetDataSource::GetDefaultRecentItem() const
{
    return m_defaultItem;
}

std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> OLFmtPresetDataSource::GetRecentItems() const
{
    return m_recentList;
}

bool OLFmtPresetDataSource::AddRecentPreset(std::shared_ptr<const IOLFormatPreset> preset,
                                            std::shared_ptr<const IOLFormatNode> node)
{
    return AddRecentItem(
            IOLFmtPresetRecentItem::MallocFmtPresetRecentItem(std::move(preset), std::move(node)));
}

bool OLFmtPresetDataSource::AddRecentItem(std::shared_ptr<IOLFmtPresetRecentItem> item)
{
    if (!IsComplete(item))
        return false;

    const auto same = std::ranges::find_if(m_recentList,
                                           [&](const auto &entry) { return item->IsEqual(entry); });
    if (same != m_recentList.end()) {
        m_recentRoot->RemoveChild(std::const_pointer_cast<IOLFormatNode>((*same)->GetFormatNode()));
        m_recentList.erase(same);
    }

    auto node = item->GetFormatNode()->Clone(cloneAttributes);
    auto preset = item->GetFormatPreset()->Clone();
    node->AddPreset(preset);
    node->SetParent(m_recentRoot);
    m_recentRoot->AppendChild(node);
    m_recentList.insert(m_recentList.begin(),
                        IOLFmtPresetRecentItem::MallocFmtPresetRecentItem(preset, node));
    return true;
}

bool OLFmtPresetDataSource::RemoveRecentItem(std::shared_ptr<IOLFmtPresetRecentItem> item)
{
    return RemoveRecentAt(std::ranges::find(m_recentList, item));
}

bool OLFmtPresetDataSource::RemoveRecentItemByName(const std::string &name)
{
    return RemoveRecentAt(std::ranges::find_if(m_recentList, [&](const auto &entry) {
        return entry->GetDisplayName() == name;
    }));
}

// The list runs newest first and the children oldest first, but the child is taken at the entry's
// position in the list: what is stored has always been so, and stays so.
bool OLFmtPresetDataSource::RemoveRecentAt(RecentList::const_iterator entry)
{
    if (entry == m_recentList.end())
        return false;
    m_recentRoot->RemoveChildAt(static_cast<int>(entry - m_recentList.begin()));
    m_recentList.erase(entry);
    return true;
}

void OLFmtPresetDataSource::SaveRecentPresets()
{
    StorePresetNode(m_recentRoot, OLRecentPresetsKey);
}

std::shared_ptr<IOLFormatNode> OLFmtPresetDataSource::GetCustomFormatNode()
{
    return m_customRoot;
}

std::shared_ptr<IOLFormatNode> OLFmtPresetDataSource::GetCustomFormatNode() const
{
    return m_customRoot;
}

void OLFmtPresetDataSource::AddCustomPreset(std::shared_ptr<const IOLFormatPreset> preset,
                                            std::shared_ptr<const IOLFormatNode> node)
{
    if (!preset || !node)
        return;
    auto format = m_customRoot->FindChild(node->Name());
    if (!format) {
        format = node->Clone(cloneAttributes);
        m_customRoot->AppendChild(format);
        format->SetParent(m_customRoot);
    }
    format->AddPreset(preset->Clone());
}

bool OLFmtPresetDataSource::RemoveCustomPreset(std::shared_ptr<const IOLFormatPreset> preset,
                                               std::shared_ptr<const IOLFormatNode> node)
{
    const auto format = preset && node ? m_customRoot->FindChild(node->Name()) : nullptr;
    if (!format)
        return false;
    const bool removed = format->RemovePreset(preset->Name());
    if (removed && format->PresetCount() == 0)
        m_customRoot->RemoveChild(format->Name());
    return removed;
}

void OLFmtPresetDataSource::SaveCustomPresets()
{
    StorePresetNode(m_customRoot, OLCustomPresetsKey);
}

std::shared_ptr<const IOLArtworkImageGroup> OLFmtPresetDataSource::GetArtworkGroup(int faceID) const
{
    return m_artworkManager ? m_artworkManager->ArtworkGroup(faceID) : nullptr;
}

std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> OLFmtPresetDataSource::FilterRecentItems(
        const std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> &items,
        const std::string &keyword) const
{
    return keyword.empty() ? items : MatchingRecentItems(items, IOLStringHelper::ToLower(keyword));
}

std::shared_ptr<IOLFormatNode> OLFmtPresetDataSource::SearchFormatNode(
        std::shared_ptr<IOLFormatNode> node, const std::string &keyword,
        std::shared_ptr<IOLFormatNode>) const
{
    if (keyword.empty() || !node)
        return nullptr;
    return MatchingTree(*node, IOLStringHelper::ToLower(keyword));
}

} // namespace Orlimo
