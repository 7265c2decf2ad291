#include "CatalogueBuilder.h"
#include "TestCase.h"

#include "RPFmtItemDataWdg.h"
#include "RPFmtRows.h"
#include "TreeBuilder.h"

#include "ui_RPFmtItemDataWdg.h"

#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <QListWidget>
#include <QPointer>

using namespace Orlimo;

namespace {

using namespace Qt::StringLiterals;

auto Always(int count)
{
    return [count] { return count; };
}

// Adds a row as a list without FillRows() would: its item, and its widget.
void AddRow(QListWidget &list, QWidget *row)
{
    auto *item = new QListWidgetItem(&list);
    item->setSizeHint(QSize(0, 53));
    list.setItemWidget(item, row);
}

// A widget in the form of a row that is set up when it has its parent.
QWidget *MakePlainRow(QListWidget &list)
{
    auto *row = new QWidget(&list);
    Ui::RPFmtItemDataWdgClass().setupUi(row);
    row->setMouseTracking(true);
    return row;
}

RPFmtItemDataWdg *MakeRow(QListWidget &list, const std::shared_ptr<IOLFormatPreset> &preset)
{
    auto *row = new RPFmtItemDataWdg(&list);
    row->setMouseTracking(true);
    row->preset = preset;
    return row;
}

// A list that fill() has filled, in a window of a host.
class ListInHost
{
public:
    struct Look
    {
        QString hostSheet;
        QString listSheet;
        bool isVisible; // when it is filled
    };

    template<class Fill>
    ListInHost(const Look &look, const Fill &fill)
    {
        m_host.setStyleSheet(look.hostSheet);
        m_list->setStyleSheet(look.listSheet);
        m_list->setGeometry(0, 0, 400, 300);
        m_host.resize(m_list->size());
        m_host.setVisible(look.isVisible);
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

Q_DECLARE_METATYPE(ListInHost::Look)

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
        FillRows(list, Always(0),
                 [](RPFmtItemDataWdg &, int) { QFAIL("there is no row to set up"); });
        QCOMPARE(list.count(), 0);
    }

