#include "ArtworkFileBytes.h"
#include "MessageRecorder.h"
#include "TestCase.h"

#include "IOLArtworkImageGroup.h"
#include "IOLArtworkImageMgr.h"

#include <QFile>
#include <QPainter>
#include <QPixmapCache>
#include <QProcess>

#include <algorithm>

using Orlimo::IOLArtworkImageMgr;

using ManagerPointer = std::shared_ptr<const IOLArtworkImageMgr>;

namespace {

constexpr int faceID = 1001;
constexpr char outlivingRole[] = "manager outlives the application";

// Three sizes of one icon, told apart by their colours. The file lists them in no order.
QByteArray Artwork()
{
    return Test::ArtworkFile({ Test::PlainImage(faceID, 32, Qt::green),
                               Test::PlainImage(faceID, 64, Qt::blue),
                               Test::PlainImage(faceID, 16, Qt::red) });
}

constexpr qsizetype endOfHeader = 33; // of a PNG image

// A compressed text whose checksum is wrong, as a chunk of a PNG image.
QByteArray TextChunk()
{
    const QByteArray text = QByteArray("Comment\0\0", 9) + qCompress("text").sliced(4);
    const auto length = qToBigEndian(static_cast<quint32>(text.size()));
    return QByteArray(reinterpret_cast<const char *>(&length), sizeof length) + "zTXt" + text
            + "none";
}

ManagerPointer Open(const QByteArray &artwork)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.icfg")));
    if (!file.open(QIODevice::WriteOnly) || file.write(artwork) < 0)
        qFatal("cannot write the file");
    file.close();
    return IOLArtworkImageMgr::MallocArtworkImageMgr(file.fileName().toStdString(), nullptr);
}

ManagerPointer OpenArtwork()
{
    return Open(Artwork());
}

QIcon Icon()
{
    return OpenArtwork()->ArtworkGroup(faceID)->Icon();
}

// The icon as it looks in a square of the given side in points, in the pixels of the device.
QImage Painted(const QIcon &icon, int side, qreal ratio)
{
    QImage canvas(QSize(side, side) * ratio, QImage::Format_ARGB32);
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    icon.paint(&painter, QRect(0, 0, side, side));
    return canvas;
}

int ManagerOutlivesTheApplication(int &argc, char **argv)
{
    ManagerPointer manager;
    std::shared_ptr<const Orlimo::IOLArtworkImageGroup> group;
    {
        const QApplication application(argc, argv);
        manager = OpenArtwork();
        group = manager->ArtworkGroup(faceID);
        if (!group || group->Icon().availableSizes().size() != 3)
            return 1;
    }
    manager.reset();
    group.reset();
    return 0;
}

} // namespace

class tst_IOLArtworkImageGroup : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theIconHasEverySize()
    {
        QList<QSize> sizes = Icon().availableSizes();
        std::ranges::sort(sizes, {}, &QSize::width);
        QCOMPARE(sizes, (QList<QSize> { { 16, 16 }, { 32, 32 }, { 64, 64 } }));
    }

    void aSizeOfTheFileIsPaintedPixelByPixel_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<qreal>("ratio");
        QTest::addColumn<QColor>("color");
        QTest::newRow("16 at 1x") << 16 << 1.0 << QColor(Qt::red);
        QTest::newRow("16 at 2x") << 16 << 2.0 << QColor(Qt::green);
        QTest::newRow("32 at 1x") << 32 << 1.0 << QColor(Qt::green);
        QTest::newRow("32 at 2x") << 32 << 2.0 << QColor(Qt::blue);
        QTest::newRow("64 at 1x") << 64 << 1.0 << QColor(Qt::blue);
    }

    void aSizeOfTheFileIsPaintedPixelByPixel()
    {
        QFETCH(const int, side);
        QFETCH(const qreal, ratio);
        QFETCH(const QColor, color);
        const QImage painted = Painted(Icon(), side, ratio);
        QImage expected(painted.size(), painted.format());
        expected.setDevicePixelRatio(ratio);
        expected.fill(color);
        QCOMPARE(painted, expected);
    }

    void aSizeBetweenIsMadeFromTheNextLarger()
    {
        QCOMPARE(Painted(Icon(), 24, 1.0).pixelColor(12, 12), QColor(Qt::green));
        QCOMPARE(Painted(Icon(), 40, 1.0).pixelColor(20, 20), QColor(Qt::blue));
        QCOMPARE(Painted(Icon(), 8, 1.0).pixelColor(4, 4), QColor(Qt::red));
    }

    void theLargestIsNotEnlarged()
    {
        QCOMPARE(Icon().actualSize(QSize(200, 200)), QSize(64, 64));
        const QImage painted = Painted(Icon(), 200, 1.0);
        QCOMPARE(painted.pixelColor(100, 100), QColor(Qt::blue));
        QCOMPARE(painted.pixelColor(10, 10).alpha(), 0);
    }

    void theIconOutlivesGroupAndManager()
    {
        ManagerPointer manager = OpenArtwork();
        auto group = manager->ArtworkGroup(faceID);
        const QIcon icon = group->Icon();
        manager.reset();
        group.reset();
        QPixmapCache::clear();
        QCOMPARE(Painted(icon, 16, 1.0).pixelColor(8, 8), QColor(Qt::red));
    }

    void theGroupOutlivesItsManager()
    {
        ManagerPointer manager = OpenArtwork();
        const auto group = manager->ArtworkGroup(faceID);
        manager.reset();
        QPixmapCache::clear();
        QCOMPARE(Painted(group->Icon(), 32, 1.0).pixelColor(8, 8), QColor(Qt::green));
    }

    void anEmptiedPixmapCacheIsFilledAgain()
    {
        const ManagerPointer manager = OpenArtwork();
        QCOMPARE(manager->ArtworkGroup(faceID)->Icon().availableSizes().size(), 3);
        QPixmapCache::clear();
        QCOMPARE(manager->ArtworkGroup(faceID)->Icon().availableSizes().size(), 3);
    }

    // The decoder would report the damaged one.
    void theTextsInAnImageAreNotRead()
    {
        Test::ArtworkImage image = Test::PlainImage(faceID, 16, Qt::red);
        image.png.insert(endOfHeader, TextChunk());
        Test::MessageRecorder recorder;
        const QIcon icon = Open(Test::ArtworkFile({ image }))->ArtworkGroup(faceID)->Icon();
        QCOMPARE(Painted(icon, 16, 1.0).pixelColor(8, 8), QColor(Qt::red));
        QVERIFY(recorder.Take().isEmpty());
    }

    void translucentPixelsAreKept()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("a.icfg")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(Test::ArtworkFile({ Test::PlainImage(faceID, 16, QColor(0, 0, 255, 51)) }));
        file.close();
        const auto manager =
                IOLArtworkImageMgr::MallocArtworkImageMgr(file.fileName().toStdString(), nullptr);
        const QImage painted = Painted(manager->ArtworkGroup(faceID)->Icon(), 16, 1.0);
        QCOMPARE(painted.pixelColor(8, 8), QColor(0, 0, 255, 51));
    }

    void theManagerMayOutliveTheApplication()
    {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(),
                      { QString::fromUtf8(outlivingRole) });
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        const QByteArray said = process.readAllStandardError();
        QVERIFY2(!said.contains("QPixmap"), said);
    }
};

int main(int argc, char **argv)
{
    if (argc > 1 && QByteArrayView(argv[1]) == outlivingRole)
        return ManagerOutlivesTheApplication(argc, argv);
    return Test::Run<tst_IOLArtworkImageGroup>(argc, argv);
}

#include "tst_iolartworkimagegroup.moc"
