#include "Activity.h"
#include "TestCase.h"

#include "RPWindowOwner.h"

#include <QDialog>
#include <QWindow>

using Orlimo::PlaceAboveActiveWindow;
using Orlimo::PlaceAboveModalWindow;

class tst_RPWindowOwner : public Test::TestCase
{
    Q_OBJECT

    static void activate(QWidget &window)
    {
        window.show();
        window.activateWindow();
        QTRY_VERIFY(Test::IsActive(window));
    }

    static const QWindow *ownerOf(const QWidget &window)
    {
        return window.windowHandle()->transientParent();
    }

private Q_SLOTS:
    void popupHasNoOwnerWithoutAModalDialog()
    {
        QWidget host;
        QWidget popup;
        activate(host);
        PlaceAboveModalWindow(popup);
        QVERIFY(popup.windowHandle());
        QCOMPARE(ownerOf(popup), nullptr);
    }

    void popupBelongsToTheModalDialogAsLongAsItIsOpen()
    {
        QWidget popup;
        QDialog dialog;
        dialog.setModal(true);
        activate(dialog);
        PlaceAboveModalWindow(popup);
        QCOMPARE(ownerOf(popup), dialog.windowHandle());
        dialog.hide();
        PlaceAboveModalWindow(popup);
        QCOMPARE(ownerOf(popup), nullptr);
    }

    void dialogBelongsToTheActiveWindow()
    {
        QWidget host;
        QWidget other;
        QDialog dialog;
        activate(host);
        activate(other);
        PlaceAboveActiveWindow(dialog);
        QCOMPARE(ownerOf(dialog), other.windowHandle());
    }

    void dialogBelongsToTheWindowThatWasActiveWhenThePopupOpened()
    {
        QWidget host;
        QWidget popup;
        QDialog dialog;
        activate(host);
        PlaceAboveModalWindow(popup);
        activate(popup);
        PlaceAboveActiveWindow(dialog);
        QCOMPARE(ownerOf(dialog), host.windowHandle());
    }

    void windowsNeverOwnEachOther()
    {
        QWidget popup;
        QDialog dialog;
        dialog.setModal(true);
        activate(popup);
        PlaceAboveActiveWindow(dialog);
        dialog.windowHandle()->setTransientParent(popup.windowHandle());
        activate(dialog);
        PlaceAboveModalWindow(popup);
        QCOMPARE(ownerOf(popup), nullptr);
        PlaceAboveActiveWindow(dialog);
        QVERIFY(ownerOf(dialog) != dialog.windowHandle());
    }
};

ORLIMO_TEST_MAIN(tst_RPWindowOwner)

#include "tst_rpwindowowner.moc"
