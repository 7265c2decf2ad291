#include "SampleDescription.h"
#include "SelectionScene.h"
#include "TestCase.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

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

using Scene = Test::SelectionScene;

constexpr QRect anchor = Scene::anchor;

// The search box, or the list of this name on the current page.
QWidget *childOf(const Scene &scene, const QString &name)
{
    if (name == "search box"_L1)
        return scene.driver.SearchBox();
    return scene.driver.List(name.toLatin1().constData());
}

// Gives the widget the focus as a click does that changes nothing else.
void focusByMouse(QWidget *widget)
{
    QCursor::setPos(widget->mapToGlobal(widget->rect().center()));
    widget->setFocus(Qt::MouseFocusReason);
    QCOMPARE(QApplication::focusWidget(), widget);
}

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
        QVERIFY(Test::IsActive(scene.popup));
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
        QTest::addColumn<QString>("tab");
        QTest::addColumn<QString>("child");
        QTest::newRow("search box") << u"Video"_s << u"search box"_s;
        QTest::newRow("recent choices") << u"Recent"_s << u"lwRecentList"_s;
        QTest::newRow("formats") << u"Video"_s << u"ListNode"_s;
        QTest::newRow("presets") << u"Video"_s << u"ListFormat"_s;
        QTest::newRow("custom formats") << u"Custom"_s << u"ListNode"_s;
        QTest::newRow("custom presets") << u"Custom"_s << u"ListFormat"_s;
    }

    void anotherWindowClosesThePopupWhoseChildHasTheFocus()
    {
        QFETCH(const QString, tab);
        QFETCH(const QString, child);
        Scene scene;
        scene.driver.SwitchTab(tab);
        focusByMouse(childOf(scene, child));
        QVERIFY(scene.popup.isVisible());
        scene.host.activateWindow();
        QTRY_VERIFY(!scene.popup.isVisible());
        QCOMPARE(scene.closings, 1);
        QCOMPARE(scene.choices, 0);
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

    void whateverWidgetLosesTheFocusThePopupCloses_data()
    {
        QTest::addColumn<QByteArray>("tab");
        QTest::addColumn<QByteArray>("child");
        for (const char *tab : { "Video", "Custom" }) {
            for (const char *child : { "page", "ListNode", "ListFormat" })
                QTest::addRow("%s, %s", tab, child) << QByteArray(tab) << QByteArray(child);
        }
        QTest::newRow("Recent, page") << QByteArray("Recent") << QByteArray("page");
        QTest::newRow("Recent, list") << QByteArray("Recent") << QByteArray("lwRecentList");
        for (const char *child : { "tabs", "tab bar", "search box", "popup" })
            QTest::addRow("%s", child) << QByteArray("Video") << QByteArray(child);
    }

    void whateverWidgetLosesTheFocusThePopupCloses()
    {
        QFETCH(const QByteArray, tab);
        QFETCH(const QByteArray, child);
        Scene scene;
        QTabWidget *tabs = scene.driver.Tabs();
        tabs->setCurrentIndex(
                static_cast<int>(scene.driver.TabTexts().indexOf(QString::fromLatin1(tab))));
        QVERIFY(scene.popup.isVisible());
        const QHash<QByteArray, QWidget *> widgets {
            { "page", tabs->currentWidget() }, { "tabs", tabs },
            { "tab bar", tabs->tabBar() },     { "search box", scene.driver.SearchBox() },
            { "popup", &scene.popup },
        };
        QWidget *widget = widgets.value(child);
        sendFocusOut(widget ? widget : scene.driver.List(child.constData()), Qt::OtherFocusReason);
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

    void changingTheTabByTheKeyboardKeepsThePopupOpen_data()
    {
        QTest::addColumn<QString>("child");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<QString>("tab");
        for (const char *child : { "search box", "ListNode", "ListFormat" }) {
            const QString name = QString::fromLatin1(child);
            QTest::addRow("%s, forwards", child)
                    << name << Qt::Key_Tab << Qt::KeyboardModifiers(Qt::ControlModifier)
                    << u"Audio"_s;
            QTest::addRow("%s, backwards", child)
                    << name << Qt::Key_Backtab << (Qt::ControlModifier | Qt::ShiftModifier)
                    << u"Recent"_s;
        }
    }

    void changingTheTabByTheKeyboardKeepsThePopupOpen()
    {
        QFETCH(const QString, child);
        QFETCH(const Qt::Key, key);
        QFETCH(const Qt::KeyboardModifiers, modifiers);
        QFETCH(const QString, tab);
        Scene scene;
        scene.driver.TypeSearch(u"1080"_s);
        focusByMouse(childOf(scene, child));
        QTest::keyClick(scene.popup.windowHandle(), key, modifiers);
        QCOMPARE(scene.driver.TabTexts().at(scene.driver.Tabs()->currentIndex()), tab);
        QVERIFY(scene.driver.SearchBox()->text().isEmpty());
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
        QTRY_VERIFY(Test::IsActive(scene.popup));
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
        QTRY_VERIFY(Test::IsActive(scene.popup));
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
                    QTRY_VERIFY(Test::IsActive(scene.popup));
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
            QTRY_VERIFY(Test::IsActive(dialog));
            scene.popup.ShowPopup(scene.counter(), anchor);
            QTRY_VERIFY(Test::IsActive(scene.popup));
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
        QTRY_VERIFY(Test::IsActive(scene.popup));
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
