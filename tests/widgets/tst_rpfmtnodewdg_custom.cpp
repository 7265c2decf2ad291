#include "TestCase.h"

#include "PickerData.h"
#include "RPFmtNodeWdg.h"
#include "RowClicks.h"
#include "SampleDescription.h"
#include "TreeBuilder.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <QPointer>

using namespace Orlimo;
using Test::ClickAction;
using Test::ClickRow;
using Test::RowTitles;

namespace {

using namespace Qt::StringLiterals;

constexpr char customKey[] = "custom_format_preset";

// "MP4: a, b" for every format with its presets.
QStringList Contents(const std::shared_ptr<IOLFormatNode> &tree)
{
    QStringList formats;
    for (int i = 0; tree && i < tree->ChildCount(); ++i) {
        const auto format = tree->ChildAt(i);
        QStringList presets;
        for (int j = 0; j < format->PresetCount(); ++j)
            presets.append(QString::fromStdString(format->PresetAt(j)->Name()));
        formats.append(QString::fromStdString(format->Name()) + u": "_s + presets.join(u", "_s));
    }
    return formats;
}

QStringList CustomPresets()
{
    return Contents(IOLFmtPresetDataSource::Shared()->GetCustomFormatNode());
}

} // namespace

// Deleting presets on the page of custom presets.
class tst_RPFmtNodeWdg_Custom : public Test::TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<RPFmtNodeWdg> page;
    int reports = 0;

    void prepare() override
    {
        Test::ForgetPresets();
        Test::ForgetStoredTree(customKey);
        reports = 0;
        page = std::make_unique<RPFmtNodeWdg>(nullptr);
        page->formatSelected = [this](auto, auto) { ++reports; };
        page->formatEditRequested = [this](auto, auto) { ++reports; };
    }

    // Shows these custom presets of each format.
    void show(std::initializer_list<std::shared_ptr<IOLFormatNode>> formats)
    {
        const auto dataSource = IOLFmtPresetDataSource::Shared();
        for (const auto &format : formats) {
            for (int i = 0; i < format->PresetCount(); ++i)
                dataSource->AddCustomPreset(format->PresetAt(i), format);
        }
        page->SetFormatNode(dataSource->GetCustomFormatNode(), true);
        page->setGeometry(50, 50, 700, 400);
        page->show();
        QVERIFY(QTest::qWaitForWindowExposed(page.get()));
    }

    void showThreeFormats()
    {
        show({ Test::MakeFormat("MP4", { "mine" }), Test::MakeFormat("AVI", { "old", "older" }),
               Test::MakeFormat("MKV", { "big" }) });
    }

    QListWidget &nodes() const { return *page->NodeList(); }
    QListWidget &formats() const { return *page->FormatList(); }

    void compareLists(const QStringList &nodeTitles, const QStringList &formatTitles) const
    {
        QCOMPARE(RowTitles(nodes()), nodeTitles);
        QCOMPARE(RowTitles(formats()), formatTitles);
    }

