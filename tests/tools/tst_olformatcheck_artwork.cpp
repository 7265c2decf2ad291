#include "FormatTool.h"
#include "TestCase.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QByteArray ArtworkWithout(int faceID, int side)
{
    QList<Test::ArtworkImage> images = Test::CompleteImages();
    images.removeIf([&](const Test::ArtworkImage &image) {
        return image.faceID == faceID && (side == 0 || image.size.width() == side);
    });
    return Test::ArtworkFile(images);
}

QByteArray ArtworkWith(const Test::ArtworkImage &image)
{
    return Test::ArtworkFile(Test::CompleteImages() << image);
}

} // namespace

// What is printed of the artwork file beside a description without faults.
class tst_OLFormatCheckArtwork : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aDamagedArtworkFileIsAFault_data()
    {
        using Test::ArtworkHeader;
        using Test::ArtworkTable;
        QTest::addColumn<QByteArray>("artwork");
        QTest::addColumn<QString>("line");
        const QByteArray whole = Test::ArtworkFile(Test::CompleteImages());
        QTest::newRow("nothing") << QByteArray() << u"not an artwork file"_s;
        QTest::newRow("something else") << QByteArray(20, 'x') << u"not an artwork file"_s;
        QTest::newRow("later version") << QByteArray(whole).replace(4, 1, "\2")
                                       << u"an artwork file of an unknown version"_s;
        QTest::newRow("table cut short") << whole.first(100) << u"the table is cut short"_s;
        QTest::newRow("image cut short")
                << whole.chopped(1) << u"image 9: the table entry is not valid"_s;
        QTest::newRow("image without a side")
                << ArtworkTable({ { 3, 18, 18, 12, 0 }, { 4, 0, 18, 12, 0 } })
                << u"image 1: the table entry is not valid"_s;
        QTest::newRow("image twice") << ArtworkWith(Test::PlainImage(3, 18, Qt::red))
                                     << u"two images have the same face id and size"_s;
        QTest::newRow("image of another size")
                << ArtworkWith({ 3, QSize(20, 21), Test::Png(QSize(20, 20), Qt::red) })
                << u"face id 3, 20 x 21: not a PNG image of this size"_s;
        QTest::newRow("image of noise") << ArtworkWith({ -4, QSize(7, 7), "noise" })
                                        << u"face id -4, 7 x 7: not a PNG image of this size"_s;
    }

    void aDamagedArtworkFileIsAFault()
    {
        QFETCH(const QByteArray, artwork);
        QFETCH(const QString, line);
        const Test::ToolResult result = CheckBeside(artwork);
        QCOMPARE(result.output, u"tree.icfg: error: "_s + line + u'\n');
        QCOMPARE(result.status, 2);
    }

    void aFaultOfTheDescriptionStandsBeforeThatOfTheArtworkFile()
    {
        m_folder.Write(u"tree.json"_s, Test::Description(u"faulty/version-unknown"_s));
        m_folder.Write(u"tree.icfg"_s, "noise");
        const Test::ToolResult result = m_folder.Run({ u"check"_s, u"tree.json"_s });
        QCOMPARE(result.Lines().size(), 2);
        QVERIFY(result.Lines().at(0).startsWith(u"tree.json:2:14: error: /version: "_s));
        QCOMPARE(result.Lines().at(1), u"tree.icfg: error: not an artwork file"_s);
    }

    void aMissingArtworkFileIsAWarning()
    {
        m_folder.Write(u"alone.json"_s, Test::Description(u"clean"_s));
        const QStringList arguments { u"check"_s, u"alone.json"_s };
        const Test::ToolResult result = m_folder.Run(arguments);
        QCOMPARE(
                result.output,
                u"alone.icfg: warning: there is no artwork file, so the picker shows no icons\n"_s);
        QCOMPARE(result.status, 0);
        QCOMPARE(m_folder.Run(arguments + QStringList { u"--strict"_s }).status, 1);
    }

    void theArtworkFileHasTheNameOfTheDescriptionWithoutItsLastExtension()
    {
        m_folder.Write(u"a.b/tree.v1.json"_s, Test::Description(u"clean"_s));
        m_folder.Write(u"a.b/tree.v1.icfg"_s, Test::ArtworkFile(Test::CompleteImages()));
        const Test::ToolResult result = m_folder.Run(
                { u"check"_s, u"--strict"_s, u"a.b/tree.v1.json"_s });
        QCOMPARE(result.output, QString());
        QCOMPARE(result.status, 0);
    }

    // 16 x 16 and 32 x 32 would serve no size exactly, so a picture is scaled in each.
    void aSizeThatThePickerDrawsAndTheFileLacksIsAWarning_data()
    {
        QTest::addColumn<int>("faceID");
        QTest::addColumn<int>("side");
        QTest::addColumn<QString>("line");
        const auto row = [](const char *name, int faceID, int side, const char *line) {
            QTest::newRow(name) << faceID << side << QString::fromUtf8(line);
        };
        row("category", 3, 18,
            "tree.json:16:36: warning: /root/children/0/faceId: face id 3 has no image of 18 x 18 "
            "pixels, its size on a tab");
        row("category at 200 %", 3, 36,
            "tree.json:16:36: warning: /root/children/0/faceId: face id 3 has no image of 36 x 36 "
            "pixels, its size on a tab at 200 %");
        row("format and preset", 1001, 33,
            "tree.json:17:38: warning: /root/children/0/children/0/faceId: face id 1001 has no "
            "image of 33 x 33 pixels, its size in a row");
        row("format and preset at 200 %", 1001, 66,
            "tree.json:17:38: warning: /root/children/0/children/0/faceId: face id 1001 has no "
            "image of 66 x 66 pixels, its size in a row at 200 %");
        row("format and preset without any", 1001, 0,
            "tree.json:17:38: warning: /root/children/0/children/0/faceId: face id 1001 has no "
            "image");
        row("Recent", 1, 15,
            "tree.icfg: warning: face id 1 has no image of 15 x 15 pixels, its size on the Recent "
            "tab");
        row("Recent at 200 %", 1, 30,
            "tree.icfg: warning: face id 1 has no image of 30 x 30 pixels, its size on the Recent "
            "tab at 200 %");
        row("Recent after a load", 1, 18,
            "tree.icfg: warning: face id 1 has no image of 18 x 18 pixels, its size on the Recent "
            "tab after a load");
        row("Recent after a load at 200 %", 1, 36,
            "tree.icfg: warning: face id 1 has no image of 36 x 36 pixels, its size on the Recent "
            "tab after a load at 200 %");
        row("Custom", 2, 18,
            "tree.icfg: warning: face id 2 has no image of 18 x 18 pixels, its size on a tab");
        row("Custom without any", 2, 0, "tree.icfg: warning: face id 2 has no image");
    }

    void aSizeThatThePickerDrawsAndTheFileLacksIsAWarning()
    {
        QFETCH(const int, faceID);
        QFETCH(const int, side);
        QFETCH(const QString, line);
        const Test::ToolResult result = CheckBeside(ArtworkWithout(faceID, side));
        QCOMPARE(result.Lines(), QStringList { line });
        QCOMPARE(result.status, 0);
    }

    void aFaceThatIsShownOnATabAndInRowsNeedsTheSizesOfBoth()
    {
        const QByteArray description = Test::Description(u"clean"_s).replace("1001", "3");
        m_folder.Write(u"tree.json"_s, description);
        m_folder.Write(u"tree.icfg"_s, Test::ArtworkFile(Test::CompleteImages()));
        const QStringList lines = m_folder.Run({ u"check"_s, u"tree.json"_s }).Lines();
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines.at(0).endsWith(
                u"face id 3 has no image of 33 x 33 pixels, its size in a row"_s));
        QVERIFY(lines.at(1).contains(u"66 x 66"_s));
    }

private:
    Test::ToolResult CheckBeside(const QByteArray &artwork) const
    {
        m_folder.Write(u"tree.json"_s, Test::Description(u"clean"_s));
        m_folder.Write(u"tree.icfg"_s, artwork);
        return m_folder.Run({ u"check"_s, u"tree.json"_s });
    }

    Test::ToolFolder m_folder;
};

ORLIMO_TEST_MAIN(tst_OLFormatCheckArtwork)

#include "tst_olformatcheck_artwork.moc"
