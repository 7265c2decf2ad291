#include "ModalDriver.h"
#include "SampleDescription.h"
#include "SelectionScene.h"
#include "TestCase.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "RPFmtEditingDlg.h"

#include <QPushButton>
#include <QWindow>

#include <functional>
#include <utility>

using namespace Orlimo;
using namespace Qt::StringLiterals;

namespace {

using Scene = Test::SelectionScene;

// "preset of node" for each time that a callback was called; "nothing" for two empty pointers.
using Reports = QStringList;

RPFmtSelectionDlg::Callback appendingTo(Reports &reports)
{
    return [&reports](const std::shared_ptr<const IOLFormatPreset> &preset,
                      const std::shared_ptr<const IOLFormatNode> &node) {
        QCOMPARE(bool(preset), bool(node));
        reports.append(preset ? QString::fromStdString(preset->Name() + " of " + node->Name())
                              : u"nothing"_s);
    };
}

// A host that asks for the popup for another callback, once, as soon as it sees the focus leave it.
class ReopeningHost : public QObject
{
public:
    ReopeningHost(RPFmtSelectionDlg &popup, RPFmtSelectionDlg::Callback callback)
    {
        connect(qApp, &QApplication::focusChanged, this,
                [this, callback, &popup](QWidget *old, QWidget *now) {
                    const bool leaves = old && old->window() == &popup
                            && (!now || now->window() != &popup);
                    if (!leaves || hasAsked)
                        return;
                    hasAsked = true;
                    popup.ShowPopup(callback, Scene::anchor);
                });
    }

    bool hasAsked = false;
};

// A host that asks for the popup for another callback, once, as soon as it sees it being shown.
class ImpatientHost : public QObject
{
public:
    ImpatientHost(RPFmtSelectionDlg &popup, RPFmtSelectionDlg::Callback callback)
        : m_popup(popup)
        , m_callback(std::move(callback))
    {
        popup.installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Show && !std::exchange(m_hasAsked, true))
            m_popup.ShowPopup(m_callback, Scene::anchor);
        return false;
    }

private:
    RPFmtSelectionDlg &m_popup;
    RPFmtSelectionDlg::Callback m_callback;
    bool m_hasAsked = false;
};

// What closes the popup.
using Closing = std::function<void(Scene &)>;

void chooseRow(Scene &scene)
{
    scene.driver.ClickRow("ListFormat", 1);
}

void activateOtherWindow(Scene &scene)
{
    scene.host.activateWindow();
}

void pressTab(Scene &scene)
{
    scene.driver.TypeSearch(u"480"_s);
    QTest::keyClick(scene.popup.windowHandle(), Qt::Key_Tab);
}

void requestClose(Scene &scene)
{
    scene.popup.windowHandle()->close();
}

Closing edit(const QString &button)
{
    return [button](Scene &scene) {
        const Test::WhenOpen<RPFmtEditingDlg> act([&](RPFmtEditingDlg &dialog) {
            QTest::mouseClick(dialog.findChild<QPushButton *>(button), Qt::LeftButton);
        });
        scene.driver.ClickAction("ListFormat", 1);
    };
}

// With what the callback is told.
void addClosings()
{
    QTest::addColumn<Closing>("close");
    QTest::addColumn<QString>("report");
    const QString choice = u"SD 480P of MP4"_s;
    QTest::newRow("choice") << Closing(chooseRow) << choice;
    QTest::newRow("another window") << Closing(activateOtherWindow) << u"nothing"_s;
    QTest::newRow("Tab key") << Closing(pressTab) << u"nothing"_s;
    QTest::newRow("close request") << Closing(requestClose) << u"nothing"_s;
    QTest::newRow("saved edit") << edit(u"btnSave"_s) << choice;
    QTest::newRow("cancelled edit") << edit(u"btnCancel"_s) << u"nothing"_s;
}

} // namespace

