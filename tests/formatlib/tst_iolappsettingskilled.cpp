#include "MessageRecorder.h"
#include "TestCase.h"

#include "IOLAppSettings.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <thread>

using Orlimo::IOLAppSettings;

namespace {

using namespace Qt::StringLiterals;

constexpr int savesToSurvive = 500;
constexpr std::size_t valueLength = 100'000;

constexpr char folderVariable[] = "ORLIMO_SETTINGS_FOLDER";

void SetPlace()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       qEnvironmentVariable(folderVariable));
    QCoreApplication::setOrganizationName(u"Host"_s);
    QCoreApplication::setApplicationName(u"Player"_s);
}

// Values of different lengths, each of which says by itself whether it is whole.
std::string ValueOf(int number)
{
    const std::string sign = std::to_string(number) + ' ';
    std::string value;
    while (value.size() < valueLength + static_cast<std::size_t>(number % 7) * 1000)
        value += sign;
    return value + "end";
}

int NumberOf(const std::string &value)
{
    return std::atoi(value.c_str());
}

// Saves one value after the other under the key, and says before which and after which it is. What
// could not be saved is logged, and not said: a process that is killed while it makes the lock
// leaves one of nobody, which keeps others from saving until it is half a minute old.
int SaveForEver(const char *key, int first, int last)
{
    SetPlace();
    Test::MessageRecorder recorder;
    for (int number = first; number <= last; ++number) {
        std::printf("begin %d\n", number);
        std::fflush(stdout);
        IOLAppSettings::Shared()->SetValue(ValueOf(number), key);
        IOLAppSettings::Shared()->Save();
        if (!recorder.Take().isEmpty())
            continue;
        std::printf("end %d\n", number);
        std::fflush(stdout);
    }
    return 0;
}

// What a child process said last; 0 where it said nothing of the kind.
int LastNumber(const QByteArray &output, const QByteArray &word)
{
    const qsizetype at = output.lastIndexOf(word);
    const qsizetype end = output.indexOf('\n', at);
    return at < 0 || end < 0 ? 0 : output.mid(at + word.size(), end - at - word.size()).toInt();
}

} // namespace

class tst_IOLAppSettingsKilled : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aKilledSaveLeavesTheOldValueOrTheNew()
    {
        QRandomGenerator random(20'240'229);
        int saved = 0;
        int kills = 0;
        while (saved < savesToSurvive) {
            const auto child = start("key", saved + 1, 1'000'000);
            const QByteArray output = killAfter(*child, saved + random.bounded(20), random);
            const std::string stored = storedValue("key");
            const int number = NumberOf(stored);
            QCOMPARE(stored, number == 0 ? std::string() : ValueOf(number));
            const int begun = std::max(saved, LastNumber(output, "begin "));
            const int ended = std::max(saved, LastNumber(output, "end "));
            QVERIFY2(number >= ended && number <= begun,
                     qPrintable(u"%1 is stored, %2 to %3 were saved"_s.arg(number).arg(ended).arg(
                             begun)));
            saved = number;
            ++kills;
        }
        QVERIFY2(kills >= 10, qPrintable(QString::number(kills)));
    }

    void theNextSaveClearsUpBehindAKilledOne()
    {
        const QString abandoned = m_folder->filePath(u"Host/.Player.ini-saving-abcdef"_s);
        const QString foreign = m_folder->filePath(u"Host/.Other.ini-saving-abcdef"_s);
        for (const QString &folder : { abandoned, foreign })
            QVERIFY(QDir().mkpath(folder + u"/copy"_s));
        const auto child = start("key", 1, 1);
        QVERIFY(child->waitForFinished());
        QVERIFY(!QFileInfo::exists(abandoned));
        QVERIFY(QFileInfo::exists(foreign));
        QCOMPARE(storedValue("key"), ValueOf(1));
    }

    void twoProcessesThatSaveAtOnceLoseNothing()
    {
        constexpr int saves = 60;
        const auto first = start("first", 1, saves);
        const auto second = start("second", 1, saves);
        QVERIFY(first->waitForFinished());
        QVERIFY(second->waitForFinished());
        QCOMPARE(first->readAllStandardError() + second->readAllStandardError(), QByteArray());
        QCOMPARE(storedValue("first"), ValueOf(saves));
        QCOMPARE(storedValue("second"), ValueOf(saves));
    }

    void twoProcessesThatSaveOneValueLeaveAWholeOne()
    {
        const auto first = start("both", 1, 60);
        const auto second = start("both", 101, 160);
        QVERIFY(first->waitForFinished());
        QVERIFY(second->waitForFinished());
        QCOMPARE(first->readAllStandardError() + second->readAllStandardError(), QByteArray());
        const auto stored = storedValue("both");
        QVERIFY(stored == ValueOf(60) || stored == ValueOf(160));
    }

private:
    // Every test has a folder of its own.
    void prepare() override { m_folder.emplace(); }

    std::unique_ptr<QProcess> start(const char *key, int first, int last) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QString::fromLatin1(folderVariable), m_folder->path());
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(environment);
        process->start(QCoreApplication::applicationFilePath(),
                       { QString::fromLatin1(key), QString::number(first), QString::number(last) });
        return process;
    }

    // Returns what the process said until it was killed: after it has saved number, at any moment
    // of the time that a save takes, as the file is replaced at the end of it.
    static QByteArray killAfter(QProcess &process, int number, QRandomGenerator &random)
    {
        QByteArray output;
        QElapsedTimer timer;
        timer.start();
        while (LastNumber(output, "end ") < number && process.waitForReadyRead())
            output += process.readAllStandardOutput();
        const qint64 saves = std::max<qint64>(1, output.count("end "));
        const std::chrono::nanoseconds saveTime(timer.nsecsElapsed() / saves);
        std::this_thread::sleep_for(random.bounded(qint64(100)) * saveTime / 100);
        process.kill();
        process.waitForFinished();
        return output + process.readAllStandardOutput();
    }

    std::string storedValue(const char *key) const
    {
        const QSettings settings(m_folder->filePath(u"Host/Player.ini"_s), QSettings::IniFormat);
        return settings.value(QLatin1StringView(key)).toString().toStdString();
    }

    std::optional<QTemporaryDir> m_folder;
};

int main(int argc, char **argv)
{
    if (argc == 4 && argv[1][0] != '-')
        return SaveForEver(argv[1], std::atoi(argv[2]), std::atoi(argv[3]));
    return Test::Run<tst_IOLAppSettingsKilled>(argc, argv);
}

#include "tst_iolappsettingskilled.moc"
