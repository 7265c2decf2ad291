#include "Measures.h"
#include "Samples.h"
#include "Scenes.h"

#include "ArtworkFileBytes.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

constexpr int loadedPresets = 100'000;
constexpr int openedPresets = 200;

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

QString DescriptionWithArtwork(int presets)
{
    const QString artwork = Folder().filePath(QString::number(presets) + u".icfg"_s);
    if (!QFile::exists(artwork))
        WriteFile(artwork, Artwork());
    return DescriptionPath(presets);
}

using Figures = QList<double>;

Figures FiguresOf(const QByteArray &line)
{
    Figures figures;
    for (const QByteArray &figure : line.simplified().split(' '))
        figures.append(figure.toDouble());
    return figures;
}

// The figures of each round of a scene, run in a process of its own.
QList<Figures> RunInProcess(const QStringList &scene)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
                  QStringList { QLatin1StringView(sceneArgument) } + scene);
    const bool ended = process.waitForFinished(-1);
    if (!ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        qFatal("the scene %s failed", qUtf8Printable(scene.join(u' ')));
    QList<Figures> rounds;
    for (const QByteArray &line : process.readAllStandardOutput().trimmed().split('\n'))
        rounds.append(FiguresOf(line));
    return rounds;
}

Comparison Compared(const QList<Figures> &rounds)
{
    Rounds compared;
    for (const Figures &round : rounds)
        compared.Add(round.at(0), round.at(1));
    return compared.Compared();
}

Comparison MeasureSearching(int presets, const QString &key)
{
    return Compared(
            RunInProcess({ QLatin1StringView(searchScene), DescriptionWithArtwork(presets), key }));
}

Comparison MeasureOpening()
{
    QList<Figures> rounds;
    for (int i = 0; i < usualRounds; ++i) {
        const QString first = i % 2 == 0 ? u"popup"_s : u"window"_s;
        rounds += RunInProcess(
                { QLatin1StringView(openingScene), DescriptionWithArtwork(openedPresets), first });
    }
    return Compared(rounds);
}

Comparison MeasureReopening()
{
    return Compared(RunInProcess(
            { QLatin1StringView(reopeningScene), DescriptionWithArtwork(openedPresets) }));
}

const QList<Figures> &LoadingRounds()
{
    static const QList<Figures> rounds = [] {
        QList<Figures> all;
        for (int i = 0; i < usualRounds; ++i) {
            all += RunInProcess(
                    { QLatin1StringView(loadingScene), DescriptionWithArtwork(loadedPresets) });
        }
        return all;
    }();
    return rounds;
}

double MedianOf(const QList<Figures> &rounds, int column)
{
    std::vector<double> values;
    for (const Figures &round : rounds)
        values.push_back(round.at(column));
    return Median(values);
}

// The column of the scene's figures, against the one without a load.
Comparison MeasureStall(int column)
{
    const double stall = MedianOf(LoadingRounds(), column);
    return { stall, MedianOf(LoadingRounds(), 2), stall, millisecondUnit };
}

struct Key
{
    QString text;
    std::string finds;
};

} // namespace

void AddPopupMeasures()
{
    const Key keys[] = { { u"#"_s, "all" }, { u"%"_s, "1 %" }, { u"~"_s, "nothing" } };
    for (const int presets : { 200, 1'000, 10'000, 100'000 }) {
        const double toReach = presets < 10'000 ? 1 : 0.5;
        for (const Key &key : keys) {
            AddMeasure("key press that finds " + key.finds + ", against a tree view",
                       std::to_string(presets) + " presets", toReach,
                       [=] { return MeasureSearching(presets, key.text); });
        }
    }
    const std::string opened = std::to_string(openedPresets) + " presets";
    AddMeasure("open the popup first, against an empty window", opened, 5, MeasureOpening);
    AddMeasure("open the popup again, against an empty window", opened, 1.5, MeasureReopening);
    const std::string loaded = std::to_string(loadedPresets) + " presets";
    AddMeasure("longest stall of a load, insertion apart", loaded, 16,
               [] { return MeasureStall(0); });
    AddMeasure("stall at the insertion of the categories", loaded, 50,
               [] { return MeasureStall(1); });
}

} // namespace Bench
