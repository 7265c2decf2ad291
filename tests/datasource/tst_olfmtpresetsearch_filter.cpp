#include "TestCase.h"

#include "FormatObjects.h"

#include "OLFmtPresetDataSource.h"

using namespace std::literals;

using Orlimo::OLFmtPresetDataSource;
using Test::Item;
using Test::MakeItem;
using Test::MakeNode;
using Test::MakePreset;
using Test::Names;

class tst_OLFmtPresetSearch_Filter : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFilterKeepsWhatMatches_data();
    void theFilterKeepsWhatMatches();
    void theFilterKeepsTheVeryItems();
    void anEmptyKeywordGivesTheListAsItIs();
    void anEmptyItemMatchesNothing();
    void filteringNothingGivesNothing();

private:
    const OLFmtPresetDataSource m_dataSource;
};

void tst_OLFmtPresetSearch_Filter::theFilterKeepsWhatMatches_data()
{
    QTest::addColumn<std::string>("keyword");
    QTest::addColumn<std::string>("names");
    QTest::newRow("everything") << ""s
                                << "MP4 HD, AVI, Mp3 Low, mkv"s;
    QTest::newRow("display name") << "mp4"s
                                  << "MP4 HD"s;
    QTest::newRow("description") << "format"s
                                 << "MP4 HD, Mp3 Low"s;
    QTest::newRow("either") << "M"s
                            << "MP4 HD, Mp3 Low, mkv"s;
    QTest::newRow("across node and preset") << "P4 H"s
                                            << "MP4 HD"s;
    QTest::newRow("not across name and description") << "hdmp4"s
                                                     << ""s;
    QTest::newRow("upper case") << "LOW"s
                                << "Mp3 Low"s;
    QTest::newRow("blank") << " "s
                           << "MP4 HD, AVI, Mp3 Low"s;
    QTest::newRow("a preset's description does not count") << "hidden"s
                                                           << ""s;
    QTest::newRow("no match") << "webm"s
                              << ""s;
}

void tst_OLFmtPresetSearch_Filter::theFilterKeepsWhatMatches()
{
    QFETCH(const std::string, keyword);
    const std::vector<Item> items {
        MakeItem(MakePreset("HD", "hidden"), MakeNode("MP4", "MP4 Format")),
        MakeItem(MakePreset("AVI"), MakeNode("AVI", "old video")),
        MakeItem(MakePreset("Low"), MakeNode("Mp3", "audio FORMAT")),
        MakeItem(MakePreset("mkv"), MakeNode("mkv")),
    };
    QTEST(Names(m_dataSource.FilterRecentItems(items, keyword)), "names");
}

void tst_OLFmtPresetSearch_Filter::theFilterKeepsTheVeryItems()
{
    const Item twice = MakeItem("MP4");
    const std::vector<Item> items { twice, MakeItem("AVI"), MakeItem("MP4 HD"), twice };
    const std::vector<Item> expected { twice, items[2], twice };
    QVERIFY(m_dataSource.FilterRecentItems(items, "mp4") == expected);
}

void tst_OLFmtPresetSearch_Filter::anEmptyKeywordGivesTheListAsItIs()
{
    const std::vector<Item> items { MakeItem("MP4"), nullptr, MakeItem("AVI") };
    QVERIFY(m_dataSource.FilterRecentItems(items, "") == items);
}

void tst_OLFmtPresetSearch_Filter::anEmptyItemMatchesNothing()
{
    const std::vector<Item> items { MakeItem(nullptr, MakeNode("MP4", "MP4 Format")) };
    QVERIFY(m_dataSource.FilterRecentItems(items, "mp4").empty());
    QVERIFY(m_dataSource.FilterRecentItems(items, "") == items);
}

void tst_OLFmtPresetSearch_Filter::filteringNothingGivesNothing()
{
    QVERIFY(m_dataSource.FilterRecentItems({}, "").empty());
    QVERIFY(m_dataSource.FilterRecentItems({}, "mp4").empty());
}

ORLIMO_TEST_MAIN(tst_OLFmtPresetSearch_Filter)

#include "tst_olfmtpresetsearch_filter.moc"
