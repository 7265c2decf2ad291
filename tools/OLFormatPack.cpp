#include "OLFormatPack.h"

#include "OLArtworkFile.h"

#include <QDirIterator>
#include <QFile>
#include <QImageReader>
#include <QRegularExpression>
#include <QSaveFile>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Orlimo {

namespace {

using namespace Qt::StringLiterals;

std::optional<int> FaceIDOf(const QString &fileName)
{
    static const QRegularExpression pattern(u"^(-?\\d+)[-.]"_s);
    bool fits = false;
    const int faceID = pattern.match(fileName).captured(1).toInt(&fits);
    return fits ? std::optional(faceID) : std::nullopt;
}

// Appends the image in the file; returns the reason for which it cannot, if any.
QString AppendImage(const QString &path, const QString &fileName,
                    std::vector<OLArtworkImage> &images)
{
    const std::optional<int> faceID = FaceIDOf(fileName);
    if (!faceID)
        return path + u": the name does not begin with a face id"_s;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return path + u": "_s + file.errorString();
    QImageReader reader(&file, "png");
    const QImage image = reader.read();
    if (image.isNull())
        return path + u": "_s + reader.errorString();
    file.seek(0);
    images.push_back({ *faceID, image.size(), file.readAll() });
    return {};
}

QString WriteFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()
            && file.commit();
    return written ? QString() : path + u": "_s + file.errorString();
}

} // namespace

QString PackArtwork(const QString &folder, const QString &artworkFile)
{
    std::vector<OLArtworkImage> images;
    QDirIterator files(folder, { u"*.png"_s }, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const QString fault = AppendImage(path, files.fileName(), images);
        if (!fault.isEmpty())
            return fault;
    }
    if (images.empty())
        return folder + u": there are no PNG files"_s;
    std::string reason;
    const auto artwork = OLArtworkFile::FromImages(std::move(images), reason);
    if (!artwork)
        return folder + u": "_s + QString::fromStdString(reason);
    return WriteFile(artworkFile, artwork->ToBytes());
}

} // namespace Orlimo
