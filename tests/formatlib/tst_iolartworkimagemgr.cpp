#include "ArtworkFileBytes.h"
#include "PathForms.h"
#include "TestCase.h"

#include "IOLArtworkImageGroup.h"
#include "IOLArtworkImageMgr.h"
#include "IOLError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

#include <limits>

using Orlimo::IOLArtworkImageMgr;
using Orlimo::IOLError;

using ErrorPointer = std::shared_ptr<const IOLError>;
using ManagerPointer = std::shared_ptr<const IOLArtworkImageMgr>;

namespace {

const QByteArray tinyPng = Test::Png(QSize(2, 2), Qt::red);
const auto tinyLength = static_cast<quint32>(tinyPng.size());

} // namespace

// Opening artwork files and finding the face ids in them.
class tst_IOLArtworkImageMgr : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theNamedFaceIdsDiffer()
    {
        QVERIFY(IOLArtworkImageMgr::CategoryFaceIDRecentList
                != IOLArtworkImageMgr::CategoryFaceIDCustomize);
        QVERIFY(IOLArtworkImageMgr::CategoryFaceIDRecentList
                != IOLArtworkImageMgr::FormatFaceIDMP4);
        QVERIFY(IOLArtworkImageMgr::CategoryFaceIDCustomize != IOLArtworkImageMgr::FormatFaceIDMP4);
    }

    void everyFaceIdOfTheFileHasAGroup()
    {
        const QList<qint32> ids { 1001, 0, -5, std::numeric_limits<qint32>::max(),
                                  std::numeric_limits<qint32>::min() };
        QList<Test::ArtworkImage> images;
        for (const qint32 id : ids)
            images.append(Test::PlainImage(id, 16, Qt::green));
        const ManagerPointer manager = Open(Test::ArtworkFile(images));
        QVERIFY(manager);
        for (const qint32 id : ids) {
            QVERIFY(manager->ArtworkGroup(id));
            QVERIFY(manager->ArtworkGroup(id));
            QVERIFY(!manager->ArtworkGroup(id)->Icon().isNull());
        }
        for (const int id : { 1, 1000, 1002, -6 })
            QVERIFY(!manager->ArtworkGroup(id));
    }

    void aFileWithoutImagesHasNoGroups()
    {
        const ManagerPointer manager = Open(Test::ArtworkHeader(0));
        QVERIFY(manager);
        QVERIFY(!manager->ArtworkGroup(0));
    }

    void theErrorPointerMayBeNull()
    {
        QVERIFY(!IOLArtworkImageMgr::MallocArtworkImageMgr(PathOf("missing"), nullptr));
        QVERIFY(!IOLArtworkImageMgr::MallocArtworkImageMgr(Write("none"), nullptr));
    }

    void aFileIsFoundByEveryFormOfItsPath_data() { Test::AddPathForms(); }

    void aFileIsFoundByEveryFormOfItsPath()
    {
        QFETCH(const Test::PathForm, form);
        Write(Test::ArtworkFile({ Test::PlainImage(7, 16, Qt::green) }), Test::pathBeyondAscii);
        const Test::WorkingFolder workingFolder(m_folder.path());
        const QString path = form(m_folder.path(), Test::pathBeyondAscii);
        const ManagerPointer manager = IOLArtworkImageMgr::MallocArtworkImageMgr(path.toStdString(),
                                                                                 nullptr);
        QVERIFY(manager);
        QVERIFY(manager->ArtworkGroup(7));
    }

    void bytesBetweenTheImagesAreAllowed()
    {
        const QByteArray bytes = Test::ArtworkTable({ { 7, 2, 2, 12 + 16 + 100, tinyLength } })
                + QByteArray(100, 'x') + tinyPng + "more";
        const ManagerPointer manager = Open(bytes);
        QVERIFY(manager);
        QVERIFY(manager->ArtworkGroup(7));
    }

    void aFaceIdMayHave32Images()
    {
        QList<Test::ArtworkRecord> images;
        for (quint16 side = 1; side <= 32; ++side)
            images.append({ 7, side, side, 12, 1 });
        QVERIFY(Open(Test::ArtworkTable(images)));
    }

    void aFaceIdMayHave2097152Pixels() { QVERIFY(Open(Test::ArtworkTable(TwoLargestImages()))); }

    // 4,095 times 65,536 bytes and 16 of the table, and 12 of the header.
    void allImagesMayHave256MiBWithTheTable() { QVERIFY(Open(SharingBytes(4095, 65536))); }

    void allImagesMayHave33554432Pixels() { QVERIFY(Open(Test::ArtworkTable(LargestImages()))); }

    void imagesMayShareTheirBytes()
    {
        const ManagerPointer manager = Open(
                Test::ArtworkTable({ { 7, 2, 2, 44, tinyLength }, { 8, 2, 2, 44, tinyLength } })
                + tinyPng);
        QVERIFY(manager);
        QVERIFY(manager->ArtworkGroup(7));
        QVERIFY(manager->ArtworkGroup(8));
    }

    void aFaultyFileIsRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("reason");
        const QByteArray good = Test::ArtworkFile({ Test::PlainImage(1, 16, Qt::red) });
        const auto with = [&](qsizetype offset, const QByteArray &change) {
            return QByteArray(good).replace(offset, change.size(), change);
        };
        QTest::newRow("empty") << QByteArray() << QByteArray("not an artwork file");
        QTest::newRow("magic alone") << good.first(4) << QByteArray("not an artwork file");
        QTest::newRow("header cut short") << good.first(11) << QByteArray("not an artwork file");
        QTest::newRow("table missing") << good.first(12) << QByteArray("table");
        QTest::newRow("table cut short") << good.first(27) << QByteArray("table");
        QTest::newRow("lower-case magic") << with(0, "icfg") << QByteArray("not an artwork file");
        QTest::newRow("an image") << tinyPng << QByteArray("not an artwork file");
        QTest::newRow("version 0")
                << with(4, Test::LittleEndian(quint16(0))) << QByteArray("version");
        QTest::newRow("version 2")
                << with(4, Test::LittleEndian(quint16(2))) << QByteArray("version");
        QTest::newRow("big-endian version")
                << with(4, QByteArray("\0\1", 2)) << QByteArray("version");
        QTest::newRow("reserved bits")
                << with(6, Test::LittleEndian(quint16(1))) << QByteArray("version");
        QTest::newRow("more images than bytes")
                << with(8, Test::LittleEndian(quint32(1000))) << QByteArray("table");
        QTest::newRow("four milliard images")
                << with(8, Test::LittleEndian(~quint32(0))) << QByteArray("65,536");
        QList<Test::ArtworkRecord> crowd;
        for (quint16 side = 1; side <= 33; ++side)
            crowd.append({ 7, side, side, 12, 1 });
        QTest::newRow("33 images of one face id")
                << Test::ArtworkTable(crowd) << QByteArray("a face id has more than 32");
        QTest::newRow("one pixel too many")
                << Test::ArtworkTable(LargestImages() << Test::ArtworkRecord { 32, 1, 1, 12, 1 })
                << QByteArray("have more than 33,554,432 pixels");
        QTest::newRow("one pixel too many for a face id")
                << Test::ArtworkTable(TwoLargestImages() << Test::ArtworkRecord { 7, 1, 1, 12, 1 })
                << QByteArray("of a face id have more than 2,097,152 pixels");
        QTest::newRow("more bytes than a file may have, shared")
                << SharingBytes(4095, 65537) << QByteArray("256 MiB together");
    }

    void aFaultyFileIsRefused() { ExpectFault({}); }

    void aFaultyEntryIsRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("reason");
        const auto row = [](const char *name, const Test::ArtworkRecord &record) {
            const Test::ArtworkRecord good { 1, 2, 2, 44, tinyLength };
            QTest::newRow(name) << Test::ArtworkTable({ good, record }) + tinyPng
                                << QByteArray("entry");
        };
        const QByteArray two = Test::ArtworkFile(
                { Test::PlainImage(1, 16, Qt::red), { 2, QSize(2, 2), tinyPng } });
        QTest::newRow("image missing") << two.chopped(tinyPng.size()) << QByteArray("entry");
        QTest::newRow("image cut short") << two.chopped(1) << QByteArray("entry");
        row("no width", { 2, 0, 2, 44, tinyLength });
        row("no height", { 2, 2, 0, 44, tinyLength });
        row("too wide", { 2, 1025, 2, 44, tinyLength });
        row("too high", { 2, 2, 65535, 44, tinyLength });
        row("offset behind the file", { 2, 2, 2, 44 + tinyLength + 1, 0 });
        row("length behind the file", { 2, 2, 2, 44, tinyLength + 1 });
        row("offset and length beyond 32 bits", { 2, 2, 2, ~quint32(0), ~quint32(0) });
    }

    void aFaultyEntryIsRefused() { ExpectFault("image 1"); }

    void twoImagesOfOneFaceIdAndSizeAreRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("reason");
        const Test::ArtworkImage red = Test::PlainImage(1, 16, Qt::red);
        const Test::ArtworkImage blue = Test::PlainImage(1, 16, Qt::blue);
        const Test::ArtworkImage other = Test::PlainImage(2, 16, Qt::blue);
        QTest::newRow("side by side") << Test::ArtworkFile({ red, blue }) << QByteArray("same");
        QTest::newRow("apart") << Test::ArtworkFile({ red, other, blue }) << QByteArray("same");
    }

    void twoImagesOfOneFaceIdAndSizeAreRefused() { ExpectFault({}); }

    void whatIsNoFileIsRefused_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("missing") << QByteArray("missing.icfg") << QByteArray("exist");
        QTest::newRow("missing, beyond ascii")
                << QByteArray("größe 動画/missing é.icfg") << QByteArray("exist");
        QTest::newRow("folder") << QByteArray("folder") << QByteArray("regular file");
