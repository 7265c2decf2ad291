#include "MessageRecorder.h"
#include "PathForms.h"
#include "PopupDriver.h"
#include "SampleDescription.h"
#include "TestCase.h"

#include "IOLArtworkImageGroup.h"
#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLMediaFormatPopup.h"

#include <QFile>
#include <QProcess>
#include <QThread>

#include <cstdio>
#include <functional>
#include <map>
#include <utility>

using namespace Orlimo;
using namespace Qt::StringLiterals;
using Test::PopupDriver;

// Each order of loading and showing is run in a process of its own, since a tree that is there once
// stays for the life of the process. The child prints the tabs it ends with.
namespace {

void verify(bool condition, const char *what)
{
    if (!condition)
        qFatal("not so: %s", what);
}

class Scenario
{
public:
    explicit Scenario(QString path)
        : m_path(std::move(path))
    {
    }

    void setUp() const { IOLMediaFormatPopup::SetupExternalFormatData(m_path.toStdString()); }
    static void setUpMissing() { IOLMediaFormatPopup::SetupExternalFormatData("/missing.json"); }
    static void wait() { IOLMediaFormatPopup::WaitForFormatDataLoadingComplete(); }
    static void show() { IOLMediaFormatPopup::Shared()->ShowFormatPopup({ 10, 10, 20, 20 }, {}); }

    // Long enough for whatever is posted; ends early when the categories are there.
    static void handleEvents()
    {
        (void)QTest::qWaitFor(
                [] { return PopupDriver(PopupDriver::FindPopup()).Tabs()->count() > 2; }, 2000);
        QCoreApplication::processEvents();
    }

    void replaceArtwork() const
    {
        QString artwork = m_path;
        artwork.replace(u".json"_s, u".icfg"_s);
        Test::WriteArtwork(artwork, { { 1001, Qt::green } }, { 33 });
    }

    // Has the description take longer to parse, by about a millisecond for each megabyte.
    void enlarge(int megabytes) const
    {
        QFile file(m_path);
        const QByteArray space(megabytes * 1024 * 1024, ' ');
        verify(file.open(QIODevice::Append) && file.write(space) == space.size(),
               "the description is enlarged");
    }

private:
    QString m_path;
};

// Has the load end when the widget receives an event, such as one of a change to its geometry.
class LoadEndsWithAnEventOf final : public QObject
{
public:
    explicit LoadEndsWithAnEventOf(QWidget *widget) { widget->installEventFilter(this); }

