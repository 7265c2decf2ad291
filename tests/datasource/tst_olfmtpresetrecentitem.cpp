#include "TestCase.h"

#include "CountingFakes.h"
#include "FormatFiles.h"
#include "FormatObjects.h"

#include "IOLArtworkImageGroup.h"
#include "IOLFmtPresetDataSource.h"

#include <functional>
#include <type_traits>

using namespace Qt::StringLiterals;
using namespace std::literals;

using Orlimo::IOLFmtPresetDataSource;
using Orlimo::IOLFmtPresetRecentItem;
using Orlimo::IOLFormatNode;
using Test::CountingNode;
using Test::CountingPreset;
using Test::Item;
using Test::MakeItem;
using Test::MakeNode;
using Test::MakePreset;
using Test::Node;
using Test::Preset;

static_assert(!std::has_virtual_destructor_v<IOLFmtPresetRecentItem>);
static_assert(!std::is_destructible_v<IOLFmtPresetRecentItem>);

namespace {

// An item of fakes, which are equal to everything, and the fakes.
struct CountedItem
{
    std::shared_ptr<CountingNode> node = std::make_shared<CountingNode>();
    std::shared_ptr<CountingPreset> preset = std::make_shared<CountingPreset>();
    Item item = MakeItem(preset, node);
};

QColor ColorOf(const std::shared_ptr<const Orlimo::IOLArtworkImageGroup> &group)
{
    return group ? group->Icon().pixmap(16, 16).toImage().pixelColor(0, 0) : QColor();
}

} // namespace

class tst_OLFmtPresetRecentItem : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anItemWithoutPresetIsEmptyWhateverItsNode();
    void anItemWithoutNodeIsNotEmpty();
    void theDisplayNameCombinesNodeAndPreset_data();
    void theDisplayNameCombinesNodeAndPreset();
    void descriptionAndFaceIdAreTheNodes();
    void anItemSharesItsObjectsAndKeepsThemAlive();
    void aCloneIsAnotherItemOfTheSameObjects();
    void aCloneOfAnEmptyItemIsEmpty();
    void itemsOfEqualObjectsAreEqual();
    void anyDifferenceMakesItemsUnequal_data();
    void anyDifferenceMakesItemsUnequal();
    void theChosenEncodersDoNotCount();
    void comparingStopsAtTheFirstDifference_data();
    void comparingStopsAtTheFirstDifference();
    void comparingHandsTheOthersObjectsToTheOwnOnes();
    void itemsWithoutPresetsAreEqualOnEqualNodes();
    void theArtworkIsThatOfTheFaceId();
};

void tst_OLFmtPresetRecentItem::anItemWithoutPresetIsEmptyWhateverItsNode()
{
    for (const Node &node : { Node(), MakeNode("MP4", "MP4 Format", 1001) }) {
        const Item item = MakeItem(nullptr, node);
        QVERIFY(item->IsEmpty());
        QCOMPARE(item->GetDisplayName(), ""s);
        QCOMPARE(item->GetDescription(), ""s);
        QCOMPARE(item->GetFaceID(), 0);
        QVERIFY(!item->GetFormatPreset());
        QCOMPARE(item->GetFormatNode().get(), node.get());
    }
}

void tst_OLFmtPresetRecentItem::anItemWithoutNodeIsNotEmpty()
{
    const Preset preset = MakePreset("AVI", "old", 7);
    const Item item = MakeItem(preset, nullptr);
    QVERIFY(!item->IsEmpty());
    QVERIFY(!item->GetFormatNode());
    QCOMPARE(item->GetFormatPreset().get(), preset.get());
    QCOMPARE(item->GetDisplayName(), "AVI"s);
    QCOMPARE(item->GetDescription(), ""s);
    QCOMPARE(item->GetFaceID(), 0);
}

void tst_OLFmtPresetRecentItem::theDisplayNameCombinesNodeAndPreset_data()
{
    QTest::addColumn<QByteArray>("node");
    QTest::addColumn<QByteArray>("preset");
    QTest::addColumn<QByteArray>("displayName");
    const auto row = [](const char *title, const char *node, const char *preset, const char *name) {
        QTest::newRow(title) << QByteArray(node) << QByteArray(preset) << QByteArray(name);
    };
    row("node without name", "", "AVI", "AVI");
    row("same name", "MP4", "MP4", "MP4");
    row("node name first", "MP4", "MP4 HD 1080P", "MP4 HD 1080P");
    row("node name last", "MP4", "iPhone MP4", "iPhone MP4");
    row("node name inside a word", "MP4", "xMP4x", "xMP4x");
    row("no node name", "MP4", "HD 720P", "MP4 HD 720P");
    row("other letter case", "MP4", "mp4 HD", "MP4 mp4 HD");
    row("part of the node name", "MP4", "MP", "MP4 MP");
    row("node name in pieces", "MP4", "MP 4", "MP4 MP 4");
    row("preset without name", "MP4", "", "MP4 ");
    row("neither has a name", "", "", "");
    row("beyond ASCII", "Vidéo", "Vidéo 動画", "Vidéo 動画");
    row("beyond ASCII, other letter case", "Vidéo", "VIDÉO", "Vidéo VIDÉO");
}

