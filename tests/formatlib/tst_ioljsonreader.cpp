#include "PathForms.h"
#include "TestCase.h"

#include "IOLError.h"
#include "IOLJsonReader.h"
#include "IOLJsonValue.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

#include <thread>
#include <vector>

using Orlimo::IOLError;
using Orlimo::IOLJsonReader;
using Orlimo::IOLJsonValue;

using ErrorPointer = std::shared_ptr<const IOLError>;

Q_DECLARE_METATYPE(QJsonValue)

namespace {

QByteArray Nested(qsizetype levels)
{
    return QByteArray(levels, '[') + QByteArray(levels, ']');
}

QByteArray NestedObjects(qsizetype levels)
{
    return QByteArray("{\"a\":").repeated(levels - 1) + "{}" + QByteArray(levels - 1, '}');
}

} // namespace

class tst_IOLJsonReader : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsEveryKindOfValueFromTextAndFile_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QJsonValue>("value");
        const QJsonObject object { { QStringLiteral("a"), QJsonArray { 1, QJsonValue::Null } } };
        QTest::newRow("object") << QByteArray("{\"a\": [1, null]}") << QJsonValue(object);
        QTest::newRow("array") << QByteArray("[\n]") << QJsonValue(QJsonArray());
        QTest::newRow("text") << QByteArray("\"\\u00e4/\\n\xC3\xB6\"")
                              << QJsonValue(QStringLiteral("ä/\nö"));
        QTest::newRow("text with brackets")
                << QByteArray("\"],[\"") << QJsonValue(QStringLiteral("],["));
        QTest::newRow("number") << QByteArray("-1.5e2") << QJsonValue(-150.0);
        QTest::newRow("large integer")
                << QByteArray("9007199254740993") << QJsonValue(qint64(9007199254740993));
        QTest::newRow("true") << QByteArray(" \t\r\ntrue\n") << QJsonValue(true);
        QTest::newRow("false") << QByteArray("false") << QJsonValue(false);
        QTest::newRow("null") << QByteArray("null") << QJsonValue(QJsonValue::Null);
        QTest::newRow("mark before an object")
                << QByteArray("\xEF\xBB\xBF{}") << QJsonValue(QJsonObject());
        QTest::newRow("mark before a scalar") << QByteArray("\xEF\xBB\xBF"
                                                            "1")
                                              << QJsonValue(1);
    }

    void readsEveryKindOfValueFromTextAndFile()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QJsonValue, value);
        const std::shared_ptr<IOLJsonValue> fromText =
                IOLJsonReader::ReadJsonString(text.toStdString(), nullptr);
        QVERIFY(fromText);
        QCOMPARE(fromText->ToQJsonValue(), value);
        const std::shared_ptr<IOLJsonValue> fromFile = IOLJsonReader::ReadJsonFile(Write(text),
                                                                                   nullptr);
        QVERIFY(fromFile);
        QCOMPARE(fromFile->ToQJsonValue(), value);
    }

    void whatIsNotJsonGivesNothingAndThePlace_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("empty") << QByteArray() << QByteArray("line 1,");
        QTest::newRow("white space") << QByteArray(" \n\n") << QByteArray("line ");
        QTest::newRow("word") << QByteArray("hello") << QByteArray("line 1,");
        QTest::newRow("cut short") << QByteArray("{\n\"a\": [1,") << QByteArray("line 2,");
        QTest::newRow("cut inside a text") << QByteArray("[\n\n\"ab") << QByteArray("line 3,");
        QTest::newRow("word inside")
                << QByteArray("{\n \"a\": 1,\n \"b\": oops\n}") << QByteArray("line 3,");
        QTest::newRow("more behind the value") << QByteArray("{}\n{}") << QByteArray("line 2,");
        QTest::newRow("two scalars") << QByteArray("1 2") << QByteArray("line 1,");
        QTest::newRow("list without brackets") << QByteArray("1,2") << QByteArray("line 1,");
        QTest::newRow("brackets the wrong way") << QByteArray("1],[2") << QByteArray("line 1,");
        QTest::newRow("scalar and comma") << QByteArray("1,") << QByteArray("line 1,");
        QTest::newRow("trailing comma") << QByteArray("[1,]") << QByteArray("line 1,");
        QTest::newRow("single quotes") << QByteArray("['a']") << QByteArray("line 1,");
        QTest::newRow("comment") << QByteArray("[] // none") << QByteArray("line 1,");
        QTest::newRow("bad UTF-8") << QByteArray("[\n\"\xC3\x28\"]") << QByteArray("line 2,");
        QTest::newRow("control bytes") << QByteArray("\0\1\2\3", 4) << QByteArray("line 1,");
        QTest::newRow("too deep") << Nested(1025) << QByteArray("line 1,");
        QTest::newRow("objects too deep") << NestedObjects(1025) << QByteArray("line 1,");
        QTest::newRow("far too deep") << QByteArray(1'000'000, '[') << QByteArray("line 1,");
    }

    void whatIsNotJsonGivesNothingAndThePlace()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QByteArray, line);
        ErrorPointer error;
        QVERIFY(!IOLJsonReader::ReadJsonString(text.toStdString(), &error));
        QVERIFY(error);
        QCOMPARE(error->Source(), std::string());
        QVERIFY2(error->Place().starts_with(line.toStdString()), error->Place().c_str());
        QVERIFY(!error->Reason().empty());

        const std::string path = Write(text);
        ErrorPointer fileError;
        QVERIFY(!IOLJsonReader::ReadJsonFile(path, &fileError));
        QVERIFY(fileError);
        QCOMPARE(fileError->Source(), path);
        QCOMPARE(fileError->Place(), error->Place());
        QCOMPARE(fileError->Reason(), error->Reason());
    }

    void theErrorPointerMayBeNull()
    {
        QVERIFY(!IOLJsonReader::ReadJsonString("{", nullptr));
        QVERIFY(!IOLJsonReader::ReadJsonFile(Write("{"), nullptr));
        QVERIFY(!IOLJsonReader::ReadJsonFile(PathOf("missing"), nullptr));
    }

    void successLeavesTheErrorAlone()
    {
        const ErrorPointer before = IOLError::MallocError("", "", "an older one");
        ErrorPointer error = before;
        QVERIFY(IOLJsonReader::ReadJsonString("[]", &error));
        QVERIFY(IOLJsonReader::ReadJsonString("7", &error));
        QVERIFY(IOLJsonReader::ReadJsonFile(Write("{}"), &error));
        QCOMPARE(error, before);
    }

    void aThousandAndTwentyFourLevelsAreRead()
    {
        QVERIFY(IOLJsonReader::ReadJsonString(Nested(1024).toStdString(), nullptr));
        QVERIFY(IOLJsonReader::ReadJsonFile(Write(NestedObjects(1024)), nullptr));
    }

    void aMissingFileIsNamed_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("usual") << QByteArray("missing.json");
        QTest::newRow("beyond ascii") << QByteArray("größe 動画/missing é.json");