    bool HasEnded() const { return m_hasEnded; }

protected:
    bool eventFilter(QObject *, QEvent *) override
    {
        Scenario::wait();
        m_hasEnded = true;
        return false;
    }

private:
    bool m_hasEnded = false;
};

void loadAfterAFailure(const Scenario &scenario)
{
    Scenario::setUpMissing();
    Scenario::wait();
    Scenario::show();
    QCoreApplication::processEvents();
    verify(PopupDriver(PopupDriver::FindPopup()).Tabs()->count() == 2, "no categories yet");
    scenario.setUp();
    Scenario::wait();
    Scenario::handleEvents();
}

// What the failure has posted is handled while the good load runs, which ends in the midst of that.
void loadThatEndsWhileAFailureIsTakenUp(const Scenario &scenario)
{
    scenario.enlarge(16);
    Scenario::show();
    QWidget *popup = PopupDriver::FindPopup();
    verify(QTest::qWaitForWindowExposed(popup), "the popup is shown");
    Scenario::setUpMissing();
    Scenario::wait();
    scenario.setUp();
    const LoadEndsWithAnEventOf load(PopupDriver(popup).Tabs()->tabBar());
    QCoreApplication::sendPostedEvents(popup, QEvent::MetaCall);
    verify(load.HasEnded(), "the tabs get their icons");
    Scenario::handleEvents();
}

// The categories hide the page that has the focus, and the host asks for the popup when it sees
// that.
void showAsCategoriesArrive(const Scenario &scenario)
{
    Scenario::show();
    QWidget *popup = PopupDriver::FindPopup();
    verify(QTest::qWaitForWindowActive(popup), "the popup is active");
    const PopupDriver driver(popup);
    verify(driver.Tabs()->currentIndex() == 1, "Custom is shown");
    QWidget *list = driver.List("ListFormat");
    Test::ClickAt(list, list->rect().center());
    verify(list->hasFocus(), "the list has the focus");
    scenario.setUp();
    Scenario::wait();
    bool requested = false;
    bool reported = false;
    const auto request = [&] {
        if (!std::exchange(requested, true)) {
            IOLMediaFormatPopup::Shared()->ShowFormatPopup({ 10, 10, 20, 20 },
                                                           [&](auto, auto) { reported = true; });
        }
    };
    const QMetaObject::Connection connection = QObject::connect(qApp, &QApplication::focusChanged,
                                                                qApp, request);
    Scenario::handleEvents();
    QObject::disconnect(connection);
    verify(requested, "the focus has moved");
    verify(popup->isVisible() && !reported, "the popup stays open for the request");
}

void takeUpAFailureDuringALoad(const Scenario &scenario, int delay)
{
    scenario.enlarge(2);
    Scenario::show();
    Scenario::setUpMissing();
    Scenario::wait();
    scenario.setUp();
    QThread::usleep(static_cast<unsigned long>(delay));
    QCoreApplication::processEvents();
    Scenario::wait();
    Scenario::handleEvents();
}

void showDuringALoad(const Scenario &scenario, int delay)
{
    scenario.setUp();
    QThread::usleep(static_cast<unsigned long>(delay));
    Scenario::show();
    Scenario::handleEvents();
    Scenario::wait();
}

void loadAgain(const Scenario &scenario)
{
    scenario.setUp();
    Scenario::wait();
    Scenario::show();
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    const auto tree = dataSource->GetDefaultFormatNode();
    scenario.replaceArtwork();
    scenario.setUp();
    Scenario::wait();
    const PopupDriver driver(PopupDriver::FindPopup());
    verify(QTest::qWaitFor([&] { return driver.Tabs()->tabIcon(0).isNull(); }),
           "the tabs show the new artwork, which has nothing for them");
    verify(driver.Tabs()->tabIcon(1).isNull(), "so do the categories' tabs");
    verify(dataSource->GetDefaultFormatNode() == tree, "the tree is the first one");
    verify(!dataSource->GetArtworkGroup(3), "the artwork is the new one");
    const QImage icon = dataSource->GetArtworkGroup(1001)->Icon().pixmap(33, 33).toImage();
    verify(icon.pixelColor(16, 16) == QColor(Qt::green), "the artwork is the new one");
}

void loadIcons(const Scenario &scenario)
{
    scenario.setUp();
    Scenario::wait();
    Scenario::show();
    verify(!PopupDriver(PopupDriver::FindPopup()).Tabs()->tabIcon(1).isNull(),
           "a category has its icon");
}

const std::map<QString, std::function<void(const Scenario &)>> &scenarios()
{
    using S = Scenario;
    static const std::map<QString, std::function<void(const S &)>> all {
        { u"set up, wait, show"_s, [](const S &s) { s.setUp(), S::wait(), S::show(); } },
        { u"set up, wait, show, events"_s,
          [](const S &s) { s.setUp(), S::wait(), S::show(), S::handleEvents(); } },
        { u"show, set up, wait, events"_s,
          [](const S &s) { S::show(), s.setUp(), S::wait(), S::handleEvents(); } },
        { u"show, set up, wait, show"_s,
          [](const S &s) { S::show(), s.setUp(), S::wait(), S::show(); } },
        { u"show, set up, events, wait"_s,
          [](const S &s) { S::show(), s.setUp(), S::handleEvents(), S::wait(); } },
        { u"set up, show, events, wait"_s,
          [](const S &s) { s.setUp(), S::show(), S::handleEvents(), S::wait(); } },
        { u"set up, show, show, wait, events"_s,
          [](const S &s) { s.setUp(), S::show(), S::show(), S::wait(), S::handleEvents(); } },
        { u"failure, then a good load"_s, loadAfterAFailure },
        { u"failure that is taken up while a good load ends"_s,
          loadThatEndsWhileAFailureIsTakenUp },
        { u"show as the categories arrive"_s, showAsCategoriesArrive },
        { u"a second load"_s, loadAgain },
        { u"icons"_s, loadIcons },
    };
    return all;
}

int runScenario(const QString &name, const QString &path, int delay)
{
    const Scenario scenario(path);
    if (name == "show at a random moment"_L1)
        showDuringALoad(scenario, delay);
    else if (name == "take up a failure at a random moment"_L1)
        takeUpAFailureDuringALoad(scenario, delay);
    else
        scenarios().at(name)(scenario);
    const QStringList tabs = PopupDriver(PopupDriver::FindPopup()).TabTexts();
    std::printf("%s", qPrintable(tabs.join(u'|')));
    return 0;
}

const QString failure = u"orlimo: Failed load external format /missing.json\n"_s;

} // namespace