void tst_OLFmtPresetRecentItem::theDisplayNameCombinesNodeAndPreset()
{
    QFETCH(const QByteArray, node);
    QFETCH(const QByteArray, preset);
    QFETCH(const QByteArray, displayName);
    const Item item = MakeItem(MakePreset(preset.toStdString()), MakeNode(node.toStdString()));
    QCOMPARE(QByteArray::fromStdString(item->GetDisplayName()), displayName);
}

void tst_OLFmtPresetRecentItem::descriptionAndFaceIdAreTheNodes()
{
    const Item item = MakeItem(MakePreset("HD", "of the preset", 5),
                               MakeNode("MP4", "MP4 Format", 1001));
    QCOMPARE(item->GetDescription(), "MP4 Format"s);
    QCOMPARE(item->GetFaceID(), 1001);
}

void tst_OLFmtPresetRecentItem::anItemSharesItsObjectsAndKeepsThemAlive()
{
    Node node = MakeNode("MP4");
    Preset preset = MakePreset("HD");
    const std::weak_ptr<IOLFormatNode> weakNode = node;
    Item item = MakeItem(preset, node);
    QCOMPARE(item->GetFormatNode().get(), node.get());
    QCOMPARE(item->GetFormatPreset().get(), preset.get());

    node->SetName("MKV");
    node.reset();
    preset.reset();
    QCOMPARE(item->GetDisplayName(), "MKV HD"s);
    item.reset();
    QVERIFY(weakNode.expired());
}

void tst_OLFmtPresetRecentItem::aCloneIsAnotherItemOfTheSameObjects()
{
    const Item item = MakeItem(MakePreset("HD"), MakeNode("MP4"));
    const Item clone = item->Clone();
    QVERIFY(clone != item);
    QCOMPARE(clone->GetFormatNode().get(), item->GetFormatNode().get());
    QCOMPARE(clone->GetFormatPreset().get(), item->GetFormatPreset().get());
}

void tst_OLFmtPresetRecentItem::aCloneOfAnEmptyItemIsEmpty()
{
    const Item clone = MakeItem(nullptr, nullptr)->Clone();
    QVERIFY(clone->IsEmpty());
    QVERIFY(!clone->GetFormatNode());
}

void tst_OLFmtPresetRecentItem::itemsOfEqualObjectsAreEqual()
{
    const Node node = MakeNode("MP4", "MP4 Format", 1001);
    const Preset preset = MakePreset("HD", "1080", 1001);
    const Item item = MakeItem(preset, node);
    QVERIFY(item->IsEqual(item));
    QVERIFY(item->IsEqual(item->Clone()));
    QVERIFY(item->IsEqual(MakeItem(preset->Clone(), node->Clone(IOLFormatNode::CloneAll))));
}

void tst_OLFmtPresetRecentItem::anyDifferenceMakesItemsUnequal_data()
{
    QTest::addColumn<Item>("other");
    const auto node = [](const char *name, const char *description, int faceID) {
        return MakeNode(name, description, faceID);
    };
    const Preset same = MakePreset("MP4 HD", "1080", 1);
    QTest::newRow("face id") << MakeItem(same, node("MP4", "Film", 2));
    QTest::newRow("description") << MakeItem(same, node("MP4", "Films", 1));
    QTest::newRow("display name") << MakeItem(same, node("MKV", "Film", 1));
    QTest::newRow("node name behind the same display name") << MakeItem(same, node("", "Film", 1));
    QTest::newRow("preset name") << MakeItem(MakePreset("MP4 UHD", "1080", 1),
                                             node("MP4", "Film", 1));
    QTest::newRow("preset description")
            << MakeItem(MakePreset("MP4 HD", "720", 1), node("MP4", "Film", 1));
    QTest::newRow("preset face id")
            << MakeItem(MakePreset("MP4 HD", "1080", 2), node("MP4", "Film", 1));
}

void tst_OLFmtPresetRecentItem::anyDifferenceMakesItemsUnequal()
{
    QFETCH(const Item, other);
    const Item item = MakeItem(MakePreset("MP4 HD", "1080", 1), MakeNode("MP4", "Film", 1));
    QVERIFY(!item->IsEqual(other));
    QVERIFY(!other->IsEqual(item));
}