private Q_SLOTS:
    void cleanup() { page.reset(); }

    void aClickBesideTheActionChoosesThePreset()
    {
        showThreeFormats();
        ClickRow(formats(), 0);
        QCOMPARE(reports, 1);
        QCOMPARE(formats().count(), 1);
        QVERIFY(!Test::StoredTree(customKey));
    }

    void aClickOnTheActionDeletesThePresetAndSaves()
    {
        show({ Test::MakeFormat("MP4", { "first", "second", "third" }) });
        ClickAction(formats(), 1);
        compareLists({ u"MP4"_s }, { u"first"_s, u"third"_s });
        QCOMPARE(CustomPresets(), QStringList({ u"MP4: first, third"_s }));
        QCOMPARE(Contents(Test::StoredTree(customKey)), QStringList({ u"MP4: first, third"_s }));
        QCOMPARE(reports, 0);
    }

    void onlyTheDeletedRowLeavesTheList()
    {
        show({ Test::MakeFormat("MP4", { "first", "second", "third" }) });
        const QPointer<QWidget> first = formats().itemWidget(formats().item(0));
        const QPointer<QWidget> third = formats().itemWidget(formats().item(2));
        ClickAction(formats(), 1);
        QVERIFY(first && third);
        QCOMPARE(formats().itemWidget(formats().item(0)), first.get());
        QCOMPARE(formats().itemWidget(formats().item(1)), third.get());
    }

    void theItemOfTheDeletedRowIsDeleted()
    {
        show({ Test::MakeFormat("MP4", { "first", "second" }) });
        const auto attached = std::make_shared<int>(0);
        formats().item(0)->setData(Qt::UserRole, QVariant::fromValue(attached));
        QCOMPARE(attached.use_count(), 2);
        ClickAction(formats(), 0);
        QTRY_COMPARE(attached.use_count(), 1);
    }

    void theItemIsThereForEveryListenerOfTheClickThatDeletesIt()
    {
        show({ Test::MakeFormat("MP4", { "first", "second" }) });
        QSize hint;
        connect(&formats(), &QListWidget::itemClicked, this,
                [&hint](QListWidgetItem *item) { hint = item->sizeHint(); });
        ClickAction(formats(), 0);
        QCOMPARE(hint, QSize(0, 53));
    }

    void deletingTheLastPresetDeletesTheFormat_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QStringList>("nodes");
        QTest::addColumn<int>("current");
        QTest::addColumn<QStringList>("presets");
        QTest::newRow("first format") << 0 << QStringList { u"AVI"_s, u"MKV"_s } << 0
                                      << QStringList { u"old"_s, u"older"_s };
        QTest::newRow("last format") << 2 << QStringList { u"MP4"_s, u"AVI"_s } << 1
                                     << QStringList { u"old"_s, u"older"_s };
    }

    void deletingTheLastPresetDeletesTheFormat()
    {
        QFETCH(const int, row);
        QFETCH(const int, current);
        showThreeFormats();
        ClickRow(nodes(), row);
        const auto attached = std::make_shared<int>(0);
        nodes().item(row)->setData(Qt::UserRole, QVariant::fromValue(attached));
        ClickAction(formats(), 0);
        QTEST(RowTitles(nodes()), "nodes");
        QTEST(RowTitles(formats()), "presets");
        QCOMPARE(nodes().currentRow(), current);
        QCOMPARE(formats().currentRow(), 0);
        QCOMPARE(attached.use_count(), 1);
        QCOMPARE(CustomPresets().size(), 2);
        QCOMPARE(Contents(Test::StoredTree(customKey)), CustomPresets());
        QCOMPARE(reports, 0);
    }

    void theNextFormatTakesThePlaceOfADeletedOneBetween()
    {
        showThreeFormats();
        ClickRow(nodes(), 1);
        ClickAction(formats(), 0);
        ClickAction(formats(), 0);
        compareLists({ u"MP4"_s, u"MKV"_s }, { u"big"_s });
        QCOMPARE(nodes().currentRow(), 1);
    }

    void thePresetsOfTheFormatThatBecameCurrentCanBeDeleted()
    {
        showThreeFormats();
        ClickAction(formats(), 0);
        ClickAction(formats(), 1);
        compareLists({ u"AVI"_s, u"MKV"_s }, { u"old"_s });
        QCOMPARE(CustomPresets(), QStringList({ u"AVI: old"_s, u"MKV: big"_s }));
    }

    void deletingTheOnlyPresetEmptiesTheLists()
    {
        show({ Test::MakeFormat("MP4", { "mine" }) });
        ClickAction(formats(), 0);
        compareLists({}, {});
        QCOMPARE(nodes().currentRow(), -1);
        QCOMPARE(CustomPresets(), QStringList());
        QVERIFY(Test::StoredTree(customKey));
        QCOMPARE(Contents(Test::StoredTree(customKey)), QStringList());
    }

    void deletingInASearchDeletesFromTheDataAndTheResult()
    {
        show({ Test::MakeFormat("MP4", { "fast one", "fast two", "slow" }),
               Test::MakeFormat("AVI", { "fast three" }) });
        page->SearchFormat(u"fast"_s);
        ClickAction(formats(), 0);
        compareLists({ u"MP4"_s, u"AVI"_s }, { u"fast two"_s });
        QCOMPARE(CustomPresets(), QStringList({ u"MP4: fast two, slow"_s, u"AVI: fast three"_s }));
        QCOMPARE(Contents(Test::StoredTree(customKey)), CustomPresets());
        ClickRow(nodes(), 1);
        ClickRow(nodes(), 0);
        compareLists({ u"MP4"_s, u"AVI"_s }, { u"fast two"_s });
    }

    void theLastMatchOfAFormatTakesItOutOfTheResultAlone()
    {
        show({ Test::MakeFormat("MP4", { "fast", "slow" }), Test::MakeFormat("AVI", { "fast" }) });
        page->SearchFormat(u"fast"_s);
        ClickAction(formats(), 0);
        compareLists({ u"AVI"_s }, { u"fast"_s });
        QCOMPARE(CustomPresets(), QStringList({ u"MP4: slow"_s, u"AVI: fast"_s }));
        page->ResetSearch();
        compareLists({ u"MP4"_s, u"AVI"_s }, { u"slow"_s });
    }

    void deletingAllMatchesEmptiesTheListsUntilTheSearchEnds()
    {
        show({ Test::MakeFormat("MP4", { "fast", "slow" }) });
        page->SearchFormat(u"fast"_s);
        ClickAction(formats(), 0);
        compareLists({}, {});
        page->SearchFormat(QString());
        compareLists({ u"MP4"_s }, { u"slow"_s });
    }

    void anotherPageOfTheSamePresetsEditsInsteadOfDeleting()
    {
        showThreeFormats();
        page->SetFormatNode(IOLFmtPresetDataSource::Shared()->GetCustomFormatNode(), false);
        ClickAction(formats(), 0);
        QCOMPARE(reports, 1);
        QCOMPARE(CustomPresets().size(), 3);
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtNodeWdg_Custom)

#include "tst_rpfmtnodewdg_custom.moc"
