#include "TestCase.h"

#include "RPFmtItemDataWdg.h"
#include "RPFmtRecentListWdg.h"
#include "RowClicks.h"
#include "SampleDescription.h"
#include "TreeBuilder.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

using namespace Orlimo;
using Test::RowTitles;

namespace {

using namespace Qt::StringLiterals;

} // namespace

class tst_RPFmtRecentListWdg_Search : public Test::TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<RPFmtRecentListWdg> page;

    // Shows "AVI", "MP4 HD" and "MP4", the newest first; "AVI" is the one described as "old".
    void prepare() override
    {
        Test::ForgetPresets();
        const auto dataSource = IOLFmtPresetDataSource::Shared();
        dataSource->AddRecentPreset(Test::MakePreset("MP4"), Test::MakeNode("", "usual"));
        dataSource->AddRecentPreset(Test::MakePreset("MP4 HD"), Test::MakeNode("", "usual"));
        dataSource->AddRecentPreset(Test::MakePreset("AVI"), Test::MakeNode("", "old"));
        page = std::make_unique<RPFmtRecentListWdg>(nullptr);
        page->RefreshRecentList();
        page->setGeometry(50, 50, 700, 400);
        page->show();
        QVERIFY(QTest::qWaitForWindowExposed(page.get()));
    }

    QListWidget &list() const { return *page->List(); }

    std::weak_ptr<IOLFmtPresetRecentItem> itemOf(int row) const
    {
        return qobject_cast<RPFmtItemDataWdg *>(list().itemWidget(list().item(row)))->recentItem;
    }

    // Deletes the first match of a search; afterwards only the kept result may hold the choice.
    std::weak_ptr<IOLFmtPresetRecentItem> deleteFirstMatch(const QString &text) const
    {
        page->SearchRecentList(text);
        const auto item = itemOf(0);
        Test::ClickTrashOfRecent(list(), 0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return item;
    }

private Q_SLOTS:
    void cleanup() { page.reset(); }

    void aSearchShowsTheMatchesNewestFirst_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("titles");
        QTest::newRow("name") << u"hd"_s << QStringList { u"MP4 HD"_s };
        QTest::newRow("names") << u"MP4"_s << QStringList { u"MP4 HD"_s, u"MP4"_s };
        QTest::newRow("description") << u"OLD"_s << QStringList { u"AVI"_s };
        QTest::newRow("nothing") << u"quicktime"_s << QStringList();
        QTest::newRow("empty text") << QString() << QStringList { u"AVI"_s, u"MP4 HD"_s, u"MP4"_s };
    }

    void aSearchShowsTheMatchesNewestFirst()
    {
        QFETCH(const QString, text);
        QFETCH(const QStringList, titles);
        list().setCurrentRow(2);
        page->SearchRecentList(text);
        QCOMPARE(RowTitles(list()), titles);
        QCOMPARE(list().currentRow(), titles.isEmpty() ? -1 : 0);
    }

    void aSearchFoldsLettersBeyondAscii_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("name");
        QTest::newRow("upper case finds lower case") << u"Ä"_s << u"für später"_s;
        QTest::newRow("lower case finds upper case") << u"ä"_s << u"ÄLTERE"_s;
        QTest::newRow("Cyrillic") << u"ВИД"_s << u"видео"_s;
        QTest::newRow("beyond the first plane") << u"𐐀"_s << u"𐐨"_s;
    }

    void aSearchFoldsLettersBeyondAscii()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, name);
        IOLFmtPresetDataSource::Shared()->AddRecentPreset(Test::MakePreset(name.toStdString()),
                                                          Test::MakeNode("", "usual"));
        page->SearchRecentList(text);
        QCOMPARE(RowTitles(list()), QStringList { name });
    }

    void everySearchLooksAtAllChoices()
    {
        page->SearchRecentList(u"AVI"_s);
        page->SearchRecentList(u"MP4"_s);
        QCOMPARE(RowTitles(list()), QStringList({ u"MP4 HD"_s, u"MP4"_s }));
    }

    void aResetShowsAllChoices()
    {
        page->SearchRecentList(u"quicktime"_s);
        page->ResetRecentSearch();
        QCOMPARE(RowTitles(list()), QStringList({ u"AVI"_s, u"MP4 HD"_s, u"MP4"_s }));
        QCOMPARE(list().currentRow(), 0);
    }

    void aResetWithoutASearchShowsWhatTheHostHasAdded()
    {
        list().setCurrentRow(2);
        IOLFmtPresetDataSource::Shared()->AddRecentPreset(Test::MakePreset("MKV"),
                                                          Test::MakeNode("", "usual"));
        page->ResetRecentSearch();
        QCOMPARE(RowTitles(list()), QStringList({ u"MKV"_s, u"AVI"_s, u"MP4 HD"_s, u"MP4"_s }));
        QCOMPARE(list().currentRow(), 0);
    }

    void aRefreshShowsAllChoices()
    {
        page->SearchRecentList(u"AVI"_s);
        page->RefreshRecentList();
        QCOMPARE(RowTitles(list()), QStringList({ u"AVI"_s, u"MP4 HD"_s, u"MP4"_s }));
    }

    void aClickOnAMatchChoosesIt()
    {
        std::shared_ptr<IOLFmtPresetRecentItem> chosen;
        page->recentSelected = [&](auto item) { chosen = item; };
        page->SearchRecentList(u"MP4"_s);
        Test::ClickRow(list(), 1);
        QCOMPARE(chosen, IOLFmtPresetDataSource::Shared()->GetRecentItems().at(2));
    }

    void aMatchIsDeletedFromTheDataToo()
    {
        page->SearchRecentList(u"MP4"_s);
        Test::ClickTrashOfRecent(list(), 0);
        QCOMPARE(RowTitles(list()), QStringList({ u"MP4"_s }));
        page->ResetRecentSearch();
        QCOMPARE(RowTitles(list()), QStringList({ u"AVI"_s, u"MP4"_s }));
    }

    void aDeletedMatchIsHeldUntilTheNextSearch()
    {
        const auto item = deleteFirstMatch(u"MP4"_s);
        QVERIFY(!item.expired());
        page->SearchRecentList(u"MP4"_s);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(item.expired());
    }

    void aDeletedMatchIsHeldUntilTheResetButNotTheRefresh()
    {
        const auto item = deleteFirstMatch(u"MP4"_s);
        page->RefreshRecentList();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!item.expired());
        page->ResetRecentSearch();
        QVERIFY(item.expired());
    }

    void aDeletedMatchIsReleasedWithThePage()
    {
        const auto item = deleteFirstMatch(u"MP4"_s);
        QVERIFY(!item.expired());
        page.reset();
        QVERIFY(item.expired());
    }

    void withoutASearchADeletedChoiceIsReleased()
    {
        const auto item = itemOf(0);
        Test::ClickTrashOfRecent(list(), 0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(item.expired());
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtRecentListWdg_Search)

#include "tst_rpfmtrecentlistwdg_search.moc"
