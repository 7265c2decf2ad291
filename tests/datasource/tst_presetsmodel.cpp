// Random operations on the recent choices and custom presets, through the lives of several
// processes that share their settings, checked one by one against a model. ORLIMO_RANDOM_SEED=N
// runs the one sequence with that seed again, ORLIMO_RANDOM_RUNS=N runs N times as many sequences.

#include "TestCase.h"

#include "PresetsLife.h"

#include <QProcess>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr int sequenceCount = 32;
constexpr int lifeCount = 5;
constexpr int operationCount = 700; // in a life
constexpr int shownOperations = 12;

// Does the operations of the lives before on the model alone, which tells what they have left.
void liveBefore(int life, Test::PresetsOperations &operations, Test::PresetsModel &model)
{
    for (int before = 0; before < life; ++before) {
        for (int i = 0; i < operationCount; ++i)
            model.Apply(operations.Next(model));
        model.Restart();
    }
}

int tell(const QStringList &operations, const std::string &difference)
{
    std::printf("after operation %d of this life, the last of these:\n%s\n%s\n",
                int(operations.size()),
                qPrintable(operations.mid(operations.size() - shownOperations).join(u'\n')),
                difference.c_str());
    return EXIT_FAILURE;
}

// Runs in a process of its own.
int live(unsigned seed, int life)
{
    Test::PresetsOperations operations(seed);
    Test::PresetsModel model;
    liveBefore(life, operations, model);
    Test::PresetsLife presets(model);
    QStringList done;
    while (presets.Difference().empty() && done.size() < operationCount) {
        const Test::PresetsOperation operation = operations.Next(model);
        done += QString::fromStdString(operation.Describe());
        presets.Do(operation);
    }
    return presets.Difference().empty() ? EXIT_SUCCESS : tell(done, presets.Difference());
}

void shareSettings(const QString &folder)
{
    qputenv("XDG_CONFIG_HOME", folder.toUtf8());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
    QCoreApplication::setOrganizationName(u"Test Organisation"_s);
    QCoreApplication::setApplicationName(u"Test Application"_s);
}

} // namespace

class tst_PresetsModel : public Test::TestCase
{
    Q_OBJECT

    // What the process of a life has to tell, which is nothing where all is well.
    static QByteArray toldBy(unsigned seed, int life, const QString &folder)
    {
        QProcess child;
        child.setProcessChannelMode(QProcess::MergedChannels);
        child.start(QCoreApplication::applicationFilePath(),
                    { u"--life"_s, QString::number(seed), QString::number(life), folder });
        const bool ended = child.waitForFinished() && child.exitStatus() == QProcess::NormalExit;
        const QByteArray told = child.readAll();
        return ended && child.exitCode() == 0 ? told : told + "the process failed";
    }

private Q_SLOTS:
    void dataSourceKeepsItsPromises_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (const unsigned seed : Test::RandomSeeds(sequenceCount))
            QTest::addRow("seed %u", seed) << seed;
    }

    void dataSourceKeepsItsPromises()
    {
        QFETCH(const unsigned, seed);
        const QTemporaryDir settings(Test::FolderForSaves() + u"/tst_presetsmodel-XXXXXX"_s);
        QVERIFY(settings.isValid());
        for (int life = 0; life < lifeCount; ++life) {
            const QByteArray told = toldBy(seed, life, settings.path());
            QVERIFY2(told.isEmpty(),
                     qPrintable(u"ORLIMO_RANDOM_SEED=%1, life %2\n%3"_s.arg(seed).arg(life).arg(
                             QString::fromUtf8(told))));
        }
    }
};

int main(int argc, char **argv)
{
    if (argc == 5 && qstrcmp(argv[1], "--life") == 0) {
        shareSettings(QString::fromLocal8Bit(argv[4]));
        const QCoreApplication application(argc, argv);
        return live(static_cast<unsigned>(atoi(argv[2])), atoi(argv[3]));
    }
    return Test::Run<tst_PresetsModel>(argc, argv);
}

#include "tst_presetsmodel.moc"
