#include "CatalogueBuilder.h"
#include "TestCase.h"

#include "RPFmtItemDataWdg.h"
#include "RPFmtRows.h"
#include "TreeBuilder.h"

#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <QListWidget>
#include <QPointer>

using namespace Orlimo;

namespace {

using namespace Qt::StringLiterals;

// Adds a row as a list without FillRows() would: its item, and its widget, whose font is set last.
template<class SetUpRow>
void AddRow(QListWidget &list, int index, const SetUpRow &setUpRow)
{
    auto *row = new RPFmtItemDataWdg(&list);
    row->setFont(QFont());
    row->setFont(QFont({ u"Microsoft New Tai Lue"_s }, 10));
    row->setMouseTracking(true);
    setUpRow(*row, index);
    auto *item = new QListWidgetItem(&list);
    item->setSizeHint(QSize(0, 53));
    list.setItemWidget(item, row);
}

// A list that fill() has filled, in a window of a host.
class ListInHost
{
public:
    template<class Fill>
    ListInHost(const QString &hostSheet, const QString &listSheet, const Fill &fill)
    {
        m_host.setStyleSheet(hostSheet);
        m_list->setStyleSheet(listSheet);
        m_list->setGeometry(0, 0, 400, 300);
        m_host.resize(m_list->size());
        fill(*m_list);
        m_list->setCurrentRow(1);
        m_host.show();
    }

    const QListWidget &List() const { return *m_list; }
    QImage Image() const { return m_list->grab().toImage(); }

private:
    QWidget m_host;
    QListWidget *const m_list = new QListWidget(&m_host);
};

} // namespace

class tst_RPFmtRows : public Test::TestCase
{
    Q_OBJECT

private:
    static RPFmtItemDataWdg *rowAt(const QListWidget &list, int index)
    {
        return qobject_cast<RPFmtItemDataWdg *>(list.itemWidget(list.item(index)));
    }

private Q_SLOTS:
    void noRowsLeaveTheListEmpty()
    {
        QListWidget list;
        FillRows(list, 0, [](RPFmtItemDataWdg &, int) { QFAIL("there is no row to set up"); });
        QCOMPARE(list.count(), 0);
    }

    void everyRowIsSetUpOnceAndInOrder()
    {
        QListWidget list;
        QList<int> indices;
        QList<RPFmtItemDataWdg *> rows;
        FillRows(list, 3, [&](RPFmtItemDataWdg &row, int index) {
            indices.append(index);
            rows.append(&row);
        });
        QCOMPARE(indices, QList({ 0, 1, 2 }));
        for (int i = 0; i < 3; ++i)
            QCOMPARE(rowAt(list, i), rows.at(i));
    }

    void allItemsAreAddedBeforeTheFirstRowWidget()
    {
        QListWidget list;
        QList<int> counts;
        FillRows(list, 3, [&](RPFmtItemDataWdg &, int) { counts.append(list.count()); });
        QCOMPARE(counts, QList({ 3, 3, 3 }));
    }

    void rowsLookLikeThoseThatAreAddedOneByOne_data()
    {
        QTest::addColumn<QString>("listSheet");
        QTest::addColumn<QString>("hostSheet");
        const QString hover = u"QListWidget::item:selected { background-color: red; }"_s;
        const QString font = u"QWidget { font-family: Serif; font-size: 20pt; }"_s;
        QTest::newRow("no style sheet") << QString() << QString();
        QTest::newRow("sheet of the list") << hover << QString();
        QTest::newRow("fonts of the host") << QString() << font;
        QTest::newRow("both") << hover << font;
        QTest::newRow("sheet of the list for rows")
                << u"Orlimo--RPFmtItemDataWdg { color: blue; font-size: 15pt; }"_s << QString();
    }

