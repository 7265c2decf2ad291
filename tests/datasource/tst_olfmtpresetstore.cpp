#include "TestCase.h"

#include "FormatObjects.h"
#include "StoredPresets.h"

#include "IOLArtworkImageMgr.h"
#include "OLFmtPresetDataSource.h"
#include "OLFmtPresetStore.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace std::literals;

using Orlimo::IOLArtworkImageMgr;
using Orlimo::IOLFmtPresetDataSource;
using Orlimo::OLFmtPresetDataSource;
using Test::ChildNames;
using Test::customKey;
using Test::MakeItem;
using Test::MakeNode;
using Test::MakePreset;
using Test::Names;
using Test::recentKey;
using Test::Settings;
using Test::Store;
using Test::Stored;
using Test::StoredChildNames;
using Test::StoredRoot;

class tst_OLFmtPresetStore : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theKeysAreFixed();
    void freshTreesHaveTheirNamesAndNothingElse();
    void theStoredValueIsBase64OfJson();
    void nothingIsWrittenWithoutASave();
    void everySaveWritesItsOwnTree();
    void aFreshDataSourceHasTheSameRecentOrder();
    void aFreshDataSourceHasTheSameCustomPresets();
    void theChosenEncodersAreStored();
    void removingCanLoseAnotherChoiceAfterARestart();
    void childrenWithoutAPresetAreKeptButGiveNoEntry();
    void aThousandChoicesAreStored();
    void storingWithoutANodeOrAKeyDoesNothing();
    void aFailedSaveLogsOneLineAndCanBeRepeated();

private:
    std::shared_ptr<IOLFmtPresetDataSource> m_dataSource;

    void prepare() override
    {
        QFile::remove(Settings().fileName());
        restart();
    }

    void restart() { m_dataSource = std::make_shared<OLFmtPresetDataSource>(); }

    void choose(std::initializer_list<const char *> names) const
    {
        for (const char *name : names)
            m_dataSource->AddRecentItem(MakeItem(name));
    }

    std::string recentNames() const { return Names(m_dataSource->GetRecentItems()); }

    void verifyFreshTrees() const
    {
        QVERIFY(m_dataSource->GetRecentItems().empty());
        QCOMPARE(m_dataSource->GetCustomFormatNode()->Name(), "Custom"s);
        QCOMPARE(m_dataSource->GetCustomFormatNode()->ChildCount(), 0);
    }
};

void tst_OLFmtPresetStore::theKeysAreFixed()
{
    QCOMPARE(Orlimo::OLRecentPresetsKey, recentKey.latin1());
    QCOMPARE(Orlimo::OLCustomPresetsKey, customKey.latin1());
}

void tst_OLFmtPresetStore::freshTreesHaveTheirNamesAndNothingElse()
{
    const auto recent = Orlimo::BuildRecentNode();
    QCOMPARE(recent->Name(), "Recent"s);
    QCOMPARE(recent->Description(), "Recent Selection"s);
    QCOMPARE(recent->FaceID(), IOLArtworkImageMgr::CategoryFaceIDRecentList);
    const auto custom = Orlimo::BuildCustomNode();
    QCOMPARE(custom->Name(), "Custom"s);
    QCOMPARE(custom->Description(), "Custom Preset"s);
    QCOMPARE(custom->FaceID(), IOLArtworkImageMgr::CategoryFaceIDCustomize);
    for (const auto &node : { recent, custom }) {
        QCOMPARE(node->ChildCount(), 0);
        QCOMPARE(node->PresetCount(), 0);
        QVERIFY(!node->Parent());
    }
    QVERIFY(Orlimo::BuildRecentList(*recent).empty());
    verifyFreshTrees();
}

