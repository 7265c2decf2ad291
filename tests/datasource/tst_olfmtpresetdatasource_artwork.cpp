#include "TestCase.h"

#include "FormatFiles.h"
#include "FormatObjects.h"
#include "PathForms.h"

#include "IOLArtworkImageGroup.h"
#include "OLFmtPresetDataSource.h"

using namespace Qt::StringLiterals;
using namespace std::literals;

using Orlimo::IOLFmtPresetDataSource;
using Orlimo::OLFmtPresetDataSource;
using Test::ArtworkFile;

class tst_OLFmtPresetDataSource_Artwork : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theArtworkFileLiesBesideTheDescription_data();
    void theArtworkFileLiesBesideTheDescription();
    void theArtworkIsFoundByEveryFormOfThePath_data();
    void theArtworkIsFoundByEveryFormOfThePath();
    void theArtworkIsThereWhenTheLoadHasBegun();
    void everyFaceIdHasItsOwnImages();
    void anUnknownFaceIdHasNoImages();
    void aLoadReplacesTheArtwork();
    void aLoadWithoutArtworkDropsTheEarlierOne();
    void theImagesOutliveTheArtwork();
    void theArtworkIsOpenedWhereTheDescriptionCannotBe();
    void unusableArtworkLeavesTheTreeAlone_data();
    void unusableArtworkLeavesTheTreeAlone();

private:
    std::unique_ptr<Test::FormatFolder> m_folder;
    std::shared_ptr<IOLFmtPresetDataSource> m_dataSource;

    void prepare() override
    {
        m_folder = std::make_unique<Test::FormatFolder>();
        m_dataSource = std::make_shared<OLFmtPresetDataSource>();
    }

    std::string writeDescription(const QString &name) const
    {
        return m_folder->Write(name, Test::Description("Formats"));
    }

    void load(const std::string &path) const
    {
        m_dataSource->AsyncLoadExternalDataSource(path, [] {});
        m_dataSource->WaitForLoadingComplete();
    }

    // The colour of the image of faceID; not valid where there is none.
    QColor color(int faceID) const
    {
        const auto group = m_dataSource->GetArtworkGroup(faceID);
        return group ? group->Icon().pixmap(16, 16).toImage().pixelColor(0, 0) : QColor();
    }
};

void tst_OLFmtPresetDataSource_Artwork::theArtworkFileLiesBesideTheDescription_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("artwork");
    QTest::newRow("usual") << u"formats.json"_s << u"formats.icfg"_s;
    QTest::newRow("dot in the folder") << u"v1.2/formats.json"_s << u"v1.2/formats.icfg"_s;
    QTest::newRow("no extension") << u"formats"_s << u"formats.icfg"_s;
    QTest::newRow("no extension, dot in the folder") << u"v1.2/formats"_s << u"v1.2/formats.icfg"_s;
    QTest::newRow("two dots") << u"formats.2.json"_s << u"formats.2.icfg"_s;
    QTest::newRow("hidden") << u".formats"_s << u".formats.icfg"_s;
    QTest::newRow("Unicode") << u"Größe/動画.json"_s << u"Größe/動画.icfg"_s;
#ifdef Q_OS_WIN
    QTest::newRow("dot in the folder, backslash") << u"v1.2\\formats"_s << u"v1.2\\formats.icfg"_s;
#endif
}

void tst_OLFmtPresetDataSource_Artwork::theArtworkFileLiesBesideTheDescription()
{
    QFETCH(const QString, description);
    QFETCH(const QString, artwork);
    m_folder->Write(artwork, ArtworkFile({ { 1001, Qt::red } }));
    load(writeDescription(description));
    QCOMPARE(color(1001), QColor(Qt::red));
    QVERIFY(m_dataSource->GetDefaultFormatNode());
}

void tst_OLFmtPresetDataSource_Artwork::theArtworkIsFoundByEveryFormOfThePath_data()
{
    Test::AddPathForms();
}

void tst_OLFmtPresetDataSource_Artwork::theArtworkIsFoundByEveryFormOfThePath()
{
    QFETCH(const Test::PathForm, form);
    const QString description = Test::pathBeyondAscii;
    writeDescription(description);
    m_folder->Write(description.chopped(4) + u"icfg"_s, ArtworkFile({ { 1001, Qt::red } }));
    const Test::WorkingFolder workingFolder(m_folder->Path());
    load(form(m_folder->Path(), description).toStdString());
    QCOMPARE(color(1001), QColor(Qt::red));
}

void tst_OLFmtPresetDataSource_Artwork::theArtworkIsThereWhenTheLoadHasBegun()
{
    m_folder->Write(u"formats.icfg"_s, ArtworkFile({ { 1001, Qt::red } }));
    m_dataSource->AsyncLoadExternalDataSource(writeDescription(u"formats.json"_s), [] {});
    const QColor atOnce = color(1001);
    m_dataSource->WaitForLoadingComplete();
    QCOMPARE(atOnce, QColor(Qt::red));
}

