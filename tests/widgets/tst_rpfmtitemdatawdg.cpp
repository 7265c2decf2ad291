#include "TestCase.h"

#include "CatalogueBuilder.h"
#include "Pixels.h"
#include "RPFmtItemDataWdg.h"
#include "TreeBuilder.h"

#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <QApplication>
#include <QListWidget>
#include <QScopeGuard>

using namespace Orlimo;

namespace {

using namespace Qt::StringLiterals;

// Counts the times that a widget painted itself.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }

    int paints = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

} // namespace

class tst_RPFmtItemDataWdg : public Test::TestCase
{
    Q_OBJECT

private:
    // A visible window with a row at (30, 40), 300 × 53 pixels.
    struct Window
    {
        Window()
        {
            row.setGeometry(30, 40, 300, 53);
            row.setMouseTracking(true);
            row.preset = Test::MakePreset("HD 720P");
            row.actionIcon = Test::SolidPixmap({ 17, 17 }, Qt::red);
            widget.setGeometry(100, 100, 400, 200);
            QCursor::setPos(0, 0);
            widget.show();
            exposed = QTest::qWaitForWindowExposed(&widget);
        }

        QPoint OnScreen(QPoint point) const { return QPoint(130, 140) + point; }

        QWidget widget;
        RPFmtItemDataWdg row { &widget };
        bool exposed = false;
    };

private Q_SLOTS:
    void theFormHasItsNameSizeAndFont()
    {
        QWidget parent;
        const RPFmtItemDataWdg row(&parent);
        QCOMPARE(row.objectName(), u"RPFmtItemDataWdgClass"_s);
        QCOMPARE(row.size(), QSize(553, 97));
        QCOMPARE(row.font().families(), QStringList { u"Microsoft New Tai Lue"_s });
        QCOMPARE(row.font().pointSize(), 10);
        QCOMPARE(row.windowTitle(), u"RPFmtItemDataWdg"_s);
        QCOMPARE(row.parentWidget(), &parent);
        QVERIFY(row.children().isEmpty());
    }

    void theFontOfTheFormReturnsWhenTheStyleSheetOfTheHostGoes()
    {
        QListWidget list;
        list.setStyleSheet(u"QListWidget { border: none; }"_s);
        auto *row = new RPFmtItemDataWdg(&list);
        row->preset = Test::MakePreset("HD 720P");
        list.setItemWidget(new QListWidgetItem(&list), row);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        const auto reset = qScopeGuard([] { qApp->setStyleSheet({}); });
        qApp->setStyleSheet(u"* { font-family: Serif; font-size: 20pt; }"_s);
        QCOMPARE(row->font().pointSize(), 20);
        qApp->setStyleSheet({});
        QCOMPARE(row->font().families(), QStringList { u"Microsoft New Tai Lue"_s });
        QCOMPARE(row->font().pointSize(), 10);
    }

    void theWindowTitleIsTranslatedInTheContextOfTheForm()
    {
        const Test::InstalledCatalogue catalogue(
                { { "RPFmtItemDataWdgClass", "RPFmtItemDataWdg", u"Zeile"_s } });
        QCOMPARE(RPFmtItemDataWdg(nullptr).windowTitle(), u"Zeile"_s);
    }

    void aNewRowHoldsNothing()
    {
        const RPFmtItemDataWdg row(nullptr);
        QVERIFY(!row.recentItem && !row.node && !row.preset);
        QVERIFY(!row.actionWidget);
        QVERIFY(!row.clickHandler);
        QVERIFY(!row.hovered);
        QVERIFY(row.actionIcon.isNull());
        QCOMPARE(row.textWidth, 0);
    }

    void theClassAddsNoSignalsAndSlots()
    {
        const QMetaObject &meta = RPFmtItemDataWdg::staticMetaObject;
        QCOMPARE(meta.className(), "Orlimo::RPFmtItemDataWdg");
        QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
        QCOMPARE(meta.methodCount(), meta.methodOffset());
    }

    void theActionBoxIsGivenOnTheScreen()
    {
        const Window window;
        QVERIFY(window.exposed);
        QCOMPARE(window.row.GetActionGlobalRect(),
                 QRect(window.OnScreen({ 272, 18 }), QSize(17, 17)));
    }

    void theActionBoxFollowsTheSizeOfTheRow()
    {
        Window window;
        QVERIFY(window.exposed);
        window.row.resize(350, 97);
        QCOMPARE(window.row.GetActionGlobalRect(),
                 QRect(window.OnScreen({ 322, 40 }), QSize(17, 17)));
    }