    void rowsLookLikeThoseThatAreAddedOneByOne()
    {
        QFETCH(const QString, listSheet);
        QFETCH(const QString, hostSheet);
        const auto setUpRow = [](RPFmtItemDataWdg &row, int index) {
            row.preset = Test::MakePreset("HD " + std::to_string(index), "H.264");
        };
        const ListInHost filled(hostSheet, listSheet,
                                [&](QListWidget &list) { FillRows(list, 4, setUpRow); });
        const ListInHost plain(hostSheet, listSheet, [&](QListWidget &list) {
            for (int i = 0; i < 4; ++i)
                AddRow(list, i, setUpRow);
        });
        QCOMPARE(filled.Image(), plain.Image());
        for (int i = 0; i < 4; ++i) {
            const RPFmtItemDataWdg &row = *rowAt(filled.List(), i);
            const RPFmtItemDataWdg &other = *rowAt(plain.List(), i);
            QCOMPARE(row.font(), other.font());
            QCOMPARE(row.palette(), other.palette());
            QCOMPARE(row.geometry(), other.geometry());
        }
    }

    void everyRowHasTheHeightOfTheLists()
    {
        QListWidget list;
        FillRows(list, 2, [](RPFmtItemDataWdg &row, int) { row.preset = Test::MakePreset("HD"); });
        list.resize(300, 300);
        list.grab(); // lays the rows out
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(list.item(i)->sizeHint(), QSize(0, 53));
            QCOMPARE(list.visualItemRect(list.item(i)).height(), 53);
            QCOMPARE(rowAt(list, i)->size(), QSize(list.viewport()->width(), 53));
        }
    }

    void rowsTrackTheMouseAndBelongToTheList()
    {
        QListWidget list;
        FillRows(list, 1, [](RPFmtItemDataWdg &row, int) { QVERIFY(row.hasMouseTracking()); });
        QVERIFY(rowAt(list, 0)->hasMouseTracking());
        QVERIFY(list.isAncestorOf(rowAt(list, 0)));
        const QPointer<QWidget> row = rowAt(list, 0);
        list.clear();
        QTRY_VERIFY(row.isNull());
    }

    void theTextsOfTheRowsAreAccessible()
    {
        QListWidget list;
        FillRows(list, 2, [](RPFmtItemDataWdg &row, int index) {
            if (index == 0)
                row.node = Test::MakeNode("MP4", "MP4 file format");
            else
                row.preset = Test::MakePreset("HD 720P", "H.264");
        });
        QCOMPARE(list.item(0)->data(Qt::AccessibleTextRole), QVariant(u"MP4"_s));
        QCOMPARE(list.item(0)->data(Qt::AccessibleDescriptionRole).toString(), QString());
        QCOMPARE(list.item(1)->data(Qt::AccessibleTextRole), QVariant(u"HD 720P"_s));
        QCOMPARE(list.item(1)->data(Qt::AccessibleDescriptionRole), QVariant(u"H.264"_s));
        QCOMPARE(list.item(0)->text(), QString());
    }

    void theAccessibleTextsFollowALaterChangeOfLanguage()
    {
        QListWidget list;
        FillRows(list, 1, [](RPFmtItemDataWdg &row, int) {
            row.preset = Test::MakePreset("Best", "High Quality");
        });
        const Test::InstalledCatalogue catalogue(
                { { "RPObject", "Best", u"Beste"_s }, { "RPObject", "High Quality", u"Hoch"_s } });
        QCOMPARE(list.item(0)->data(Qt::AccessibleTextRole), QVariant(u"Beste"_s));
        QCOMPARE(list.item(0)->data(Qt::AccessibleDescriptionRole), QVariant(u"Hoch"_s));
    }

    void anItemThatIsTakenOutHasNoAccessibleTexts()
    {
        QListWidget list;
        FillRows(list, 1,
                 [](RPFmtItemDataWdg &row, int) { row.preset = Test::MakePreset("Best", "AAC"); });
        const std::unique_ptr<QListWidgetItem> item(list.takeItem(0));
        QCOMPARE(item->data(Qt::AccessibleTextRole).toString(), QString());
        QCOMPARE(item->data(Qt::AccessibleDescriptionRole).toString(), QString());
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtRows)

#include "tst_rpfmtrows.moc"
