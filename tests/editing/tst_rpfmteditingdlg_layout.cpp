#include "TestCase.h"

#include "RPFmtEditingDlg.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

using Orlimo::RPFmtEditingDlg;

namespace {

struct Row
{
    const char *layout;
    const char *label;
    const char *text;
    const char *combo;
    const char *group;
    const char *grid;
    int row;
    int column;
};

constexpr Row rows[] = {
    { "lVEncoder", "lblVEncoder", "Encoder", "cmbVEncoder", "grpVideo", "gridLayout_2", 0, 0 },
    { "lResolution", "lblResolution", "Resolution", "cmbResolution", "grpVideo", "gridLayout_2", 0,
      1 },
    { "horizontalLayout_5", "lblFrameRate", "Frame Rate", "cmbFrameRate", "grpVideo",
      "gridLayout_2", 1, 0 },
    { "horizontalLayout_6", "lblVQuality", "Quality", "cmbVQuality", "grpVideo", "gridLayout_2", 1,
      1 },
    { "horizontalLayout_7", "lblAEncoder", "Encoder", "cmbAEncoder", "grpAudio", "gridLayout", 0,
      0 },
    { "horizontalLayout_8", "lblChannel", "Channel", "cmbChannel", "grpAudio", "gridLayout", 0, 1 },
    { "horizontalLayout_9", "lblSampleRate", "Sample Rate", "cmbSampleRate", "grpAudio",
      "gridLayout", 1, 0 },
    { "horizontalLayout_10", "lblAQuality", "Quality", "cmbAQuality", "grpAudio", "gridLayout", 1,
      1 },
};

RPFmtEditingDlg *Dialog()
{
    return RPFmtEditingDlg::Instance();
}

template<class Object>
Object *Find(const char *name)
{
    return Dialog()->findChild<Object *>(QString::fromLatin1(name));
}

QByteArrayList ChildNames(const QObject *parent)
{
    QByteArrayList names;
    for (const QObject *child : parent->children()) {
        if (!child->objectName().startsWith(QLatin1StringView("qt_")))
            names += child->objectName().toLatin1();
    }
    return names;
}

// Exactly the class, for which a derived one could not stand in.
QByteArray ClassName(const QObject *object)
{
    return object ? object->metaObject()->className() : "none";
}

void CompareSpacer(QLayoutItem *item)
{
    QVERIFY(item && item->spacerItem());
    QCOMPARE(item->sizeHint(), QSize(40, 20));
    QCOMPARE(item->spacerItem()->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(item->spacerItem()->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
}

} // namespace

class tst_RPFmtEditingDlgLayout : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void formIsNamedAfterItsClass()
    {
        QCOMPARE(Dialog()->objectName(), QStringLiteral("RPFmtEditingDlgClass"));
    }

    void theNewDialogIsCalledSettings()
    {
        QCOMPARE(Dialog()->windowTitle(), QStringLiteral("Settings"));
    }

    void objectsHaveTheirClasses_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("className");
        QTest::newRow("verticalLayout")
                << QByteArray("verticalLayout") << QByteArray("QVBoxLayout");
        for (const char *group : { "grpVideo", "grpAudio" })
            QTest::newRow(group) << QByteArray(group) << QByteArray("QGroupBox");
        for (const char *grid : { "gridLayout_2", "gridLayout" })
            QTest::newRow(grid) << QByteArray(grid) << QByteArray("QGridLayout");
        for (const Row &row : rows) {
            QTest::newRow(row.layout) << QByteArray(row.layout) << QByteArray("QHBoxLayout");
            QTest::newRow(row.label) << QByteArray(row.label) << QByteArray("QLabel");
            QTest::newRow(row.combo) << QByteArray(row.combo) << QByteArray("QComboBox");
        }
        QTest::newRow("button row")
                << QByteArray("horizontalLayout_2") << QByteArray("QHBoxLayout");
        for (const char *button : { "btnDefault", "btnSaveNewPreset", "btnCancel", "btnSave" })
            QTest::newRow(button) << QByteArray(button) << QByteArray("QPushButton");
    }

    void objectsHaveTheirClasses()
    {
        QFETCH(const QByteArray, name);
        const auto found = Dialog()->findChildren<QObject *>(QString::fromLatin1(name));
        QCOMPARE(found.size(), 1);
        QTEST(ClassName(found.first()), "className");
    }

    void dialogHasItsChildrenInTheOrderOfCreation()
    {
        const QByteArrayList expected { "verticalLayout",   "grpVideo",  "grpAudio", "btnDefault",
                                        "btnSaveNewPreset", "btnCancel", "btnSave" };
        QCOMPARE(ChildNames(Dialog()), expected);
    }

    void groupsHaveTheirChildrenInTheOrderOfCreation_data()
    {
        QTest::addColumn<QByteArray>("group");
        QTest::addColumn<QByteArray>("grid");
        QTest::newRow("video") << QByteArray("grpVideo") << QByteArray("gridLayout_2");
        QTest::newRow("audio") << QByteArray("grpAudio") << QByteArray("gridLayout");
    }

