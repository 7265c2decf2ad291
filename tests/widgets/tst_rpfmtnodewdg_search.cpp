#include "NodePageTest.h"

#include "IOLFormatPreset.h"

#include <QPointer>

using namespace Orlimo;
using Test::MakeCategory;
using Test::MakeFormat;
using Test::RowAt;
using Test::RowTitles;
using Test::Show;

namespace {

using namespace Qt::StringLiterals;

} // namespace

// What the two lists show of a search.
class tst_RPFmtNodeWdg_Search : public Test::NodePageTest
{
    Q_OBJECT

private:
    void compareWithTheWholeNode(const RPFmtNodeWdg &page)
    {
        compareLists(page, { u"MP4"_s, u"AVI"_s, u"MKV"_s },
                     { u"HD 1080P"_s, u"SD 480P"_s, u"mobile"_s });
    }

private Q_SLOTS:
    void aSearchShowsWhatMatches_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("nodes");
        QTest::addColumn<QStringList>("presets");
        QTest::newRow("preset of the first child")
                << u"mobile"_s << QStringList { u"MP4"_s } << QStringList { u"mobile"_s };
        QTest::newRow("preset of another child")
                << u"Xvid"_s << QStringList { u"AVI"_s } << QStringList { u"Xvid"_s };
        QTest::newRow("presets of two children")
                << u"HD"_s << QStringList { u"MP4"_s, u"MKV"_s } << QStringList { u"HD 1080P"_s };
        QTest::newRow("child") << u"avi"_s << QStringList { u"AVI"_s }
                               << QStringList { u"DivX"_s, u"Xvid"_s };
        QTest::newRow("nothing") << u"quicktime"_s << QStringList() << QStringList();
    }

    void aSearchShowsWhatMatches()
    {
        QFETCH(const QString, text);
        QFETCH(const QStringList, nodes);
        QFETCH(const QStringList, presets);
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        page.SearchFormat(text);
        compareLists(page, nodes, presets);
        const int current = nodes.isEmpty() ? -1 : 0;
        compareCurrentRows(page, current, current);
    }

    void aSearchFoldsLettersBeyondAscii_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("upper case finds lower case") << u"Ä"_s;
        QTest::newRow("lower case finds upper case") << u"ö"_s;
        QTest::newRow("Cyrillic") << u"ВИД"_s;
        QTest::newRow("beyond the first plane") << u"𐐀"_s;
    }

    void aSearchFoldsLettersBeyondAscii()
    {
        QFETCH(const QString, text);
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(MakeCategory("Video", { MakeFormat("MP4", { "ä Ö видео 𐐨", "HD" }) }),
                           false);
        page.SearchFormat(text);
        compareLists(page, { u"MP4"_s }, { u"ä Ö видео 𐐨"_s });
    }

    void theSelectedChildOfASearchShowsWhatMatchesInIt()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        page.SearchFormat(u"HD"_s);
        QVERIFY(Show(page));
        Test::ClickRow(*page.NodeList(), 1);
        QCOMPARE(RowTitles(*page.FormatList()), QStringList({ u"HD 720P"_s }));
    }

    void everySearchLooksAtTheWholeNode()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        page.SearchFormat(u"Xvid"_s);
        page.SearchFormat(u"mobile"_s);
        compareLists(page, { u"MP4"_s }, { u"mobile"_s });
    }

    void anEmptyTextShowsTheWholeNodeAgain()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        page.SearchFormat(u"quicktime"_s);
        page.SearchFormat(QString());
        compareWithTheWholeNode(page);
        compareCurrentRows(page, 0, 0);
    }

    void aResetShowsTheWholeNodeAgain()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        page.SearchFormat(u"Xvid"_s);
        page.ResetSearch();
        compareWithTheWholeNode(page);
        compareCurrentRows(page, 0, 0);
    }

    void aResetWithoutASearchChangesNothing()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        page.SearchFormat(u"Xvid"_s);
        page.SearchFormat(QString());
        QVERIFY(Show(page));
        Test::ClickRow(*page.NodeList(), 1);
        Test::ClickRow(*page.FormatList(), 1);
        const QPointer<QWidget> node = RowAt(page.NodeList(), 1);
        const QPointer<QWidget> preset = RowAt(page.FormatList(), 1);
        page.ResetSearch();
        compareCurrentRows(page, 1, 1);
        QVERIFY(node && preset);
        QCOMPARE(RowAt(page.NodeList(), 1), node.get());
        QCOMPARE(RowAt(page.FormatList(), 1), preset.get());
    }

    void anotherNodeDropsTheSearch()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        page.SearchFormat(u"Xvid"_s);
        page.SetFormatNode(MakeCategory("Audio", { MakeFormat("MP3", { "Best" }) }), false);
        compareLists(page, { u"MP3"_s }, { u"Best"_s });
        const QPointer<QWidget> row = RowAt(page.NodeList(), 0);
        page.ResetSearch();
        QVERIFY(row);
        QCOMPARE(RowAt(page.NodeList(), 0), row.get());
    }

    void aSearchWithoutANodeShowsNothing()
    {
        RPFmtNodeWdg page(nullptr);
        page.SearchFormat(u"HD"_s);
        compareLists(page, {}, {});
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtNodeWdg_Search)

#include "tst_rpfmtnodewdg_search.moc"
