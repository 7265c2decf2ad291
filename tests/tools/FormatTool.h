#pragma once

#include "ArtworkFileBytes.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace Test {

struct ToolResult
{
    int status = -1;
    QString output;
    QString errors;

    QStringList Lines() const { return output.split(u'\n', Qt::SkipEmptyParts); }
};

inline QByteArray Contents(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    return file.readAll();
}

// The descriptions that the tests come with.
inline QByteArray Description(const QString &name)
{
    return Contents(QStringLiteral(ORLIMO_TOOL_DESCRIPTIONS "/") + name + QStringLiteral(".json"));
}

// The images of every face id that the descriptions of the tests have, in all sizes that the picker
// draws.
inline QList<ArtworkImage> CompleteImages()
{
    QList<ArtworkImage> images;
    for (const int side : { 15, 18, 30, 36 })
        images.append(PlainImage(1, side, Qt::red));
    for (const int face : { 2, 3 })
        for (const int side : { 18, 36 })
            images.append(PlainImage(face, side, Qt::green));
    for (const int side : { 33, 66 })
        images.append(PlainImage(1001, side, Qt::blue));
    return images;
}

// A folder in which the built tool runs, as a process of its own.
class ToolFolder
{
public:
    ToolFolder() = default;
    ToolFolder(const ToolFolder &) = delete;
    ToolFolder &operator=(const ToolFolder &) = delete;
    // Windows may still hold the folder of a process that has just ended.
    ~ToolFolder()
    {
        if (!QTest::qWaitFor([this] { return QDir(m_folder.path()).removeRecursively(); }))
            qWarning("%s stays", qPrintable(m_folder.path()));
    }

    QString Path() const { return m_folder.path(); }
    QString Path(const QString &name) const { return m_folder.filePath(name); }

    void Write(const QString &name, const QByteArray &bytes) const
    {
        QDir(m_folder.path()).mkpath(QFileInfo(name).path());
        QFile file(Path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("%s cannot be written", qPrintable(file.fileName()));
    }

    ToolResult Run(const QStringList &arguments) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_folder.path());
        process.setProgram(QStringLiteral(ORLIMO_FORMAT_TOOL));
        process.setArguments(arguments);
        Start(process);
        if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
            qFatal("the tool did not end: %s", qPrintable(process.errorString()));
        return { process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                 QString::fromUtf8(process.readAllStandardError()) };
    }

    // Checks a description beside an artwork file that has everything.
    ToolResult Check(const QByteArray &description, const QStringList &options = {}) const
    {
        Write(QStringLiteral("tree.icfg"), ArtworkFile(CompleteImages()));
        Write(QStringLiteral("tree.json"), description);
        return Run(QStringList { QStringLiteral("check"), QStringLiteral("tree.json") } + options);
    }

private:
    // Of ten thousand processes that a busy Wine is to start, one does not.
    static void Start(QProcess &process)
    {
        process.start(QIODevice::ReadOnly | QIODevice::Text);
        if (!process.waitForStarted())
            process.start(QIODevice::ReadOnly | QIODevice::Text);
    }

    QTemporaryDir m_folder;
};

} // namespace Test
