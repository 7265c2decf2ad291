#include "TestCase.h"

#include "IOLAppSettings.h"

#include <QDir>
#include <QFile>

#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <limits>
#include <string>

using namespace Qt::StringLiterals;

using Orlimo::IOLAppSettings;

namespace {

constexpr int exitSaved = 0;
constexpr int exitLoggedFailure = 2;
constexpr int exitNotTraced = 3;

std::string OldValue()
{
    return std::string(5000, 'o');
}

// Longer than what is gathered before it is written, so that it has system calls of its own.
std::string NewValue()
{
    return std::string(20'000, 'n');
}

QByteArray FileWith(const std::string &value)
{
    return "[General]\nkey=" + QByteArray::fromStdString(value) + "\n\n[Host]\ngeometry=1\n";
}

int saveResult = exitSaved;

void NoteFailure(QtMsgType, const QMessageLogContext &, const QString &)
{
    saveResult = exitLoggedFailure;
}

// Saves the new value in the folder, traced by the parent process.
[[noreturn]] void SaveTraced(const char *folder)
{
    std::signal(SIGXFSZ, SIG_IGN);
    qInstallMessageHandler(NoteFailure);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, QFile::decodeName(folder));
    QCoreApplication::setOrganizationName(u"Host"_s);
    QCoreApplication::setApplicationName(u"Player"_s);
    IOLAppSettings::Shared()->SetValue(NewValue(), "key");
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
        _exit(exitNotTraced);
    std::raise(SIGSTOP);
    IOLAppSettings::Shared()->Save();
    _exit(saveResult); // what a sanitizer does at a usual exit, it cannot do while it is traced
}

// A process that saves the new value, step by step.
class TracedSave
{
public:
    explicit TracedSave(const QString &folder)
    {
        const QByteArray program = QFile::encodeName(QCoreApplication::applicationFilePath());
        const QByteArray argument = QFile::encodeName(folder);
        m_process = fork();
        if (m_process == 0) {
            execl(program.constData(), program.constData(), "--save", argument.constData(),
                  nullptr);
            _exit(exitNotTraced);
        }
        Wait();
    }
    TracedSave(const TracedSave &) = delete;
    TracedSave &operator=(const TracedSave &) = delete;
    ~TracedSave()
    {
        if (IsRunning())
            kill(m_process, SIGKILL);
        while (IsRunning())
            Wait();
    }

    bool IsRunning() const { return WIFSTOPPED(m_status); }

    // Goes on to the next entry to, or return from, a system call.
    void Step()
    {
        ptrace(PTRACE_SYSCALL, m_process, nullptr, nullptr);
        Wait();
    }

    void MakeCalls(int count)
    {
        constexpr int stepsOfCall = 2;
        for (int step = 0; step / stepsOfCall < count && IsRunning(); ++step)
            Step();
    }

    void RunToTheEnd()
    {
        while (IsRunning())
            Step();
    }

    // From here on no file grows beyond so many bytes.
    void SetRoomOnDisk(rlim_t room) const
    {
        rlimit limit {};
        getrlimit(RLIMIT_FSIZE, &limit);
        limit.rlim_cur = std::min(room, limit.rlim_max);
        prlimit(m_process, RLIMIT_FSIZE, &limit, nullptr);
    }

    bool IsForbidden() const { return ExitCode() == exitNotTraced; }
    int ExitCode() const { return WIFEXITED(m_status) ? WEXITSTATUS(m_status) : -1; }

private:
    void Wait()
    {
        if (waitpid(m_process, &m_status, 0) != m_process)
            qFatal("cannot wait for the process");
    }

    pid_t m_process = -1;
    int m_status = 0;
};

// A folder of settings that hold the old value.
class SettingsFolder
{
public:
    SettingsFolder()
    {
        QFile file(FilePath());
        if (!QDir(m_folder.path()).mkdir(u"Host"_s) || !file.open(QIODevice::WriteOnly)
            || file.write(FileWith(OldValue())) < 0)
            qFatal("cannot write the file");
    }

    QString Path() const { return m_folder.path(); }
    bool Holds(const std::string &value) const { return Content() == FileWith(value); }

private:
    QString FilePath() const { return m_folder.filePath(u"Host/Player.ini"_s); }

    QByteArray Content() const
    {
        QFile file(FilePath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
};

} // namespace

class tst_IOLAppSettingsInterrupted : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (TracedSave(SettingsFolder().Path()).IsForbidden())
            QSKIP("this machine does not let a process trace another");
    }
    void theFileIsWholeBetweenAnyTwoSystemCalls();
    void aDiskThatFillsUpAtAnyMomentLeavesAWholeFile_data();
    void aDiskThatFillsUpAtAnyMomentLeavesAWholeFile();
};

// Wherever the process is killed, the file stays as it is there.
void tst_IOLAppSettingsInterrupted::theFileIsWholeBetweenAnyTwoSystemCalls()
{
    const SettingsFolder folder;
    TracedSave save(folder.Path());
    QVERIFY(folder.Holds(OldValue()));
    while (save.IsRunning() && folder.Holds(OldValue()))
        save.Step();
    QVERIFY(save.IsRunning());
    while (save.IsRunning()) {
        QVERIFY(folder.Holds(NewValue()));
        save.Step();
    }
    QCOMPARE(save.ExitCode(), exitSaved);
}

void tst_IOLAppSettingsInterrupted::aDiskThatFillsUpAtAnyMomentLeavesAWholeFile_data()
{
    QTest::addColumn<int>("callsWithoutRoom");
    QTest::newRow("for one system call") << 1;
    QTest::newRow("for two system calls") << 2;
    QTest::newRow("for good") << std::numeric_limits<int>::max();
}

// Every run goes one system call further with room on the disk, until the last has room for all.
void tst_IOLAppSettingsInterrupted::aDiskThatFillsUpAtAnyMomentLeavesAWholeFile()
{
    QFETCH(const int, callsWithoutRoom);
    constexpr rlim_t roomForSome = 1000;
    bool failed = false;
    bool hasRoom = false;
    for (int calls = 0; !hasRoom; ++calls) {
        const SettingsFolder folder;
        TracedSave save(folder.Path());
        save.MakeCalls(calls);
        hasRoom = !save.IsRunning();
        save.SetRoomOnDisk(roomForSome);
        save.MakeCalls(callsWithoutRoom);
        save.SetRoomOnDisk(RLIM_INFINITY);
        save.RunToTheEnd();
        const bool saved = save.ExitCode() == exitSaved;
        QVERIFY(saved || save.ExitCode() == exitLoggedFailure);
        QVERIFY(folder.Holds(saved ? NewValue() : OldValue()));
        QVERIFY(saved || !hasRoom);
        failed = failed || !saved;
    }
    QVERIFY(failed);
}

int main(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--save") == 0)
        SaveTraced(argv[2]);
    return Test::Run<tst_IOLAppSettingsInterrupted>(argc, argv);
}

#include "tst_iolappsettingsinterrupted.moc"
