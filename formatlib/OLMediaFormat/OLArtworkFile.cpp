#include "OLArtworkFile.h"

#include "IOLError.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <numeric>
#include <tuple>
#include <utility>

namespace Orlimo {

namespace {

using ErrorPointer = std::shared_ptr<const IOLError>;

constexpr char magic[] = { 'I', 'C', 'F', 'G' };
constexpr quint16 version = 1;
constexpr qsizetype headerSize = 12; // magic, version, reserved, number of images
constexpr qsizetype recordSize = 16; // face id, width, height, offset, length
constexpr int maximumSide = 1024;
constexpr quint32 maximumImages = 65536;
constexpr std::size_t maximumImagesOfFace = 32;
constexpr qint64 maximumPixelsOfFace = qint64(2) * maximumSide * maximumSide;
constexpr qint64 maximumPixels = qint64(32) * maximumSide * maximumSide;
constexpr qint64 maximumFileSize = qint64(256) << 20;

constexpr char tooManyImages[] = "there are more than 65,536 images";

template<class Number>
Number NumberAt(const QByteArray &bytes, qsizetype offset)
{
    return qFromLittleEndian<Number>(bytes.constData() + offset);
}

template<class Number>
void Append(QByteArray &bytes, Number number)
{
    char encoded[sizeof(Number)];
    qToLittleEndian(number, encoded);
    bytes.append(encoded, sizeof encoded);
}

auto OrderOf(const OLArtworkImage &image)
{
    return std::tuple(image.faceID, image.size.width(), image.size.height());
}

bool SidesAreValid(QSize size)
{
    const auto valid = [](int side) { return side >= 1 && side <= maximumSide; };
    return valid(size.width()) && valid(size.height());
}

qint64 PixelsOf(std::span<const OLArtworkImage> images)
{
    return std::accumulate(images.begin(), images.end(), qint64(0),
                           [](qint64 pixels, const OLArtworkImage &image) {
                               return pixels + qint64(image.size.width()) * image.size.height();
                           });
}

// The size of a file in which no two images share bytes.
qint64 FileSizeOf(std::span<const OLArtworkImage> images)
{
    return std::accumulate(images.begin(), images.end(), qint64(headerSize),
                           [](qint64 bytes, const OLArtworkImage &image) {
                               return bytes + recordSize + image.png.size();
                           });
}

// Returns the reason for which one face id cannot have the images, or null.
const char *FaultOfFace(std::span<const OLArtworkImage> images)
{
    if (images.size() > maximumImagesOfFace)
        return "a face id has more than 32 images";
    if (PixelsOf(images) > maximumPixelsOfFace)
        return "the images of a face id have more than 2,097,152 pixels together";
    return nullptr;
}

const char *FaultOfFaces(std::span<const OLArtworkImage> images)
{
    for (std::span<const OLArtworkImage> rest = images; !rest.empty();) {
        const auto end = std::ranges::upper_bound(rest, rest.front().faceID, {},
                                                  &OLArtworkImage::faceID);
        const auto count = static_cast<std::size_t>(end - rest.begin());
        if (const char *fault = FaultOfFace(rest.first(count)))
            return fault;
        rest = rest.subspan(count);
    }
    return nullptr;
}

// Returns the reason for which the images, ordered by face id and size, make no artwork file, or
// null.
const char *FaultOfImages(std::span<const OLArtworkImage> images)
{
    if (images.size() > maximumImages)
        return tooManyImages;
    if (!std::ranges::all_of(images, SidesAreValid, &OLArtworkImage::size))
        return "an image is wider or higher than 1,024 pixels";
    if (std::ranges::adjacent_find(images, {}, OrderOf) != images.end())
        return "two images have the same face id and size";
    if (PixelsOf(images) > maximumPixels)
        return "the images have more than 33,554,432 pixels together";
    if (FileSizeOf(images) > maximumFileSize)
        return "the images have more than 256 MiB together with the table";
    return FaultOfFaces(images);
}

// Returns the reason for which the header is not that of an artwork file, or null.
const char *FaultOfHeader(const QByteArray &bytes)
{
    if (bytes.size() < headerSize || !bytes.startsWith(QByteArrayView(magic, sizeof magic)))
        return "not an artwork file";
    if (NumberAt<quint16>(bytes, 4) != version || NumberAt<quint16>(bytes, 6) != 0)
        return "an artwork file of an unknown version";
    const auto count = NumberAt<quint32>(bytes, 8);
    if (count > maximumImages)
        return tooManyImages;
    const qsizetype records = (bytes.size() - headerSize) / recordSize;
    return count > static_cast<quint64>(records) ? "the table is cut short" : nullptr;
}

// Reads the record at offset; its bytes share the file's. A record that points outside the file or
// has an impossible size gives no value.
std::optional<OLArtworkImage> ReadRecord(const QByteArray &bytes, qsizetype offset)
{
    const qint64 start = NumberAt<quint32>(bytes, offset + 8);
    const qint64 length = NumberAt<quint32>(bytes, offset + 12);
    const QSize size(NumberAt<quint16>(bytes, offset + 4), NumberAt<quint16>(bytes, offset + 6));
    if (start + length > bytes.size() || !SidesAreValid(size))
        return std::nullopt;
    return OLArtworkImage { NumberAt<qint32>(bytes, offset), size,
                            QByteArray::fromRawData(bytes.constData() + start, length) };
}

std::optional<QByteArray> ReadFile(const std::string &path, std::string &reason)
{
    QFile file(QString::fromStdString(path));
    const QFileInfo info(file);
    if (!info.isFile())
        reason = info.exists() ? "not a regular file" : "the file does not exist";
    else if (info.size() > maximumFileSize)
        reason = "the file is larger than 256 MiB";
    else if (!file.open(QIODevice::ReadOnly))
        reason = file.errorString().toStdString();
    if (!reason.empty())
        return std::nullopt;
    QByteArray bytes = file.readAll();
    if (file.error() == QFileDevice::NoError)
        return bytes;
    reason = file.errorString().toStdString();
    return std::nullopt;
}

} // namespace

std::optional<OLArtworkFile> OLArtworkFile::FromImages(std::vector<OLArtworkImage> images,
                                                       std::string &reason)
{
    if (!std::ranges::is_sorted(images, {}, OrderOf))
        std::ranges::sort(images, {}, OrderOf);
    if (const char *fault = FaultOfImages(images)) {
        reason = fault;
        return std::nullopt;
    }
    OLArtworkFile file;
    file.m_images = std::move(images);
    return file;
}

std::optional<OLArtworkFile> OLArtworkFile::Read(const std::string &path, ErrorPointer *error)
{
    const auto fail = [&](std::string place, std::string reason) {
        if (error)
            *error = IOLError::MallocError(path, std::move(place), std::move(reason));
        return std::nullopt;
    };

    std::string reason;
    const std::optional<QByteArray> bytes = ReadFile(path, reason);
    if (!bytes)
        return fail({}, reason);
    if (const char *fault = FaultOfHeader(*bytes))
        return fail({}, fault);

    const auto count = static_cast<qsizetype>(NumberAt<quint32>(*bytes, 8));
    std::vector<OLArtworkImage> images;
    images.reserve(static_cast<std::size_t>(count));
    for (qsizetype i = 0; i < count; ++i) {
        auto image = ReadRecord(*bytes, headerSize + i * recordSize);
        if (!image)
            return fail("image " + std::to_string(i), "the table entry is not valid");
        images.push_back(std::move(*image));
    }

    auto file = FromImages(std::move(images), reason);
    if (!file)
        return fail({}, reason);
    file->m_bytes = *bytes;
    return file;
}

std::span<const OLArtworkImage> OLArtworkFile::Images(int faceID) const
{
    return { std::ranges::lower_bound(m_images, faceID, {}, &OLArtworkImage::faceID),
             std::ranges::upper_bound(m_images, faceID, {}, &OLArtworkImage::faceID) };
}

QByteArray OLArtworkFile::ToBytes() const
{
    QByteArray bytes(magic, sizeof magic);
    Append<quint16>(bytes, version);
    Append<quint16>(bytes, 0);
    Append(bytes, static_cast<quint32>(m_images.size()));

    auto offset = static_cast<quint32>(headerSize)
            + static_cast<quint32>(recordSize) * static_cast<quint32>(m_images.size());
    for (const OLArtworkImage &image : m_images) {
        Append<qint32>(bytes, image.faceID);
        Append(bytes, static_cast<quint16>(image.size.width()));
        Append(bytes, static_cast<quint16>(image.size.height()));
        Append(bytes, offset);
        Append(bytes, static_cast<quint32>(image.png.size()));
        offset += static_cast<quint32>(image.png.size());
    }
    for (const OLArtworkImage &image : m_images)
        bytes += image.png;
    return bytes;
}

} // namespace Orlimo
