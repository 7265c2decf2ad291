#include "TestCase.h"

#include "FormatFiles.h"
#include "FormatObjects.h"
#include "WithoutRights.h"

#include "OLFmtPresetDataSource.h"

#include <QSemaphore>

#include <atomic>

using namespace Qt::StringLiterals;
using namespace std::literals;

using Orlimo::IOLFmtPresetDataSource;
using Orlimo::OLFmtPresetDataSource;

namespace {

QSemaphore logReached;
QSemaphore logMayReturn;

// Keeps the thread that logs until it may go on.
void HoldLog(QtMsgType, const QMessageLogContext &, const QString &)
{
    logReached.release();
    logMayReturn.acquire();
}

} // namespace

class tst_OLFmtPresetDataSource_LoadFailures : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aDescriptionThatCannotBeReadIsLoggedOnce_data();
    void aDescriptionThatCannotBeReadIsLoggedOnce();
    void aDescriptionWithoutPermissionIsLoggedOnce();
    void aDescriptionThatBreaksTheLayoutGivesNoTreeSilently_data();
    void aDescriptionThatBreaksTheLayoutGivesNoTreeSilently();
    void theActionRunsAfterAFailedLoad();
    void askingForTheTreeDoesNotWaitForALoadThatIsHeldUp();
    void aLaterLoadMaySucceed_data();
    void aLaterLoadMaySucceed();
    void aFailedLoadKeepsAnEarlierTree();
    void aTreeOfFiveHundredLevelsIsRead();

private:
    Test::FormatFolder m_folder;
    std::shared_ptr<IOLFmtPresetDataSource> m_dataSource;

    void prepare() override { m_dataSource = std::make_shared<OLFmtPresetDataSource>(); }

    void load(const std::string &path) const
    {
        m_dataSource->AsyncLoadExternalDataSource(path, [] {});
        m_dataSource->WaitForLoadingComplete();
    }

    static void expectFailureLog(const std::string &path)
    {
        QTest::ignoreMessage(QtWarningMsg, ("Failed load external format " + path).c_str());
    }
};

void tst_OLFmtPresetDataSource_LoadFailures::aDescriptionThatCannotBeReadIsLoggedOnce_data()
{
    QTest::addColumn<std::string>("path");
    const auto fileOf = [&](const char *title, const QByteArray &bytes) {
        QTest::newRow(title) << m_folder.Write(QString::fromLatin1(title) + u".json"_s, bytes);
    };
    QTest::newRow("missing") << m_folder.PathOf(u"missing.json"_s);
    QTest::newRow("missing, beyond ASCII") << m_folder.PathOf(u"Größe 動画 𐐀/missing é.json"_s);
#ifdef Q_OS_WIN
    QTest::newRow("missing, backslashes") << "C:\\größe\\missing.json"s;
#endif
    QTest::newRow("percent signs") << m_folder.PathOf(u"%s%d%n.json"_s);
    QTest::newRow("no path") << ""s;
    QTest::newRow("folder") << m_folder.PathOf({});
#ifdef Q_OS_LINUX
    QTest::newRow("device") << "/dev/zero"s;
    QTest::newRow("error while reading") << "/proc/self/mem"s;
#endif
    fileOf("empty", {});
    fileOf("white space", " \n\t");
    fileOf("truncated", Test::Description("Formats").chopped(1));
    fileOf("not JSON", "<formats version=\"1\"/>");
    fileOf("two documents", Test::Description("A") + Test::Description("B"));
    fileOf("zero bytes", QByteArray(4096, '\0'));
    fileOf("not UTF-8", Test::Description("\xFF\xFE"));
    fileOf("nodes 1100 levels deep", Test::DeepDescription(1'100));
    fileOf("arrays 1100 levels deep", QByteArray(1'100, '[') + QByteArray(1'100, ']'));
    fileOf("arrays a million levels deep", QByteArray(1'000'000, '['));
}

void tst_OLFmtPresetDataSource_LoadFailures::aDescriptionThatCannotBeReadIsLoggedOnce()
{
    QFETCH(const std::string, path);
    expectFailureLog(path);
    load(path);
    QVERIFY(!m_dataSource->GetDefaultFormatNode());
    QVERIFY(!m_dataSource->GetDefaultFormatNode());
}

// Nothing but the permission is missing: with it, the same description is read.
void tst_OLFmtPresetDataSource_LoadFailures::aDescriptionWithoutPermissionIsLoggedOnce()
{
    const Test::WithoutRights withoutRights;
    if (!Test::WithoutRights::PermissionsHold())
        QSKIP("permissions hold for no user that this process can be");
    const Test::FormatFolder folder;
    const std::string path = folder.Write(u"forbidden.json"_s, Test::Description("Formats"));
    QFile file(QString::fromStdString(path));
    QVERIFY(file.setPermissions({}));
    expectFailureLog(path);
    load(path);
    QVERIFY(!m_dataSource->GetDefaultFormatNode());

    QVERIFY(file.setPermissions(QFile::ReadOwner));
    load(path);
    QVERIFY(m_dataSource->GetDefaultFormatNode());
}

void tst_OLFmtPresetDataSource_LoadFailures::
        aDescriptionThatBreaksTheLayoutGivesNoTreeSilently_data()
{
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char *title, const char *text) {
        QTest::newRow(title) << QByteArray(text);
    };
    row("number", "42");
    row("text", R"("Formats")");
    row("null", "null");
    row("array", "[]");
    row("empty object", "{}");
    row("no version", R"({"root":{"name":"Formats"}})");
    row("later version", R"({"version":2,"root":{"name":"Formats"}})");
    row("version as text", R"({"version":"1","root":{"name":"Formats"}})");
    row("no root", R"({"version":1})");
    row("root as array", R"({"version":1,"root":[{"name":"Formats"}]})");
    row("no name", R"({"version":1,"root":{"description":"Formats"}})");
    row("name as number", R"({"version":1,"root":{"name":1}})");
    row("face id as text", R"({"version":1,"root":{"name":"Formats","faceId":"1"}})");
    row("face id as fraction", R"({"version":1,"root":{"name":"Formats","faceId":1.5}})");
    row("face id beyond 32 bits", R"({"version":1,"root":{"name":"Formats","faceId":4294967296}})");
    row("children as object", R"({"version":1,"root":{"name":"Formats","children":{}}})");
    row("child without name", R"({"version":1,"root":{"name":"Formats","children":[{}]}})");
    row("preset as text", R"({"version":1,"root":{"name":"Formats","presets":["HD"]}})");
    row("unknown member", R"({"version":1,"root":{"name":"Formats","hidden":true}})");
    row("unknown encoders", R"({"version":1,"root":{"name":"Formats","presets":[
        {"name":"HD","video":{"encoders":"none"}}]}})");
}

