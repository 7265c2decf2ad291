#pragma once

#include "IOLArtworkImageGroup.h"
#include "OLArtworkFile.h"

#include <QImage>
#include <QPixmapCache>

#include <memory>
#include <span>

namespace Orlimo {

// The images of one face id. Pixmaps are kept in Qt's pixmap cache, which the application object
// empties when it goes; what the cache drops is decoded again.
class OLArtworkImageGroup final : public IOLArtworkImageGroup
{
public:
    // Empty where one of the images does not decode to the size that the table gives. The images
    // share bytes with artwork.
    static std::shared_ptr<const OLArtworkImageGroup> Make(
            std::shared_ptr<const OLArtworkFile> artwork, std::span<const OLArtworkImage> images);

    // Null where the image is not a PNG image of the size that the table gives.
    static QImage Decode(const OLArtworkImage &image);

    OLArtworkImageGroup(std::shared_ptr<const OLArtworkFile> artwork,
                        std::span<const OLArtworkImage> images);

    QIcon Icon() const override;

private:
    bool Decodes() const;
    QPixmap Pixmap(std::size_t index) const;

    std::shared_ptr<const OLArtworkFile> m_artwork;
    std::span<const OLArtworkImage> m_images;
    mutable std::vector<QPixmapCache::Key> m_keys;
};

} // namespace Orlimo
