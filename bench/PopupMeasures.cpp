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

constexpr int sizes[] = { 200, 1'000, 10'000, 100'000 };
constexpr int loadedPresets = 100'000;
constexpr int openedPresets = 200;
constexpr auto popup = QLatin1StringView(popupPicker);
constexpr auto bare = QLatin1StringView(barePicker);

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
    NeedApplication();
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

Comparison MeasureSearching(const QString &picker, int presets, const QString &key)
{
    return Compared(RunInProcess(
            { QLatin1StringView(searchScene), picker, DescriptionWithArtwork(presets), key }));
}

Comparison MeasureOpening(const QString &picker)
{
    QList<Figures> rounds;
    for (int i = 0; i < usualRounds; ++i) {
        const QString first = i % 2 == 0 ? u"picker"_s : u"window"_s;
        rounds += RunInProcess({ QLatin1StringView(openingScene), picker,
                                 DescriptionWithArtwork(openedPresets), first });
    }
    return Compared(rounds);
}

Comparison MeasureReopening(const QString &picker)
{
    return Compared(RunInProcess(
            { QLatin1StringView(reopeningScene), picker, DescriptionWithArtwork(openedPresets) }));
}

QList<Figures> RunLoading(const QString &picker)
{
    QList<Figures> rounds;
    for (int i = 0; i < usualRounds; ++i) {
        rounds += RunInProcess(
                { QLatin1StringView(loadingScene), picker, DescriptionWithArtwork(loadedPresets) });
    }
    return rounds;
}

const QList<Figures> &LoadingRounds()
{
    static const QList<Figures> rounds = RunLoading(popup);
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
Comparison StallOf(const QList<Figures> &rounds, int column)
{
    const double stall = MedianOf(rounds, column);
    return { stall, MedianOf(rounds, 2), stall, millisecondUnit };
}

struct Key
{
    QString text;
    std::string finds;
};

const Key keys[] = { { u"#"_s, "all" }, { u"%"_s, "1 %" }, { u"~"_s, "nothing" } };

std::string Presets(int count)
{
    return std::to_string(count) + " presets";
}

// What the widgets take that the picker has to consist of, measured as the picker is.
void AddBounds()
{
    for (const int presets : sizes) {
        for (const Key &key : keys) {
            AddMeasure("bound: key press that finds " + key.finds
                               + ", bare widgets against a tree view",
                       Presets(presets), noAim,
                       [=] { return MeasureSearching(bare, presets, key.text); });
        }
    }
    AddMeasure("bound: open first, bare widgets against an empty window", Presets(openedPresets),
               noAim, [] { return MeasureOpening(bare); });
    AddMeasure("bound: open again, bare widgets against an empty window", Presets(openedPresets),
               noAim, [] { return MeasureReopening(bare); });
    AddMeasure("bound: insertion of the categories, bare widgets", Presets(loadedPresets), noAim,
               [] { return StallOf(RunLoading(bare), 1); });
}

} // namespace

void AddPopupMeasures()
{
    for (const int presets : sizes) {
        const double toReach = presets < 10'000 ? 1 : 0.5;
        for (const Key &key : keys) {
            AddMeasure("key press that finds " + key.finds + ", against a tree view",
                       Presets(presets), toReach,
                       [=] { return MeasureSearching(popup, presets, key.text); });
        }
    }
    AddMeasure("open the popup first, against an empty window", Presets(openedPresets), 5,
               [] { return MeasureOpening(popup); });
    AddMeasure("open the popup again, against an empty window", Presets(openedPresets), 1.5,
               [] { return MeasureReopening(popup); });
    AddMeasure("longest stall of a load, insertion apart", Presets(loadedPresets), 16,
               [] { return StallOf(LoadingRounds(), 0); });
    AddMeasure("stall at the insertion of the categories", Presets(loadedPresets), 50,
               [] { return StallOf(LoadingRounds(), 1); });
    AddBounds();
}

} // namespace Bench
