#include "Samples.h"

#include "ArtworkFileBytes.h"
#include "DescriptionGenerator.h"

#include <QDir>
#include <QFile>

namespace Bench {

namespace {

using namespace Qt::StringLiterals;

constexpr quint32 seed = 20'261'121;

// The artwork of the generated descriptions, which have the faces of the shipped one.
QByteArray Artwork()
{
    QList<Test::ArtworkImage> images;
    const auto addFaces = [&](int first, int last) {
        for (int face = first; face <= last; ++face) {
            for (const int side : { 18, 33 })
                images.append(Test::PlainImage(face, side, QColor::fromRgb(QRgb(face) * 40503u)));
        }
    };
    addFaces(1, 6);
    addFaces(1001, 1073);
    return Test::ArtworkFile(images);
}

QString PathIn(const QString &folder, int presets, const QString &suffix)
{
    return QDir(folder).filePath(QString::number(presets) + suffix);
}

void WriteText(const QString &folder, int presets)
{
    WriteFile(PathIn(folder, presets, u".json"_s), DescriptionGenerator(seed).Generate(presets));
}

void WriteArtwork(const QString &folder, int presets)
{
    WriteFile(PathIn(folder, presets, u".icfg"_s), Artwork());
}

} // namespace

const QTemporaryDir &Folder()
{
    static const QTemporaryDir folder;
    return folder;
}

void WriteFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

QByteArray Contents(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qUtf8Printable(path));
    return file.readAll();
}

QString DescriptionPath(int presets)
{
    const QString path = PathIn(Folder().path(), presets, u".json"_s);
    if (!QFile::exists(path))
        WriteText(Folder().path(), presets);
    return path;
}

QString DescriptionWithArtwork(int presets)
{
    if (!QFile::exists(PathIn(Folder().path(), presets, u".icfg"_s)))
        WriteArtwork(Folder().path(), presets);
    return DescriptionPath(presets);
}

void WriteDescription(const QString &folder, int presets)
{
    QDir().mkpath(folder);
    WriteText(folder, presets);
    WriteArtwork(folder, presets);
}

} // namespace Bench
