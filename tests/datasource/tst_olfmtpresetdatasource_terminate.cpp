#include "TestCase.h"

#include "FormatFiles.h"

#include "OLFmtPresetDataSource.h"

#include <QProcess>
#include <QSemaphore>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <map>
#include <string>
#include <system_error>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

using namespace Qt::StringLiterals;

using Orlimo::IOLFmtPresetDataSource;
using Orlimo::OLFmtPresetDataSource;

namespace {

void Say(const char *text)
{
    std::puts(text);
    std::fflush(stdout);
}

[[noreturn]] void SayWhyAndAbort()
{
    try {
        if (const std::exception_ptr exception = std::current_exception())
            std::rethrow_exception(exception);
        Say("terminated");
    } catch (const std::bad_function_call &) {
        Say("terminated by std::bad_function_call");
    } catch (...) {
        Say("terminated by another exception");
    }
    std::abort();
}

void DestroyAfterWaiting(const std::string &path)
{
    auto dataSource = std::make_shared<OLFmtPresetDataSource>();
    dataSource->AsyncLoadExternalDataSource(path, [] {});
    dataSource->WaitForLoadingComplete();
    dataSource.reset();
    Say("destroyed");
}

void DestroyWithoutWaiting(const std::string &path)
{
    auto dataSource = std::make_shared<OLFmtPresetDataSource>();
    dataSource->AsyncLoadExternalDataSource(path, [] {});
    Say("loading");
    dataSource.reset();
    Say("destroyed");
}

void DestroyAfterCollectingWithoutWaiting(const std::string &path)
{
    auto dataSource = std::make_shared<OLFmtPresetDataSource>();
    dataSource->AsyncLoadExternalDataSource(path, [] {});
    while (!dataSource->GetDefaultFormatNode()) { }
    Say("collected");
    dataSource.reset();
    Say("destroyed");
}

void EndAfterWaiting(const std::string &path)
{
    IOLFmtPresetDataSource::Shared()->AsyncLoadExternalDataSource(path, [] {});
    IOLFmtPresetDataSource::Shared()->WaitForLoadingComplete();
    Say("ending");
}

void EndWithoutWaiting(const std::string &path)
{
    IOLFmtPresetDataSource::Shared()->AsyncLoadExternalDataSource(path, [] {});
    Say("ending");
}

void LoadTwiceWithoutWaiting(const std::string &path)
{
    OLFmtPresetDataSource dataSource;
    QSemaphore loaded;
    dataSource.AsyncLoadExternalDataSource(path, [&] { loaded.release(); });
    loaded.acquire();
    Say("loaded");
    dataSource.AsyncLoadExternalDataSource(path, [] {});
    Say("loading again");
}

void LoadTwice(const std::string &path)
{
    OLFmtPresetDataSource dataSource;
    dataSource.AsyncLoadExternalDataSource(path, [] {});
    dataSource.WaitForLoadingComplete();
    dataSource.AsyncLoadExternalDataSource(path, [] {});
    dataSource.WaitForLoadingComplete();
    Say("loaded twice");
}

void LoadWithoutAction(const std::string &path)
{
    OLFmtPresetDataSource dataSource;
    Say("loading");
    dataSource.AsyncLoadExternalDataSource(path, {});
    dataSource.WaitForLoadingComplete();
    Say("loaded");
}

using Scenario = std::function<void(const std::string &path)>;

const std::map<std::string, Scenario> &Scenarios()
{
    static const std::map<std::string, Scenario> scenarios {
        { "destroyAfterWaiting", DestroyAfterWaiting },
        { "destroyWithoutWaiting", DestroyWithoutWaiting },
        { "destroyAfterCollectingWithoutWaiting", DestroyAfterCollectingWithoutWaiting },
        { "endAfterWaiting", EndAfterWaiting },
        { "endWithoutWaiting", EndWithoutWaiting },
        { "loadTwice", LoadTwice },
        { "loadTwiceWithoutWaiting", LoadTwiceWithoutWaiting },
        { "loadWithoutAction", LoadWithoutAction },
    };
    return scenarios;
}

// Runs one scenario in this process. None saves settings.
int RunScenario(const std::string &name, const std::string &path)
{
#ifdef Q_OS_UNIX
    const rlimit noCoreFile {};
    setrlimit(RLIMIT_CORE, &noCoreFile);
#endif
    std::set_terminate(SayWhyAndAbort);
    Scenarios().at(name)(path);
    return EXIT_SUCCESS;
}

} // namespace

