#include "Samples.h"

#include "DescriptionGenerator.h"

#include <QFile>

namespace Bench {

namespace {

constexpr quint32 seed = 20'261'121;

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
    const QString path = Folder().filePath(QString::number(presets) + QStringLiteral(".json"));
    if (!QFile::exists(path))
        WriteFile(path, DescriptionGenerator(seed).Generate(presets));
    return path;
}

} // namespace Bench