class tst_IOLMediaFormatPopup_Loading : public Test::TestCase
{
    Q_OBJECT

    static QString tabsAfter(const QString &scenario, int delay = 0)
    {
        const Test::SampleDescription description;
        return tabsAfter(scenario, description.Folder(), QString::fromStdString(description.Path()),
                         delay);
    }

    // The tabs that a child process ends with; its other output, which tells of warnings, follows.
    static QString tabsAfter(const QString &scenario, const QString &workingFolder,
                             const QString &path, int delay = 0)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_FORCE_STDERR_LOGGING"_s, u"1"_s); // Windows logs to the debugger
        QProcess child;
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationFilePath(),
                    { u"--scenario"_s, scenario, workingFolder, path, QString::number(delay) },
                    QIODevice::ReadOnly | QIODevice::Text);
        if (!child.waitForFinished() || child.exitStatus() != QProcess::NormalExit)
            return u"the child failed: "_s + QString::fromUtf8(child.readAllStandardError());
        return QString::fromUtf8(child.readAllStandardOutput() + child.readAllStandardError());
    }

private Q_SLOTS:
    void categoriesAppearOnceInWhateverOrder_data()
    {
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<QString>("logged");
        for (const auto &[name, run] : scenarios())
            QTest::newRow(qPrintable(name))
                    << name << (name.startsWith(u"failure"_s) ? failure : u""_s);
    }

    void categoriesAppearOnceInWhateverOrder()
    {
        QFETCH(const QString, scenario);
        QFETCH(const QString, logged);
        QCOMPARE(tabsAfter(scenario), u"Recent|Video|Audio|Custom"_s + logged);
    }

    void categoriesAndIconsAppearWhateverFormThePathHas_data() { Test::AddPathForms(); }

    void categoriesAndIconsAppearWhateverFormThePathHas()
    {
        QFETCH(const Test::PathForm, form);
        const Test::SampleDescription description(Test::pathBeyondAscii);
        const QString folder = description.Folder();
        QCOMPARE(tabsAfter(u"icons"_s, folder, form(folder, Test::pathBeyondAscii)),
                 u"Recent|Video|Audio|Custom"_s);
    }

    void aFailureIsLoggedWithThePathAsItWasGiven()
    {
        const QString path = u"/größe 動画 𐐀/missing é.json"_s;
        Test::MessageRecorder recorder;
        IOLMediaFormatPopup::SetupExternalFormatData(path.toStdString());
        IOLMediaFormatPopup::WaitForFormatDataLoadingComplete();
        const QList<Test::Message> messages = recorder.Take();
        QCOMPARE(messages.size(), 1);
        QCOMPARE(messages.first().text, u"Failed load external format "_s + path);
    }

    void categoriesAppearOnceWhenThePopupIsMadeWhileTheLoadEnds()
    {
        for (int delay = 0; delay <= 3000; delay += 200)
            QCOMPARE(tabsAfter(u"show at a random moment"_s, delay),
                     u"Recent|Video|Audio|Custom"_s);
    }

    void categoriesAppearOnceWhenAFailureIsTakenUpWhileAGoodLoadEnds()
    {
        for (int delay = 0; delay <= 3000; delay += 250)
            QCOMPARE(tabsAfter(u"take up a failure at a random moment"_s, delay),
                     u"Recent|Video|Audio|Custom"_s + failure);
    }
};

int main(int argc, char **argv)
{
    if (argc == 6 && qstrcmp(argv[1], "--scenario") == 0) {
        const Test::IsolatedSettings settings;
        QApplication application(argc, argv);
        const QStringList arguments = QCoreApplication::arguments();
        const Test::WorkingFolder workingFolder(arguments.at(3));
        return runScenario(arguments.at(2), arguments.at(4), arguments.at(5).toInt());
    }
    return Test::Run<tst_IOLMediaFormatPopup_Loading>(argc, argv);
}

#include "tst_iolmediaformatpopup_loading.moc"