void tst_OLFmtPresetRecentItem::theChosenEncodersDoNotCount()
{
    const Preset preset = MakePreset("MP4");
    const Preset edited = preset->Clone();
    QVERIFY(edited->VideoCodecCount() > 1);
    edited->SetCurrentVideoCodecIndex(preset->CurrentVideoCodecIndex() == 0 ? 1 : 0);
    const Node node = MakeNode("MP4");
    QVERIFY(MakeItem(preset, node)->IsEqual(MakeItem(edited, node)));
}

void tst_OLFmtPresetRecentItem::comparingStopsAtTheFirstDifference_data()
{
    using Difference = std::function<void(CountedItem &)>;
    QTest::addColumn<Difference>("difference");
    QTest::addColumn<bool>("asksDescriptions");
    QTest::addColumn<bool>("asksNames");
    QTest::addColumn<bool>("comparesNodes");
    QTest::addColumn<bool>("comparesPresets");
    QTest::newRow("face id") << Difference([](CountedItem &own) { own.node->faceID = 1; }) << false
                             << false << false << false;
    QTest::newRow("description") << Difference([](CountedItem &own) {
        own.node->description = "x";
    }) << true << false << false << false;
    QTest::newRow("display name") << Difference([](CountedItem &own) { own.preset->name = "x"; })
                                  << true << true << false << false;
    QTest::newRow("node") << Difference([](CountedItem &own) { own.node->equal = false; }) << true
                          << true << true << false;
    QTest::newRow("preset") << Difference([](CountedItem &own) { own.preset->equal = false; })
                            << true << true << true << true;
}

void tst_OLFmtPresetRecentItem::comparingStopsAtTheFirstDifference()
{
    QFETCH(const std::function<void(CountedItem &)>, difference);
    CountedItem own;
    const CountedItem other;
    difference(own);
    QVERIFY(!own.item->IsEqual(other.item));
    QTEST(own.node->descriptionCalls > 0, "asksDescriptions");
    QTEST(own.node->nameCalls + own.preset->nameCalls > 0, "asksNames");
    QTEST(!own.node->comparedWith.empty(), "comparesNodes");
    QTEST(!own.preset->comparedWith.empty(), "comparesPresets");
    QVERIFY(other.node->comparedWith.empty());
    QVERIFY(other.preset->comparedWith.empty());
}

void tst_OLFmtPresetRecentItem::comparingHandsTheOthersObjectsToTheOwnOnes()
{
    const CountedItem own;
    const CountedItem other;
    QVERIFY(own.item->IsEqual(other.item));
    QCOMPARE(own.node->comparedWith.size(), std::size_t(1));
    QVERIFY(own.node->comparedWith.front() == other.node);
    QCOMPARE(own.preset->comparedWith.size(), std::size_t(1));
    QVERIFY(own.preset->comparedWith.front() == other.preset);
}

void tst_OLFmtPresetRecentItem::itemsWithoutPresetsAreEqualOnEqualNodes()
{
    const auto node = MakeNode("MP4", "", 1001);
    QVERIFY(MakeItem(nullptr, node)->IsEqual(MakeItem(nullptr, node)));
    QVERIFY(MakeItem(nullptr, nullptr)->IsEqual(MakeItem(nullptr, nullptr)));
    QVERIFY(!MakeItem(nullptr, node)->IsEqual(MakeItem(nullptr, nullptr)));
}

void tst_OLFmtPresetRecentItem::theArtworkIsThatOfTheFaceId()
{
    const Item item = MakeItem(MakePreset("HD", {}, 5), MakeNode("MP4", {}, 1001));
    const Item unknown = MakeItem(MakePreset("HD"), MakeNode("MKV", {}, -7));
    const Item empty = MakeItem(nullptr, MakeNode("MP4", {}, 1001));
    QVERIFY(!item->GetArtworkGroup());

    const Test::FormatFolder folder;
    folder.Write(u"formats.icfg"_s, Test::ArtworkFile({ { 0, Qt::blue }, { 1001, Qt::red } }));
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    dataSource->AsyncLoadExternalDataSource(folder.Write(u"formats.json"_s,
                                                         Test::Description("Formats")),
                                            [] {});
    dataSource->WaitForLoadingComplete();

    QCOMPARE(ColorOf(item->GetArtworkGroup()), QColor(Qt::red));
    QCOMPARE(ColorOf(empty->GetArtworkGroup()), QColor(Qt::blue));
    QVERIFY(!unknown->GetArtworkGroup());
}

ORLIMO_TEST_MAIN(tst_OLFmtPresetRecentItem)

#include "tst_olfmtpresetrecentitem.moc"
