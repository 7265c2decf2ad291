#pragma once

#include "IOLFmtPresetDataSource.h"

#include <future>
#include <thread>

namespace Orlimo {

class IOLArtworkImageMgr;

class OLFmtPresetDataSource final : public IOLFmtPresetDataSource
{
public:
    OLFmtPresetDataSource();

    void AsyncLoadExternalDataSource(const std::string &path,
                                     std::function<void()> onLoaded) override;
    void WaitForLoadingComplete() override;
    std::shared_ptr<IOLFormatNode> GetDefaultFormatNode() override;

    std::shared_ptr<IOLFmtPresetRecentItem> GetLatestRecentItem() const override;
    std::shared_ptr<IOLFmtPresetRecentItem> GetDefaultRecentItem() const override;
    std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> GetRecentItems() const override;
    bool AddRecentPreset(std::shared_ptr<const IOLFormatPreset> preset,
                         std::shared_ptr<const IOLFormatNode> node) override;
    bool AddRecentItem(std::shared_ptr<IOLFmtPresetRecentItem> item) override;
    bool RemoveRecentItem(std::shared_ptr<IOLFmtPresetRecentItem> item) override;
    bool RemoveRecentItemByName(const std::string &name) override;
    void SaveRecentPresets() override;

    std::shared_ptr<IOLFormatNode> GetCustomFormatNode() override;
    std::shared_ptr<IOLFormatNode> GetCustomFormatNode() const override;
    void AddCustomPreset(std::shared_ptr<const IOLFormatPreset> preset,
                         std::shared_ptr<const IOLFormatNode> node) override;
    bool RemoveCustomPreset(std::shared_ptr<const IOLFormatPreset> preset,
                            std::shared_ptr<const IOLFormatNode> node) override;
    void SaveCustomPresets() override;

    std::shared_ptr<const IOLArtworkImageGroup> GetArtworkGroup(int faceID) const override;
    std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> FilterRecentItems(
            const std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> &items,
            const std::string &keyword) const override;
    std::shared_ptr<IOLFormatNode> SearchFormatNode(
            std::shared_ptr<IOLFormatNode> node, const std::string &keyword,
            std::shared_ptr<IOLFormatNode> parent) const override;

private:
    using RecentList = std::vector<std::shared_ptr<IOLFmtPresetRecentItem>>;

    bool RemoveRecentAt(RecentList::const_iterator entry);

    std::shared_ptr<IOLFormatNode> m_customRoot;
    std::shared_ptr<IOLFormatNode> m_defaultRoot;
    std::shared_ptr<IOLFormatNode> m_recentRoot;
    RecentList m_recentList; // newest first
    std::shared_ptr<IOLFmtPresetRecentItem> m_defaultItem;
    std::shared_ptr<const IOLArtworkImageMgr> m_artworkManager;
    // Shared, so that the loading thread waits on a reference of its own while the GUI thread
    // collects the result. That wait also joins the parser's thread, so a load that was waited for
    // does not keep the system from unloading the library.
    std::shared_future<std::shared_ptr<IOLFormatNode>> m_loadResult;
    std::thread m_loadingThread;
};

} // namespace Orlimo
