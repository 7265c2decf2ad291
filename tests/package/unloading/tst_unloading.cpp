#include "TestCase.h"

#include <QProcess>

using namespace Qt::StringLiterals;

// A program of its own loads and unloads the library; it prints what it sees.
class tst_Unloading : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theLibraryGoesWithItsResources_data();
    void theLibraryGoesWithItsResources();
    void aCatalogueIsUsedUntilItIsRemovedBeforeTheLibraryGoes();
    void anUnjoinedLoadTerminatesTheProcess_data();
    void anUnjoinedLoadTerminatesTheProcess();
    void aPopupKeepsTheLibraryAndItsResourcesToTheEnd();

private:
    void Run(const QStringList &steps,
             const QString &description = QStringLiteral(ORLIMO_DESCRIPTION_FILE));

    QString m_output;
    QProcess::ExitStatus m_exitStatus = QProcess::CrashExit;
    int m_exitCode = -1;
};

void tst_Unloading::Run(const QStringList &steps, const QString &description)
{
    QProcess host;
    host.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    host.start(QStringLiteral(ORLIMO_UNLOADING_HOST),
               QStringList { QStringLiteral(ORLIMO_UNLOADING_PLUGIN), description } + steps,
               QIODevice::ReadOnly | QIODevice::Text);
    QVERIFY2(host.waitForFinished(), qPrintable(host.errorString()));
    m_output = QString::fromUtf8(host.readAllStandardOutput());
    m_exitStatus = host.exitStatus();
    m_exitCode = host.exitCode();
}

// A load that was waited for leaves its result in the data source until somebody asks for it.
void tst_Unloading::theLibraryGoesWithItsResources_data()
{
    const QString shipped = QStringLiteral(ORLIMO_DESCRIPTION_FILE);
    const QString missing = u"missing.json"_s;
    QTest::addColumn<QString>("description");
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QString>("seen");
    QTest::newRow("unused") << shipped << QStringList() << QString();
    QTest::newRow("used without a load")
            << shipped << QStringList { u"count"_s } << u"categories: 0\n"_s;
    QTest::newRow("loaded") << shipped << QStringList { u"start"_s, u"wait"_s } << QString();
    QTest::newRow("loaded and used")
            << shipped << QStringList { u"start"_s, u"wait"_s, u"count"_s } << u"categories: 4\n"_s;
    QTest::newRow("not loaded, for a file that is not there")
            << missing << QStringList { u"start"_s, u"wait"_s } << QString();
    QTest::newRow("used after such a load")
            << missing << QStringList { u"start"_s, u"wait"_s, u"count"_s } << u"categories: 0\n"_s;
}

void tst_Unloading::theLibraryGoesWithItsResources()
{
    QFETCH(const QString, description);
    QFETCH(const QStringList, steps);
    QFETCH(const QString, seen);
    Run(steps + QStringList { u"unload"_s }, description);
    QCOMPARE(m_output,
             u"before: not mapped, without resources\n"
             "loaded: mapped, with resources\n"
             "%1"
             "unloaded: not mapped, without resources\n"_s.arg(seen));
    QCOMPARE(m_exitStatus, QProcess::NormalExit);
    QCOMPARE(m_exitCode, 0);
}

void tst_Unloading::aCatalogueIsUsedUntilItIsRemovedBeforeTheLibraryGoes()
{
    Run({ u"translate"_s, u"unload"_s, u"text"_s });
    QCOMPARE(m_output,
             u"before: not mapped, without resources\n"
             "loaded: mapped, with resources\n"
             "Webvideo\n"
             "unloaded: not mapped, without resources\n"
             "Web Video\n"_s);
    QCOMPARE(m_exitCode, 0);
}

void tst_Unloading::anUnjoinedLoadTerminatesTheProcess_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::newRow("when the library is unloaded") << QStringList { u"start"_s, u"unload"_s };
    QTest::newRow("at the next load") << QStringList { u"start"_s, u"start"_s, u"wait"_s };
    QTest::newRow("at the end of the program") << QStringList { u"start"_s };
}

void tst_Unloading::anUnjoinedLoadTerminatesTheProcess()
{
    QFETCH(const QStringList, steps);
    Run(steps);
    QCOMPARE(m_output,
             u"before: not mapped, without resources\n"
             "loaded: mapped, with resources\n"
             "terminate\n"
             "abort\n"_s);
    QCOMPARE(m_exitCode, 3);
}

void tst_Unloading::aPopupKeepsTheLibraryAndItsResourcesToTheEnd()
{
    Run({ u"start"_s, u"wait"_s, u"count"_s, u"popup"_s, u"unload"_s });
    QCOMPARE(m_output,
             u"before: not mapped, without resources\n"
             "loaded: mapped, with resources\n"
             "categories: 4\n"
             "popup visible\n"
             "unloaded: mapped, with resources\n"_s);
    QCOMPARE(m_exitStatus, QProcess::NormalExit);
    QCOMPARE(m_exitCode, 0);
}

ORLIMO_TEST_MAIN(tst_Unloading)
#include "tst_unloading.moc"
