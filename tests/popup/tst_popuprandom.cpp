// Random clicks, keys, searches, edits and loads on the popup, with what must be so after every
// step. Each sequence has a process of its own. ORLIMO_RANDOM_SEED=N runs the one sequence with
// that seed again, in this process; ORLIMO_RANDOM_RUNS=N runs N times as many sequences.

#include "PopupWalk.h"
#include "TestCase.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

constexpr int sequenceCount = 24;
constexpr int stepCount = 400; // in a sequence
constexpr int shownSteps = 12;

} // namespace

class tst_PopupRandom : public Test::TestCase
{
    Q_OBJECT

    static void walk(unsigned seed)
    {
        Test::PopupWalk walk(seed);
        while (walk.Fault().isEmpty() && walk.Steps().size() < stepCount)
            walk.Step();
        const QStringList &steps = walk.Steps();
        const QStringList last = steps.mid(qMax(0, steps.size() - shownSteps));
        QVERIFY2(walk.Fault().isEmpty(),
                 qPrintable(u"ORLIMO_RANDOM_SEED=%1, after step %2, the last of these:\n%3\n%4"_s
                                    .arg(seed)
                                    .arg(steps.size())
                                    .arg(last.join(u'\n'), walk.Fault())));
    }

    static void walkInAnotherProcess(unsigned seed)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"ORLIMO_RANDOM_SEED"_s, QString::number(seed));
        environment.insert(u"TMPDIR"_s, Test::FolderForSaves());
        QProcess child;
        child.setProcessEnvironment(environment);
        child.setProcessChannelMode(QProcess::MergedChannels);
        child.start(QCoreApplication::applicationFilePath(), { u"-silent"_s });
        const bool ended = child.waitForFinished() && child.exitStatus() == QProcess::NormalExit;
        const QByteArray told = child.readAll();
        QVERIFY2(ended && child.exitCode() == 0,
                 "ORLIMO_RANDOM_SEED=" + QByteArray::number(seed) + '\n' + told);
    }

private Q_SLOTS:
    void popupKeepsItsPromises_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (const unsigned seed : Test::RandomSeeds(sequenceCount))
            QTest::addRow("seed %u", seed) << seed;
    }

    void popupKeepsItsPromises()
    {
        QFETCH(const unsigned, seed);
        if (qEnvironmentVariableIsSet("ORLIMO_RANDOM_SEED"))
            walk(seed);
        else
            walkInAnotherProcess(seed);
    }
};

ORLIMO_TEST_MAIN(tst_PopupRandom)

#include "tst_popuprandom.moc"
