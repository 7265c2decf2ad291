#include "OLArtworkImageGroup.h"

#include <QBuffer>
#include <QImageReader>
#include <QPixmap>
#include <QtEndian>

#include <algorithm>
#include <utility>

namespace Orlimo {

namespace {

constexpr qsizetype signatureSize = 8;
constexpr qsizetype typeOffset = 4; // after the length
constexpr qsizetype typeSize = 4;
constexpr qsizetype chunkOverhead = 12; // length, type and checksum

// Whether a chunk of a PNG image has to do with its pixels: it is critical, which the case of its
// type's first letter says, or it is about their transparency and colours.
bool IsOfPixels(QByteArrayView type)
{
    constexpr QByteArrayView types[] = { "tRNS", "gAMA", "cHRM", "sRGB", "iCCP" };
    const bool critical = type.front() >= 'A' && type.front() <= 'Z';
    return critical || std::ranges::find(types, type) != std::end(types);
}

// The image without its texts, which would be decompressed as well: a small file can hold
// gigabytes.
QByteArray WithoutTexts(const QByteArray &png)
{
    QByteArray pixels = png.first(std::min(signatureSize, png.size()));
    QByteArrayView rest = QByteArrayView(png).sliced(pixels.size());
    while (rest.size() >= chunkOverhead) {
        const qint64 length = qFromBigEndian<quint32>(rest.data()) + qint64(chunkOverhead);
        const auto size = static_cast<qsizetype>(std::min<qint64>(length, rest.size()));
        if (IsOfPixels(rest.sliced(typeOffset, typeSize)))
            pixels.append(rest.first(size));
        rest = rest.sliced(size);
    }
    return pixels;
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

// Looks at the size in the image's header first, so that nothing larger is ever decoded.
QImage OLArtworkImageGroup::Decode(const OLArtworkImage &image)
{
    QByteArray png = WithoutTexts(image.png);
    QBuffer buffer(&png);
    QImageReader reader(&buffer, "png");
    if (!reader.canRead() || reader.size() != image.size)
        return {};
    return reader.read();
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
    pixmap = QPixmap::fromImage(Decode(m_images[index]));
    if (!pixmap.isNull())
        m_keys[index] = QPixmapCache::insert(pixmap);
    return pixmap;
}

} // namespace Orlimo
