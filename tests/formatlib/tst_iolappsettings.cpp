#include "MessageRecorder.h"
#include "TestCase.h"

#include "IOLAppSettings.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <optional>

#ifdef Q_OS_UNIX
#include <csignal>

#include <sys/resource.h>
#endif

using Orlimo::IOLAppSettings;

namespace {

#ifdef Q_OS_UNIX

// A disk that is full: no file grows beyond a number of bytes for as long as the object lives.
class FullDisk
{
public:
    static constexpr bool isPossible = true;

    explicit FullDisk(qsizetype size)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_previous);
        const rlimit limit { static_cast<rlim_t>(size), m_previous.rlim_max };
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_previous);
        std::signal(SIGXFSZ, SIG_DFL);
    }

private:
    rlimit m_previous {};
};

#else

class FullDisk
{
public:
    static constexpr bool isPossible = false;

    explicit FullDisk(qsizetype) { }
};

#endif

#define ORLIMO_NEED_FULL_DISK()                                                                    \
    if (!FullDisk::isPossible)                                                                     \
    QSKIP("this platform does not let a process limit the size of its files")

// Lines end as the platform's do.
QByteArray Content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? file.readAll() : QByteArray();
}

void Create(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write the file");
}

} // namespace

class tst_IOLAppSettings : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theStoreIsTheOnlyOne()
    {
        QVERIFY(IOLAppSettings::Shared());
        QCOMPARE(IOLAppSettings::Shared(), IOLAppSettings::Shared());
    }

    void anUnknownKeyHasAnEmptyValue()
    {
        QCOMPARE(IOLAppSettings::Shared()->Value("nobody/set/this"), std::string());
    }

    void anEmptyKeyIsIgnored()
    {
        IOLAppSettings::Shared()->SetValue("value", "");
        IOLAppSettings::Shared()->Save();
        QCOMPARE(IOLAppSettings::Shared()->Value(""), std::string());
    }

    void aValueIsThereBeforeItIsSaved()
    {
        IOLAppSettings::Shared()->SetValue("first", "key");
        IOLAppSettings::Shared()->SetValue("second", "key");
        QCOMPARE(IOLAppSettings::Shared()->Value("key"), std::string("second"));
        QVERIFY(!QFileInfo::exists(FilePath()));
    }

    void saveWritesTheIniFileOfTheApplication()
    {
        IOLAppSettings::Shared()->SetValue("saved", "key");
        IOLAppSettings::Shared()->Save();
        QVERIFY(FilePath().endsWith(QStringLiteral("/Test Organisation/Test Application.ini")));
        QCOMPARE(Content(FilePath()), QByteArray("[General]\nkey=saved\n"));
        QCOMPARE(QDir(QFileInfo(FilePath()).path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList { QStringLiteral("Test Application.ini") });
    }

    void valuesComeBackAsTheyWereSet_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("empty") << QByteArray("a") << QByteArray();
        QTest::newRow("beyond ascii") << QByteArray("grö/ße 日本") << QByteArray("äß 日本 𐐀");
        QTest::newRow("list") << QByteArray("a") << QByteArray("1, 2; 3=4");
        QTest::newRow("json") << QByteArray("b") << QByteArray("{\"a\":[\"\\\"\",null]}");
        QTest::newRow("lines") << QByteArray("c") << QByteArray("[x]\r\nkey=1\n;\n#\t\n");
        QTest::newRow("spaces") << QByteArray("d d") << QByteArray("  a  ");
        QTest::newRow("like a variant") << QByteArray("e") << QByteArray("@ByteArray(a)");
        QTest::newRow("at sign") << QByteArray("f") << QByteArray("@@a@");
        QTest::newRow("percent") << QByteArray("%20") << QByteArray("%20%%\\x41");
        QTest::newRow("zero character") << QByteArray("g") << QByteArray("a\0b", 3);
        QTest::newRow("in the general group") << QByteArray("General/key") << QByteArray("a");
        QTest::newRow("long") << QByteArray("h") << QByteArray(1'000'000, 'x');
    }

    void valuesComeBackAsTheyWereSet()
    {
        QFETCH(const QByteArray, key);
        QFETCH(const QByteArray, value);
        IOLAppSettings::Shared()->SetValue(value.toStdString(), key.toStdString());
        QCOMPARE(IOLAppSettings::Shared()->Value(key.toStdString()), value.toStdString());
        IOLAppSettings::Shared()->Save();
        QCOMPARE(IOLAppSettings::Shared()->Value(key.toStdString()), value.toStdString());
        const QSettings fresh(FilePath(), QSettings::IniFormat);
        QCOMPARE(fresh.value(QString::fromUtf8(key)).toString().toUtf8(), value);
    }

    void saveKeepsWhatOthersWrote()
    {
        QDir().mkpath(QFileInfo(FilePath()).path());
        Create(FilePath(), "[Host]\ngeometry=1\n");
        IOLAppSettings::Shared()->SetValue("ours", "key");
        IOLAppSettings::Shared()->Save();
        const QSettings fresh(FilePath(), QSettings::IniFormat);
        QCOMPARE(fresh.value(QStringLiteral("Host/geometry")).toString(), QStringLiteral("1"));
        QCOMPARE(fresh.value(QStringLiteral("key")).toString(), QStringLiteral("ours"));
        QCOMPARE(IOLAppSettings::Shared()->Value("Host/geometry"), std::string("1"));
    }

    void saveKeepsToFilesOfOtherPrograms_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("section without a name") << QByteArray("[]\na=1\n");
        QTest::newRow("key that begins with a slash") << QByteArray("/opt/tool=1\n");
        QTest::newRow("key of the general section") << QByteArray("general/x=1\n");
        QTest::newRow("backslashes") << QByteArray("[General]\n\\\\server\\share=1\n");
    }

    void saveKeepsToFilesOfOtherPrograms()
    {
        QFETCH(const QByteArray, content);
        QDir().mkpath(QFileInfo(FilePath()).path());
        Create(FilePath(), content);
        IOLAppSettings::Shared()->SetValue("ours", "key");
        IOLAppSettings::Shared()->Save();
        const QSettings fresh(FilePath(), QSettings::IniFormat);
        QCOMPARE(fresh.value(QStringLiteral("key")).toString(), QStringLiteral("ours"));
    }

    void aKeyHasOneSpellingWhateverItsSlashes()
    {
        IOLAppSettings::Shared()->SetValue("first", "a//b");
        QCOMPARE(IOLAppSettings::Shared()->Value("/a/b/"), std::string("first"));
        IOLAppSettings::Shared()->SetValue("second", "/a/b/");
        QCOMPARE(IOLAppSettings::Shared()->Value("a/b"), std::string("second"));
        IOLAppSettings::Shared()->Save();
        QCOMPARE(IOLAppSettings::Shared()->Value("a/b"), std::string("second"));
    }

    void aKeyOfSlashesIsIgnored()
    {
        IOLAppSettings::Shared()->SetValue("value", "//");
        IOLAppSettings::Shared()->Save();
        QVERIFY(!QFileInfo::exists(FilePath()));
    }

    void bytesThatAreNotUtf8AreReplaced()
    {
        IOLAppSettings::Shared()->SetValue("abc\xE2\x82", "key");
        IOLAppSettings::Shared()->Save();
        QCOMPARE(IOLAppSettings::Shared()->Value("key").substr(0, 6),
                 std::string("abc\xEF\xBF\xBD"));
    }

    void savesInQuickSuccessionAreToldApart()
    {
        for (int i = 100; i < 400; ++i) {
            IOLAppSettings::Shared()->SetValue(std::to_string(i), "key");
            IOLAppSettings::Shared()->Save();
            QCOMPARE(IOLAppSettings::Shared()->Value("key"), std::to_string(i));
        }
    }

    void theSettingsOfTheWholeOrganisationDoNotCount()
    {
        const QString organization = QFileInfo(FilePath()).path() + QStringLiteral(".ini");
        Create(organization, "[General]\nkey=another program's\n");
        QCOMPARE(IOLAppSettings::Shared()->Value("key"), std::string());
    }

    void saveKeepsAFileThatIsNotSettingsAside_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("no settings") << QByteArray("no settings\n");
        QTest::newRow("noise") << QByteArray("\x7f\x00\xff[\n=\n\x80", 8);
        QTest::newRow("settings before noise") << QByteArray("[General]\nkey=a\nnoise\n");
        QTest::newRow("Latin-1") << QByteArray("[General]\nother=Gr\xfc\xdf"
                                               "e\n");
    }

    void saveKeepsAFileThatIsNotSettingsAside()
    {
        QFETCH(const QByteArray, content);
        QDir().mkpath(QFileInfo(FilePath()).path());
        Create(FilePath(), content);
        IOLAppSettings::Shared()->SetValue("ours", "key");
        const QString kept = FilePath() + QStringLiteral(".unreadable");
        ExpectMessage(kept);
        IOLAppSettings::Shared()->Save();
        const QSettings fresh(FilePath(), QSettings::IniFormat);
        QCOMPARE(fresh.value(QStringLiteral("key")).toString(), QStringLiteral("ours"));
        QCOMPARE(Content(kept), content);
    }

    void everyDamagedFileIsKeptOnce()
    {
        QDir().mkpath(QFileInfo(FilePath()).path());
        const QString kept = FilePath() + QStringLiteral(".unreadable");
        Create(kept, "first\n");
        for (const char *content : { "first\n", "other\n", "other\n" }) { // of the same size
            Create(FilePath(), content);
            const bool isNew = !QFileInfo::exists(kept + QStringLiteral("-2"))
                    && qstrcmp(content, "other\n") == 0;
            if (isNew)
                ExpectMessage(kept + QStringLiteral("-2"));
            IOLAppSettings::Shared()->SetValue(content, "key");
            IOLAppSettings::Shared()->Save();
        }
        QCOMPARE(Content(kept), QByteArray("first\n"));
        QCOMPARE(Content(kept + QStringLiteral("-2")), QByteArray("other\n"));
        QVERIFY(!QFileInfo::exists(kept + QStringLiteral("-3")));
    }

    void aDamagedFileThatCannotBeKeptStaysAsItIs()
    {
        ORLIMO_NEED_FULL_DISK();
        QDir().mkpath(QFileInfo(FilePath()).path());
        const QByteArray content = "noise of some length\n" + QByteArray(8000, 'x') + '\n';
        Create(FilePath(), content);
        IOLAppSettings::Shared()->SetValue("ours", "key");
        {
            const FullDisk fullDisk(100);
            ExpectFailedSave();
        }
        QCOMPARE(Content(FilePath()), content);
        ExpectMessage(FilePath() + QStringLiteral(".unreadable"));
        IOLAppSettings::Shared()->Save();
        QCOMPARE(Content(FilePath() + QStringLiteral(".unreadable")), content);
    }

    // QSettings tells the first error only: that of a file of many keys, if it parses that again.
    void aDamagedFileThatCannotBeWrittenStaysAsItIs()
    {
        ORLIMO_NEED_FULL_DISK();
        QDir().mkpath(QFileInfo(FilePath()).path());
        QByteArray content = "[General]\n";
        for (int i = 0; i < 1000; ++i)
            content += "key" + QByteArray::number(i) + "=1\nnoise\n";
        Create(FilePath(), content);
        Create(FilePath() + QStringLiteral(".unreadable"), content);
        const std::string value(200'000, 'x');
        for (const char *key : { "first", "second" })
            IOLAppSettings::Shared()->SetValue(value, key);
        {
            const FullDisk fullDisk(100'000);
            ExpectFailedSave();
        }
        QCOMPARE(Content(FilePath()), content);
        IOLAppSettings::Shared()->Save();
        for (const char *key : { "first", "second" })
            QCOMPARE(IOLAppSettings::Shared()->Value(key), value);
    }

    // A link to nowhere stands where the file is to be kept: it is not there, and cannot be made.
    void aDamagedFileWhosePlaceIsTakenStaysAsItIs()
    {
#ifdef Q_OS_WIN
        QSKIP("QFile makes links of this platform that are files of their own");
#endif
        QDir().mkpath(QFileInfo(FilePath()).path());
        const QString kept = FilePath() + QStringLiteral(".unreadable");
        Create(FilePath(), "noise\n");
        QVERIFY(QFile::link(m_folder->filePath(QStringLiteral("nowhere")), kept));
        IOLAppSettings::Shared()->SetValue("ours", "key");
        ExpectFailedSave();
        QCOMPARE(Content(FilePath()), QByteArray("noise\n"));
        QCOMPARE(IOLAppSettings::Shared()->Value("key"), std::string("ours"));
        QVERIFY(QFileInfo(kept).isSymLink());

        QVERIFY(QFile::remove(kept));
        ExpectMessage(kept);
        IOLAppSettings::Shared()->Save();
        QCOMPARE(Content(kept), QByteArray("noise\n"));
        QCOMPARE(Content(FilePath()), QByteArray("[General]\nkey=ours\n"));
    }

    void aValueThatIsNoTextIsKeptUnderAnotherKey()
    {
        QDir().mkpath(QFileInfo(FilePath()).path());
        Create(FilePath(), "[General]\nlist=a, b\ntext=c\n");
        for (const char *key : { "list", "text" })
            IOLAppSettings::Shared()->SetValue("ours", key);
        IOLAppSettings::Shared()->Save();
        const QSettings fresh(FilePath(), QSettings::IniFormat);
        QCOMPARE(fresh.value(QStringLiteral("list")).toString(), QStringLiteral("ours"));
        QCOMPARE(fresh.value(QStringLiteral("unreadable/list")).toStringList(),
                 QStringList({ QStringLiteral("a"), QStringLiteral("b") }));
        QVERIFY(!fresh.contains(QStringLiteral("unreadable/text")));
    }

    void bytesThatAreNoTextAreKeptUnderAnotherKey()
    {
        QDir().mkpath(QFileInfo(FilePath()).path());
        Create(FilePath(), "[General]\nbytes=@ByteArray(\\xff\\xfe)\ntext=@ByteArray(abc)\n");
        for (const char *key : { "bytes", "text" })
            IOLAppSettings::Shared()->SetValue("ours", key);
        IOLAppSettings::Shared()->Save();
        const QSettings fresh(FilePath(), QSettings::IniFormat);
        QCOMPARE(fresh.value(QStringLiteral("unreadable/bytes")).toByteArray(),
                 QByteArray("\xff\xfe"));
        QVERIFY(!fresh.contains(QStringLiteral("unreadable/text")));
    }

    void aStoredValueThatIsNoTextIsNoValue()
    {
        QDir().mkpath(QFileInfo(FilePath()).path());
        Create(FilePath(), "[General]\nbytes=@ByteArray(\\xff\\xfe)\nlist=a, b\n");
        QCOMPARE(IOLAppSettings::Shared()->Value("bytes"), std::string());
        QCOMPARE(IOLAppSettings::Shared()->Value("list"), std::string());
    }

    void ofManyValuesThatAreNoTextTheFirstAndTheNewestAreKept()
    {
        QDir().mkpath(QFileInfo(FilePath()).path());
        for (int i = 1; i <= 12; ++i) {
            {
                QSettings settings(FilePath(), QSettings::IniFormat);
                settings.setValue(QStringLiteral("key"), QStringList(2, QString::number(i)));
            }
            IOLAppSettings::Shared()->SetValue("ours", "key");
            IOLAppSettings::Shared()->Save();
        }
        const QSettings fresh(FilePath(), QSettings::IniFormat);
        const auto kept = [&](const char *key) {
            return fresh.value(QString::fromUtf8(key)).toStringList().join(u'|');
        };
        QCOMPARE(kept("unreadable/key"), QStringLiteral("1|1"));
        QCOMPARE(kept("unreadable/key_8"), QStringLiteral("8|8"));
        QCOMPARE(kept("unreadable/key_9"), QStringLiteral("12|12"));
        QVERIFY(!fresh.contains(QStringLiteral("unreadable/key_10")));
    }

    void everyValueThatIsNoTextIsKept()
    {
        QDir().mkpath(QFileInfo(FilePath()).path());
        Create(FilePath(), "[unreadable]\nkey=of a later version\n");
        for (const char *list : { "a, b", "c, d", "a, b" }) {
            QByteArray content = Content(FilePath());
            content.replace("key=ours\n", "");
            Create(FilePath(), QByteArray("[General]\nkey=") + list + '\n' + content);
            IOLAppSettings::Shared()->SetValue("ours", "key");
            IOLAppSettings::Shared()->Save();
        }
        const QSettings fresh(FilePath(), QSettings::IniFormat);
        const auto kept = [&](const char *key) {
            return fresh.value(QStringLiteral("unreadable/") + QString::fromUtf8(key))
                    .toStringList()
                    .join(u'|');
        };
        QCOMPARE(kept("key"), QStringLiteral("of a later version"));
        QCOMPARE(kept("key_2"), QStringLiteral("a|b"));
        QCOMPARE(kept("key_3"), QStringLiteral("c|d"));
        QCOMPARE(kept("key_4"), QString());
    }

    void aFolderThatCannotBeMadeIsLoggedAndTheNextSaveWrites()
    {
        const QString blocked = m_folder->filePath(QStringLiteral("blocked"));
        Create(blocked, "a file");
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, blocked);
        IOLAppSettings::Shared()->SetValue("late", "key");
        ExpectFailedSave();
        QCOMPARE(IOLAppSettings::Shared()->Value("key"), std::string("late"));
        QCOMPARE(Content(blocked), QByteArray("a file"));
        ExpectFailedSave();

        QVERIFY(QFile::remove(blocked));
        IOLAppSettings::Shared()->Save();
        QCOMPARE(Content(FilePath()), QByteArray("[General]\nkey=late\n"));
    }

    void aFileThatAnotherProgramHasOpenStaysAndTheNextSaveWrites()
    {
#ifdef Q_OS_WIN
        IOLAppSettings::Shared()->SetValue("first", "key");
        IOLAppSettings::Shared()->Save();
        IOLAppSettings::Shared()->SetValue("late", "key");
        {
            QFile file(FilePath());
            QVERIFY(file.open(QIODevice::ReadOnly));
            ExpectFailedSave();
        }
        QCOMPARE(Content(FilePath()), QByteArray("[General]\nkey=first\n"));
        IOLAppSettings::Shared()->Save();
        QCOMPARE(Content(FilePath()), QByteArray("[General]\nkey=late\n"));
#else
        QSKIP("this platform replaces a file that is open");
#endif
    }

    void aFullDiskLeavesThePreviousFileAndTheNextSaveWrites_data()
    {
        QTest::addColumn<int>("space");
        QTest::addColumn<int>("length");
        QTest::newRow("no space at all") << 0 << 10;
        QTest::newRow("space for some of a short file") << 2000 << 8000;
        QTest::newRow("space for some of a long file") << 20'000 << 200'000;
    }

    void aFullDiskLeavesThePreviousFileAndTheNextSaveWrites()
    {
        ORLIMO_NEED_FULL_DISK();
        QFETCH(const int, space);
        QFETCH(const int, length);
        IOLAppSettings::Shared()->SetValue("previous", "key");
        IOLAppSettings::Shared()->Save();
        const QByteArray previous = Content(FilePath());
        QCOMPARE(previous, QByteArray("[General]\nkey=previous\n"));

        const QByteArray value(length, 'x');
        IOLAppSettings::Shared()->SetValue(value.toStdString(), "key");
        {
            const FullDisk fullDisk(space);
            ExpectFailedSave();
        }
        QCOMPARE(Content(FilePath()), previous);
        QCOMPARE(IOLAppSettings::Shared()->Value("key"), value.toStdString());

        IOLAppSettings::Shared()->Save();
        QCOMPARE(Content(FilePath()), "[General]\nkey=" + value + '\n');
    }

    void aFileCutAnywhereIsNotTakenForWhole_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("behind"); // what follows the new value in the file
        const auto kept = [](const char *title, const QByteArray &lines) {
            QTest::newRow(title) << "[General]\n" + lines << lines;
        };
        kept("only key", "");
        kept("several keys", "y=1\nz=2\n");
        kept("several sections", "z=1\n\n[Host]\ngeometry=1\n\n[Other]\ny=1\nz=2\n");
        kept("section named like the general one", "\n[%General]\nz=1\n");
        kept("lists and bytes", "list=1, \"a,b\"\nz=@ByteArray(\\0\\n\\xff)\n");
        kept("values like lines", "y=\"a\\n\\n[b]\\nc=d\"\nz=\\n\n");
        kept("names like lines", "z%0A%5B=1\n\n[%0A%5Bb%5D]\nz=1\n");
        kept("empty names", "z=1\n\n[Host]\n=1\n");
        QTest::newRow("names that become one")
                << QByteArray("[]\nz=1\n[General]\nz=2\n") << QByteArray("z=2\n");
    }

    void aFileCutAnywhereIsNotTakenForWhole()
    {
        ORLIMO_NEED_FULL_DISK();
        QFETCH(const QByteArray, before);
        QFETCH(const QByteArray, behind);
        QDir().mkpath(QFileInfo(FilePath()).path());
        Create(FilePath(), before);
        IOLAppSettings::Shared()->SetValue(std::string(100, 'x'), "a");
        const QByteArray whole = "[General]\na=" + QByteArray(100, 'x') + '\n' + behind;
        for (qsizetype size = 0; size < whole.size(); ++size) {
            const FullDisk fullDisk(size);
            ExpectFailedSave();
            QCOMPARE(Content(FilePath()), before);
        }
        const FullDisk fullDisk(whole.size());
        IOLAppSettings::Shared()->Save();
        QCOMPARE(Content(FilePath()), whole);
    }

    void everySaveMakesTheFileNewer()
    {
        IOLAppSettings::Shared()->SetValue("first", "key");
        IOLAppSettings::Shared()->Save();
        QFile file(FilePath());
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QDateTime ahead = QDateTime::currentDateTime().addSecs(3600);
        QVERIFY(file.setFileTime(ahead, QFileDevice::FileModificationTime));
        file.close();
        IOLAppSettings::Shared()->SetValue("other", "key");
        IOLAppSettings::Shared()->Save();
        QVERIFY(QFileInfo(FilePath()).lastModified() > ahead);
        QCOMPARE(IOLAppSettings::Shared()->Value("key"), std::string("other"));
    }

    void cleanup()
    {
        // What a test could not save must not turn up in the next.
        IOLAppSettings::Shared()->Save();
    }

private:
    // Every test has a folder of its own.
    void prepare() override
    {
        m_folder.emplace();
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder->path());
    }

    static QString FilePath()
    {
        return QSettings(QSettings::IniFormat, QSettings::UserScope,
                         QCoreApplication::organizationName(), QCoreApplication::applicationName())
                .fileName();
    }

    static void ExpectMessage(const QString &containing)
    {
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QRegularExpression::escape(containing)));
    }

    static void ExpectFailedSave()
    {
        Test::MessageRecorder recorder;
        IOLAppSettings::Shared()->Save();
        const QList<Test::Message> messages = recorder.Take();
        QCOMPARE(messages.size(), 1);
        QCOMPARE(messages.first().type, QtWarningMsg);
        const QString text = messages.first().text;
        const QString beginning = QStringLiteral("Failed save settings %1: ").arg(FilePath());
        QVERIFY2(text.startsWith(beginning), qPrintable(text));
        const QString reason = text.mid(beginning.size());
        QVERIFY2(!reason.isEmpty() && reason == reason.trimmed(), qPrintable(text));
    }

    std::optional<QTemporaryDir> m_folder;
};

ORLIMO_TEST_MAIN(tst_IOLAppSettings)

#include "tst_iolappsettings.moc"
