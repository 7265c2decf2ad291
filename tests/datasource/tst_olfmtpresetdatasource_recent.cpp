#include "TestCase.h"

#include "FormatObjects.h"

#include "OLFmtPresetDataSource.h"

using namespace std::literals;

using Orlimo::IOLFmtPresetDataSource;
using Orlimo::OLFmtPresetDataSource;
using Test::Item;
using Test::MakeItem;
using Test::MakeNode;
using Test::MakePreset;
using Test::Names;
using Test::Node;
using Test::Preset;

class tst_OLFmtPresetDataSource_Recent : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theNewestChoiceComesFirstInTheListAndLastInTheNode();
    void choosingAgainMovesTheChoiceToTheFront();
    void choosingTheSameTwiceLeavesOneEntry();
    void anEditedPresetTakesThePlaceOfTheOldOne();
    void choicesThatDifferStandSideBySide();
    void anEntryIsACopyOfItsNodeWithOnlyThatPreset();
    void anEntryDoesNotFollowItsOriginals();
    void choosingAnEntryOfTheListMovesIt();
    void choosingByPresetAndNodeDoesTheSame();
    void incompleteChoicesAreRefused_data();
    void incompleteChoicesAreRefused();
    void choicesWithoutEndAreAllKept();

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

void tst_OLFmtPresetDataSource_Recent::theNewestChoiceComesFirstInTheListAndLastInTheNode()
{
    choose({ "A", "B", "C" });
    QCOMPARE(Names(items()), "C, B, A"s);
    QVERIFY(recentNode());
    QCOMPARE(recentNode()->Name(), "Recent"s);
    QCOMPARE(Test::ChildNames(*recentNode()), "A, B, C"s);
    for (int i = 0; i < 3; ++i) {
        const auto child = recentNode()->ChildAt(2 - i);
        QCOMPARE(items()[std::size_t(i)]->GetFormatNode().get(), child.get());
    }
}

void tst_OLFmtPresetDataSource_Recent::choosingAgainMovesTheChoiceToTheFront()
{
    choose({ "A", "B", "A" });
    QCOMPARE(Names(items()), "A, B"s);
    QCOMPARE(Test::ChildNames(*recentNode()), "B, A"s);

    choose({ "C", "B" });
    QCOMPARE(Names(items()), "B, C, A"s);
    QCOMPARE(Test::ChildNames(*recentNode()), "A, C, B"s);
}

void tst_OLFmtPresetDataSource_Recent::choosingTheSameTwiceLeavesOneEntry()
{
    choose({ "A", "B" });
    const Node node = MakeNode("MP4", "MP4 Format", 1001);
    const Preset preset = MakePreset("HD", {}, 1001);
    QVERIFY(m_dataSource->AddRecentPreset(preset, node));
    QVERIFY(m_dataSource->AddRecentPreset(preset, node));
    QCOMPARE(Names(items()), "MP4 HD, B, A"s);
    QCOMPARE(Test::ChildNames(*recentNode()), "A, B, MP4"s);
    QCOMPARE(recentNode()->ChildAt(2)->PresetCount(), 1);
}

void tst_OLFmtPresetDataSource_Recent::anEditedPresetTakesThePlaceOfTheOldOne()
{
    const Node node = MakeNode("MP4");
    const Preset preset = MakePreset("MP4");
    const Preset edited = preset->Clone();
    const int otherEncoder = preset->CurrentVideoCodecIndex() == 0 ? 1 : 0;
    edited->SetCurrentVideoCodecIndex(otherEncoder);

    m_dataSource->AddRecentPreset(preset, node);
    m_dataSource->AddRecentPreset(edited, node);
    QCOMPARE(items().size(), std::size_t(1));
    QCOMPARE(recentNode()->ChildCount(), 1);
    QCOMPARE(items()[0]->GetFormatPreset()->CurrentVideoCodecIndex(), otherEncoder);
}

void tst_OLFmtPresetDataSource_Recent::choicesThatDifferStandSideBySide()
{
    const Node node = MakeNode("MP4", "MP4 Format", 1001);
    m_dataSource->AddRecentPreset(MakePreset("HD"), node);
    m_dataSource->AddRecentPreset(MakePreset("HD", "1080"), node);
    m_dataSource->AddRecentPreset(MakePreset("HD", {}, 1001), node);
    m_dataSource->AddRecentPreset(MakePreset("HD"), MakeNode("MP4", "Video", 1001));
    m_dataSource->AddRecentPreset(MakePreset("HD"), MakeNode("MP4", "MP4 Format", 1002));
    m_dataSource->AddRecentPreset(MakePreset("MP4 HD"), node);
    QCOMPARE(items().size(), std::size_t(6));
    QCOMPARE(recentNode()->ChildCount(), 6);
}

