#pragma once

#include "olmediaformat_export.h"

#include <memory>
#include <string>

namespace Orlimo {

class IOLArtworkImageGroup;
class IOLError;

/// The images of an artwork file by face id.
///
/// GUI thread. Holds encoded images only and may outlive the application object.
class OLMEDIAFORMAT_EXPORT IOLArtworkImageMgr
{
public:
    IOLArtworkImageMgr();
    IOLArtworkImageMgr(const IOLArtworkImageMgr &other);
    IOLArtworkImageMgr(IOLArtworkImageMgr &&other);
    IOLArtworkImageMgr &operator=(const IOLArtworkImageMgr &other);
    IOLArtworkImageMgr &operator=(IOLArtworkImageMgr &&other);

    /// The face id of the Recent tab and node.
    static const int CategoryFaceIDRecentList;
    /// The face id of the Custom tab and node.
    static const int CategoryFaceIDCustomize;
    /// The face id of the MP4 format.
    static const int FormatFaceIDMP4;

    /// Opens the artwork file at the path @p file, whose layout docs/artwork-file.md gives: reads
    /// it into memory and checks its table, but decodes no image. Empty on failure, of which
    /// @p error, if it is not null, is set to the reason.
    ///
    /// The path is UTF-8 on every platform, with slashes or, on Windows, backslashes too; a
    /// relative one starts at the working folder of the process. The error names it as it was
    /// given.
    static std::shared_ptr<const IOLArtworkImageMgr> MallocArtworkImageMgr(
            const std::string &file, std::shared_ptr<const IOLError> *error);

    /// Returns the images of @p faceID; empty if the file has none for it or one of them does not
    /// decode. The images of a face id are decoded on the first call for it.
    virtual std::shared_ptr<const IOLArtworkImageGroup> ArtworkGroup(int faceID) const = 0;

protected:
    ~IOLArtworkImageMgr();
};

} // namespace Orlimo
