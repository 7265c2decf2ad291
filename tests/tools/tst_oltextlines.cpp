#include "OLTextLines.h"
#include "TestCase.h"

using Orlimo::OLTextLines;
using Orlimo::OLTextPlace;

using namespace Qt::StringLiterals;

class tst_OLTextLines : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aByteHasALineAndAColumn_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        const auto row = [](const char *name, const QByteArray &text, int offset, int line,
                            int column) {
            QTest::newRow(name) << text << offset << line << column;
        };
        row("empty text", "", 0, 1, 1);
        row("first byte", "ab\ncd", 0, 1, 1);
        row("last of a line", "ab\ncd", 1, 1, 2);
        row("line feed", "ab\ncd", 2, 1, 3);
        row("first of a line", "ab\ncd", 3, 2, 1);
        row("end of the text", "ab\ncd", 5, 2, 3);
        row("behind the text", "ab\ncd", 99, 2, 3);
        row("before the text", "ab\ncd", -1, 1, 1);
        row("end behind a line feed", "ab\n", 3, 2, 1);
        row("empty lines", "\n\n\nx", 3, 4, 1);
        row("behind a carriage return", "ab\r\ncd", 4, 2, 1);
        row("carriage return", "ab\r\ncd", 2, 1, 3);
        row("two bytes", "\xC3\xBCx", 2, 1, 2);
        row("three bytes", "\xE6\x98\xA0x", 3, 1, 2);
        row("four bytes", "\xF0\x9F\x8E\xACx", 4, 1, 2);
        row("wide characters of another line", "\xC3\xBC\nax", 4, 2, 2);
        row("damaged characters", "\xFF\xFEx", 2, 1, 3);
        row("behind a byte order mark", "\xEF\xBB\xBF{x", 4, 1, 2);
        row("byte order mark", "\xEF\xBB\xBF{", 0, 1, 1);
        row("mark in another line", "a\n\xEF\xBB\xBFx", 5, 2, 2);
    }

    void aByteHasALineAndAColumn()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const int, offset);
        const OLTextPlace place = OLTextLines(text).PlaceOf(offset);
        QTEST(static_cast<int>(place.line), "line");
        QTEST(static_cast<int>(place.column), "column");
    }

    void aLongLineHasAColumnForEveryCharacter()
    {
        const OLTextLines lines("x\n"_ba + "\xE6\x98\xA0"_ba.repeated(5000));
        for (int i = 0; i <= 5000; ++i)
            QVERIFY2(lines.PlaceOf(2 + 3 * i) == (OLTextPlace { 2, i + 1 }),
                     qPrintable(QString::number(i)));
    }

    void aByteOfALineHasAColumn()
    {
        const OLTextLines lines("ab\n\xC3\xBC\xC3\xBCx\n"_ba);
        QVERIFY(lines.PlaceInLine(1, 1) == (OLTextPlace { 1, 1 }));
        QVERIFY(lines.PlaceInLine(2, 5) == (OLTextPlace { 2, 3 }));
        QVERIFY(lines.PlaceInLine(3, 1) == (OLTextPlace { 3, 1 }));
    }

    void aLineThatIsNotThereIsTheNearest()
    {
        const OLTextLines lines("ab\ncd"_ba);
        QVERIFY(lines.PlaceInLine(0, 1) == (OLTextPlace { 1, 1 }));
        QVERIFY(lines.PlaceInLine(9, 1) == (OLTextPlace { 2, 1 }));
    }
};

ORLIMO_TEST_MAIN(tst_OLTextLines)

#include "tst_oltextlines.moc"