void tst_OLFmtPresetDataSource_Recent::anEntryIsACopyOfItsNodeWithOnlyThatPreset()
{
    const Node node = MakeNode("MP4", "MP4 Format", 1001);
    const Preset preset = MakePreset("SD", "480", 7);
    node->AddPreset(MakePreset("HD"));
    node->AddPreset(preset);
    node->AppendChild(MakeNode("below"));
    const Item item = MakeItem(preset, node);
    m_dataSource->AddRecentItem(item);

    const Item entry = m_dataSource->GetLatestRecentItem();
    const auto copy = entry->GetFormatNode();
    QVERIFY(entry != item);
    QVERIFY(copy != node);
    QVERIFY(copy->IsEqual(node));
    QCOMPARE(Test::PresetNames(*copy), "SD"s);
    QCOMPARE(copy->ChildCount(), 0);
    QCOMPARE(entry->GetFormatPreset().get(), copy->FirstFormatPreset().get());
    QVERIFY(entry->GetFormatPreset() != preset);
    QVERIFY(entry->GetFormatPreset()->IsEqual(preset));
    QVERIFY(!node->Parent());
    QCOMPARE(Test::PresetNames(*node), "HD, SD"s);
}

void tst_OLFmtPresetDataSource_Recent::anEntryDoesNotFollowItsOriginals()
{
    const Node node = MakeNode("MP4");
    const Preset preset = MakePreset("MP4");
    const int encoder = preset->CurrentVideoCodecIndex();
    m_dataSource->AddRecentPreset(preset, node);
    node->SetName("MKV");
    preset->SetName("renamed");
    preset->SetCurrentVideoCodecIndex(encoder == 0 ? 1 : 0);
    QCOMPARE(Names(items()), "MP4"s);
    QCOMPARE(items()[0]->GetFormatPreset()->CurrentVideoCodecIndex(), encoder);
}

void tst_OLFmtPresetDataSource_Recent::choosingAnEntryOfTheListMovesIt()
{
    choose({ "A", "B", "C" });
    const Item oldest = items().back();
    QVERIFY(m_dataSource->AddRecentItem(oldest));
    QCOMPARE(Names(items()), "A, C, B"s);
    QCOMPARE(Test::ChildNames(*recentNode()), "B, C, A"s);
    QVERIFY(items().front() != oldest);
}

void tst_OLFmtPresetDataSource_Recent::choosingByPresetAndNodeDoesTheSame()
{
    choose({ "A", "B" });
    QVERIFY(m_dataSource->AddRecentPreset(MakePreset("A"), MakeNode("A", "A Format")));
    QCOMPARE(Names(items()), "A, B"s);
    QCOMPARE(Test::ChildNames(*recentNode()), "B, A"s);
}

void tst_OLFmtPresetDataSource_Recent::incompleteChoicesAreRefused_data()
{
    QTest::addColumn<Item>("item");
    QTest::newRow("no item") << Item();
    QTest::newRow("no preset") << MakeItem(nullptr, MakeNode("MP4"));
    QTest::newRow("no node") << MakeItem(MakePreset("MP4"), nullptr);
    QTest::newRow("neither") << MakeItem(nullptr, nullptr);
}

void tst_OLFmtPresetDataSource_Recent::incompleteChoicesAreRefused()
{
    QFETCH(const Item, item);
    choose({ "A" });
    const Item entry = items()[0];
    QVERIFY(!m_dataSource->AddRecentItem(item));
    if (item)
        QVERIFY(!m_dataSource->AddRecentPreset(item->GetFormatPreset(), item->GetFormatNode()));
    QCOMPARE(items().size(), std::size_t(1));
    QCOMPARE(items()[0].get(), entry.get());
    QCOMPARE(Test::ChildNames(*recentNode()), "A"s);
}

void tst_OLFmtPresetDataSource_Recent::choicesWithoutEndAreAllKept()
{
    constexpr int choices = 1'000;
    for (int i = 0; i < choices; ++i)
        QVERIFY(m_dataSource->AddRecentItem(MakeItem("choice " + std::to_string(i))));
    const std::vector<Item> all = items();
    QCOMPARE(all.size(), std::size_t(choices));
    QCOMPARE(recentNode()->ChildCount(), choices);
    for (int i = 0; i < choices; ++i) {
        const std::string name = "choice " + std::to_string(i);
        QCOMPARE(all[std::size_t(choices - 1 - i)]->GetDisplayName(), name);
        QCOMPARE(recentNode()->ChildAt(i)->Name(), name);
    }
}

ORLIMO_TEST_MAIN(tst_OLFmtPresetDataSource_Recent)

#include "tst_olfmtpresetdatasource_recent.moc"
