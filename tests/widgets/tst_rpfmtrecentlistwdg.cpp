#include "TestCase.h"

#include "PickerData.h"
#include "RPFmtItemDataWdg.h"
#include "RPFmtRecentListWdg.h"
#include "RowClicks.h"
#include "SampleDescription.h"
#include "TreeBuilder.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <QLabel>
#include <QPointer>

using namespace Orlimo;
using Test::ActionBoxOnScreen;
using Test::ClickAction;
using Test::ClickOnScreen;
using Test::ClickRow;
using Test::RowOnScreen;
using Test::RowTitles;

namespace {

using namespace Qt::StringLiterals;

constexpr char recentKey[] = "recent_format_preset";

std::shared_ptr<IOLFmtPresetDataSource> DataSource()
{
    return IOLFmtPresetDataSource::Shared();
}

} // namespace

class tst_RPFmtRecentListWdg : public Test::TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<RPFmtRecentListWdg> page;
    QList<std::shared_ptr<IOLFmtPresetRecentItem>> choices;

    void prepare() override
    {
        Test::ForgetPresets();
        Test::ForgetStoredTree(recentKey);
        choices.clear();
        page = std::make_unique<RPFmtRecentListWdg>(nullptr);
        page->recentSelected = [this](auto item) { choices.append(item); };
        page->setGeometry(50, 50, 700, 400);
        page->show();
        QVERIFY(QTest::qWaitForWindowExposed(page.get()));
    }

    // Adds choices, of which the last given is the newest, and shows them.
    void showRecent(std::initializer_list<const char *> names)
    {
        for (const char *name : names)
            DataSource()->AddRecentPreset(Test::MakePreset(name), Test::MakeNode("", "usual"));
        page->RefreshRecentList();
    }

    QListWidget &list() const { return *page->List(); }

    RPFmtItemDataWdg *rowAt(int index) const
    {
        return qobject_cast<RPFmtItemDataWdg *>(list().itemWidget(list().item(index)));
    }

