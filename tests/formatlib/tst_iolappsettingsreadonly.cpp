#include "MessageRecorder.h"
#include "TestCase.h"
#include "WithoutRights.h"

#include "IOLAppSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>

using namespace Qt::StringLiterals;

using Orlimo::IOLAppSettings;

namespace {

constexpr char withoutPermissions[] = "permissions hold for no user that this process can be";
constexpr QFile::Permissions readOnlyFolder = QFile::ReadOwner | QFile::ExeOwner;

// Takes the usual permissions of a file or folder away for as long as it lives.
class Restriction
{
public:
    Restriction(const QString &path, QFile::Permissions permissions)
        : m_path(path)
        , m_usual(QFile::permissions(path))
    {
        Set(permissions);
    }
    Restriction(const Restriction &) = delete;
    Restriction &operator=(const Restriction &) = delete;
    ~Restriction() { Set(m_usual); }

private:
    void Set(QFile::Permissions permissions) const
    {
        if (!QFile::setPermissions(m_path, permissions))
            qFatal("cannot change the permissions of %s", qUtf8Printable(m_path));
    }

    const QString m_path;
    const QFile::Permissions m_usual;
};

QByteArray Content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? file.readAll() : QByteArray();
}

// In the order of the alphabet: that of a saved file is not the same on all platforms.
QList<QByteArray> SortedLines(const QString &path)
{
    QList<QByteArray> lines = Content(path).trimmed().split('\n');
    std::ranges::sort(lines);
    return lines;
}

void Create(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write the file");
}

QStringList Entries(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                  | QDir::NoDotAndDotDot);
}

QString SavedFile()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope,
                     QCoreApplication::organizationName(), QCoreApplication::applicationName())
            .fileName();
}

QString SavedFolder()
{
    return QFileInfo(SavedFile()).path();
}

QString FailureFor(const char *reason)
{
    return u"Failed save settings %1: %2"_s.arg(SavedFile(), QString::fromUtf8(reason));
}

// Saves, and returns the lines that were logged.
QStringList Save()
{
    Test::MessageRecorder recorder;
    IOLAppSettings::Shared()->Save();
    QStringList lines;
    for (const Test::Message &message : recorder.Take())
        lines.append(message.text);
    return lines;
}

} // namespace

// Runs without the rights of root, for whom nothing is read-only.
class tst_IOLAppSettingsReadOnly : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aForbiddenSaveLeavesTheFileAndTheNextSaveWrites_data();
    void aForbiddenSaveLeavesTheFileAndTheNextSaveWrites();
    void aSaveThroughALinkIntoAReadOnlyFolderLeavesTheFile();
    void aDamagedFileInAReadOnlyFolderIsKeptByTheNextSave();

private:
    // Every test has a folder of its own.
    void prepare() override
    {
        m_folder.emplace();
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                           QFileInfo(m_folder->path()).canonicalFilePath());
        QVERIFY(QDir().mkpath(SavedFolder()));
    }

    std::optional<QTemporaryDir> m_folder;
};

void tst_IOLAppSettingsReadOnly::aForbiddenSaveLeavesTheFileAndTheNextSaveWrites_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QFile::Permissions>("permissions");
    QTest::addColumn<QByteArray>("reason");
    QTest::addColumn<bool>("holds");
    const bool permissionsHold = Test::WithoutRights::PermissionsHold();
    const QString folder = u"."_s;
    const QString file = QFileInfo(SavedFile()).fileName();
    QTest::newRow("read-only folder")
            << folder << readOnlyFolder << QByteArray("the folder cannot be written to")
            << permissionsHold;
    QTest::newRow("read-only file")
            << file << QFile::Permissions(QFile::ReadOwner) << QByteArray("the file is read-only")
            << Test::WithoutRights::ReadOnlyFilesHold();
    QTest::newRow("file that cannot be read")
            << file << QFile::Permissions(QFile::WriteOwner)
            << QByteArray("the present file cannot be copied") << permissionsHold;
}

