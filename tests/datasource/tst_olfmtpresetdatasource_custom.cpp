#include "TestCase.h"

#include "FormatObjects.h"

#include "OLFmtPresetDataSource.h"

using namespace std::literals;

using Orlimo::IOLFmtPresetDataSource;
using Orlimo::OLFmtPresetDataSource;
using Test::ChildNames;
using Test::MakeNode;
using Test::MakePreset;
using Test::Node;
using Test::Preset;
using Test::PresetNames;

class tst_OLFmtPresetDataSource_Custom : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void presetsOfOneFormatShareAChild();
    void everyFormatHasAChildInTheOrderOfItsFirstPreset();
    void formatsAreFoundByTheirExactName();
    void theChildIsACopyOfTheNodeAlone();
    void thePresetIsACopy();
    void presetsOfTheSameNameStandSideBySide();
    void removingTakesTheFirstPresetOfThatName();
    void removingTheLastPresetRemovesTheFormat();
    void removingWhatIsNotThereChangesNothing_data();
    void removingWhatIsNotThereChangesNothing();
    void emptyPointersAreRefused();
    void theCustomNodeIsNeverReplaced();

private:
    std::shared_ptr<IOLFmtPresetDataSource> m_dataSource;
    Node m_custom;

    void prepare() override
    {
        m_dataSource = std::make_shared<OLFmtPresetDataSource>();
        m_custom = m_dataSource->GetCustomFormatNode();
    }

    void add(const char *preset, const char *format) const
    {
        m_dataSource->AddCustomPreset(MakePreset(preset), MakeNode(format));
    }

    bool remove(const char *preset, const char *format) const
    {
        return m_dataSource->RemoveCustomPreset(MakePreset(preset), MakeNode(format));
    }
};

void tst_OLFmtPresetDataSource_Custom::presetsOfOneFormatShareAChild()
{
    add("B", "MP4");
    add("A", "MP4");
    QCOMPARE(ChildNames(*m_custom), "MP4"s);
    QCOMPARE(PresetNames(*m_custom->ChildAt(0)), "B, A"s);
}

void tst_OLFmtPresetDataSource_Custom::everyFormatHasAChildInTheOrderOfItsFirstPreset()
{
    add("1", "MP4");
    add("2", "AVI");
    add("3", "MP4");
    QCOMPARE(ChildNames(*m_custom), "MP4, AVI"s);
    QCOMPARE(PresetNames(*m_custom->ChildAt(0)), "1, 3"s);
    QCOMPARE(PresetNames(*m_custom->ChildAt(1)), "2"s);
}

void tst_OLFmtPresetDataSource_Custom::formatsAreFoundByTheirExactName()
{
    m_dataSource->AddCustomPreset(MakePreset("1"), MakeNode("MP4", "one", 1));
    m_dataSource->AddCustomPreset(MakePreset("2"), MakeNode("MP4", "two", 2));
    m_dataSource->AddCustomPreset(MakePreset("3"), MakeNode("mp4", "one", 1));
    m_dataSource->AddCustomPreset(MakePreset("4"), MakeNode("", "one", 1));
    QCOMPARE(ChildNames(*m_custom), "MP4, mp4, "s);
    QCOMPARE(PresetNames(*m_custom->ChildAt(0)), "1, 2"s);
    QCOMPARE(m_custom->ChildAt(0)->Description(), "one"s);
}

void tst_OLFmtPresetDataSource_Custom::theChildIsACopyOfTheNodeAlone()
{
    const Node node = MakeNode("MP4", "MP4 Format", 1001);
    node->AddPreset(MakePreset("built in"));
    node->AppendChild(MakeNode("below"));
    m_dataSource->AddCustomPreset(MakePreset("mine"), node);

    const Node child = m_custom->ChildAt(0);
    QVERIFY(child != node);
    QVERIFY(child->IsEqual(node));
    QCOMPARE(PresetNames(*child), "mine"s);
    QCOMPARE(child->ChildCount(), 0);
    QCOMPARE(child->Parent().get(), m_custom.get());
    QVERIFY(!node->Parent());
    QCOMPARE(PresetNames(*node), "built in"s);
}

void tst_OLFmtPresetDataSource_Custom::thePresetIsACopy()
{
    const Preset preset = MakePreset("MP4", "fast", 7);
    const int encoder = preset->CurrentVideoCodecIndex();
    m_dataSource->AddCustomPreset(preset, MakeNode("MP4"));
    preset->SetName("renamed");
    preset->SetCurrentVideoCodecIndex(encoder == 0 ? 1 : 0);

    const Preset copy = m_custom->ChildAt(0)->FirstFormatPreset();
    QVERIFY(copy != preset);
    QCOMPARE(copy->Name(), "MP4"s);
    QCOMPARE(copy->Description(), "fast"s);
    QCOMPARE(copy->FaceID(), 7);
    QCOMPARE(copy->CurrentVideoCodecIndex(), encoder);
}