void tst_OLFmtPresetDataSource_Artwork::everyFaceIdHasItsOwnImages()
{
    m_folder->Write(u"formats.icfg"_s,
                    ArtworkFile({ { 1001, Qt::red }, { 0, Qt::green }, { -3, Qt::blue } }));
    load(writeDescription(u"formats.json"_s));
    QCOMPARE(color(1001), QColor(Qt::red));
    QCOMPARE(color(0), QColor(Qt::green));
    QCOMPARE(color(-3), QColor(Qt::blue));
}

void tst_OLFmtPresetDataSource_Artwork::anUnknownFaceIdHasNoImages()
{
    m_folder->Write(u"formats.icfg"_s, ArtworkFile({ { 1001, Qt::red } }));
    load(writeDescription(u"formats.json"_s));
    QVERIFY(!m_dataSource->GetArtworkGroup(1002));
    QVERIFY(!m_dataSource->GetArtworkGroup(0));
    QVERIFY(!m_dataSource->GetArtworkGroup(-1));
}

void tst_OLFmtPresetDataSource_Artwork::aLoadReplacesTheArtwork()
{
    m_folder->Write(u"first.icfg"_s, ArtworkFile({ { 1001, Qt::red }, { 7, Qt::red } }));
    load(writeDescription(u"first.json"_s));
    const auto tree = m_dataSource->GetDefaultFormatNode();
    QVERIFY(tree);
    QCOMPARE(color(1001), QColor(Qt::red));

    m_folder->Write(u"second.icfg"_s, ArtworkFile({ { 1001, Qt::blue } }));
    load(writeDescription(u"second.json"_s));
    QCOMPARE(color(1001), QColor(Qt::blue));
    QVERIFY(!m_dataSource->GetArtworkGroup(7));
    QCOMPARE(m_dataSource->GetDefaultFormatNode().get(), tree.get());
}

void tst_OLFmtPresetDataSource_Artwork::aLoadWithoutArtworkDropsTheEarlierOne()
{
    m_folder->Write(u"first.icfg"_s, ArtworkFile({ { 1001, Qt::red } }));
    load(writeDescription(u"first.json"_s));
    QVERIFY(m_dataSource->GetArtworkGroup(1001));
    load(writeDescription(u"second.json"_s));
    QVERIFY(!m_dataSource->GetArtworkGroup(1001));
}

void tst_OLFmtPresetDataSource_Artwork::theImagesOutliveTheArtwork()
{
    m_folder->Write(u"first.icfg"_s, ArtworkFile({ { 1001, Qt::red } }));
    load(writeDescription(u"first.json"_s));
    const auto group = m_dataSource->GetArtworkGroup(1001);
    QVERIFY(group);
    m_dataSource.reset();
    m_folder.reset();
    QCOMPARE(group->Icon().pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::red));
}

void tst_OLFmtPresetDataSource_Artwork::theArtworkIsOpenedWhereTheDescriptionCannotBe()
{
    m_folder->Write(u"formats.icfg"_s, ArtworkFile({ { 1001, Qt::red } }));
    const std::string missing = m_folder->PathOf(u"formats.json"_s);
    QTest::ignoreMessage(QtWarningMsg, ("Failed load external format " + missing).c_str());
    load(missing);
    QCOMPARE(color(1001), QColor(Qt::red));
}

void tst_OLFmtPresetDataSource_Artwork::unusableArtworkLeavesTheTreeAlone_data()
{
    QTest::addColumn<QByteArray>("artwork");
    const QByteArray good = ArtworkFile({ { 1001, Qt::red } });
    const auto changed = [&](qsizetype offset, char byte) {
        QByteArray bytes = good;
        bytes[offset] = byte;
        return bytes;
    };
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("one byte") << QByteArray("I");
    QTest::newRow("not artwork") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg'/>");
    QTest::newRow("header cut short") << good.first(11);
    QTest::newRow("table cut short") << good.first(12);
    QTest::newRow("image cut short") << good.chopped(1);
    QTest::newRow("later version") << changed(4, 2);
    QTest::newRow("more records than bytes") << changed(11, '\x7F');
    QTest::newRow("other width than the image's") << changed(16, 15);
    QTest::newRow("no height") << changed(18, 0);
    QTest::newRow("offset outside the file") << changed(23, '\x7F');
    QTest::newRow("image is no PNG") << changed(28, 'x');
    QTest::newRow("same image twice") << ArtworkFile({ { 1001, Qt::red }, { 1001, Qt::blue } });
}

void tst_OLFmtPresetDataSource_Artwork::unusableArtworkLeavesTheTreeAlone()
{
    QFETCH(const QByteArray, artwork);
    if (!artwork.isEmpty())
        m_folder->Write(u"formats.icfg"_s, artwork);
    load(writeDescription(u"formats.json"_s));
    QVERIFY(!m_dataSource->GetArtworkGroup(1001));
    QVERIFY(m_dataSource->GetDefaultFormatNode());
}

ORLIMO_TEST_MAIN(tst_OLFmtPresetDataSource_Artwork)

#include "tst_olfmtpresetdatasource_artwork.moc"