void tst_IOLAppSettingsReadOnly::aForbiddenSaveLeavesTheFileAndTheNextSaveWrites()
{
    QFETCH(const QString, path);
    QFETCH(const QFile::Permissions, permissions);
    QFETCH(const QByteArray, reason);
    QFETCH(const bool, holds);
    if (!holds)
        QSKIP(withoutPermissions);
    const QByteArray previous = "; by hand\n[General]\nother = previous\n";
    Create(SavedFile(), previous);
    const QStringList entries = Entries(SavedFolder());
    IOLAppSettings::Shared()->SetValue("late", "key");
    {
        const Restriction restriction(SavedFolder() + u'/' + path, permissions);
        QCOMPARE(Save(), QStringList { FailureFor(reason) });
        QCOMPARE(IOLAppSettings::Shared()->Value("key"), std::string("late"));
    }
    QCOMPARE(Content(SavedFile()), previous);
    QCOMPARE(Entries(SavedFolder()), entries);

    QCOMPARE(Save(), QStringList());
    QCOMPARE(SortedLines(SavedFile()),
             QList<QByteArray>({ "[General]", "key=late", "other=previous" }));
    QCOMPARE(Entries(SavedFolder()), entries);
}

void tst_IOLAppSettingsReadOnly::aSaveThroughALinkIntoAReadOnlyFolderLeavesTheFile()
{
    if (!Test::WithoutRights::PermissionsHold())
        QSKIP(withoutPermissions);
    const QString elsewhere = m_folder->filePath(u"elsewhere"_s);
    const QString target = elsewhere + u"/settings.ini"_s;
    const QByteArray previous = "; by hand\n[General]\nother = previous\n";
    QVERIFY(QDir().mkpath(elsewhere));
    Create(target, previous);
    QVERIFY(QFile::link(target, SavedFile()));
    IOLAppSettings::Shared()->SetValue("late", "key");
    {
        const Restriction restriction(elsewhere, readOnlyFolder);
        QCOMPARE(Save(), QStringList { FailureFor(std::strerror(EACCES)) });
        QCOMPARE(IOLAppSettings::Shared()->Value("key"), std::string("late"));
        QCOMPARE(Content(target), previous);
    }
    QCOMPARE(Save(), QStringList());
    QCOMPARE(Content(target), QByteArray("[General]\nkey=late\nother=previous\n"));
    QCOMPARE(Entries(elsewhere), QStringList { u"settings.ini"_s });
    QVERIFY(QFileInfo(SavedFile()).isSymLink());
    QCOMPARE(Entries(SavedFolder()).size(), 1);
}

void tst_IOLAppSettingsReadOnly::aDamagedFileInAReadOnlyFolderIsKeptByTheNextSave()
{
    if (!Test::WithoutRights::PermissionsHold())
        QSKIP(withoutPermissions);
    const QByteArray damaged = "no settings\n";
    const QString kept = SavedFile() + u".unreadable"_s;
    Create(SavedFile(), damaged);
    const QStringList entries = Entries(SavedFolder());
    IOLAppSettings::Shared()->SetValue("late", "key");
    {
        const Restriction restriction(SavedFolder(), readOnlyFolder);
        QCOMPARE(Save(), QStringList { FailureFor("the folder cannot be written to") });
        QCOMPARE(IOLAppSettings::Shared()->Value("key"), std::string("late"));
        QCOMPARE(Content(SavedFile()), damaged);
        QCOMPARE(Entries(SavedFolder()), entries);
    }
    QCOMPARE(Save(),
             QStringList { u"Settings %1 are damaged, kept in %2"_s.arg(SavedFile(), kept) });
    QCOMPARE(Content(kept), damaged);
    QCOMPARE(Content(SavedFile()), QByteArray("[General]\nkey=late\n"));
    QCOMPARE(Entries(SavedFolder()), entries + QStringList { QFileInfo(kept).fileName() });
}

int main(int argc, char **argv)
{
    const Test::WithoutRights withoutRights;
    return Test::Run<tst_IOLAppSettingsReadOnly>(argc, argv);
}

#include "tst_iolappsettingsreadonly.moc"