    void theActionWidgetStaysOnTheActionBox()
    {
        Window window;
        QVERIFY(window.exposed);
        QWidget action(&window.row);
        window.row.actionWidget = &action;
        window.row.resize(350, 97);
        QCOMPARE(action.geometry(), QRect(322, 40, 17, 17));
        window.row.resize(200, 54);
        QCOMPARE(action.geometry(), QRect(172, 18, 17, 17));
    }

    void theMouseOverTheRowShowsTheActionIconAtOnce()
    {
        Window window;
        QVERIFY(window.exposed);
        PaintCounter counter(&window.row);
        QCursor::setPos(window.OnScreen({ 100, 20 }));
        QTRY_VERIFY(window.row.hovered);
        QTRY_VERIFY(counter.paints > 0);
        QCOMPARE(Test::SolidBox(Test::GrabOnWhite(window.row), Qt::red), QRect(272, 18, 17, 17));
    }

    void theMouseLeavingTheRowHidesTheActionIconAtOnce()
    {
        Window window;
        QVERIFY(window.exposed);
        QCursor::setPos(window.OnScreen({ 100, 20 }));
        QTRY_VERIFY(window.row.hovered);
        PaintCounter counter(&window.row);
        QCursor::setPos(window.OnScreen({ 100, 60 }));
        QTRY_VERIFY(!window.row.hovered);
        QTRY_VERIFY(counter.paints > 0);
        QVERIFY(Test::SolidBox(Test::GrabOnWhite(window.row), Qt::red).isEmpty());
    }

    void enteringAndLeavingPaintBeforeTheyReturn()
    {
        Window window;
        QVERIFY(window.exposed);
        QCoreApplication::processEvents();
        PaintCounter counter(&window.row);
        QEnterEvent enter(QPointF(9, 9), QPointF(39, 49), window.OnScreen({ 9, 9 }));
        QCoreApplication::sendEvent(&window.row, &enter);
        QVERIFY(window.row.hovered);
        QCOMPARE(counter.paints, 1);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&window.row, &leave);
        QVERIFY(!window.row.hovered);
        QCOMPARE(counter.paints, 2);
    }

    void aClickIsLeftToTheOwner()
    {
        Window window;
        QVERIFY(window.exposed);
        bool called = false;
        window.row.clickHandler = [&] { called = true; };
        for (const QPoint &point : { QPoint(100, 20), QPoint(280, 26) }) {
            QCursor::setPos(window.OnScreen(point));
            QTest::mouseClick(window.widget.windowHandle(), Qt::LeftButton, {},
                              QPoint(30, 40) + point);
        }
        QVERIFY(!called);
    }

    void theDataLiveAsLongAsTheRow()
    {
        const auto alive = std::make_shared<int>(0);
        std::weak_ptr<const IOLFormatNode> node;
        std::weak_ptr<const IOLFormatPreset> preset;
        std::weak_ptr<IOLFmtPresetRecentItem> recentItem;
        {
            RPFmtItemDataWdg row(nullptr);
            node = row.node = Test::MakeNode("MP4");
            preset = row.preset = Test::MakePreset("HD 720P");
            recentItem = row.recentItem =
                    IOLFmtPresetRecentItem::MallocFmtPresetRecentItem(row.preset, row.node);
            row.clickHandler = [alive] {};
            QVERIFY(!node.expired() && !preset.expired() && !recentItem.expired());
            QCOMPARE(alive.use_count(), 2);
        }
        QVERIFY(node.expired() && preset.expired() && recentItem.expired());
        QCOMPARE(alive.use_count(), 1);
    }

    void theTextsAreThoseOfTheData()
    {
        const Test::InstalledCatalogue catalogue({ { "RPObject", "MP4 HD", u"MP4 fein"_s },
                                                   { "RPObject", "HD", u"fein"_s },
                                                   { "RPObject", "MP4 file", u"MP4-Datei"_s } });
        RPFmtItemDataWdg row(nullptr);
        QCOMPARE(row.Title(), QString());
        QCOMPARE(row.Description(), QString());

        const auto node = Test::MakeNode("MP4", "MP4 file");
        const auto preset = Test::MakePreset("HD", "usual");
        row.recentItem = IOLFmtPresetRecentItem::MallocFmtPresetRecentItem(preset, node);
        QCOMPARE(row.Title(), u"MP4 fein"_s);
        QCOMPARE(row.Description(), u"MP4-Datei"_s);
        row.preset = preset;
        QCOMPARE(row.Title(), u"fein"_s);
        QCOMPARE(row.Description(), u"usual"_s);
        row.node = node;
        QCOMPARE(row.Title(), u"MP4"_s);
        QCOMPARE(row.Description(), QString());
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtItemDataWdg)

#include "tst_rpfmtitemdatawdg.moc"
