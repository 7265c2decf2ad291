#include "TestCase.h"

#include <QProcess>

using namespace Qt::StringLiterals;

// A program of its own loads and unloads the library; it prints what it sees.
class tst_Unloading : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aUsedDataSourceGoesWithTheLibraryAndItsResources();
    void aCatalogueIsUsedUntilItIsRemovedBeforeTheLibraryGoes();
    void anUnjoinedLoadTerminatesTheProcess_data();
    void anUnjoinedLoadTerminatesTheProcess();
    void aPopupKeepsTheLibraryAndItsResourcesToTheEnd();

private:
    void Run(const QString &scenario);

    QString m_output;
    QProcess::ExitStatus m_exitStatus = QProcess::CrashExit;
    int m_exitCode = -1;
};

void tst_Unloading::Run(const QString &scenario)
{
    QProcess host;
    host.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    host.start(QStringLiteral(ORLIMO_UNLOADING_HOST),
               { QStringLiteral(ORLIMO_UNLOADING_PLUGIN), QStringLiteral(ORLIMO_DESCRIPTION_FILE),
                 scenario },
               QIODevice::ReadOnly | QIODevice::Text);
    QVERIFY2(host.waitForFinished(), qPrintable(host.errorString()));
    m_output = QString::fromUtf8(host.readAllStandardOutput());
    m_exitStatus = host.exitStatus();
    m_exitCode = host.exitCode();
}

void tst_Unloading::aUsedDataSourceGoesWithTheLibraryAndItsResources()
{
    Run(u"load"_s);
    QCOMPARE(m_output,
             u"before: not mapped, without resources\n"
             "loaded: mapped, with resources\n"
             "categories: 4\n"
             "unloaded: not mapped, without resources\n"_s);
    QCOMPARE(m_exitStatus, QProcess::NormalExit);
    QCOMPARE(m_exitCode, 0);
}

void tst_Unloading::aCatalogueIsUsedUntilItIsRemovedBeforeTheLibraryGoes()
{
    Run(u"catalogue"_s);
    QCOMPARE(m_output,
             u"before: not mapped, without resources\n"
             "loaded: mapped, with resources\n"
             "categories: 4\n"
             "Webvideo\n"
             "unloaded: not mapped, without resources\n"
             "Web Video\n"_s);
    QCOMPARE(m_exitCode, 0);
}

void tst_Unloading::anUnjoinedLoadTerminatesTheProcess_data()
{
    QTest::addColumn<QString>("scenario");
    QTest::newRow("when the library is unloaded") << u"unjoined"_s;
    QTest::newRow("at the next load") << u"twice"_s;
    QTest::newRow("at the end of the program") << u"end"_s;
}

void tst_Unloading::anUnjoinedLoadTerminatesTheProcess()
{
    QFETCH(const QString, scenario);
    Run(scenario);
    QCOMPARE(m_output,
             u"before: not mapped, without resources\n"
             "loaded: mapped, with resources\n"
             "terminate\n"
             "abort\n"_s);
    QCOMPARE(m_exitCode, 3);
}

void tst_Unloading::aPopupKeepsTheLibraryAndItsResourcesToTheEnd()
{
    Run(u"popup"_s);
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
