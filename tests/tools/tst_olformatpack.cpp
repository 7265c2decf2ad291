#include "FormatTool.h"
#include "TestCase.h"

#include "IOLArtworkImageGroup.h"
#include "IOLArtworkImageMgr.h"

#include <QIcon>

using namespace Qt::StringLiterals;

namespace {

using Files = QList<std::pair<QString, QByteArray>>;

QByteArray Square(int side)
{
    return Test::Png(QSize(side, side), Qt::red);
}

void Row(const char *name, const Files &files, const char *reason)
{
    QTest::newRow(name) << files << QString::fromUtf8(reason);
}

} // namespace

class tst_OLFormatPack : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thePickersLibraryReadsWhatItPacked_data()
    {
        QTest::addColumn<QString>("images");
        QTest::addColumn<QString>("file");
        QTest::newRow("usual") << u"png"_s << u"a.icfg"_s;
        QTest::newRow("beyond ASCII") << u"größe 動画"_s << u"ä é.icfg"_s;
    }

    void thePickersLibraryReadsWhatItPacked()
    {
        QFETCH(const QString, images);
        QFETCH(const QString, file);
        const Test::ToolFolder folder;
        folder.Write(images + u"/7.png"_s, Square(18));
        folder.Write(images + u"/2x/7-video.png"_s, Square(36));
        folder.Write(images + u"/-8-other.png"_s, Test::Png(QSize(5, 9), Qt::green));
        folder.Write(images + u"/notes.txt"_s, "no image");
        const Test::ToolResult result = folder.Run({ u"pack"_s, images, file });
        QCOMPARE(result.errors, QString());
        QCOMPARE(result.status, 0);

        const auto artwork =
                Orlimo::IOLArtworkImageMgr::MallocArtworkImageMgr(folder.Path(file).toStdString(),
                                                                  nullptr);
        QVERIFY(artwork);
        const auto sizesOf = [&](int face) {
            const auto group = artwork->ArtworkGroup(face);
            return group ? group->Icon().availableSizes() : QList<QSize>();
        };
        QCOMPARE(sizesOf(7), (QList<QSize> { { 18, 18 }, { 36, 36 } }));
        QCOMPARE(sizesOf(-8), (QList<QSize> { { 5, 9 } }));
        QCOMPARE(sizesOf(0), QList<QSize>());
    }

    void itRefusesAFaultyFolder_data()
    {
        QTest::addColumn<Files>("files");
        QTest::addColumn<QString>("reason");
        Row("nothing", {}, "png: there are no PNG files");
        Row("no PNG file", { { u"1001.txt"_s, "text" } }, "png: there are no PNG files");
        Row("name without a face id", { { u"mp4.png"_s, Square(18) } },
            "png/mp4.png: the name does not begin with a face id");
        Row("name beyond ASCII", { { u"größe 動画.png"_s, Square(18) } },
            "png/größe 動画.png: the name does not begin with a face id");
        Row("face id without an end", { { u"1001mp4.png"_s, Square(18) } },
            "png/1001mp4.png: the name does not begin with a face id");
        Row("face id beyond 32 bits", { { u"2147483648.png"_s, Square(18) } },
            "png/2147483648.png: the name does not begin with a face id");
        Row("empty file", { { u"1.png"_s, {} } }, "png/1.png: Unable to read image data");
        Row("noise", { { u"1.png"_s, "noise" } }, "png/1.png: Unable to read image data");
        Row("cut short in the header", { { u"sub/1.png"_s, Square(18).first(20) } },
            "png/sub/1.png: Unable to read image data");
        Row("face id and size twice",
            { { u"1-a.png"_s, Square(18) }, { u"1-b.png"_s, Square(18) } },
            "png: two images have the same face id and size");
        Row("side beyond 1,024", { { u"1.png"_s, Test::Png(QSize(1025, 1), Qt::red) } },
            "png: an image is wider or higher than 1,024 pixels");
        Files many;
        for (int side = 1; side <= 33; ++side)
            many.append({ u"%1/1.png"_s.arg(side), Square(side) });
        Row("33 images of a face", many, "png: a face id has more than 32 images");
        const QByteArray largest = Square(1024);
        Files large;
        for (int faceID = 1; faceID <= 33; ++faceID)
            large.append({ u"%1.png"_s.arg(faceID), largest });
        Row("33 of the largest images", large,
            "png: the images have more than 33,554,432 pixels together");
    }

    void itRefusesAFaultyFolder()
    {
        QFETCH(const Files, files);
        QFETCH(const QString, reason);
        const Test::ToolFolder folder;
        folder.Write(u"png/.keep"_s, {});
        folder.Write(u"a.icfg"_s, "as it was");
        for (const auto &[name, bytes] : files)
            folder.Write(u"png/"_s + name, bytes);
        const Test::ToolResult result = folder.Run({ u"pack"_s, u"png"_s, u"a.icfg"_s });
        QVERIFY2(LastLine(result).startsWith(u"olformat: "_s + reason), qPrintable(result.errors));
        QCOMPARE(result.status, 2);
        QCOMPARE(Test::Contents(folder.Path(u"a.icfg"_s)), "as it was"_ba);
    }

    void itRefusesAFolderThatIsNotThere()
    {
        const Test::ToolResult result = Test::ToolFolder().Run(
                { u"pack"_s, u"none"_s, u"a.icfg"_s });
        QCOMPARE(result.errors, u"olformat: none: there are no PNG files\n"_s);
        QCOMPARE(result.status, 2);
    }

    void itSaysWhyItCannotWrite()
    {
        const Test::ToolFolder folder;
        folder.Write(u"png/1.png"_s, Square(18));
        const Test::ToolResult result = folder.Run({ u"pack"_s, u"png"_s, u"none/a.icfg"_s });
        QVERIFY2(result.errors.startsWith(u"olformat: none/a.icfg: "_s), qPrintable(result.errors));
        QCOMPARE(result.status, 2);
        QVERIFY(!QFile::exists(folder.Path(u"none"_s)));
    }

private:
    // Qt's PNG reader may warn first.
    static QString LastLine(const Test::ToolResult &result)
    {
        return result.errors.trimmed().section(u'\n', -1);
    }
};

ORLIMO_TEST_MAIN(tst_OLFormatPack)

#include "tst_olformatpack.moc"
