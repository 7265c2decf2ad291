#include "TestCase.h"

#include "FormatObjects.h"

#include "IOLArtworkImageGroup.h"
#include "IOLArtworkImageMgr.h"
#include "OLFmtPresetDataSource.h"
#include "OLMediaCodecs.h"

#include <type_traits>

using namespace std::literals;

using Orlimo::IOLArtworkImageMgr;
using Orlimo::IOLFmtPresetDataSource;
using Orlimo::OLFmtPresetDataSource;
using Test::Item;
using Test::MakeItem;

static_assert(!std::has_virtual_destructor_v<IOLFmtPresetDataSource>);
static_assert(!std::is_destructible_v<IOLFmtPresetDataSource>);
static_assert(std::is_abstract_v<IOLFmtPresetDataSource>);

class tst_OLFmtPresetDataSource : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thereIsOneSharedDataSource();
    void theBuiltInNodeIsPlainMp4();
    void theBuiltInPresetIsPlainMp4();
    void theBuiltInItemIsAlwaysTheSame();
    void withoutChoicesTheLatestIsTheBuiltIn();
    void theLatestIsTheNewestChoice();
    void theRecentItemsAreGivenAsACopy();
    void dataSourcesDoNotShareTheirTrees();
    void theCustomNodeIsEmptyAtFirst();
    void bothCustomNodeOperationsGiveTheSameNode();
    void beforeALoadThereIsNeitherTreeNorArtwork();

private:
    std::shared_ptr<IOLFmtPresetDataSource> m_dataSource;

    void prepare() override { m_dataSource = std::make_shared<OLFmtPresetDataSource>(); }
};

void tst_OLFmtPresetDataSource::thereIsOneSharedDataSource()
{
    const auto shared = IOLFmtPresetDataSource::Shared();
    QVERIFY(shared);
    QCOMPARE(IOLFmtPresetDataSource::Shared().get(), shared.get());
}

void tst_OLFmtPresetDataSource::theBuiltInNodeIsPlainMp4()
{
    const auto node = m_dataSource->GetDefaultRecentItem()->GetFormatNode();
    QCOMPARE(node->Name(), "MP4"s);
    QCOMPARE(node->Description(), "MP4 Format"s);
    QCOMPARE(node->FaceID(), IOLArtworkImageMgr::FormatFaceIDMP4);
    QCOMPARE(node->PresetCount(), 1);
    QCOMPARE(node->ChildCount(), 0);
    QVERIFY(!node->Parent());
}

void tst_OLFmtPresetDataSource::theBuiltInPresetIsPlainMp4()
{
    const Item item = m_dataSource->GetDefaultRecentItem();
    const auto preset = item->GetFormatPreset();
    QVERIFY(preset);
    QCOMPARE(item->GetFormatNode()->FirstFormatPreset().get(), preset.get());
    QCOMPARE(preset->Name(), Orlimo::OLFormatNameMP4);
    QCOMPARE(preset->FormatName(), Orlimo::OLFormatNameMP4);
    QCOMPARE(preset->Description(), ""s);
    QCOMPARE(preset->FaceID(), IOLArtworkImageMgr::FormatFaceIDMP4);
    QVERIFY(preset->CurrentVideoCodec());
    QVERIFY(preset->CurrentAudioCodec());
    QCOMPARE(item->GetDisplayName(), "MP4"s);
}

void tst_OLFmtPresetDataSource::theBuiltInItemIsAlwaysTheSame()
{
    const Item item = m_dataSource->GetDefaultRecentItem();
    m_dataSource->AddRecentItem(MakeItem("AVI"));
    m_dataSource->AddRecentItem(item);
    m_dataSource->RemoveRecentItemByName("MP4");
    QCOMPARE(m_dataSource->GetDefaultRecentItem().get(), item.get());
}