void tst_OLFmtPresetStore::theStoredValueIsBase64OfJson()
{
    m_dataSource->SaveRecentPresets();
    m_dataSource->SaveCustomPresets();
    const QJsonObject recent = StoredRoot(recentKey);
    QCOMPARE(recent.value("name"_L1).toString(), u"Recent"_s);
    QCOMPARE(recent.value("description"_L1).toString(), u"Recent Selection"_s);
    QCOMPARE(recent.value("faceId"_L1).toInt(), IOLArtworkImageMgr::CategoryFaceIDRecentList);
    QCOMPARE(recent.value("children"_L1).toArray().size(), 0);
    const QJsonObject custom = StoredRoot(customKey);
    QCOMPARE(custom.value("name"_L1).toString(), u"Custom"_s);
    QCOMPARE(custom.value("description"_L1).toString(), u"Custom Preset"_s);
    QCOMPARE(custom.value("faceId"_L1).toInt(), IOLArtworkImageMgr::CategoryFaceIDCustomize);
    QCOMPARE(custom.value("children"_L1).toArray().size(), 0);
}

void tst_OLFmtPresetStore::nothingIsWrittenWithoutASave()
{
    choose({ "A", "B" });
    m_dataSource->RemoveRecentItemByName("A");
    m_dataSource->AddCustomPreset(MakePreset("1"), MakeNode("MP4"));
    m_dataSource->AddCustomPreset(MakePreset("2"), MakeNode("MP4"));
    m_dataSource->RemoveCustomPreset(MakePreset("1"), MakeNode("MP4"));
    for (const auto key : { recentKey, customKey })
        QCOMPARE(Orlimo::IOLAppSettings::Shared()->Value(key.latin1()), ""s);
    QVERIFY(!QFile::exists(Settings().fileName()));
    restart();
    verifyFreshTrees();
}

void tst_OLFmtPresetStore::everySaveWritesItsOwnTree()
{
    choose({ "A" });
    m_dataSource->AddCustomPreset(MakePreset("mine"), MakeNode("MP4"));
    m_dataSource->SaveRecentPresets();
    QCOMPARE(StoredChildNames(recentKey), "A"s);
    QVERIFY(Stored(customKey).isEmpty());

    choose({ "B" });
    m_dataSource->SaveCustomPresets();
    QCOMPARE(StoredChildNames(recentKey), "A"s);
    QCOMPARE(StoredChildNames(customKey), "MP4"s);
}

void tst_OLFmtPresetStore::aFreshDataSourceHasTheSameRecentOrder()
{
    choose({ "A", "B", "C", "Größe 動画", "B" });
    m_dataSource->SaveRecentPresets();
    QCOMPARE(StoredChildNames(recentKey), "A, C, Größe 動画, B"s);
    restart();
    QCOMPARE(recentNames(), "B, Größe 動画, C, A"s);

    choose({ "A" });
    QCOMPARE(recentNames(), "A, B, Größe 動画, C"s);
    m_dataSource->SaveRecentPresets();
    restart();
    QCOMPARE(recentNames(), "A, B, Größe 動画, C"s);
    QCOMPARE(m_dataSource->GetLatestRecentItem()->GetDescription(), "A Format"s);
}

void tst_OLFmtPresetStore::aFreshDataSourceHasTheSameCustomPresets()
{
    m_dataSource->AddCustomPreset(MakePreset("2", "second", 7), MakeNode("MP4", "film", 1001));
    m_dataSource->AddCustomPreset(MakePreset("1"), MakeNode("MP4"));
    m_dataSource->AddCustomPreset(MakePreset("3"), MakeNode("AVI"));
    m_dataSource->SaveCustomPresets();
    restart();

    const auto custom = m_dataSource->GetCustomFormatNode();
    QCOMPARE(custom->Name(), "Custom"s);
    QCOMPARE(ChildNames(*custom), "MP4, AVI"s);
    const auto format = custom->ChildAt(0);
    QVERIFY(format->IsEqual(MakeNode("MP4", "film", 1001)));
    QCOMPARE(format->Parent().get(), custom.get());
    QCOMPARE(Test::PresetNames(*format), "2, 1"s);
    QVERIFY(format->PresetAt(0)->IsEqual(MakePreset("2", "second", 7)));
    QVERIFY(m_dataSource->RemoveCustomPreset(MakePreset("3"), MakeNode("AVI")));
    QCOMPARE(ChildNames(*custom), "MP4"s);
}