#ifdef Q_OS_UNIX
        QTest::newRow("pipe") << QByteArray("pipe") << QByteArray("regular file");
#endif
        QTest::newRow("more than 256 MiB") << QByteArray("large") << QByteArray("256 MiB");
    }

    void whatIsNoFileIsRefused()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const QByteArray, reason);
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder")));
#ifdef Q_OS_UNIX
        QCOMPARE(mkfifo(QFile::encodeName(folder.filePath(QStringLiteral("pipe"))), 0600), 0);
#endif
        QFile large(folder.filePath(QStringLiteral("large")));
        QVERIFY(large.open(QIODevice::WriteOnly));
        large.write(Test::ArtworkHeader(0));
        QVERIFY(large.resize((qint64(256) << 20) + 1));
        large.close();

        const std::string path = folder.filePath(QString::fromUtf8(name)).toStdString();
        ErrorPointer error;
        QVERIFY(!IOLArtworkImageMgr::MallocArtworkImageMgr(path, &error));
        ExpectError(error, path, {}, reason);
    }

    void anImageThatIsNotAsStatedLeavesItsFaceIdWithoutAGroup_data()
    {
        QTest::addColumn<QByteArray>("png");
        QTest::newRow("no bytes") << QByteArray();
        QTest::newRow("no image") << QByteArray("no image");
        QTest::newRow("smaller") << Test::Png(QSize(16, 15), Qt::red);
        QTest::newRow("larger") << Test::Png(QSize(17, 16), Qt::red);
        QTest::newRow("far larger") << Test::Png(QSize(4000, 4000), Qt::red);
        QTest::newRow("header alone") << Test::Png(QSize(16, 16), Qt::red).first(40);
        QTest::newRow("other format") << QByteArray("P3 16 16 1 ") + QByteArray(16 * 16 * 6, ' ');
    }

    void anImageThatIsNotAsStatedLeavesItsFaceIdWithoutAGroup()
    {
        QFETCH(const QByteArray, png);
        const ManagerPointer manager = Open(
                Test::ArtworkFile({ Test::PlainImage(1, 16, Qt::red),
                                    { 2, QSize(16, 16), png },
                                    Test::PlainImage(2, 32, Qt::green),
                                    Test::PlainImage(3, 16, Qt::blue) }));
        QVERIFY(manager);
        QVERIFY(manager->ArtworkGroup(1));
        QVERIFY(!manager->ArtworkGroup(2));
        QVERIFY(!manager->ArtworkGroup(2));
        QVERIFY(manager->ArtworkGroup(3));
    }