void tst_OLFmtPresetDataSource::withoutChoicesTheLatestIsTheBuiltIn()
{
    QVERIFY(m_dataSource->GetRecentItems().empty());
    const Item latest = m_dataSource->GetLatestRecentItem();
    QCOMPARE(latest.get(), m_dataSource->GetDefaultRecentItem().get());
    QCOMPARE(latest->GetDisplayName(), "MP4"s);
    QCOMPARE(latest->GetDescription(), "MP4 Format"s);
}

void tst_OLFmtPresetDataSource::theLatestIsTheNewestChoice()
{
    m_dataSource->AddRecentItem(MakeItem("AVI"));
    m_dataSource->AddRecentItem(MakeItem("MKV"));
    QCOMPARE(m_dataSource->GetLatestRecentItem().get(), m_dataSource->GetRecentItems()[0].get());
    QCOMPARE(m_dataSource->GetLatestRecentItem()->GetDisplayName(), "MKV"s);

    m_dataSource->RemoveRecentItemByName("MKV");
    QCOMPARE(m_dataSource->GetLatestRecentItem()->GetDisplayName(), "AVI"s);
    m_dataSource->RemoveRecentItemByName("AVI");
    QCOMPARE(m_dataSource->GetLatestRecentItem().get(), m_dataSource->GetDefaultRecentItem().get());
}

void tst_OLFmtPresetDataSource::theRecentItemsAreGivenAsACopy()
{
    m_dataSource->AddRecentItem(MakeItem("AVI"));
    m_dataSource->AddRecentItem(MakeItem("MKV"));
    std::vector<Item> items = m_dataSource->GetRecentItems();
    QVERIFY(m_dataSource->GetRecentItems() == items);

    items.clear();
    QCOMPARE(Test::Names(m_dataSource->GetRecentItems()), "MKV, AVI"s);
}

void tst_OLFmtPresetDataSource::dataSourcesDoNotShareTheirTrees()
{
    const auto other = std::make_shared<OLFmtPresetDataSource>();
    m_dataSource->AddRecentItem(MakeItem("AVI"));
    m_dataSource->AddCustomPreset(Test::MakePreset("mine"), Test::MakeNode("AVI"));
    QVERIFY(other->GetRecentItems().empty());
    QCOMPARE(other->GetCustomFormatNode()->ChildCount(), 0);
    QVERIFY(other->GetDefaultRecentItem() != m_dataSource->GetDefaultRecentItem());
}

void tst_OLFmtPresetDataSource::theCustomNodeIsEmptyAtFirst()
{
    const auto custom = m_dataSource->GetCustomFormatNode();
    QCOMPARE(custom->Name(), "Custom"s);
    QCOMPARE(custom->Description(), "Custom Preset"s);
    QCOMPARE(custom->FaceID(), IOLArtworkImageMgr::CategoryFaceIDCustomize);
    QCOMPARE(custom->ChildCount(), 0);
    QCOMPARE(custom->PresetCount(), 0);
    QVERIFY(!custom->Parent());
}

void tst_OLFmtPresetDataSource::bothCustomNodeOperationsGiveTheSameNode()
{
    const auto custom = m_dataSource->GetCustomFormatNode();
    QVERIFY(custom);
    QCOMPARE(m_dataSource->GetCustomFormatNode().get(), custom.get());
    QCOMPARE(std::as_const(*m_dataSource).GetCustomFormatNode().get(), custom.get());
}

void tst_OLFmtPresetDataSource::beforeALoadThereIsNeitherTreeNorArtwork()
{
    QVERIFY(!m_dataSource->GetDefaultFormatNode());
    QVERIFY(!m_dataSource->GetArtworkGroup(IOLArtworkImageMgr::FormatFaceIDMP4));
    QVERIFY(!m_dataSource->GetArtworkGroup(0));
}

ORLIMO_TEST_MAIN(tst_OLFmtPresetDataSource)

#include "tst_olfmtpresetdatasource.moc"
