#include "TestCase.h"

#include <QProcess>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

// The example in a process of its own, with its own settings, which answers through its locator.
class RunningHost
{
public:
    RunningHost(const QStringList &options, const QString &language)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        environment.insert(u"LANGUAGE"_s, language);
        m_process.setProcessEnvironment(environment);
        m_process.start(u"" ORLIMO_EXAMPLE_HOST ""_s,
                        QStringList { u"--locator"_s, u"--settings"_s, m_settings.path() }
                                + options);
    }

    ~RunningHost()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    QString TextOf(const QString &widget)
    {
        m_process.write("text " + widget.toUtf8() + '\n');
        if (!m_process.canReadLine() && !m_process.waitForReadyRead())
            qFatal("the host does not answer");
        return QString::fromUtf8(m_process.readLine()).mid(2).trimmed();
    }

    int ExitCode()
    {
        m_process.waitForFinished();
        return m_process.exitCode();
    }

    QString Errors() { return QString::fromUtf8(m_process.readAllStandardError()); }

private:
    QTemporaryDir m_settings;
    QProcess m_process;
};

} // namespace

class tst_ExampleHost : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itStartsInTheLanguageAskedForOrTheSystems_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("system");
        QTest::addColumn<QString>("text");
        const QStringList japanese { u"--language"_s, u"ja"_s };
        QTest::newRow("neither") << QStringList() << u"C"_s << u"Edit settings…"_s;
        QTest::newRow("the system's") << QStringList() << u"fr_CA"_s << u"Modifier les réglages…"_s;
        QTest::newRow("asked for") << japanese << u"fr_CA"_s << u"設定を編集…"_s;
    }

    void itStartsInTheLanguageAskedForOrTheSystems()
    {
        QFETCH(const QStringList, options);
        QFETCH(const QString, system);
#ifdef Q_OS_WIN
        if (options.isEmpty())
            QSKIP("Windows has the language in the user's account, not in the environment");
#endif
        RunningHost host(options, system);
        QTEST(host.TextOf(u"host/btnEdit"_s), "text");
    }

    void itRefusesALanguageThatItDoesNotHave()
    {
        RunningHost host({ u"--language"_s, u"tlh"_s }, u"C"_s);
        QCOMPARE(host.ExitCode(), 1);
        QVERIFY2(host.Errors().contains(u"tlh"_s), qPrintable(host.Errors()));
    }
};

ORLIMO_TEST_MAIN(tst_ExampleHost)

#include "tst_examplehost.moc"
