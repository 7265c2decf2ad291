#pragma once

#include "IOLArtworkImageMgr.h"
#include "OLArtworkFile.h"

#include <map>

namespace Orlimo {

class OLArtworkImageMgr final : public IOLArtworkImageMgr
{
public:
    explicit OLArtworkImageMgr(OLArtworkFile artwork);

    std::shared_ptr<const IOLArtworkImageGroup> ArtworkGroup(int faceID) const override;

private:
    std::shared_ptr<const OLArtworkFile> m_artwork;
    // The groups asked for so far; empty for a face id without images that decode.
    mutable std::map<int, std::shared_ptr<const IOLArtworkImageGroup>> m_groups;
};

} // namespace Orlimo
