#include "MessageRecorder.h"
#include "TestCase.h"

#include "IOLLogConfig.h"

#include <QLoggingCategory>

#include <thread>
#include <vector>

using Orlimo::IOLLogConfig;

namespace {

// Keeps warnings of the category "orlimo" from being written.
class SilencedCategory
{
public:
    SilencedCategory() { QLoggingCategory::setFilterRules(QStringLiteral("orlimo.warning=false")); }
    SilencedCategory(const SilencedCategory &) = delete;
    SilencedCategory &operator=(const SilencedCategory &) = delete;
    ~SilencedCategory() { QLoggingCategory::setFilterRules(QString()); }
};

void WriteLines(int writer, int count)
{
    for (int line = 0; line < count; ++line)
        IOLLogConfig::Printf("writer %d, line %d.", writer, line);
}

} // namespace

class tst_IOLLogConfig : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aLineIsAWarningOfTheOrlimoCategory()
    {
        Test::MessageRecorder recorder;
        IOLLogConfig::Printf("Failed load external format %s", "/a/ä.json");

        const QList<Test::Message> messages = recorder.Take();
        QCOMPARE(messages.size(), 1);
        QCOMPARE(messages.first().type, QtWarningMsg);
        QCOMPARE(messages.first().category, QStringLiteral("orlimo"));
        QCOMPARE(messages.first().text, QStringLiteral("Failed load external format /a/ä.json"));
    }

    void formatsLikePrintf()
    {
        Test::MessageRecorder recorder;
        const int length = IOLLogConfig::Printf("%03d|%-3s|%.2f|%%|%lld|%c", 7, "ä", 0.5,
                                                -9'000'000'000LL, 'x');

        QCOMPARE(recorder.Take().first().text, QStringLiteral("007|ä |0.50|%|-9000000000|x"));
        QCOMPARE(length, 28); // "ä" is two bytes, and counts as two of the three it is padded to
    }

    void aPercentSignInAnArgumentIsText()
    {
        Test::MessageRecorder recorder;
        IOLLogConfig::Printf("%s", "100 %s %n %1");
        QCOMPARE(recorder.Take().first().text, QStringLiteral("100 %s %n %1"));
    }

    void anEmptyLineIsALine()
    {
        Test::MessageRecorder recorder;
        QCOMPARE(IOLLogConfig::Printf(""), 0);
        QCOMPARE(recorder.Take().size(), 1);
    }

    void aNullFormatWritesNothing()
    {
        Test::MessageRecorder recorder;
        QVERIFY(IOLLogConfig::Printf(nullptr) < 0);
        QVERIFY(recorder.Take().isEmpty());
    }

    void whatCannotBeFormattedWritesNothing()
    {
#ifdef Q_CC_MINGW
        QSKIP("MinGW's printf leaves out a character that it cannot convert");
#endif
        const wchar_t halfAPair[] = { static_cast<wchar_t>(0xD800), L'\0' };
        Test::MessageRecorder recorder;
        const int length = IOLLogConfig::Printf("%ls", halfAPair);
        QVERIFY(length < 0);
        QVERIFY(recorder.Take().isEmpty());
    }

    void aLongLineIsWrittenWhole()
    {
        const std::string text = std::string(1'000'000, 'a') + "end";
        Test::MessageRecorder recorder;
        QCOMPARE(IOLLogConfig::Printf("<%s>", text.c_str()), 1'000'005);

        const QList<Test::Message> messages = recorder.Take();
        QCOMPARE(messages.size(), 1);
        QCOMPARE(messages.first().text.toStdString(), "<" + text + ">");
    }

    void aHostFiltersTheCategory()
    {
        const SilencedCategory silenced;
        Test::MessageRecorder recorder;
        IOLLogConfig::Printf("nobody reads this");
        QVERIFY(recorder.Take().isEmpty());
    }

    void linesOfSeveralThreadsStayWhole()
    {
        constexpr int writers = 8;
        constexpr int lines = 500;
        Test::MessageRecorder recorder;
        std::vector<std::thread> threads;
        for (int writer = 0; writer < writers; ++writer)
            threads.emplace_back(WriteLines, writer, lines);
        for (std::thread &thread : threads)
            thread.join();

        QStringList written;
        for (const Test::Message &message : recorder.Take())
            written.append(message.text);
        QCOMPARE(written.size(), writers * lines);
        written.removeDuplicates();
        QCOMPARE(written.size(), writers * lines);
        QVERIFY(written.contains(QStringLiteral("writer 0, line 0.")));
        QVERIFY(written.contains(QStringLiteral("writer 7, line 499.")));
    }
};

ORLIMO_TEST_MAIN(tst_IOLLogConfig)

#include "tst_iollogconfig.moc"
