#include "PopupDriver.h"
#include "SampleDescription.h"
#include "TestCase.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "RPFmtSelectionDlg.h"

#include <QDialog>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>

using namespace Orlimo;
using namespace Qt::StringLiterals;

namespace {

const QRect anchor(20, 20, 100, 30);

// A host's window and the popup, which is shown and active.
class Scene
{
public:
    Scene()
        : driver(&popup)
    {
        host.resize(200, 100);
        host.show();
        open();
    }

    void open()
    {
        activateHost();
        popup.ShowPopup(counter(), anchor);
        QTRY_VERIFY(popup.isActiveWindow());
    }

    void activateHost()
    {
        host.activateWindow();
        QTRY_VERIFY(host.isActiveWindow());
    }

    RPFmtSelectionDlg::Callback counter()
    {
        return [this](const std::shared_ptr<const IOLFormatPreset> &preset,
                      const std::shared_ptr<const IOLFormatNode> &) {
            ++(preset ? choices : closings);
        };
    }

    QWidget host;
    RPFmtSelectionDlg popup;
    Test::PopupDriver driver;
    int choices = 0;
    int closings = 0;
};

void turnWheel(QWidget *widget, int steps)
{
    const QPointF place = widget->rect().center();
    QWheelEvent event(place, widget->mapToGlobal(place), {}, { 0, steps * -120 }, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

void sendFocusOut(QWidget *widget, Qt::FocusReason reason)
{
    QFocusEvent event(QEvent::FocusOut, reason);
    QApplication::sendEvent(widget, &event);
}

} // namespace

// When the popup closes by itself, and that it reports so once.
class tst_RPFmtSelectionDlg_Focus : public Test::TestCase
{
    Q_OBJECT

    void prepare() override { Test::ForgetPresets(); }

    Test::SampleDescription description;

private Q_SLOTS:
    void initTestCase()
    {
        description.Load();
        QVERIFY(IOLFmtPresetDataSource::Shared()->GetDefaultFormatNode());
    }

    void openPopupHasTheFocus()
    {
        const Scene scene;
        QVERIFY(scene.popup.isActiveWindow());
        QCOMPARE(QApplication::focusWidget(), &scene.popup);
    }

    void anotherWindowClosesThePopup()
    {
        Scene scene;
        scene.host.activateWindow();
        QTRY_VERIFY(!scene.popup.isVisible());
        QCOMPARE(scene.closings, 1);
        QCOMPARE(scene.choices, 0);
    }

    void anotherWindowClosesThePopupWhoseChildHasTheFocus_data()
    {
        QTest::addColumn<QString>("child");
        QTest::newRow("search box") << QString();
        QTest::newRow("formats") << u"ListNode"_s;
        QTest::newRow("presets") << u"ListFormat"_s;
    }

    void anotherWindowClosesThePopupWhoseChildHasTheFocus()
    {
        QFETCH(const QString, child);
        Scene scene;
        QWidget *widget = scene.driver.SearchBox();
        if (!child.isEmpty())
            widget = scene.driver.List(child.toLatin1().constData());
        QCursor::setPos(widget->mapToGlobal(widget->rect().center()));
        widget->setFocus(Qt::MouseFocusReason);
        QCOMPARE(QApplication::focusWidget(), widget);
        QVERIFY(scene.popup.isVisible());
        scene.host.activateWindow();
        QTRY_VERIFY(!scene.popup.isVisible());
        QCOMPARE(scene.closings, 1);
    }

    void mouseInsideThePopupKeepsItOpen()
    {
        Scene scene;
        Test::ClickAt(scene.driver.SearchBox(), scene.driver.SearchBox()->rect().center());
        QCOMPARE(QApplication::focusWidget(), scene.driver.SearchBox());
        scene.driver.ClickRow("ListNode", 1);
        QCOMPARE(QApplication::focusWidget(), scene.driver.List("ListNode"));
        QVERIFY(scene.popup.isVisible());
        QCOMPARE(scene.closings, 0);
    }

    void mouseOutsideThePopupClosesIt()
    {
        Scene scene;
        QCursor::setPos(scene.popup.mapToGlobal(QPoint(400, 650)));
        sendFocusOut(&scene.popup, Qt::MouseFocusReason);
        QVERIFY(!scene.popup.isVisible());
        QCOMPARE(scene.closings, 1);
    }

    void everyReasonButTheMouseClosesIt_data()
    {
        QTest::addColumn<Qt::FocusReason>("reason");
        QTest::newRow("tab") << Qt::TabFocusReason;
        QTest::newRow("backtab") << Qt::BacktabFocusReason;
        QTest::newRow("window") << Qt::ActiveWindowFocusReason;
        QTest::newRow("popup") << Qt::PopupFocusReason;
        QTest::newRow("shortcut") << Qt::ShortcutFocusReason;
        QTest::newRow("menu bar") << Qt::MenuBarFocusReason;
        QTest::newRow("other") << Qt::OtherFocusReason;
    }

    void everyReasonButTheMouseClosesIt()
    {
        QFETCH(const Qt::FocusReason, reason);
        Scene scene;
        QCursor::setPos(scene.popup.mapToGlobal(QPoint(400, 300)));
        sendFocusOut(scene.driver.List("ListFormat"), reason);
        QVERIFY(!scene.popup.isVisible());
        QCOMPARE(scene.closings, 1);
    }

    void tabKeyClosesThePopup()
    {
        Scene scene;
        QCursor::setPos(scene.popup.mapToGlobal(QPoint(400, 300)));
        Test::ClickAt(scene.driver.SearchBox(), scene.driver.SearchBox()->rect().center());
        QTest::keyClick(scene.driver.SearchBox(), Qt::Key_Tab);
        QVERIFY(!scene.popup.isVisible());
        QCOMPARE(scene.closings, 1);
    }

    void changingTheTabByTheWheelKeepsThePopupOpen()
    {
        Scene scene;
        scene.driver.ClickRow("ListNode", 1);
        QVERIFY(scene.driver.List("ListNode")->hasFocus());
        const QStringList tabs = scene.driver.TabTexts();
        turnWheel(scene.driver.Tabs()->tabBar(), 1);
        QCOMPARE(tabs.at(scene.driver.Tabs()->currentIndex()), u"Audio"_s);
        turnWheel(scene.driver.Tabs()->tabBar(), 1);
        QCOMPARE(tabs.at(scene.driver.Tabs()->currentIndex()), u"Custom"_s);
        turnWheel(scene.driver.Tabs()->tabBar(), -3);
        QVERIFY(scene.popup.isVisible());
        QCOMPARE(scene.closings, 0);

        scene.host.activateWindow();
        QTRY_VERIFY(!scene.popup.isVisible());
        QCOMPARE(scene.closings, 1);
    }

    void loadedFormatDataThatChangesTheTabKeepsThePopupOpen()
    {
        Scene scene;
        scene.driver.SwitchTab(u"Custom"_s);
        QWidget *list = scene.driver.List("ListFormat");
        Test::ClickAt(list, list->rect().center());
        QVERIFY(scene.popup.isVisible());
        scene.popup.OnFormatDataLoaded();
        QCOMPARE(scene.driver.Tabs()->currentIndex(), 1);
        QVERIFY(scene.popup.isVisible());
        QCOMPARE(scene.closings, 0);
    }

    void closeRequestOfTheWindowSystemCountsAsNoChoice()
    {
        Scene scene;
        scene.popup.windowHandle()->close();
        QTRY_VERIFY(!scene.popup.isVisible());
        QCOMPARE(scene.closings, 1);
        scene.open();
        QVERIFY(scene.popup.isVisible());
    }

    void popupOpenedAgainOnACloseRequestStaysOpen()
    {
        Scene scene;
        int reopened = 0;
        scene.popup.ShowPopup(
                [&](auto, auto) {
                    ++reopened;
                    scene.popup.ShowPopup(scene.counter(), anchor);
                },
                anchor);
        scene.popup.windowHandle()->close();
        QCOMPARE(reopened, 1);
        QVERIFY(scene.popup.isVisible());
        QCOMPARE(scene.closings, 0);
    }

    void hiddenPopupReportsNothing()
    {
        Scene scene;
        scene.host.activateWindow();
        QTRY_COMPARE(scene.closings, 1);
        sendFocusOut(&scene.popup, Qt::ActiveWindowFocusReason);
        sendFocusOut(scene.driver.SearchBox(), Qt::OtherFocusReason);
        scene.popup.close();
        QCOMPARE(scene.closings, 1);
    }

    void popupWithoutACallbackClosesToo()
    {
        Scene scene;
        scene.popup.ShowPopup({}, anchor);
        scene.host.activateWindow();
        QTRY_VERIFY(!scene.popup.isVisible());
        QCOMPARE(scene.closings, 0);
    }

    void showingAnOpenPopupMovesItAndReplacesTheCallback()
    {
        Scene scene;
        int replaced = 0;
        Test::ClickAt(scene.driver.SearchBox(), scene.driver.SearchBox()->rect().center());
        const QPoint before = scene.popup.pos();
        scene.popup.ShowPopup([&](auto, auto) { ++replaced; }, anchor.translated(0, 60));
        QVERIFY(scene.popup.isVisible());
        QCOMPARE(scene.popup.pos(), before + QPoint(0, 60));
        QCOMPARE(scene.closings, 0);
        scene.host.activateWindow();
        QTRY_COMPARE(replaced, 1);
        QCOMPARE(scene.closings, 0);
    }

    void callbackIsKeptForAnEditUntilTheNextShow()
    {
        Scene scene;
        scene.driver.ClickRow("ListFormat", 0);
        QCOMPARE(scene.choices, 1);
        scene.open();
        scene.driver.ClickRow("ListFormat", 0);
        QCOMPARE(scene.choices, 2);
        QCOMPARE(scene.closings, 0);
    }

    void callbackMayOpenThePopupAgain()
    {
        Scene scene;
        int reopened = 0;
        scene.popup.ShowPopup(
                [&](auto, auto) {
                    ++reopened;
                    scene.activateHost();
                    scene.popup.ShowPopup(scene.counter(), anchor);
                },
                anchor);
        scene.driver.ClickRow("ListFormat", 0);
        QCOMPARE(reopened, 1);
        QVERIFY(scene.popup.isVisible());
        QTRY_VERIFY(scene.popup.isActiveWindow());
        scene.host.activateWindow();
        QTRY_VERIFY(!scene.popup.isVisible());
        QCOMPARE(reopened, 1);
        QCOMPARE(scene.closings, 1);
    }

    void popupOpenedAgainAtOnceIsActiveAndCloses()
    {
        Scene scene;
        int reopened = 0;
        scene.popup.ShowPopup(
                [&](auto, auto) {
                    ++reopened;
                    scene.popup.ShowPopup(scene.counter(), anchor);
                },
                anchor);
        scene.driver.ClickRow("ListFormat", 0);
        QCOMPARE(reopened, 1);
        QTRY_VERIFY(scene.popup.isActiveWindow());
        QCOMPARE(QApplication::focusWidget(), &scene.popup);
        scene.host.activateWindow();
        QTRY_VERIFY(!scene.popup.isVisible());
        QCOMPARE(scene.closings, 1);
    }

    void scrollBarsHaveNoContextMenu()
    {
        Scene scene;
        for (const char *list : { "ListNode", "ListFormat" }) {
            QScrollBar *bar = scene.driver.List(list)->verticalScrollBar();
            QContextMenuEvent event(QContextMenuEvent::Mouse, bar->rect().center(),
                                    bar->mapToGlobal(bar->rect().center()));
            QApplication::sendEvent(bar, &event);
            QVERIFY(!QApplication::activePopupWidget());
            QVERIFY(scene.popup.isVisible());
        }
    }

    void popupIsPutBackWhereItWasOpened()
    {
        Scene scene;
        const QPoint place = scene.popup.pos();
        const QSignalSpy moves(scene.popup.windowHandle(), &QWindow::xChanged);
        scene.popup.windowHandle()->setPosition(place + QPoint(30, 40));
        QTRY_COMPARE(moves.count(), 2);
        QCOMPARE(moves.first().first().toInt(), place.x() + 30);
        QCOMPARE(scene.popup.pos(), place);
    }

    void minimizedPopupIsRestoredWhenItOpens()
    {
        Scene scene;
        scene.popup.showMinimized();
        scene.activateHost();
        scene.open();
        QVERIFY(!scene.popup.isMinimized());
    }

    void callbackMayRunADialogOverAPopupOpenedAgain()
    {
        Scene scene;
        int reopened = 0;
        scene.popup.ShowPopup(
                [&](auto, auto) {
                    ++reopened;
                    scene.activateHost();
                    scene.popup.ShowPopup(scene.counter(), anchor);
                    QTRY_VERIFY(scene.popup.isActiveWindow());
                    QDialog dialog;
                    QTimer::singleShot(0, &dialog, [&] {
                        QTRY_VERIFY(!scene.popup.isVisible());
                        dialog.accept();
                    });
                    dialog.exec();
                },
                anchor);
        scene.driver.ClickRow("ListFormat", 0);
        QCOMPARE(reopened, 1);
        QCOMPARE(scene.closings, 1);
    }

    void popupOpenedFromAModalDialogTakesInput()
    {
        Scene scene;
        scene.host.activateWindow();
        QTRY_COMPARE(scene.closings, 1);
        QDialog dialog(&scene.host);
        QTimer::singleShot(0, &dialog, [&] {
            QTRY_VERIFY(dialog.isActiveWindow());
            scene.popup.ShowPopup(scene.counter(), anchor);
            QTRY_VERIFY(scene.popup.isActiveWindow());
            QCOMPARE(scene.popup.windowHandle()->transientParent(), dialog.windowHandle());
            QListWidget *list = scene.driver.List("ListFormat");
            const QPoint row = list->visualItemRect(list->item(0)).center();
            const QPoint place = list->viewport()->mapTo(&scene.popup, row);
            QCursor::setPos(scene.popup.mapToGlobal(place));
            QTest::mouseClick(scene.popup.windowHandle(), Qt::LeftButton, {}, place);
            dialog.accept();
        });
        dialog.exec();
        QCOMPARE(scene.choices, 1);
    }

    void closingThePopupDoesNotQuitAnApplicationWithoutOtherWindows()
    {
        Scene scene;
        scene.activateHost();
        scene.host.hide();
        scene.popup.ShowPopup(scene.counter(), anchor);
        QTRY_VERIFY(scene.popup.isActiveWindow());
        bool quit = false;
        connect(qApp, &QGuiApplication::lastWindowClosed, &scene.popup, [&] { quit = true; });
        scene.driver.ClickRow("ListFormat", 0);
        QCOMPARE(scene.choices, 1);
        QCoreApplication::processEvents();
        QVERIFY(!quit);
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtSelectionDlg_Focus)

#include "tst_rpfmtselectiondlg_focus.moc"