private:
    // As many pixels as a file may have, one image for each of 32 face ids.
    static QList<Test::ArtworkRecord> LargestImages()
    {
        QList<Test::ArtworkRecord> images;
        for (int faceID = 0; faceID < 32; ++faceID)
            images.append({ faceID, 1024, 1024, 12, 1 });
        return images;
    }

    // As many pixels as a face id may have.
    static QList<Test::ArtworkRecord> TwoLargestImages()
    {
        return { { 7, 1024, 1024, 12, 1 }, { 7, 1024, 1023, 12, 1 }, { 7, 1024, 1, 12, 1 } };
    }

    // A file whose images are the same bytes, count of them.
    static QByteArray SharingBytes(quint32 count, quint32 length)
    {
        QList<Test::ArtworkRecord> images;
        for (quint32 i = 0; i < count; ++i)
            images.append({ qint32(i), 1, 1, 12, length });
        return Test::ArtworkTable(images) + QByteArray(length, 'x');
    }

    std::string PathOf(const char *name) const
    {
        return m_folder.filePath(QString::fromUtf8(name)).toStdString();
    }

    std::string Write(const QByteArray &bytes, const QString &name = QStringLiteral("größe.icfg"))
    {
        QFile file(m_folder.filePath(name));
        QDir().mkpath(QFileInfo(file).path());
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write the file");
        return file.fileName().toStdString();
    }

    ManagerPointer Open(const QByteArray &bytes)
    {
        return IOLArtworkImageMgr::MallocArtworkImageMgr(Write(bytes), nullptr);
    }

    void ExpectFault(const QByteArray &place)
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QByteArray, reason);
        const std::string path = Write(bytes);
        ErrorPointer error;
        QVERIFY(!IOLArtworkImageMgr::MallocArtworkImageMgr(path, &error));
        ExpectError(error, path, place, reason);
    }

    static void ExpectError(const ErrorPointer &error, const std::string &path,
                            const QByteArray &place, const QByteArray &reason)
    {
        QVERIFY(error);
        QCOMPARE(error->Source(), path);
        QCOMPARE(error->Place(), place.toStdString());
        QVERIFY2(error->Reason().find(reason.toStdString()) != std::string::npos,
                 error->Reason().c_str());
    }

    QTemporaryDir m_folder;
};

ORLIMO_TEST_MAIN(tst_IOLArtworkImageMgr)

#include "tst_iolartworkimagemgr.moc"