// Which callback is told of a closing, and how long it is kept.
class tst_RPFmtSelectionDlg_Callback : public Test::TestCase
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

    void hostThatReopensThePopupAsTheFocusLeavesItIsToldOfEachClosingOnce_data() { addClosings(); }

    void hostThatReopensThePopupAsTheFocusLeavesItIsToldOfEachClosingOnce()
    {
        QFETCH(const Closing, close);
        QFETCH(const QString, report);
        Scene scene;
        Reports first;
        Reports second;
        scene.popup.ShowPopup(appendingTo(first), Scene::anchor);
        const ReopeningHost host(scene.popup, appendingTo(second));
        close(scene);
        QTRY_VERIFY(host.hasAsked);
        QCOMPARE(first, Reports(report));
        QTRY_VERIFY(scene.popup.isVisible());
        QTRY_VERIFY(Test::IsActive(scene.popup));
        QCOMPARE(second, Reports());

        scene.activateHost();
        QTRY_VERIFY(!scene.popup.isVisible());
        QCOMPARE(second, Reports(u"nothing"_s));
        QCOMPARE(first, Reports(report));
    }

    void lastRequestDuringAClosingCounts()
    {
        Scene scene;
        Reports earlier;
        Reports last;
        const auto reopen = [&](auto, auto) {
            scene.popup.ShowPopup(appendingTo(last), Scene::anchor);
        };
        scene.popup.ShowPopup(reopen, Scene::anchor);
        const ReopeningHost host(scene.popup, appendingTo(earlier));
        chooseRow(scene);
        QVERIFY(host.hasAsked);
        QCoreApplication::processEvents();
        QTRY_VERIFY(scene.popup.isVisible());
        QTRY_VERIFY(Test::IsActive(scene.popup));

        scene.activateHost();
        QTRY_VERIFY(!scene.popup.isVisible());
        QCOMPARE(last, Reports(u"nothing"_s));
        QCOMPARE(earlier, Reports());
    }

    void popupThatIsShownAgainByItsCallbackStaysOpen_data() { addClosings(); }

    void popupThatIsShownAgainByItsCallbackStaysOpen()
    {
        QFETCH(const Closing, close);
        Scene scene;
        Reports reports;
        const auto reopen = [&](auto, auto) {
            scene.popup.ShowPopup(appendingTo(reports), Scene::anchor);
        };
        scene.popup.ShowPopup(reopen, Scene::anchor);
        close(scene);
        QTRY_VERIFY(Test::IsActive(scene.popup));
        QTest::qWait(50); // the popup closes behind that, where it closes
        QVERIFY(scene.popup.isVisible());
        QVERIFY(Test::IsActive(scene.popup));
        QCOMPARE(reports, Reports());
    }

    void popupThatIsShownAgainAndLosesTheFocusAtOnceCloses_data()
    {
        QTest::addColumn<Closing>("close");
        QTest::addColumn<bool>("toWidget");
        QTest::newRow("choice") << Closing(chooseRow) << true;
        QTest::newRow("another window") << Closing(activateOtherWindow) << true;
        QTest::newRow("choice, to a window without widgets") << Closing(chooseRow) << false;
        QTest::newRow("another window, to one without widgets")
                << Closing(activateOtherWindow) << false;
    }

    // Like a window of another application, one without widgets leaves none of the widgets active.
    void popupThatIsShownAgainAndLosesTheFocusAtOnceCloses()
    {
        QFETCH(const Closing, close);
        QFETCH(const bool, toWidget);
        QWidget widget;
        QWindow plainWindow;
        if (toWidget)
            widget.show();
        else
            plainWindow.show();
        QWindow &other = toWidget ? *widget.windowHandle() : plainWindow;
        QVERIFY(QTest::qWaitForWindowActive(&other));
        Scene scene;
        Reports reports;
        const auto reopen = [&](auto, auto) {
            scene.popup.ShowPopup(appendingTo(reports), Scene::anchor);
            other.requestActivate();
        };
        scene.popup.ShowPopup(reopen, Scene::anchor);
        close(scene);
        QTRY_VERIFY(!scene.popup.isVisible());
        QCOMPARE(reports, Reports(u"nothing"_s));
    }

    void requestWhileThePopupIsBeingShownCounts()
    {
        Scene scene;
        scene.activateHost();
        QTRY_VERIFY(!scene.popup.isVisible());
        Reports first;
        Reports last;
        const ImpatientHost host(scene.popup, appendingTo(last));
        scene.popup.ShowPopup(appendingTo(first), Scene::anchor);
        QTRY_VERIFY(Test::IsActive(scene.popup));
        QCoreApplication::processEvents();

        scene.activateHost();
        QTRY_VERIFY(!scene.popup.isVisible());
        QCOMPARE(last, Reports(u"nothing"_s));
        QCOMPARE(first, Reports());
    }

    void callbackIsKeptUntilThePopupOpensForAnother_data() { addClosings(); }

    void callbackIsKeptUntilThePopupOpensForAnother()
    {
        QFETCH(const Closing, close);
        Scene scene;
        auto calls = std::make_shared<int>(0);
        const std::weak_ptr<int> kept = calls;
        scene.popup.ShowPopup([calls](auto, auto) { ++*calls; }, Scene::anchor);
        calls.reset();
        close(scene);
        QTRY_VERIFY(!scene.popup.isVisible());
        QVERIFY(!kept.expired());
        QCOMPARE(*kept.lock(), 1);

        scene.popup.ShowPopup({}, Scene::anchor);
        QVERIFY(kept.expired());
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtSelectionDlg_Callback)

#include "tst_rpfmtselectiondlg_callback.moc"
