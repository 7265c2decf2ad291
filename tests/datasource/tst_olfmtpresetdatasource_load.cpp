#include "TestCase.h"

#include "FormatFiles.h"
#include "FormatObjects.h"
#include "PathForms.h"

#include "OLFmtPresetDataSource.h"

#include <QSemaphore>

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::literals;

using Orlimo::IOLFmtPresetDataSource;
using Orlimo::OLFmtPresetDataSource;
using Test::Node;

namespace {

// A description that takes a parser far longer than a caller may be kept waiting.
QByteArray LargeDescription()
{
    const QByteArray preset = R"({"name":"Preset","description":"one of many","format":"MP4"},)";
    return R"({"version":1,"root":{"name":"Large","presets":[)" + preset.repeated(300'000)
            + R"({"name":"last"}]}})";
}

} // namespace

class tst_OLFmtPresetDataSource_Load : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theTreeIsThatOfTheDescription();
    void theTreeStaysTheSameObject();
    void theTreeIsNotThereBeforeItIsParsed();
    void theTreeIsReadyWhenTheActionRuns();
    void theTreeMayBeCollectedBeforeWaiting();
    void collectingAtOnceDisturbsNoLoadingThread();
    void theTreeOutlivesTheDataSource();
    void theActionRunsOnceOnAThreadOfItsOwn();
    void waitingLastsUntilTheActionHasReturned();
    void waitingWithoutALoadDoesNothing();
    void waitingTwiceIsAllowed();
    void theActionIsLetGoAfterTheLoad();
    void thePathIsCopied();
    void thePathMayHaveEveryForm_data();
    void thePathMayHaveEveryForm();
    void thePathMayBeAnyUnicodeText();
    void aSecondLoadKeepsTheFirstTree();
    void aSecondLoadDropsATreeThatWasNotCollected();
    void loadsOfDifferentDataSourcesAreIndependent();

private:
    Test::FormatFolder m_folder;
    std::string m_description;
    std::shared_ptr<IOLFmtPresetDataSource> m_dataSource;

    void prepare() override
    {
        m_description = m_folder.Write(u"formats.json"_s, Test::Description("Formats"));
        m_dataSource = std::make_shared<OLFmtPresetDataSource>();
    }

    void load(const std::string &path) const
    {
        m_dataSource->AsyncLoadExternalDataSource(path, [] {});
        m_dataSource->WaitForLoadingComplete();
    }
};

void tst_OLFmtPresetDataSource_Load::theTreeIsThatOfTheDescription()
{
    load(m_folder.Write(u"tree.json"_s, R"({"version":1,"root":{"name":"Formats","children":[
            {"name":"Video","faceId":3,"children":[
                {"name":"MP4","description":"MP4 file format","faceId":1001,"presets":[
                    {"name":"HD"},{"name":"SD"}]}]},
            {"name":"Audio"}]}})"));
    const Node tree = m_dataSource->GetDefaultFormatNode();
    QVERIFY(tree);
    QCOMPARE(tree->Name(), "Formats"s);
    QCOMPARE(Test::ChildNames(*tree), "Video, Audio"s);
    const Node format = tree->ChildAt(0)->ChildAt(0);
    QCOMPARE(format->Description(), "MP4 file format"s);
    QCOMPARE(format->FaceID(), 1001);
    QCOMPARE(Test::PresetNames(*format), "HD, SD"s);
}

void tst_OLFmtPresetDataSource_Load::theTreeStaysTheSameObject()
{
    load(m_description);
    const Node tree = m_dataSource->GetDefaultFormatNode();
    QVERIFY(tree);
    QCOMPARE(m_dataSource->GetDefaultFormatNode().get(), tree.get());
    m_dataSource->WaitForLoadingComplete();
    QCOMPARE(m_dataSource->GetDefaultFormatNode().get(), tree.get());
}

