#include "TestCase.h"

#include "FormatObjects.h"

#include "OLFmtPresetDataSource.h"

#include <algorithm>

using namespace std::literals;

using Orlimo::IOLFmtPresetDataSource;
using Orlimo::IOLFormatNode;
using Orlimo::OLFmtPresetDataSource;
using Test::Item;
using Test::MakeItem;
using Test::MakeNode;
using Test::MakePreset;
using Test::Names;
using Test::Node;

class tst_OLFmtPresetDataSource_RecentRemoval : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void removingTakesTheVeryItem();
    void removingByNameTakesTheFirstOfThatName();
    void namesAreComparedByteByByte();
    void removingWhatIsNotThereChangesNothing();
    void removingTakesTheChildAtThePositionInTheList_data();
    void removingTakesTheChildAtThePositionInTheList();
    void aChoiceWhoseChildIsGoneCanBeMadeAgain();
    void aRemovedItemKeepsItsNodeAlive();

private:
    std::shared_ptr<IOLFmtPresetDataSource> m_dataSource;

    void prepare() override { m_dataSource = std::make_shared<OLFmtPresetDataSource>(); }

    void choose(std::initializer_list<const char *> names) const
    {
        for (const char *name : names)
            QVERIFY(m_dataSource->AddRecentItem(MakeItem(name)));
    }

    std::vector<Item> items() const { return m_dataSource->GetRecentItems(); }

    // The "Recent" node, which every entry's node has as its parent.
    Node recentNode() const
    {
        return m_dataSource->GetLatestRecentItem()->GetFormatNode()->Parent();
    }
};

void tst_OLFmtPresetDataSource_RecentRemoval::removingTakesTheVeryItem()
{
    choose({ "A", "B", "C" });
    const Item second = items()[1];
    QVERIFY(!m_dataSource->RemoveRecentItem(second->Clone()));
    QVERIFY(!m_dataSource->RemoveRecentItem(MakeItem("B")));
    QCOMPARE(Names(items()), "C, B, A"s);

    QVERIFY(m_dataSource->RemoveRecentItem(second));
    QCOMPARE(Names(items()), "C, A"s);
    QVERIFY(!m_dataSource->RemoveRecentItem(second));
}

void tst_OLFmtPresetDataSource_RecentRemoval::removingByNameTakesTheFirstOfThatName()
{
    m_dataSource->AddRecentItem(MakeItem(MakePreset("HD"), MakeNode("MP4", "older")));
    choose({ "A" });
    m_dataSource->AddRecentItem(MakeItem(MakePreset("HD"), MakeNode("MP4", "newer")));
    QCOMPARE(Names(items()), "MP4 HD, A, MP4 HD"s);

    QVERIFY(m_dataSource->RemoveRecentItemByName("MP4 HD"));
    QCOMPARE(Names(items()), "A, MP4 HD"s);
    QCOMPARE(items()[1]->GetDescription(), "older"s);
    QVERIFY(m_dataSource->RemoveRecentItemByName("MP4 HD"));
    QVERIFY(!m_dataSource->RemoveRecentItemByName("MP4 HD"));
    QCOMPARE(Names(items()), "A"s);
}

void tst_OLFmtPresetDataSource_RecentRemoval::namesAreComparedByteByByte()
{
    choose({ "Vidéo" });
    for (const char *name : { "vidéo", "Vidé", "Vidéo ", "Video", "" })
        QVERIFY(!m_dataSource->RemoveRecentItemByName(name));
    QVERIFY(!m_dataSource->RemoveRecentItemByName("Vidéo\0"s));
    QVERIFY(m_dataSource->RemoveRecentItemByName("Vidéo"));
    QVERIFY(items().empty());
}

void tst_OLFmtPresetDataSource_RecentRemoval::removingWhatIsNotThereChangesNothing()
{
    choose({ "A", "B" });
    QVERIFY(!m_dataSource->RemoveRecentItem(nullptr));
    QVERIFY(!m_dataSource->RemoveRecentItem(m_dataSource->GetDefaultRecentItem()));
    QVERIFY(!m_dataSource->RemoveRecentItemByName("MP4"));
    QCOMPARE(Names(items()), "B, A"s);
    QCOMPARE(Test::ChildNames(*recentNode()), "A, B"s);
}

void tst_OLFmtPresetDataSource_RecentRemoval::removingTakesTheChildAtThePositionInTheList_data()
{
    QTest::addColumn<std::string>("removed");
    QTest::addColumn<std::string>("list");
    QTest::addColumn<std::string>("children");
    QTest::newRow("newest") << "C"s
                            << "B, A"s
                            << "B, C"s;
    QTest::newRow("middle") << "B"s
                            << "C, A"s
                            << "A, C"s;
    QTest::newRow("oldest") << "A"s
                            << "C, B"s
                            << "A, B"s;
}

void tst_OLFmtPresetDataSource_RecentRemoval::removingTakesTheChildAtThePositionInTheList()
{
    QFETCH(const std::string, removed);
    for (const bool byName : { true, false }) {
        prepare();
        choose({ "A", "B", "C" });
        const Node recent = recentNode();
        const auto entries = items();
        const auto entry = std::ranges::find(entries, removed,
                                             &Orlimo::IOLFmtPresetRecentItem::GetDisplayName);
        QVERIFY(byName ? m_dataSource->RemoveRecentItemByName(removed)
                       : m_dataSource->RemoveRecentItem(*entry));
        QTEST(Names(items()), "list");
        QTEST(Test::ChildNames(*recent), "children");
    }
}

void tst_OLFmtPresetDataSource_RecentRemoval::aChoiceWhoseChildIsGoneCanBeMadeAgain()
{
    choose({ "A", "B", "C" });
    QVERIFY(m_dataSource->RemoveRecentItemByName("C"));
    const Node recent = recentNode();
    QCOMPARE(Test::ChildNames(*recent), "B, C"s);

    choose({ "A" });
    QCOMPARE(Names(items()), "A, B"s);
    QCOMPARE(Test::ChildNames(*recent), "B, C, A"s);
}

void tst_OLFmtPresetDataSource_RecentRemoval::aRemovedItemKeepsItsNodeAlive()
{
    choose({ "A" });
    Item item = items()[0];
    const std::weak_ptr<const IOLFormatNode> node = item->GetFormatNode();
    QVERIFY(m_dataSource->RemoveRecentItem(item));
    m_dataSource.reset();
    QVERIFY(!node.expired());
    QCOMPARE(item->GetDisplayName(), "A"s);
    QCOMPARE(item->GetDescription(), "A Format"s);
    QVERIFY(item->GetFormatPreset());
    item.reset();
    QVERIFY(node.expired());
}

ORLIMO_TEST_MAIN(tst_OLFmtPresetDataSource_RecentRemoval)

#include "tst_olfmtpresetdatasource_recentremoval.moc"
