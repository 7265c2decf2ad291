#include "FuzzTargets.h"

#include "Require.h"

#include "IOLArtworkImageGroup.h"
#include "IOLArtworkImageMgr.h"
#include "IOLError.h"

#include <QFile>
#include <QPixmap>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <QtEndian>

#include <algorithm>
#include <limits>
#include <map>
#include <vector>

using Orlimo::IOLArtworkImageGroup;
using Orlimo::IOLArtworkImageMgr;
using Orlimo::IOLError;

namespace Fuzz {

namespace {

using Manager = std::shared_ptr<const IOLArtworkImageMgr>;
using SizesByFace = std::map<int, std::vector<QSize>>;

constexpr qsizetype headerSize = 12;
constexpr qsizetype recordSize = 16;

// A view asks for the icons that it shows, not for every one of a file: here, for no more than a
// long list has rows.
constexpr int facesOfView = 500;

template<class Number>
Number NumberAt(QByteArrayView bytes, qsizetype offset)
{
    return qFromLittleEndian<Number>(bytes.data() + offset);
}

// What the table of a file that was accepted says.
SizesByFace TableOf(QByteArrayView file)
{
    Require(file.size() >= headerSize, "an artwork file has a header");
    const auto count = qsizetype(NumberAt<quint32>(file, 8));
    Require(count <= (file.size() - headerSize) / recordSize, "an artwork file holds its table");
    SizesByFace table;
    for (qsizetype offset = headerSize; offset < headerSize + count * recordSize;
         offset += recordSize) {
        table[NumberAt<qint32>(file, offset)].push_back(
                { NumberAt<quint16>(file, offset + 4), NumberAt<quint16>(file, offset + 6) });
    }
    return table;
}

Manager Open(QByteArrayView input)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("formats.icfg"));
    QFile file(path);
    const bool written = file.open(QIODevice::WriteOnly)
            && file.write(input.data(), input.size()) == input.size();
    file.close();
    Require(written, "the artwork file can be written");

    std::shared_ptr<const IOLError> error;
    auto manager = IOLArtworkImageMgr::MallocArtworkImageMgr(path.toStdString(), &error);
    Require(!manager == bool(error), "a faulty file, and no other, gives an error");
    return manager;
}

// Whether one of the images is so narrow that nothing of it is left at this size.
bool VanishesAt(int side, const std::vector<QSize> &sizes)
{
    return std::ranges::any_of(sizes, [&](QSize size) {
        return size.scaled(side, side, Qt::KeepAspectRatio).isEmpty();
    });
}

void RequireOnlySizes(const QIcon &icon, const std::vector<QSize> &sizes)
{
    Require(!icon.isNull(), "a face id with images has an icon");
    const QList<QSize> available = icon.availableSizes();
    Require(std::ranges::all_of(available,
                                [&](QSize size) {
                                    return std::ranges::find(sizes, size) != sizes.end();
                                }),
            "an icon has the sizes that the table gives");
    const QSize largest = std::ranges::max(available, {}, &QSize::width);
    for (const int side : { 1, 15, 16, 32, 48, 300, 2000 }) {
        const QPixmap pixmap = icon.pixmap(QSize(side, side), 1.0);
        Require(!pixmap.isNull() || VanishesAt(side, sizes), "an icon draws at every size");
        Require(pixmap.width() <= std::min(side, largest.width()), "an icon is never enlarged");
    }
}

void RequireNoIconFor(const IOLArtworkImageMgr &manager, const SizesByFace &table, int faceID)
{
    Require(table.contains(faceID) || !manager.ArtworkGroup(faceID),
            "there is no icon for a face id that the file does not hold");
}

} // namespace

void Artwork(QByteArrayView input)
{
    const Manager manager = Open(input);
    if (!manager)
        return;
    const SizesByFace table = TableOf(input);
    for (const int faceID : { 0, 1, 2, 1001, std::numeric_limits<int>::max() })
        RequireNoIconFor(*manager, table, faceID);
    int faces = 0;
    for (const auto &[faceID, sizes] : table) {
        if (++faces > facesOfView)
            break;
        RequireNoIconFor(*manager, table, faceID ^ 1);
        const std::shared_ptr<const IOLArtworkImageGroup> group = manager->ArtworkGroup(faceID);
        Require(group == manager->ArtworkGroup(faceID), "a face id has one group");
        if (group)
            RequireOnlySizes(group->Icon(), sizes);
    }
    QPixmapCache::clear();
}

} // namespace Fuzz