    void groupsHaveTheirChildrenInTheOrderOfCreation()
    {
        QFETCH(const QByteArray, group);
        QFETCH(const QByteArray, grid);
        QByteArrayList children { grid };
        QByteArrayList layouts;
        for (const Row &row : rows) {
            if (group != row.group)
                continue;
            children << row.label << row.combo;
            layouts << row.layout;
        }
        QCOMPARE(ChildNames(Find<QGroupBox>(group)), children);
        QCOMPARE(ChildNames(Find<QGridLayout>(grid)), layouts);
    }

    void theGroupsAndTheButtonRowStandBelowEachOther()
    {
        auto *column = Find<QVBoxLayout>("verticalLayout");
        QCOMPARE(Dialog()->layout(), column);
        QCOMPARE(column->count(), 3);
        QCOMPARE(column->itemAt(0)->widget(), Find<QGroupBox>("grpVideo"));
        QCOMPARE(column->itemAt(1)->widget(), Find<QGroupBox>("grpAudio"));
        QCOMPARE(column->itemAt(2)->layout(), Find<QHBoxLayout>("horizontalLayout_2"));
    }

    void rowsStandInTheirCells_data() { addRows(); }

    void rowsStandInTheirCells()
    {
        QFETCH(const int, index);
        const Row &row = rows[index];
        auto *grid = Find<QGridLayout>(row.grid);
        QCOMPARE(Find<QGroupBox>(row.group)->layout(), grid);
        QCOMPARE(grid->count(), 4);
        const int place = grid->indexOf(Find<QHBoxLayout>(row.layout));
        QVERIFY(place >= 0);
        int cell[4] = {};
        grid->getItemPosition(place, &cell[0], &cell[1], &cell[2], &cell[3]);
        QCOMPARE(cell[0], row.row);
        QCOMPARE(cell[1], row.column);
        QCOMPARE(cell[2], 1);
        QCOMPARE(cell[3], 1);
    }

    void rowsHoldLabelComboAndSpacer_data() { addRows(); }

    void rowsHoldLabelComboAndSpacer()
    {
        QFETCH(const int, index);
        const Row &row = rows[index];
        const auto *layout = Find<QHBoxLayout>(row.layout);
        QCOMPARE(layout->count(), 3);
        QCOMPARE(layout->itemAt(0)->widget(), Find<QLabel>(row.label));
        QCOMPARE(layout->itemAt(1)->widget(), Find<QComboBox>(row.combo));
        CompareSpacer(layout->itemAt(2));
    }

    void labelsHaveTheirTexts_data() { addRows(); }

    void labelsHaveTheirTexts()
    {
        QFETCH(const int, index);
        QCOMPARE(Find<QLabel>(rows[index].label)->text(), QString::fromLatin1(rows[index].text));
    }

    void groupsHaveTheirTitles()
    {
        QCOMPARE(Find<QGroupBox>("grpVideo")->title(), QStringLiteral("Video"));
        QCOMPARE(Find<QGroupBox>("grpAudio")->title(), QStringLiteral("Audio"));
    }

    void buttonsStandOnBothSidesOfASpacer_data()
    {
        QTest::addColumn<int>("place");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("text");
        QTest::newRow("reset") << 0 << QByteArray("btnDefault") << QStringLiteral("Reset");
        QTest::newRow("save as new")
                << 1 << QByteArray("btnSaveNewPreset") << QStringLiteral("Save as New Preset");
        QTest::newRow("cancel") << 3 << QByteArray("btnCancel") << QStringLiteral("Cancel");
        QTest::newRow("save") << 4 << QByteArray("btnSave") << QStringLiteral("Save");
    }

    void buttonsStandOnBothSidesOfASpacer()
    {
        QFETCH(const int, place);
        QFETCH(const QByteArray, name);
        const auto *layout = Find<QHBoxLayout>("horizontalLayout_2");
        QCOMPARE(layout->count(), 5);
        CompareSpacer(layout->itemAt(2));
        QCOMPARE(layout->itemAt(place)->widget(), Find<QPushButton>(name));
        QTEST(Find<QPushButton>(name)->text(), "text");
    }

    void noOtherWidgetsAndLayoutsAreInTheForm()
    {
        QCOMPARE(Dialog()->findChildren<QLayout *>().size(), 12);
        QCOMPARE(Dialog()->findChildren<QGroupBox *>().size(), 2);
        QCOMPARE(Dialog()->findChildren<QLabel *>().size(), 8);
        QCOMPARE(Dialog()->findChildren<QComboBox *>().size(), 8);
        QCOMPARE(Dialog()->findChildren<QPushButton *>().size(), 4);
    }

private:
    static void addRows()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(rows)); ++i)
            QTest::newRow(rows[i].layout) << i;
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtEditingDlgLayout)

#include "tst_rpfmteditingdlg_layout.moc"
