#include "OLArtworkImageGroup.h"

#include <QBuffer>
#include <QImageReader>
#include <QPixmap>

#include <utility>

namespace Orlimo {

namespace {

// Looks at the size in the image's header first, so that nothing larger is ever decoded.
QPixmap Decode(const OLArtworkImage &image)
{
    QByteArray png = image.png;
    QBuffer buffer(&png);
    QImageReader reader(&buffer, "png");
    if (!reader.canRead() || reader.size() != image.size)
        return {};
    return QPixmap::fromImage(reader.read());
}

} // namespace

OLArtworkImageGroup::OLArtworkImageGroup(std::shared_ptr<const OLArtworkFile> artwork,
                                         std::span<const OLArtworkImage> images)
    : m_artwork(std::move(artwork))
    , m_images(images)
    , m_keys(images.size())
{
}

std::shared_ptr<const OLArtworkImageGroup> OLArtworkImageGroup::Make(
        std::shared_ptr<const OLArtworkFile> artwork, std::span<const OLArtworkImage> images)
{
    auto group = std::make_shared<OLArtworkImageGroup>(std::move(artwork), images);
    return group->Decodes() ? group : nullptr;
}

bool OLArtworkImageGroup::Decodes() const
{
    for (std::size_t i = 0; i < m_images.size(); ++i) {
        if (Pixmap(i).isNull())
            return false;
    }
    return !m_images.empty();
}

QIcon OLArtworkImageGroup::Icon() const
{
    QIcon icon;
    for (std::size_t i = 0; i < m_images.size(); ++i)
        icon.addPixmap(Pixmap(i));
    return icon;
}

QPixmap OLArtworkImageGroup::Pixmap(std::size_t index) const
{
    QPixmap pixmap;
    if (QPixmapCache::find(m_keys[index], &pixmap))
        return pixmap;
    pixmap = Decode(m_images[index]);
    if (!pixmap.isNull())
        m_keys[index] = QPixmapCache::insert(pixmap);
    return pixmap;
}

} // namespace Orlimo
