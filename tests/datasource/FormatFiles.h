#pragma once

#include <QBuffer>
#include <QColor>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>

#include <initializer_list>
#include <string>
#include <vector>

namespace Test {

// A folder for format descriptions and artwork files, which goes when the object does.
class FormatFolder
{
public:
    QString Path() const { return m_folder.path(); }
    std::string PathOf(const QString &name) const { return m_folder.filePath(name).toStdString(); }

    // Writes the file, in a folder of its own where name has one, and returns its path.
    std::string Write(const QString &name, const QByteArray &bytes) const
    {
        const QString path = m_folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qUtf8Printable(path));
        return path.toStdString();
    }

private:
    QTemporaryDir m_folder;
};

// A description whose root is called name and has no presets and no children.
inline QByteArray Description(const QByteArray &name)
{
    return R"({"version":1,"root":{"name":")" + name + R"("}})";
}

// A description with a chain of as many nodes, the root among them.
inline QByteArray DeepDescription(int levels)
{
    const QByteArray begin = R"({"name":"level","children":[)";
    return R"({"version":1,"root":)" + begin.repeated(levels) + QByteArray("]}").repeated(levels)
            + '}';
}

struct Artwork
{
    qint32 faceID;
    QColor color;
};

inline QByteArray Png(const QColor &color, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray png;
    QBuffer buffer(&png);
    image.save(&buffer, "PNG");
    return png;
}

// An artwork file with one image of 16 x 16 pixels for each face id.
inline QByteArray ArtworkFile(std::initializer_list<Artwork> artworks)
{
    constexpr quint16 side = 16;
    constexpr quint32 headerSize = 12;
    constexpr quint32 recordSize = 16;

    QByteArray table;
    QDataStream stream(&table, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.writeRawData("ICFG", 4);
    stream << quint16(1) << quint16(0) << quint32(artworks.size());

    const quint32 imagesStart = headerSize + recordSize * quint32(artworks.size());
    QByteArray images;
    for (const Artwork &artwork : artworks) {
        const QByteArray png = Png(artwork.color, { side, side });
        stream << artwork.faceID << side << side << imagesStart + quint32(images.size())
               << quint32(png.size());
        images += png;
    }
    return table + images;
}

} // namespace Test