void tst_OLFmtPresetStore::theChosenEncodersAreStored()
{
    const auto preset = MakePreset("MP4");
    const int encoder = preset->CurrentVideoCodecIndex() == 0 ? 1 : 0;
    preset->SetCurrentVideoCodecIndex(encoder);
    m_dataSource->AddRecentPreset(preset, MakeNode("MP4"));
    m_dataSource->SaveRecentPresets();
    restart();
    const auto loaded = m_dataSource->GetLatestRecentItem()->GetFormatPreset();
    QCOMPARE(loaded->VideoCodecCount(), preset->VideoCodecCount());
    QCOMPARE(loaded->CurrentVideoCodecIndex(), encoder);
}

void tst_OLFmtPresetStore::removingCanLoseAnotherChoiceAfterARestart()
{
    choose({ "A", "B", "C" });
    m_dataSource->RemoveRecentItemByName("C");
    QCOMPARE(recentNames(), "B, A"s);
    m_dataSource->SaveRecentPresets();
    QCOMPARE(StoredChildNames(recentKey), "B, C"s);
    restart();
    QCOMPARE(recentNames(), "C, B"s);
}

void tst_OLFmtPresetStore::childrenWithoutAPresetAreKeptButGiveNoEntry()
{
    Store(QByteArray(R"({"version":1,"root":{"name":"Recent","children":[
            {"name":"bare"},{"name":"A","presets":[{"name":"first"},{"name":"second"}]},
            {"name":"bare too"}]}})")
                  .toBase64());
    restart();
    QCOMPARE(recentNames(), "A first"s);
    m_dataSource->SaveRecentPresets();
    QCOMPARE(StoredChildNames(recentKey), "bare, A, bare too"s);

    Store(QByteArray(R"({"version":1,"root":{"name":"Recent","children":[{"name":"bare"}]}})")
                  .toBase64());
    restart();
    QVERIFY(m_dataSource->GetRecentItems().empty());
    QCOMPARE(m_dataSource->GetLatestRecentItem().get(), m_dataSource->GetDefaultRecentItem().get());
}

void tst_OLFmtPresetStore::aThousandChoicesAreStored()
{
    for (int i = 0; i < 1'000; ++i)
        m_dataSource->AddRecentItem(MakeItem(std::to_string(i)));
    const std::string before = recentNames();
    m_dataSource->SaveRecentPresets();
    restart();
    QCOMPARE(m_dataSource->GetRecentItems().size(), std::size_t(1'000));
    QCOMPARE(recentNames(), before);
}

void tst_OLFmtPresetStore::storingWithoutANodeOrAKeyDoesNothing()
{
    const auto settings = Orlimo::IOLAppSettings::Shared();
    settings->SetValue("unsaved", "other key");
    Orlimo::StorePresetNode(nullptr, Orlimo::OLRecentPresetsKey);
    Orlimo::StorePresetNode(MakeNode("MP4"), "");
    QVERIFY(!QFile::exists(Settings().fileName()));
    QVERIFY(!Orlimo::LoadPresetNode(Orlimo::OLRecentPresetsKey));
    QVERIFY(!Orlimo::LoadPresetNode(""));
    settings->Save();
    QCOMPARE(Stored("other key"_L1), QByteArray("unsaved"));
}

void tst_OLFmtPresetStore::aFailedSaveLogsOneLineAndCanBeRepeated()
{
    const QString fileName = Settings().fileName();
    const QString folder = QFileInfo(fileName).path();
    QVERIFY(QDir(folder).removeRecursively());
    QFile inTheWay(folder);
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    choose({ "A" });
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QRegularExpression::escape(fileName) + u": .+"_s));
    m_dataSource->SaveRecentPresets();
    QCOMPARE(recentNames(), "A"s);

    QVERIFY(inTheWay.remove());
    m_dataSource->SaveRecentPresets();
    QCOMPARE(StoredChildNames(recentKey), "A"s);
}

ORLIMO_TEST_MAIN(tst_OLFmtPresetStore)

#include "tst_olfmtpresetstore.moc"