    void everyRowIsSetUpOnceAndInOrder()
    {
        QListWidget list;
        QList<int> indices;
        QList<RPFmtItemDataWdg *> rows;
        FillRows(list, Always(3), [&](RPFmtItemDataWdg &row, int index) {
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
        FillRows(list, Always(3), [&](RPFmtItemDataWdg &, int) { counts.append(list.count()); });
        QCOMPARE(counts, QList({ 3, 3, 3 }));
    }

    void rowsLookLikeThoseThatAreAddedOneByOne_data()
    {
        QTest::addColumn<ListInHost::Look>("look");
        const QString hover = u"QListWidget::item:selected { background-color: red; }"_s;
        const QString font = u"QWidget { font-family: Serif; font-size: 20pt; }"_s;
        const QString rows = u"Orlimo--RPFmtItemDataWdg { color: blue; font-size: 15pt; }"_s;
        using Look = ListInHost::Look;
        for (const bool isVisible : { false, true }) {
            const char *state = isVisible ? "visible" : "hidden";
            QTest::addRow("no style sheet, %s", state) << Look { {}, {}, isVisible };
            QTest::addRow("sheet of the list, %s", state) << Look { {}, hover, isVisible };
            QTest::addRow("fonts of the host, %s", state) << Look { font, {}, isVisible };
            QTest::addRow("both, %s", state) << Look { font, hover, isVisible };
            QTest::addRow("sheet for rows, %s", state) << Look { {}, rows, isVisible };
        }
    }

    void rowsLookLikeThoseThatAreAddedOneByOne()
    {
        QFETCH(const ListInHost::Look, look);
        const auto preset = Test::MakePreset("HD", "H.264");
        const ListInHost filled(look, [&](QListWidget &list) {
            FillRows(list, Always(4), [&](RPFmtItemDataWdg &row, int) { row.preset = preset; });
        });
        const ListInHost added(look, [&](QListWidget &list) {
            for (int i = 0; i < 4; ++i)
                AddRow(list, MakeRow(list, preset));
        });
        QCOMPARE(filled.Image(), added.Image());
        for (int i = 0; i < 4; ++i)
            QCOMPARE(rowAt(filled.List(), i)->geometry(), rowAt(added.List(), i)->geometry());
    }

    void aRowIsLikeAWidgetThatIsSetUpUnderItsParent_data()
    {
        QTest::addColumn<ListInHost::Look>("look");
        using Look = ListInHost::Look;
        QTest::newRow("no style sheet") << Look { {}, {}, false };
        QTest::newRow("fonts of the host")
                << Look { u"QWidget { font-family: Serif; font-size: 20pt; }"_s, {}, false };
        QTest::newRow("colours of the list") << Look { {}, u"QWidget { color: red; }"_s, false };
    }

    void aRowIsLikeAWidgetThatIsSetUpUnderItsParent()
    {
        QFETCH(const ListInHost::Look, look);
        const ListInHost filled(look, [&](QListWidget &list) {
            FillRows(list, Always(2),
                     [](RPFmtItemDataWdg &row, int) { row.preset = Test::MakePreset("HD"); });
        });
        const ListInHost plain(look, [&](QListWidget &list) {
            for (int i = 0; i < 2; ++i)
                AddRow(list, MakePlainRow(list));
        });
        const QWidget &row = *filled.List().itemWidget(filled.List().item(0));
        const QWidget &other = *plain.List().itemWidget(plain.List().item(0));
        QCOMPARE(row.font(), other.font());
        QCOMPARE(row.palette(), other.palette());
        QCOMPARE(row.geometry(), other.geometry());
        QCOMPARE(row.styleSheet(), other.styleSheet());
        QCOMPARE(row.autoFillBackground(), other.autoFillBackground());
        QCOMPARE(row.windowTitle(), other.windowTitle());
        QCOMPARE(row.hasMouseTracking(), other.hasMouseTracking());
    }

    void rowsAreAppendedToThoseOfTheList()
    {
        QListWidget list;
        const auto setUpRow = [](RPFmtItemDataWdg &row, int index) {
            row.preset = Test::MakePreset(std::to_string(index));
        };
        FillRows(list, Always(2), setUpRow);
        FillRows(list, Always(3), setUpRow);
        QCOMPARE(list.count(), 5);
        for (int i = 0; i < 5; ++i)
            QCOMPARE(rowAt(list, i)->preset->Name(), std::to_string(i < 2 ? i : i - 2));
    }

    void theNumberIsAskedForAgainAfterEachRow_data()
    {
        QTest::addColumn<int>("step");
        QTest::addColumn<int>("rows");
        QTest::newRow("as many") << 0 << 3;
        QTest::newRow("one more for each of the first two") << 1 << 5;
        QTest::newRow("one less for each of the first two") << -1 << 2;
    }

    void theNumberIsAskedForAgainAfterEachRow()
    {
        QFETCH(const int, step);
        QFETCH(const int, rows);
        QListWidget list;
        int number = 3;
        const auto setUpRow = [&](RPFmtItemDataWdg &row, int index) {
            row.preset = Test::MakePreset(std::to_string(index));
            number += index < 2 ? step : 0;
        };
        FillRows(
                list, [&] { return number; }, setUpRow);
        QCOMPARE(list.count(), rows);
        for (int i = 0; i < rows; ++i) {
            QCOMPARE(rowAt(list, i)->preset->Name(), std::to_string(i));
            QCOMPARE(list.item(i)->sizeHint(), QSize(0, 53));
        }
    }

    void everyRowHasTheHeightOfTheLists()
    {
        QListWidget list;
        FillRows(list, Always(2),
                 [](RPFmtItemDataWdg &row, int) { row.preset = Test::MakePreset("HD"); });
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
        FillRows(list, Always(1),
                 [](RPFmtItemDataWdg &row, int) { QVERIFY(row.hasMouseTracking()); });
        QVERIFY(rowAt(list, 0)->hasMouseTracking());
        QVERIFY(list.isAncestorOf(rowAt(list, 0)));
        const QPointer<QWidget> row = rowAt(list, 0);
        list.clear();
        QTRY_VERIFY(row.isNull());
    }

    void theTextsOfTheRowsAreAccessible()
    {
        QListWidget list;
        FillRows(list, Always(2), [](RPFmtItemDataWdg &row, int index) {
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
        FillRows(list, Always(1), [](RPFmtItemDataWdg &row, int) {
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
        FillRows(list, Always(1),
                 [](RPFmtItemDataWdg &row, int) { row.preset = Test::MakePreset("Best", "AAC"); });
        const std::unique_ptr<QListWidgetItem> item(list.takeItem(0));
        QCOMPARE(item->data(Qt::AccessibleTextRole).toString(), QString());
        QCOMPARE(item->data(Qt::AccessibleDescriptionRole).toString(), QString());
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtRows)

#include "tst_rpfmtrows.moc"
