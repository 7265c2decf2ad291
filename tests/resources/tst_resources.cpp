#include "TestCase.h"

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QResource>

namespace {

using namespace Qt::StringLiterals;

constexpr int bitDepthOffset = 24; // in the header chunk, which is the first of every PNG
constexpr int colorTypeOffset = 25;
constexpr char rgba = 6;

} // namespace

class tst_Resources : public Test::TestCase
{
    Q_OBJECT

private:
    void addIcons()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QSize>("size");
        QTest::newRow("search") << u":/OLMediaFormatPopup/search.png"_s << QSize(36, 36);
        QTest::newRow("setting") << u":/OLMediaFormatPopup/setting.png"_s << QSize(200, 200);
        QTest::newRow("trash") << u":/OLMediaFormatPopup/trash.png"_s << QSize(236, 256);
    }

private Q_SLOTS:
    void theCollectionIsThereWithoutAnyCall()
    {
        const QStringList names = QDir(u":/OLMediaFormatPopup"_s).entryList(QDir::Files);
        for (const auto &name : { u"search.png"_s, u"setting.png"_s, u"trash.png"_s })
            QVERIFY2(names.contains(name), qPrintable(name));
    }

    void iconsArePngImagesOfTheirSize_data() { addIcons(); }

    void iconsArePngImagesOfTheirSize()
    {
        QFETCH(const QString, path);
        QImageReader reader(path);
        QCOMPARE(reader.format(), QByteArray("png"));
        QTEST(reader.size(), "size");
        const QImage image = reader.read();
        QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
        QTEST(image.size(), "size");
    }

    void iconsHaveEightBitsOfEachColourAndOfOpacity_data() { addIcons(); }

    void iconsHaveEightBitsOfEachColourAndOfOpacity()
    {
        QFETCH(const QString, path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY(bytes.startsWith("\x89PNG\r\n\x1a\n"));
        QCOMPARE(bytes.mid(12, 4), QByteArray("IHDR"));
        QCOMPARE(bytes.at(bitDepthOffset), char(8));
        QCOMPARE(bytes.at(colorTypeOffset), rgba);
    }

    void iconsShowSomethingOnTransparentGround_data() { addIcons(); }

    void iconsShowSomethingOnTransparentGround()
    {
        QFETCH(const QString, path);
        const QImage image(path);
        bool transparent = false;
        bool opaque = false;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                transparent |= image.pixelColor(x, y).alpha() == 0;
                opaque |= image.pixelColor(x, y).alpha() == 255;
            }
        }
        QVERIFY(transparent);
        QVERIFY(opaque);
    }

    void iconsAreStoredPlain_data() { addIcons(); }

    void iconsAreStoredPlain()
    {
        QFETCH(const QString, path);
        const QResource icon(path);
        QVERIFY(icon.isValid());
        QCOMPARE(icon.compressionAlgorithm(), QResource::NoCompression);
        QCOMPARE(icon.size(), icon.uncompressedSize());
    }

    void iconsDoNotDependOnTheLocale_data() { addIcons(); }

    void iconsDoNotDependOnTheLocale()
    {
        QFETCH(const QString, path);
        const QResource usual(path);
        const QResource japanese(path, QLocale(QLocale::Japanese, QLocale::Japan));
        QVERIFY(usual.isValid());
        QCOMPARE(japanese.uncompressedData(), usual.uncompressedData());
    }
};

ORLIMO_TEST_MAIN(tst_Resources)

#include "tst_resources.moc"
