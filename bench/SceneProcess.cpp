#include "SceneProcess.h"

#include "Measures.h"
#include "Samples.h"
#include "Scenes.h"

#include <QCoreApplication>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

Figures FiguresOf(const QByteArray &line)
{
    Figures figures;
    for (const QByteArray &figure : line.simplified().split(' ')) {
        bool isNumber = false;
        figures.append(figure.toDouble(&isNumber));
        if (!isNumber)
            qFatal("a scene printed \"%s\"", line.constData());
    }
    return figures;
}

QList<Figures> FiguresOfLines(const QByteArray &lines)
{
    QList<Figures> rounds;
    for (const QByteArray &line : lines.trimmed().split('\n'))
        rounds.append(FiguresOf(line));
    return rounds;
}

QByteArray OutputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setWorkingDirectory(Folder().path());
    process.start(program, arguments);
    const bool ended = process.waitForFinished(-1);
    if (!ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        qFatal("%s %s failed", qUtf8Printable(program), qUtf8Printable(arguments.join(u' ')));
    return process.readAllStandardOutput();
}

QStringList SceneArguments(const QStringList &scene)
{
    return QStringList { QLatin1StringView(sceneArgument) } + scene;
}

} // namespace

QList<Figures> RunInProcess(const QStringList &scene)
{
    NeedApplication();
    return FiguresOfLines(OutputOf(QCoreApplication::applicationFilePath(), SceneArguments(scene)));
}

QList<Figures> CountInProcess(const QStringList &scene)
{
    NeedApplication();
    const QStringList callgrind { u"--tool=callgrind"_s, u"--quiet"_s, u"--instr-atstart=no"_s,
                                  QCoreApplication::applicationFilePath() };
    return FiguresOfLines(OutputOf(u"valgrind"_s, callgrind + SceneArguments(scene)));
}

} // namespace Bench
