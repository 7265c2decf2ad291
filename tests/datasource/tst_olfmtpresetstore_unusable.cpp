#include "TestCase.h"

#include "FormatFiles.h"
#include "FormatObjects.h"
#include "StoredPresets.h"

#include "OLFmtPresetDataSource.h"

using namespace Qt::StringLiterals;
using namespace std::literals;

using Orlimo::IOLFmtPresetDataSource;
using Orlimo::OLFmtPresetDataSource;
using Test::customKey;
using Test::MakeItem;
using Test::recentKey;
using Test::Settings;
using Test::Store;
using Test::Stored;
using Test::StoredChildNames;

class tst_OLFmtPresetStore_Unusable : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void unusableValuesGiveFreshTreesAndStayAsTheyAre_data();
    void unusableValuesGiveFreshTreesAndStayAsTheyAre();
    void theNextSaveKeepsAnUnusableValueAside();
    void onlyASaveUnderItsKeyMovesAnUnusableValue();
    void everyUnusableValueIsKept();
    void ofManyUnusableValuesTheFirstAndTheNewestAreKept();
    void aUsableValueIsNotKeptAside();
    void aFileDamagedWhileTheProgramRunsLosesNoChoice_data();
    void aFileDamagedWhileTheProgramRunsLosesNoChoice();

private:
    std::shared_ptr<IOLFmtPresetDataSource> m_dataSource;

    void prepare() override
    {
        Orlimo::IOLAppSettings::Shared()->Save(); // what the last test kept in memory
        QFile::remove(Settings().fileName());
        restart();
    }

    void restart() { m_dataSource = std::make_shared<OLFmtPresetDataSource>(); }

    void choose(std::initializer_list<const char *> names) const
    {
        for (const char *name : names)
            m_dataSource->AddRecentItem(MakeItem(name));
    }

    void verifyFreshTrees() const
    {
        QVERIFY(m_dataSource->GetRecentItems().empty());
        QCOMPARE(m_dataSource->GetCustomFormatNode()->Name(), "Custom"s);
        QCOMPARE(m_dataSource->GetCustomFormatNode()->ChildCount(), 0);
    }
};

