#include "TestCase.h"

#include "IOLFileProvider.h"

using Orlimo::IOLFileProvider;

class tst_IOLFileProvider : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void removePathExtensionTakesTheLastExtensionOfTheFileName_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("bare");
        QTest::newRow("file") << QByteArray("formats.json") << QByteArray("formats");
        QTest::newRow("path") << QByteArray("/usr/a.b/formats.json")
                              << QByteArray("/usr/a.b/formats");
        QTest::newRow("several") << QByteArray("a.tar.gz") << QByteArray("a.tar");
        QTest::newRow("empty extension") << QByteArray("a.") << QByteArray("a");
        QTest::newRow("hidden with extension") << QByteArray("/.a.json") << QByteArray("/.a");
        QTest::newRow("beyond ascii") << QByteArray("/Größe.ä") << QByteArray("/Größe");
        QTest::newRow("spaces") << QByteArray("a b.c d") << QByteArray("a b");
#ifdef Q_OS_WIN
        QTest::newRow("backslashes")
                << QByteArray("C:\\a.b\\größe.json") << QByteArray("C:\\a.b\\größe");
        QTest::newRow("both separators")
                << QByteArray("C:\\a.b/formats.json") << QByteArray("C:\\a.b/formats");
        QTest::newRow("drive") << QByteArray("C:formats.json") << QByteArray("C:formats");
#else
        QTest::newRow("backslash in the name") << QByteArray("a\\b.c") << QByteArray("a\\b");
        QTest::newRow("backslash in the extension") << QByteArray("a.b\\c") << QByteArray("a");
#endif
    }

    void removePathExtensionTakesTheLastExtensionOfTheFileName()
    {
        QFETCH(const QByteArray, path);
        QFETCH(const QByteArray, bare);
        QCOMPARE(IOLFileProvider::RemovePathExtension(path.toStdString()), bare.toStdString());
    }

    void aPathWithoutExtensionComesBackUnchanged_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("file") << QByteArray("formats");
        QTest::newRow("path") << QByteArray("/usr/share/formats");
        QTest::newRow("dot in the folder") << QByteArray("/usr/a.b/formats");
        QTest::newRow("folder") << QByteArray("/usr/a.b/");
        QTest::newRow("root") << QByteArray("/");
        QTest::newRow("hidden file") << QByteArray(".hidden");
        QTest::newRow("path of a hidden file") << QByteArray("/a.b/.hidden");
        QTest::newRow("this folder") << QByteArray(".");
        QTest::newRow("parent folder") << QByteArray("..");
        QTest::newRow("path of this folder") << QByteArray("a.b/.");
        QTest::newRow("path of the parent folder") << QByteArray("a.b/..");
#ifdef Q_OS_WIN
        QTest::newRow("dot in the folder, backslash") << QByteArray("C:\\a.b\\formats");
        QTest::newRow("hidden file, backslash") << QByteArray("a.b\\.hidden");
        QTest::newRow("parent folder, backslash") << QByteArray("a.b\\..");
        QTest::newRow("hidden file of a drive") << QByteArray("C:.hidden");
        QTest::newRow("parent folder of a drive") << QByteArray("C:..");
#endif
    }

    void aPathWithoutExtensionComesBackUnchanged()
    {
        QFETCH(const QByteArray, path);
        QCOMPARE(IOLFileProvider::RemovePathExtension(path.toStdString()), path.toStdString());
    }

    void appendPathExtensionAddsADotAndTheExtension()
    {
        QCOMPARE(IOLFileProvider::AppendPathExtension("/a/formats", "icfg"),
                 std::string("/a/formats.icfg"));
        QCOMPARE(IOLFileProvider::AppendPathExtension("a.b", "c"), std::string("a.b.c"));
        QCOMPARE(IOLFileProvider::AppendPathExtension("", "c"), std::string(".c"));
    }

    void appendingAnEmptyExtensionLeavesThePathUnchanged()
    {
        QCOMPARE(IOLFileProvider::AppendPathExtension("/a/formats", ""), std::string("/a/formats"));
    }

    void theArtworkFileStandsBesideTheFormatFile()
    {
        const std::string bare = IOLFileProvider::RemovePathExtension("/opt/a.b/formats.json");
        QCOMPARE(IOLFileProvider::AppendPathExtension(bare, "icfg"),
                 std::string("/opt/a.b/formats.icfg"));
    }
};

ORLIMO_TEST_MAIN(tst_IOLFileProvider)

#include "tst_iolfileprovider.moc"