#ifdef Q_OS_WIN
        QTest::newRow("backslash") << QByteArray("größe\\missing.json");
#endif
    }

    void aMissingFileIsNamed()
    {
        QFETCH(const QByteArray, name);
        const std::string path = PathOf(name);
        ErrorPointer error;
        QVERIFY(!IOLJsonReader::ReadJsonFile(path, &error));
        ExpectFault(error, path, "exist");
    }

    void anEmptyPathIsNoFile()
    {
        ErrorPointer error;
        QVERIFY(!IOLJsonReader::ReadJsonFile("", &error));
        ExpectFault(error, "", "exist");
    }

    void aFolderIsNoFile()
    {
        const std::string path = m_folder.path().toStdString();
        ErrorPointer error;
        QVERIFY(!IOLJsonReader::ReadJsonFile(path, &error));
        ExpectFault(error, path, "regular file");
    }

    // Opening a pipe that nobody writes to would wait for ever.
    void aPipeIsNotOpened()
    {
#ifdef Q_OS_UNIX
        const std::string path = PathOf("pipe");
        QCOMPARE(mkfifo(path.c_str(), 0600), 0);
        ErrorPointer error;
        QVERIFY(!IOLJsonReader::ReadJsonFile(path, &error));
        ExpectFault(error, path, "regular file");
#else
        QSKIP("pipes have no place in the folders of this platform");
#endif
    }

    void aFileOfMoreThan256MebibytesIsRefused()
    {
        const std::string path = Write("[]");
        QVERIFY(QFile::resize(QString::fromStdString(path), (qint64(256) << 20) + 1));
        ErrorPointer error;
        QVERIFY(!IOLJsonReader::ReadJsonFile(path, &error));
        ExpectFault(error, path, "256 MiB");
        QVERIFY(QFile::remove(QString::fromStdString(path)));
    }

    void aFileOfTwentyMegabytesIsRead()
    {
        constexpr qsizetype count = 20'000;
        QByteArray text = "[";
        for (qsizetype i = 0; i < count; ++i)
            text += '"' + QByteArray(1000, 'x') + QByteArray::number(i) + "\",\n";
        text += "\"end\"]";
        QVERIFY(text.size() > 20'000'000);

        const auto value = IOLJsonReader::ReadJsonFile(Write(text), nullptr);
        QVERIFY(value);
        const QJsonArray array = value->ToQJsonValue().toArray();
        QCOMPARE(array.size(), count + 1);
        QVERIFY(array.at(count - 1).toString().endsWith(QStringLiteral("x19999")));
        QCOMPARE(array.last().toString(), QStringLiteral("end"));
    }

    void aFileIsFoundByEveryFormOfItsPath_data()
    {
        Test::AddPathForms();
    }

    void aFileIsFoundByEveryFormOfItsPath()
    {
        QFETCH(const Test::PathForm, form);
        Write("[5]", Test::pathBeyondAscii);
        const Test::WorkingFolder workingFolder(m_folder.path());
        const QString path = form(m_folder.path(), Test::pathBeyondAscii);
        const auto value = IOLJsonReader::ReadJsonFile(path.toStdString(), nullptr);
        QVERIFY(value);
        QCOMPARE(value->ToQJsonValue(), QJsonValue(QJsonArray { 5 }));
    }

    void severalThreadsReadAtOnce()
    {
        const std::string path = Write("{\"a\": [1, 2, 3]}");
        std::vector<std::thread> threads;
        std::vector<QJsonValue> values(8);
        for (QJsonValue &value : values) {
            threads.emplace_back([&value, path] {
                for (int i = 0; i < 100; ++i)
                    value = IOLJsonReader::ReadJsonFile(path, nullptr)->ToQJsonValue();
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        for (const QJsonValue &value : values)
            QCOMPARE(value[QStringLiteral("a")].toArray(), (QJsonArray { 1, 2, 3 }));
    }

private:
    std::string PathOf(const char *name) const
    {
        return m_folder.filePath(QString::fromUtf8(name)).toStdString();
    }

    std::string Write(const QByteArray &text, const QString &name = QStringLiteral("file.json"))
    {
        QFile file(m_folder.filePath(name));
        QDir().mkpath(QFileInfo(file).path());
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write the file");
        return file.fileName().toStdString();
    }

    static void ExpectFault(const ErrorPointer &error, const std::string &path, const char *word)
    {
        QVERIFY(error);
        QCOMPARE(error->Source(), path);
        QCOMPARE(error->Place(), std::string());
        QVERIFY2(error->Reason().find(word) != std::string::npos, error->Reason().c_str());
    }

    QTemporaryDir m_folder;
};

ORLIMO_TEST_MAIN(tst_IOLJsonReader)

#include "tst_ioljsonreader.moc"