void tst_OLFmtPresetDataSource_Custom::presetsOfTheSameNameStandSideBySide()
{
    add("mine", "MP4");
    add("mine", "MP4");
    QCOMPARE(PresetNames(*m_custom->ChildAt(0)), "mine, mine"s);
}

void tst_OLFmtPresetDataSource_Custom::removingTakesTheFirstPresetOfThatName()
{
    const Node node = MakeNode("MP4");
    m_dataSource->AddCustomPreset(MakePreset("other"), node);
    m_dataSource->AddCustomPreset(MakePreset("mine", "first"), node);
    m_dataSource->AddCustomPreset(MakePreset("mine", "second"), node);
    QVERIFY(m_dataSource->RemoveCustomPreset(MakePreset("mine", "second"), node));
    QCOMPARE(PresetNames(*m_custom->ChildAt(0)), "other, mine"s);
    QCOMPARE(m_custom->ChildAt(0)->PresetAt(1)->Description(), "second"s);
}

void tst_OLFmtPresetDataSource_Custom::removingTheLastPresetRemovesTheFormat()
{
    add("1", "MP4");
    add("2", "MP4");
    add("3", "AVI");
    QVERIFY(remove("1", "MP4"));
    QCOMPARE(ChildNames(*m_custom), "MP4, AVI"s);
    QVERIFY(remove("2", "MP4"));
    QCOMPARE(ChildNames(*m_custom), "AVI"s);
    QVERIFY(!remove("2", "MP4"));
    QVERIFY(remove("3", "AVI"));
    QCOMPARE(m_custom->ChildCount(), 0);

    add("4", "MP4");
    QCOMPARE(ChildNames(*m_custom), "MP4"s);
}

void tst_OLFmtPresetDataSource_Custom::removingWhatIsNotThereChangesNothing_data()
{
    QTest::addColumn<QByteArray>("preset");
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("no such format") << QByteArray("mine") << QByteArray("AVI");
    QTest::newRow("no such preset") << QByteArray("yours") << QByteArray("MP4");
    QTest::newRow("other letter case of the format") << QByteArray("mine") << QByteArray("mp4");
    QTest::newRow("other letter case of the preset") << QByteArray("Mine") << QByteArray("MP4");
    QTest::newRow("the node itself") << QByteArray("mine") << QByteArray("Custom");
}

void tst_OLFmtPresetDataSource_Custom::removingWhatIsNotThereChangesNothing()
{
    QFETCH(const QByteArray, preset);
    QFETCH(const QByteArray, format);
    add("mine", "MP4");
    QVERIFY(!remove(preset.constData(), format.constData()));
    QCOMPARE(ChildNames(*m_custom), "MP4"s);
    QCOMPARE(PresetNames(*m_custom->ChildAt(0)), "mine"s);
}

void tst_OLFmtPresetDataSource_Custom::emptyPointersAreRefused()
{
    add("mine", "MP4");
    m_dataSource->AddCustomPreset(nullptr, MakeNode("AVI"));
    m_dataSource->AddCustomPreset(MakePreset("mine"), nullptr);
    m_dataSource->AddCustomPreset(nullptr, nullptr);
    QVERIFY(!m_dataSource->RemoveCustomPreset(nullptr, MakeNode("MP4")));
    QVERIFY(!m_dataSource->RemoveCustomPreset(MakePreset("mine"), nullptr));
    QVERIFY(!m_dataSource->RemoveCustomPreset(nullptr, nullptr));
    QCOMPARE(ChildNames(*m_custom), "MP4"s);
    QCOMPARE(PresetNames(*m_custom->ChildAt(0)), "mine"s);
}

void tst_OLFmtPresetDataSource_Custom::theCustomNodeIsNeverReplaced()
{
    add("mine", "MP4");
    m_dataSource->SaveCustomPresets();
    QVERIFY(remove("mine", "MP4"));
    m_dataSource->SaveCustomPresets();
    QCOMPARE(m_dataSource->GetCustomFormatNode().get(), m_custom.get());
}

ORLIMO_TEST_MAIN(tst_OLFmtPresetDataSource_Custom)

#include "tst_olfmtpresetdatasource_custom.moc"
