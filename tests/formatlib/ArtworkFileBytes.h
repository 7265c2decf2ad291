#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QList>
#include <QtEndian>

namespace Test {

template<class Number>
QByteArray LittleEndian(Number number)
{
    QByteArray bytes(static_cast<qsizetype>(sizeof number), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

inline QByteArray Png(const QImage &image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

inline QByteArray Png(QSize size, const QColor &color)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return Png(image);
}

// An entry of the table of an artwork file.
struct ArtworkRecord
{
    qint32 faceID = 0;
    quint16 width = 0;
    quint16 height = 0;
    quint32 offset = 0;
    quint32 length = 0;
};

struct ArtworkImage
{
    qint32 faceID = 0;
    QSize size; // as the table states it
    QByteArray png;
};

inline QByteArray ArtworkHeader(quint32 count)
{
    return "ICFG" + LittleEndian(quint16(1)) + LittleEndian(quint16(0)) + LittleEndian(count);
}

inline QByteArray ArtworkTable(const QList<ArtworkRecord> &records)
{
    QByteArray bytes = ArtworkHeader(static_cast<quint32>(records.size()));
    for (const ArtworkRecord &record : records) {
        bytes += LittleEndian(record.faceID) + LittleEndian(record.width)
                + LittleEndian(record.height) + LittleEndian(record.offset)
                + LittleEndian(record.length);
    }
    return bytes;
}

inline QByteArray ArtworkFile(const QList<ArtworkImage> &images)
{
    QList<ArtworkRecord> records;
    QByteArray pngs;
    for (const ArtworkImage &image : images) {
        const auto offset = static_cast<quint32>(12 + 16 * images.size() + pngs.size());
        records.append({ image.faceID, static_cast<quint16>(image.size.width()),
                         static_cast<quint16>(image.size.height()), offset,
                         static_cast<quint32>(image.png.size()) });
        pngs += image.png;
    }
    return ArtworkTable(records) + pngs;
}

// An image of one colour that the table states rightly.
inline ArtworkImage PlainImage(qint32 faceID, int side, const QColor &color)
{
    return { faceID, QSize(side, side), Png(QSize(side, side), color) };
}

} // namespace Test
