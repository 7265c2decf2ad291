#include "TestCase.h"

#include "IOLAppSettings.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QProcess>
#include <QScopeGuard>

#include <optional>

using Orlimo::IOLAppSettings;

namespace {

constexpr char usualOrganization[] = "Orlimo Test Größe 動画";
constexpr char value[] = "written by another process: größe 動画 𐐀";

int SaveValue()
{
    IOLAppSettings::Shared()->SetValue(value, "key");
    IOLAppSettings::Shared()->Save();
    return IOLAppSettings::Shared()->Value("key") == value ? 0 : 1;
}

void SetNames(const char *organization, const char *application)
{
    QCoreApplication::setOrganizationName(QString::fromUtf8(organization));
    QCoreApplication::setApplicationName(QString::fromUtf8(application));
}

int SaveWithoutApplicationObject(int &, char **)
{
    return SaveValue();
}

int SaveWithNamesOnly(int &, char **)
{
    SetNames("Host", "Player");
    return SaveValue();
}

int SaveInAnApplication(int &argc, char **argv)
{
    SetNames("Host", "Player");
    const QCoreApplication application(argc, argv);
    return SaveValue();
}

int SaveInAnUnnamedApplication(int &argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return SaveValue();
}

int SaveWithNamesBeyondAscii(int &, char **)
{
    SetNames("Größe 動画", "Spieler é");
    return SaveValue();
}

int SaveAfterTheNamesChanged(int &argc, char **argv)
{
    SetNames("First", "Names");
    const QCoreApplication application(argc, argv);
    IOLAppSettings::Shared();
    SetNames("Second", "Names");
    return SaveValue();
}

int SaveAfterTheApplication(int &argc, char **argv)
{
    SetNames("Host", "Player");
    {
        const QCoreApplication application(argc, argv);
        IOLAppSettings::Shared();
    }
    return SaveValue();
}

int SaveInTheUsualFolder(int &, char **)
{
    SetNames(usualOrganization, "Spieler é");
    return SaveValue();
}

int ReadValue(int &, char **)
{
    SetNames("Host", "Player");
    return IOLAppSettings::Shared()->Value("key") == value ? 0 : 1;
}

constexpr QLatin1StringView usualFolder("usual folder");

// Windows has no variable of the environment for the folder.
void UseFolderOfTest()
{
#ifdef Q_OS_WIN
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       qEnvironmentVariable("XDG_CONFIG_HOME"));
#endif
}

// What a process does that this executable starts with the name as its first argument.
struct Role
{
    QLatin1StringView name;
    int (*play)(int &argc, char **argv);
};

constexpr Role roles[] = {
    { QLatin1StringView("no application object"), &SaveWithoutApplicationObject },
    { QLatin1StringView("names only"), &SaveWithNamesOnly },
    { QLatin1StringView("application"), &SaveInAnApplication },
    { QLatin1StringView("unnamed application"), &SaveInAnUnnamedApplication },
    { QLatin1StringView("names beyond ascii"), &SaveWithNamesBeyondAscii },
    { QLatin1StringView("names changed"), &SaveAfterTheNamesChanged },
    { QLatin1StringView("application gone"), &SaveAfterTheApplication },
    { usualFolder, &SaveInTheUsualFolder },
    { QLatin1StringView("read"), &ReadValue },
};

} // namespace

class tst_IOLAppSettingsProcess : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFileHasTheNamesOfTheFirstCall_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("no application object") << QStringLiteral("Orlimo/OLMediaFormatPopup.ini");
        QTest::newRow("names only") << QStringLiteral("Host/Player.ini");
        QTest::newRow("application") << QStringLiteral("Host/Player.ini");
        // Qt names such an application after its executable.
        QTest::newRow("unnamed application")
                << QStringLiteral("Orlimo/tst_iolappsettingsprocess.ini");
        QTest::newRow("names beyond ascii") << QStringLiteral("Größe 動画/Spieler é.ini");
        QTest::newRow("names changed") << QStringLiteral("First/Names.ini");
        QTest::newRow("application gone") << QStringLiteral("Host/Player.ini");
    }

    void theFileHasTheNamesOfTheFirstCall()
    {
        QFETCH(const QString, path);
        Start(QString::fromUtf8(QTest::currentDataTag()));
        QCOMPARE(Files(), QStringList { path });
        const QSettings fresh(m_folder->filePath(path), QSettings::IniFormat);
        QCOMPARE(fresh.value(QStringLiteral("key")).toString(), QString::fromUtf8(value));
    }

    void theFileIsWhereProgramsOfThePlatformKeepTheirSettings()
    {
#ifdef Q_OS_WIN
        const QDir usual(qEnvironmentVariable("APPDATA"));
        QVERIFY(usual.exists());
#else
        const QDir usual(m_folder->filePath(QStringLiteral(".config")));
#endif
        QDir folder(usual.filePath(QString::fromUtf8(usualOrganization)));
        folder.removeRecursively(); // of a test that was interrupted
        const auto removal = qScopeGuard([&] { folder.removeRecursively(); });
        Start(QString(usualFolder));
        const QString file = folder.filePath(QStringLiteral("Spieler é.ini"));
        QVERIFY(QFileInfo::exists(file));
        const QSettings fresh(file, QSettings::IniFormat);
        QCOMPARE(fresh.value(QStringLiteral("key")).toString(), QString::fromUtf8(value));
    }

    void anotherProcessReadsWhatWasSaved()
    {
        Start(QStringLiteral("application"));
        Start(QStringLiteral("read"));
    }

private:
    // Every test has a folder of its own.
    void prepare() override
    {
        m_folder.emplace();
    }

    void Start(const QString &role)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), m_folder->path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_folder->path());
        if (role == usualFolder)
            environment.remove(QStringLiteral("XDG_CONFIG_HOME"));
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(), { role });
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.readAllStandardError(), QByteArray());
        QCOMPARE(process.exitCode(), 0);
    }

    QStringList Files() const
    {
        const QDir folder(m_folder->path());
        QStringList files;
        QDirIterator entries(folder.path(), QDir::Files | QDir::Hidden,
                             QDirIterator::Subdirectories);
        while (entries.hasNext())
            files.append(folder.relativeFilePath(entries.next()));
        return files;
    }

    std::optional<QTemporaryDir> m_folder;
};

int main(int argc, char **argv)
{
    for (const Role &role : roles) {
        if (argc < 2 || role.name != QLatin1StringView(argv[1]))
            continue;
        if (role.name != usualFolder)
            UseFolderOfTest();
        return role.play(argc, argv);
    }
    return Test::Run<tst_IOLAppSettingsProcess>(argc, argv);
}

#include "tst_iolappsettingsprocess.moc"