class tst_OLFmtPresetDataSource_Terminate : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aLoadThatWasWaitedForEndsNormally_data();
    void aLoadThatWasWaitedForEndsNormally();
    void misuseTerminatesTheProcess_data();
    void misuseTerminatesTheProcess();
    void waitingOnTheLoadingThreadThrows();

private:
    Test::FormatFolder m_folder;
    QProcess m_process;

    // Starts this executable for one scenario and returns what it said.
    QByteArray said(const QString &scenario)
    {
        const std::string path = m_folder.Write(u"formats.json"_s, Test::Description("Formats"));
        m_process.start(QCoreApplication::applicationFilePath(),
                        { u"--scenario"_s, scenario, QString::fromStdString(path) },
                        QIODevice::ReadOnly | QIODevice::Text);
        m_process.waitForFinished(-1);
        return m_process.readAllStandardOutput();
    }
};

void tst_OLFmtPresetDataSource_Terminate::aLoadThatWasWaitedForEndsNormally_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::newRow("destroyAfterWaiting") << QByteArray("destroyed\n");
    QTest::newRow("endAfterWaiting") << QByteArray("ending\n");
    QTest::newRow("loadTwice") << QByteArray("loaded twice\n");
}

void tst_OLFmtPresetDataSource_Terminate::aLoadThatWasWaitedForEndsNormally()
{
    QTEST(said(QString::fromLatin1(QTest::currentDataTag())), "output");
    QCOMPARE(m_process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_process.exitCode(), EXIT_SUCCESS);
}

void tst_OLFmtPresetDataSource_Terminate::misuseTerminatesTheProcess_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::newRow("destroyWithoutWaiting") << QByteArray("loading\nterminated\n");
    QTest::newRow("destroyAfterCollectingWithoutWaiting") << QByteArray("collected\nterminated\n");
    QTest::newRow("endWithoutWaiting") << QByteArray("ending\nterminated\n");
    QTest::newRow("loadTwiceWithoutWaiting") << QByteArray("loaded\nterminated\n");
    QTest::newRow("loadWithoutAction")
            << QByteArray("loading\nterminated by std::bad_function_call\n");
}

void tst_OLFmtPresetDataSource_Terminate::misuseTerminatesTheProcess()
{
    QTEST(said(QString::fromLatin1(QTest::currentDataTag())), "output");
#ifdef Q_OS_UNIX
    QCOMPARE(m_process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(m_process.exitCode(), SIGABRT);
#else
    QVERIFY(m_process.exitCode() != EXIT_SUCCESS);
#endif
}

// The action once could run before the data source had its thread, and waiting there did nothing.
void tst_OLFmtPresetDataSource_Terminate::waitingOnTheLoadingThreadThrows()
{
    constexpr int rounds = 2'000;
    const std::string path = m_folder.Write(u"formats.json"_s, Test::Description("Formats"));
    for (int i = 0; i < rounds; ++i) {
        OLFmtPresetDataSource dataSource;
        std::error_code error;
        dataSource.AsyncLoadExternalDataSource(path, [&] {
            try {
                dataSource.WaitForLoadingComplete();
            } catch (const std::system_error &fault) {
                error = fault.code();
            }
        });
        dataSource.WaitForLoadingComplete();
        QVERIFY(error == std::errc::resource_deadlock_would_occur);
    }
}

int main(int argc, char **argv)
{
    if (argc == 4 && std::string(argv[1]) == "--scenario")
        return RunScenario(argv[2], argv[3]);
    return Test::Run<tst_OLFmtPresetDataSource_Terminate>(argc, argv);
}

#include "tst_olfmtpresetdatasource_terminate.moc"