void tst_OLFmtPresetStore_Unusable::unusableValuesGiveFreshTreesAndStayAsTheyAre_data()
{
    QTest::addColumn<QByteArray>("value");
    const auto json = [](const char *title, const QByteArray &text) {
        QTest::newRow(title) << text.toBase64();
    };
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("not base64") << QByteArray("§ not base64 §");
    QTest::newRow("JSON without base64") << Test::Description("Recent");
    QTest::newRow("base64 of nothing") << QByteArray("====");
    QTest::newRow("cut base64") << Test::Description("Recent").toBase64().chopped(3);
    QTest::newRow("huge, not base64") << QByteArray(8 << 20, '!');
    json("not JSON", "Recent");
    json("binary", QByteArray("\0\xFF\0", 3));
    json("cut JSON", Test::Description("Recent").chopped(1));
    json("huge, not JSON", QByteArray(8 << 20, 'x'));
    json("null", "null");
    json("text", R"("Recent")");
    json("array", "[1,2]");
    json("no root", R"({"version":1})");
    json("later version", R"({"version":2,"root":{"name":"Recent"}})");
    json("bare node", R"({"name":"Recent"})");
    json("nodes 1100 levels deep", Test::DeepDescription(1'100));
    json("arrays a million levels deep", QByteArray(1'000'000, '['));
}

void tst_OLFmtPresetStore_Unusable::unusableValuesGiveFreshTreesAndStayAsTheyAre()
{
    QFETCH(const QByteArray, value);
    Store(value);
    const QByteArray before = Test::SettingsFile();
    restart();
    verifyFreshTrees();
    choose({ "A" });
    m_dataSource.reset();
    QVERIFY(Test::SettingsFile() == before);
    QVERIFY(Stored(recentKey) == value);
    QVERIFY(Stored(customKey) == value);
}

void tst_OLFmtPresetStore_Unusable::theNextSaveKeepsAnUnusableValueAside()
{
    Store("garbage");
    restart();
    choose({ "A" });
    m_dataSource->SaveRecentPresets();
    QCOMPARE(StoredChildNames(recentKey), "A"s);
    QCOMPARE(Stored(customKey), QByteArray("garbage"));
    QCOMPARE(Stored("unreadable/recent_format_preset"_L1), QByteArray("garbage"));
    restart();
    QCOMPARE(m_dataSource->GetRecentItems().size(), 1);
}

void tst_OLFmtPresetStore_Unusable::onlyASaveUnderItsKeyMovesAnUnusableValue()
{
    Store("garbage");
    restart();
    Orlimo::IOLAppSettings::Shared()->SetValue("a value of the host", "host");
    Orlimo::IOLAppSettings::Shared()->Save();
    QVERIFY(!Test::SettingsFile().contains("unreadable"));
    m_dataSource->SaveRecentPresets();
    QCOMPARE(Stored("unreadable/recent_format_preset"_L1), QByteArray("garbage"));
    QCOMPARE(Stored("unreadable/custom_format_preset"_L1), QByteArray());
}

void tst_OLFmtPresetStore_Unusable::everyUnusableValueIsKept()
{
    for (const QByteArray value : { "first", "second", "first" }) {
        Store(value);
        restart();
        m_dataSource->SaveCustomPresets();
    }
    QCOMPARE(Stored("unreadable/custom_format_preset"_L1), QByteArray("first"));
    QCOMPARE(Stored("unreadable/custom_format_preset_2"_L1), QByteArray("second"));
    QCOMPARE(Stored("unreadable/custom_format_preset_3"_L1), QByteArray());
}

void tst_OLFmtPresetStore_Unusable::ofManyUnusableValuesTheFirstAndTheNewestAreKept()
{
    for (int i = 1; i <= 12; ++i) {
        Store("garbage " + QByteArray::number(i));
        restart();
        m_dataSource->SaveRecentPresets();
    }
    QCOMPARE(Stored("unreadable/recent_format_preset"_L1), QByteArray("garbage 1"));
    QCOMPARE(Stored("unreadable/recent_format_preset_8"_L1), QByteArray("garbage 8"));
    QCOMPARE(Stored("unreadable/recent_format_preset_9"_L1), QByteArray("garbage 12"));
    QCOMPARE(Stored("unreadable/recent_format_preset_10"_L1), QByteArray());
}

void tst_OLFmtPresetStore_Unusable::aUsableValueIsNotKeptAside()
{
    choose({ "A" });
    m_dataSource->SaveRecentPresets();
    m_dataSource->SaveCustomPresets();
    restart();
    m_dataSource->SaveRecentPresets();
    QVERIFY(!Test::SettingsFile().contains("unreadable"));
}

void tst_OLFmtPresetStore_Unusable::aFileDamagedWhileTheProgramRunsLosesNoChoice_data()
{
    QTest::addColumn<QByteArray>("damage");
    QTest::addColumn<bool>("isNoise");
    QTest::newRow("cut short") << QByteArray("[General]\nrecent_format_preset=eyJ2ZX") << false;
    QTest::newRow("cut within a name") << QByteArray("[General]\nrecent_for") << true;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("noise") << QByteArray("\x00\x80\xff\n[\x01", 6) << true;
}

void tst_OLFmtPresetStore_Unusable::aFileDamagedWhileTheProgramRunsLosesNoChoice()
{
    QFETCH(const QByteArray, damage);
    QFETCH(const bool, isNoise);
    choose({ "A" });
    m_dataSource->SaveRecentPresets();
    QFile file(Settings().fileName());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(damage), damage.size());
    file.close();

    choose({ "B" });
    if (isNoise)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"\\.unreadable"_s));
    m_dataSource->SaveRecentPresets();
    QCOMPARE(StoredChildNames(recentKey), "A, B"s);
}

ORLIMO_TEST_MAIN(tst_OLFmtPresetStore_Unusable)

#include "tst_olfmtpresetstore_unusable.moc"
