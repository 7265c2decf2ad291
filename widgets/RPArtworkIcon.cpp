#include "RPArtworkIcon.h"

#include "IOLArtworkImageGroup.h"
#include "IOLFmtPresetDataSource.h"

namespace Orlimo {

QIcon ArtworkIcon(int faceID)
{
    const auto group = IOLFmtPresetDataSource::Shared()->GetArtworkGroup(faceID);
    return group ? group->Icon() : QIcon();
}

} // namespace Orlimo
