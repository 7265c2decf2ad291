#include "IOLFmtPresetRecentItem.h"

#include "IOLFmtPresetDataSource.h"
#include "OLFmtPresetRecentItem.h"

#include <utility>

namespace Orlimo {

IOLFmtPresetRecentItem::IOLFmtPresetRecentItem() = default;
IOLFmtPresetRecentItem::IOLFmtPresetRecentItem(const IOLFmtPresetRecentItem &) = default;
IOLFmtPresetRecentItem::IOLFmtPresetRecentItem(IOLFmtPresetRecentItem &&) = default;
IOLFmtPresetRecentItem &IOLFmtPresetRecentItem::operator=(const IOLFmtPresetRecentItem &) = default;
IOLFmtPresetRecentItem &IOLFmtPresetRecentItem::operator=(IOLFmtPresetRecentItem &&) = default;
IOLFmtPresetRecentItem::~IOLFmtPresetRecentItem() = default;

std::shared_ptr<IOLFmtPresetRecentItem> IOLFmtPresetRecentItem::MallocFmtPresetRecentItem(
        std::shared_ptr<const IOLFormatPreset> preset, std::shared_ptr<const IOLFormatNode> node)
{
    return std::make_shared<OLFmtPresetRecentItem>(std::move(preset), std::move(node));
}

bool IOLFmtPresetRecentItem::IsEmpty() const
{
    return !GetFormatPreset();
}

std::shared_ptr<const IOLArtworkImageGroup> IOLFmtPresetRecentItem::GetArtworkGroup() const
{
    return IOLFmtPresetDataSource::Shared()->GetArtworkGroup(GetFaceID());
}

} // namespace Orlimo
