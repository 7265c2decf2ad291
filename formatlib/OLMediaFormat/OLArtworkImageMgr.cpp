#include "OLArtworkImageMgr.h"

#include "OLArtworkImageGroup.h"

#include <utility>

namespace Orlimo {

OLArtworkImageMgr::OLArtworkImageMgr(OLArtworkFile artwork)
    : m_artwork(std::make_shared<const OLArtworkFile>(std::move(artwork)))
{
}

std::shared_ptr<const IOLArtworkImageGroup> OLArtworkImageMgr::ArtworkGroup(int faceID) const
{
    const std::span<const OLArtworkImage> images = m_artwork->Images(faceID);
    if (images.empty())
        return nullptr;
    const auto known = m_groups.find(faceID);
    if (known != m_groups.end())
        return known->second;
    return m_groups.emplace(faceID, OLArtworkImageGroup::Make(m_artwork, images)).first->second;
}

} // namespace Orlimo
