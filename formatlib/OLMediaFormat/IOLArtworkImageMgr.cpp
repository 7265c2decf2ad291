#include "IOLArtworkImageMgr.h"

#include "OLArtworkFile.h"
#include "OLArtworkImageMgr.h"

#include <utility>

namespace Orlimo {

IOLArtworkImageMgr::IOLArtworkImageMgr() = default;
IOLArtworkImageMgr::IOLArtworkImageMgr(const IOLArtworkImageMgr &) = default;
IOLArtworkImageMgr::IOLArtworkImageMgr(IOLArtworkImageMgr &&) = default;
IOLArtworkImageMgr &IOLArtworkImageMgr::operator=(const IOLArtworkImageMgr &) = default;
IOLArtworkImageMgr &IOLArtworkImageMgr::operator=(IOLArtworkImageMgr &&) = default;
IOLArtworkImageMgr::~IOLArtworkImageMgr() = default;

const int IOLArtworkImageMgr::CategoryFaceIDRecentList = 1;
const int IOLArtworkImageMgr::CategoryFaceIDCustomize = 2;
const int IOLArtworkImageMgr::FormatFaceIDMP4 = 1001;

std::shared_ptr<const IOLArtworkImageMgr> IOLArtworkImageMgr::MallocArtworkImageMgr(
        const std::string &file, std::shared_ptr<const IOLError> *error)
{
    auto artwork = OLArtworkFile::Read(file, error);
    return artwork ? std::make_shared<OLArtworkImageMgr>(std::move(*artwork)) : nullptr;
}

} // namespace Orlimo