private Q_SLOTS:
    void cleanup() { page.reset(); }

    void withoutRecentChoicesThePageIsEmpty()
    {
        page->RefreshRecentList();
        QCOMPARE(list().count(), 0);
        QCOMPARE(list().currentRow(), -1);
    }

    void aNewPageIsEmptyThoughThereAreChoices()
    {
        showRecent({ "one", "two" });
        const RPFmtRecentListWdg newPage(nullptr);
        QCOMPARE(newPage.List()->count(), 0);
    }

    void recentChoicesAreShownNewestFirst()
    {
        showRecent({ "one", "two", "three" });
        QCOMPARE(RowTitles(list()), QStringList({ u"three"_s, u"two"_s, u"one"_s }));
        QCOMPARE(list().currentRow(), 0);
        const auto items = DataSource()->GetRecentItems();
        for (int i = 0; i < 3; ++i)
            QCOMPARE(rowAt(i)->recentItem, items.at(static_cast<std::size_t>(i)));
    }

    void rowsAreFiftyThreePixelsHighAndTrackTheMouse()
    {
        showRecent({ "one", "two" });
        list().doItemsLayout();
        QCOMPARE(list().item(1)->sizeHint(), QSize(0, 53));
        QCOMPARE(rowAt(1)->geometry(), QRect(0, 53, list().viewport()->width(), 53));
        QVERIFY(rowAt(1)->hasMouseTracking());
    }

    void theActionOfARowIsToDeleteIt()
    {
        showRecent({ "one" });
        const QIcon expected(u":/OLMediaFormatPopup/trash.png"_s);
        QCOMPARE(rowAt(0)->actionIcon.pixmap(64, 64).toImage(), expected.pixmap(64, 64).toImage());
        QCOMPARE(rowAt(0)->actionIcon.availableSizes(), expected.availableSizes());
    }

    void aRefreshShowsANewChoiceAndSelectsIt()
    {
        showRecent({ "one", "two" });
        list().setCurrentRow(1);
        showRecent({ "three" });
        QCOMPARE(RowTitles(list()), QStringList({ u"three"_s, u"two"_s, u"one"_s }));
        QCOMPARE(list().currentRow(), 0);
    }

    void aRefreshAfterTheChoicesHaveGoneEmptiesThePage()
    {
        showRecent({ "one", "two" });
        for (const auto &item : DataSource()->GetRecentItems())
            QVERIFY(DataSource()->RemoveRecentItem(item));
        page->RefreshRecentList();
        QCOMPARE(list().count(), 0);
        QCOMPARE(list().currentRow(), -1);
    }

    void aClickOnARowChoosesIt()
    {
        showRecent({ "one", "two" });
        ClickRow(list(), 1);
        QCOMPARE(choices.size(), 1);
        QCOMPARE(choices.first(), DataSource()->GetRecentItems().at(1));
        QCOMPARE(list().count(), 2);
        QVERIFY(!Test::StoredTree(recentKey));
    }

    void aClickOnTheActionDeletesTheChoiceAndSaves()
    {
        showRecent({ "one", "two", "three" });
        const QPointer<RPFmtItemDataWdg> first = rowAt(0);
        const QPointer<RPFmtItemDataWdg> last = rowAt(2);
        Test::ClickTrashOfRecent(list(), 1);
        QCOMPARE(RowTitles(list()), QStringList({ u"three"_s, u"one"_s }));
        QVERIFY(first && last); // the list is not filled anew
        QCOMPARE(rowAt(0), first.get());
        QCOMPARE(rowAt(1), last.get());
        const auto items = DataSource()->GetRecentItems();
        QCOMPARE(items.size(), std::size_t(2));
        QCOMPARE(items.at(0)->GetDisplayName(), std::string("three"));
        QCOMPARE(items.at(1)->GetDisplayName(), std::string("one"));
        const auto stored = Test::StoredTree(recentKey);
        QVERIFY(stored);
        QCOMPARE(stored->ChildCount(), 2);
        QVERIFY(choices.isEmpty());
    }

    void deletingTheOnlyChoiceEmptiesThePage()
    {
        showRecent({ "one" });
        Test::ClickTrashOfRecent(list(), 0);
        QCOMPARE(list().count(), 0);
        QCOMPARE(list().currentRow(), -1);
        QVERIFY(DataSource()->GetRecentItems().empty());
    }

    void aChoiceThatIsAlreadyGoneStillLeavesTheList()
    {
        showRecent({ "one", "two" });
        QVERIFY(DataSource()->RemoveRecentItem(rowAt(1)->recentItem));
        Test::ClickTrashOfRecent(list(), 1);
        QCOMPARE(RowTitles(list()), QStringList({ u"two"_s }));
        QCOMPARE(DataSource()->GetRecentItems().size(), std::size_t(1));
    }

    void theItemOfTheDeletedRowLivesOn()
    {
        showRecent({ "one", "two" });
        const auto attached = std::make_shared<int>(0);
        QListWidgetItem *item = list().item(1);
        item->setData(Qt::UserRole, QVariant::fromValue(attached));
        ClickAction(list(), 1);
        QCOMPARE(list().count(), 1);
        QCOMPARE(attached.use_count(), 2);
        QVERIFY(!item->listWidget());
        delete item;
    }

    void theEdgesOfTheActionBoxBelongToIt_data()
    {
        QTest::addColumn<int>("fromRight");
        QTest::addColumn<int>("fromMiddle");
        QTest::addColumn<bool>("deletes");
        QTest::newRow("left edge") << 27 << 0 << true;
        QTest::newRow("right edge") << 11 << 0 << true;
        QTest::newRow("top edge") << 19 << -8 << true;
        QTest::newRow("bottom edge") << 19 << 8 << true;
        QTest::newRow("top right corner") << 11 << -8 << true;
        QTest::newRow("bottom left corner") << 27 << 8 << true;
        QTest::newRow("left of it") << 28 << 0 << false;
        QTest::newRow("above it") << 19 << -9 << false;
        QTest::newRow("below it") << 19 << 9 << false;
        for (int i = 0; i < 11; ++i)
            QTest::addRow("%d from the right", i) << i << 0 << false;
    }

    void theEdgesOfTheActionBoxBelongToIt()
    {
        QFETCH(const int, fromRight);
        QFETCH(const int, fromMiddle);
        QFETCH(const bool, deletes);
        showRecent({ "one", "two" });
        const QRect row = RowOnScreen(list(), 1);
        const QListWidgetItem *item = list().item(1);
        ClickOnScreen(list(), { row.right() - fromRight, row.center().y() + fromMiddle });
        QCOMPARE(list().count(), deletes ? 1 : 2);
        QCOMPARE(choices.size(), deletes ? 0 : 1);
        if (deletes)
            delete item;
    }

    void theMousePointerDecidesNotTheIconOrThePointOfTheEvent()
    {
        showRecent({ "one", "two" });
        rowAt(1)->actionIcon = QIcon();
        QCursor::setPos(ActionBoxOnScreen(list(), 1).center());
        const std::unique_ptr<QListWidgetItem> item(list().item(1));
        const QRect row = list().visualItemRect(item.get());
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, row.topLeft() + QPoint(20, 20));
        QCOMPARE(RowTitles(list()), QStringList({ u"two"_s }));
        QVERIFY(choices.isEmpty());
    }

    void withoutACallbackAClickDoesNothing()
    {
        showRecent({ "one" });
        page->recentSelected = nullptr;
        ClickRow(list(), 0);
        QCOMPARE(RowTitles(list()), QStringList({ u"one"_s }));
    }

    void aRowWithoutAnItemWidgetOfItsKindIsIgnored()
    {
        showRecent({ "one" });
        for (const bool labelled : { false, true }) {
            auto *item = new QListWidgetItem(&list());
            item->setSizeHint(QSize(0, 53));
            if (labelled)
                list().setItemWidget(item, new QLabel);
            list().doItemsLayout();
            ClickRow(list(), list().row(item));
            ClickAction(list(), list().row(item));
            QCOMPARE(list().currentItem(), item);
        }
        QCOMPARE(list().count(), 3);
        QVERIFY(choices.isEmpty());
    }

    void aCallbackMayRefreshTheList()
    {
        showRecent({ "one", "two" });
        page->recentSelected = [this](const std::shared_ptr<IOLFmtPresetRecentItem> &item) {
            DataSource()->AddRecentItem(item);
            page->RefreshRecentList();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCOMPARE(item->GetDisplayName(), std::string("one"));
        };
        ClickRow(list(), 1);
        QCOMPARE(RowTitles(list()), QStringList({ u"one"_s, u"two"_s }));
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtRecentListWdg)

#include "tst_rpfmtrecentlistwdg.moc"
