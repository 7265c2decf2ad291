#include "IOLArtworkImageGroup.h"

namespace Orlimo {

IOLArtworkImageGroup::IOLArtworkImageGroup() = default;
IOLArtworkImageGroup::IOLArtworkImageGroup(const IOLArtworkImageGroup &) = default;
IOLArtworkImageGroup::IOLArtworkImageGroup(IOLArtworkImageGroup &&) = default;
IOLArtworkImageGroup &IOLArtworkImageGroup::operator=(const IOLArtworkImageGroup &) = default;
IOLArtworkImageGroup &IOLArtworkImageGroup::operator=(IOLArtworkImageGroup &&) = default;
IOLArtworkImageGroup::~IOLArtworkImageGroup() = default;

} // namespace Orlimo