void tst_OLFmtPresetDataSource_Load::theTreeIsNotThereBeforeItIsParsed()
{
    const std::string large = m_folder.Write(u"large.json"_s, LargeDescription());
    QVERIFY(!m_dataSource->GetDefaultFormatNode());

    m_dataSource->AsyncLoadExternalDataSource(large, [] {});
    const Node during = m_dataSource->GetDefaultFormatNode();
    m_dataSource->WaitForLoadingComplete();
    QVERIFY(!during);

    const Node after = m_dataSource->GetDefaultFormatNode();
    QVERIFY(after);
    QCOMPARE(after->PresetCount(), 300'001);
    QCOMPARE(after->PresetAt(300'000)->Name(), "last"s);
}

void tst_OLFmtPresetDataSource_Load::theTreeIsReadyWhenTheActionRuns()
{
    QSemaphore actionRuns;
    QSemaphore treeCollected;
    m_dataSource->AsyncLoadExternalDataSource(m_description, [&] {
        actionRuns.release();
        treeCollected.acquire();
    });
    actionRuns.acquire();
    const Node tree = m_dataSource->GetDefaultFormatNode();
    treeCollected.release();
    m_dataSource->WaitForLoadingComplete();
    QVERIFY(tree);
}

void tst_OLFmtPresetDataSource_Load::theTreeMayBeCollectedBeforeWaiting()
{
    std::atomic_bool actionRan = false;
    m_dataSource->AsyncLoadExternalDataSource(m_description, [&] { actionRan = true; });
    QTRY_VERIFY(m_dataSource->GetDefaultFormatNode());
    const Node tree = m_dataSource->GetDefaultFormatNode();
    m_dataSource->WaitForLoadingComplete();
    QVERIFY(actionRan);
    QCOMPARE(m_dataSource->GetDefaultFormatNode().get(), tree.get());
}

// The result may be ready, and gone, before the loading thread gets to run at all.
void tst_OLFmtPresetDataSource_Load::collectingAtOnceDisturbsNoLoadingThread()
{
    constexpr int rounds = 500;
    std::atomic_int actions = 0;
    for (int i = 0; i < rounds; ++i) {
        OLFmtPresetDataSource dataSource;
        dataSource.AsyncLoadExternalDataSource(m_description, [&] { ++actions; });
        while (!dataSource.GetDefaultFormatNode()) { }
        dataSource.WaitForLoadingComplete();
    }
    QCOMPARE(actions.load(), rounds);
}

void tst_OLFmtPresetDataSource_Load::theTreeOutlivesTheDataSource()
{
    load(m_description);
    const Node tree = m_dataSource->GetDefaultFormatNode();
    m_dataSource.reset();
    QVERIFY(tree);
    QCOMPARE(tree->Name(), "Formats"s);
}

void tst_OLFmtPresetDataSource_Load::theActionRunsOnceOnAThreadOfItsOwn()
{
    std::atomic_int calls = 0;
    std::thread::id thread;
    m_dataSource->AsyncLoadExternalDataSource(m_description, [&] {
        ++calls;
        thread = std::this_thread::get_id();
    });
    m_dataSource->WaitForLoadingComplete();
    m_dataSource->GetDefaultFormatNode();
    QCOMPARE(calls.load(), 1);
    QVERIFY(thread != std::this_thread::get_id());
}

void tst_OLFmtPresetDataSource_Load::waitingLastsUntilTheActionHasReturned()
{
    QSemaphore mayReturn;
    std::atomic_bool returned = false;
    m_dataSource->AsyncLoadExternalDataSource(m_description, [&] {
        mayReturn.acquire();
        returned = true;
    });
    std::thread releaser([&] { mayReturn.release(); });
    m_dataSource->WaitForLoadingComplete();
    const bool returnedBefore = returned;
    releaser.join();
    QVERIFY(returnedBefore);
}

void tst_OLFmtPresetDataSource_Load::waitingWithoutALoadDoesNothing()
{
    m_dataSource->WaitForLoadingComplete();
    QVERIFY(!m_dataSource->GetDefaultFormatNode());
}

void tst_OLFmtPresetDataSource_Load::waitingTwiceIsAllowed()
{
    load(m_description);
    m_dataSource->WaitForLoadingComplete();
    QVERIFY(m_dataSource->GetDefaultFormatNode());
}

void tst_OLFmtPresetDataSource_Load::theActionIsLetGoAfterTheLoad()
{
    auto held = std::make_shared<int>();
    const std::weak_ptr<int> watch = held;
    m_dataSource->AsyncLoadExternalDataSource(m_description, [held = std::move(held)] {});
    m_dataSource->WaitForLoadingComplete();
    QVERIFY(watch.expired());
}

void tst_OLFmtPresetDataSource_Load::thePathIsCopied()
{
    std::string path = m_description;
    m_dataSource->AsyncLoadExternalDataSource(path, [] {});
    path.assign(path.size(), 'x');
    m_dataSource->WaitForLoadingComplete();
    QVERIFY(m_dataSource->GetDefaultFormatNode());
}

void tst_OLFmtPresetDataSource_Load::thePathMayHaveEveryForm_data()
{
    Test::AddPathForms();
}

void tst_OLFmtPresetDataSource_Load::thePathMayHaveEveryForm()
{
    QFETCH(const Test::PathForm, form);
    m_folder.Write(Test::pathBeyondAscii, Test::Description("Formats"));
    const Test::WorkingFolder workingFolder(m_folder.Path());
    load(form(m_folder.Path(), Test::pathBeyondAscii).toStdString());
    QVERIFY(m_dataSource->GetDefaultFormatNode());
}

void tst_OLFmtPresetDataSource_Load::thePathMayBeAnyUnicodeText()
{
    load(m_folder.Write(u"Größe 動画 %s.d/Форматы.json"_s, Test::Description("Unicode")));
    const Node tree = m_dataSource->GetDefaultFormatNode();
    QVERIFY(tree);
    QCOMPARE(tree->Name(), "Unicode"s);
}

void tst_OLFmtPresetDataSource_Load::aSecondLoadKeepsTheFirstTree()
{
    load(m_description);
    const Node first = m_dataSource->GetDefaultFormatNode();
    QVERIFY(first);

    bool secondActionRan = false;
    m_dataSource->AsyncLoadExternalDataSource(m_folder.Write(u"second.json"_s,
                                                             Test::Description("Second")),
                                              [&] { secondActionRan = true; });
    m_dataSource->WaitForLoadingComplete();
    QVERIFY(secondActionRan);
    QCOMPARE(m_dataSource->GetDefaultFormatNode().get(), first.get());
    QCOMPARE(first->Name(), "Formats"s);
}

void tst_OLFmtPresetDataSource_Load::aSecondLoadDropsATreeThatWasNotCollected()
{
    load(m_description);
    load(m_folder.Write(u"second.json"_s, Test::Description("Second")));
    const Node tree = m_dataSource->GetDefaultFormatNode();
    QVERIFY(tree);
    QCOMPARE(tree->Name(), "Second"s);
}

void tst_OLFmtPresetDataSource_Load::loadsOfDifferentDataSourcesAreIndependent()
{
    OLFmtPresetDataSource other;
    m_dataSource->AsyncLoadExternalDataSource(m_description, [] {});
    other.AsyncLoadExternalDataSource(m_folder.Write(u"other.json"_s, Test::Description("Other")),
                                      [] {});
    other.WaitForLoadingComplete();
    m_dataSource->WaitForLoadingComplete();
    const Node tree = m_dataSource->GetDefaultFormatNode();
    const Node otherTree = other.GetDefaultFormatNode();
    QVERIFY(tree && otherTree);
    QCOMPARE(tree->Name(), "Formats"s);
    QCOMPARE(otherTree->Name(), "Other"s);
}

ORLIMO_TEST_MAIN(tst_OLFmtPresetDataSource_Load)

#include "tst_olfmtpresetdatasource_load.moc"
