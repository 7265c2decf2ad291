#include "Activity.h"
#include "TestCase.h"

#include "EditingDriver.h"
#include "SampleFormat.h"

#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <QInputDialog>
#include <QProcess>

using namespace Test;
using namespace Qt::StringLiterals;
using Orlimo::RPFmtEditingDlg;

namespace {

const char *const childMark = "ORLIMO_EXITING_HOST";

// Runs action(window) as soon as a modal window of the class is active.
template<class Window, class Action>
void OnceIn(Action action)
{
    const auto run = [action] {
        const auto window = [] {
            return qobject_cast<Window *>(QApplication::activeModalWidget());
        };
        if (!QTest::qWaitFor([&] { return window() && Test::IsActive(*window()); }))
            qFatal("no modal window of the class has opened");
        action(*window());
    };
    QMetaObject::invokeMethod(qApp, run, Qt::QueuedConnection);
}

// The same in the event loop of the application, as a host does it that goes on.
bool SaveInEventLoop()
{
    bool isSaved = false;
    const auto edit = [&isSaved] {
        isSaved = Edit(MakeSamplePreset("HD"), MakeSampleFormat(),
                       [](const EditingDriver &user) { user.Click(u"btnSave"_s); });
        QCoreApplication::exit();
    };
    QMetaObject::invokeMethod(qApp, edit, Qt::QueuedConnection);
    QCoreApplication::exec();
    return isSaved;
}

} // namespace

// A host that ends its event loop around an edit. Nested event loops end at once from then on, so
// every function runs in a process of its own.
class ExitingHost : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void exitsInTheDialog()
    {
        compareGivenUp([] {
            OnceIn<RPFmtEditingDlg>([](RPFmtEditingDlg &dialog) {
                EditingDriver(dialog).Choose(u"cmbResolution"_s, 2);
                QCoreApplication::exit();
            });
        });
    }

    void exitsInThePrompt()
    {
        compareGivenUp([] {
            OnceIn<RPFmtEditingDlg>([](RPFmtEditingDlg &dialog) {
                EditingDriver(dialog).Choose(u"cmbResolution"_s, 2);
                OnceIn<QInputDialog>([](QInputDialog &) { QCoreApplication::exit(); });
                EditingDriver(dialog).Click(u"btnSaveNewPreset"_s);
            });
        });
    }

    void exitsBeforeTheDialogOpens()
    {
        compareGivenUp([] { QCoreApplication::exit(); });
    }

private:
    // prepare() sees to it that the event loop ends.
    template<class Prepare>
    static void compareGivenUp(Prepare prepare)
    {
        QPushButton host;
        host.resize(200, 100);
        host.show();
        QVERIFY(QTest::qWaitForWindowExposed(&host));
        const QSignalSpy clicked(&host, &QPushButton::clicked);
        const auto preset = MakeSamplePreset("HD");
        const auto before = AllIndices(*preset);

        prepare();
        QVERIFY(!RPFmtEditingDlg::EditPreset(preset, MakeSampleFormat()));
        QVERIFY(RPFmtEditingDlg::Instance()->isHidden());
        QCOMPARE(AllIndices(*preset), before);

        host.activateWindow(); // as a window manager does it before a click
        QTest::mouseClick(host.windowHandle(), Qt::LeftButton, {}, QPoint(100, 50));
        QCOMPARE(clicked.size(), 1);
        QVERIFY(SaveInEventLoop());
    }
};

class tst_RPFmtEditingDlgExit : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theEditIsGivenUpWhereTheHostEndsItsEventLoop_data()
    {
        QTest::addColumn<QString>("function");
        QTest::newRow("in the dialog") << u"exitsInTheDialog"_s;
        QTest::newRow("in the prompt") << u"exitsInThePrompt"_s;
        QTest::newRow("before the dialog opens") << u"exitsBeforeTheDialogOpens"_s;
    }

    void theEditIsGivenUpWhereTheHostEndsItsEventLoop()
    {
        QFETCH(const QString, function);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QString::fromLatin1(childMark), u"1"_s);
        QProcess child;
        child.setProcessEnvironment(environment);
        child.setProcessChannelMode(QProcess::MergedChannels);
        child.start(QCoreApplication::applicationFilePath(), { u"-silent"_s, function });
        const bool ended = child.waitForFinished() && child.exitStatus() == QProcess::NormalExit;
        const QByteArray told = child.readAll();
        QVERIFY2(ended && child.exitCode() == 0, told.constData());
    }
};

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet(childMark))
        return Test::Run<ExitingHost>(argc, argv);
    return Test::Run<tst_RPFmtEditingDlgExit>(argc, argv);
}

#include "tst_rpfmteditingdlg_exit.moc"