void tst_OLFmtPresetDataSource_LoadFailures::aDescriptionThatBreaksTheLayoutGivesNoTreeSilently()
{
    QFETCH(const QByteArray, text);
    load(m_folder.Write(u"formats.json"_s, text));
    QVERIFY(!m_dataSource->GetDefaultFormatNode());
}

void tst_OLFmtPresetDataSource_LoadFailures::theActionRunsAfterAFailedLoad()
{
    const std::string path = m_folder.PathOf(u"missing.json"_s);
    std::atomic_int calls = 0;
    expectFailureLog(path);
    m_dataSource->AsyncLoadExternalDataSource(path, [&] { ++calls; });
    m_dataSource->WaitForLoadingComplete();
    QCOMPARE(calls.load(), 1);
}

// The load is stopped inside its log line: a call that waited for it would never return.
void tst_OLFmtPresetDataSource_LoadFailures::askingForTheTreeDoesNotWaitForALoadThatIsHeldUp()
{
    std::atomic_bool actionRan = false;
    const QtMessageHandler usualHandler = qInstallMessageHandler(HoldLog);
    m_dataSource->AsyncLoadExternalDataSource(m_folder.PathOf(u"missing.json"_s),
                                              [&] { actionRan = true; });
    logReached.acquire();
    const auto during = m_dataSource->GetDefaultFormatNode();
    const bool ranDuring = actionRan;
    logMayReturn.release();
    m_dataSource->WaitForLoadingComplete();
    qInstallMessageHandler(usualHandler);
    QVERIFY(!during);
    QVERIFY(!ranDuring);
    QVERIFY(actionRan);
}

void tst_OLFmtPresetDataSource_LoadFailures::aLaterLoadMaySucceed_data()
{
    QTest::addColumn<bool>("collected");
    QTest::newRow("the empty result was collected") << true;
    QTest::newRow("the empty result was not collected") << false;
}

void tst_OLFmtPresetDataSource_LoadFailures::aLaterLoadMaySucceed()
{
    QFETCH(const bool, collected);
    const std::string path = m_folder.PathOf(u"later.json"_s);
    QFile::remove(QString::fromStdString(path));
    expectFailureLog(path);
    load(path);
    if (collected)
        QVERIFY(!m_dataSource->GetDefaultFormatNode());

    m_folder.Write(u"later.json"_s, Test::Description("Later"));
    load(path);
    QVERIFY(m_dataSource->GetDefaultFormatNode());
    QCOMPARE(m_dataSource->GetDefaultFormatNode()->Name(), "Later"s);
}

void tst_OLFmtPresetDataSource_LoadFailures::aFailedLoadKeepsAnEarlierTree()
{
    load(m_folder.Write(u"formats.json"_s, Test::Description("Formats")));
    const auto tree = m_dataSource->GetDefaultFormatNode();
    QVERIFY(tree);
    const std::string path = m_folder.PathOf(u"missing.json"_s);
    expectFailureLog(path);
    load(path);
    QCOMPARE(m_dataSource->GetDefaultFormatNode().get(), tree.get());
}

void tst_OLFmtPresetDataSource_LoadFailures::aTreeOfFiveHundredLevelsIsRead()
{
    constexpr int levels = 500;
    load(m_folder.Write(u"deep.json"_s, Test::DeepDescription(levels)));
    auto node = m_dataSource->GetDefaultFormatNode();
    int counted = 0;
    for (; node; node = node->FirstChild())
        ++counted;
    QCOMPARE(counted, levels);
}

ORLIMO_TEST_MAIN(tst_OLFmtPresetDataSource_LoadFailures)

#include "tst_olfmtpresetdatasource_loadfailures.moc"
