#include "OLJsonLocator.h"
#include "TestCase.h"

using Orlimo::OLJsonLocator;
using Orlimo::OLTextPlace;

using namespace Qt::StringLiterals;

namespace {

// A row of a text in which a vertical line stands before the value, and is taken out.
void Row(const char *name, const char *marked, const char *pointer)
{
    QByteArray text(marked);
    const qsizetype mark = text.indexOf('|');
    text.remove(mark, 1);
    QTest::newRow(name) << text << QString::fromUtf8(pointer) << mark;
}

} // namespace

class tst_OLJsonLocator : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itFindsTheValueOfAPointer_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("pointer");
        QTest::addColumn<qsizetype>("offset");
        Row("document", "|{}", "");
        Row("document behind blanks", " \t\n\r|[]", "");
        Row("lone number", " |17 ", "");
        Row("lone text", "|\"a\"", "");
        Row("member", "{\"a\":|1}", "/a");
        Row("member behind others", "{ \"a\" : 1 , \"b\" :\t|2 }", "/b");
        Row("member with an empty key", "{\"a\":0,\"\":|1}", "/");
        Row("element", "[1,|2,3]", "/1");
        Row("last element", "[ 1 , 2 , |3 ]", "/2");
        Row("element behind others with contents", "[[[1],[2]],{\"a\":{\"1\":2}},|3]", "/2");
        Row("inside", "{\"a\":[{},{\"b\":[0,|true]}]}", "/a/1/b/1");
        Row("behind empty ones", "{\"a\":[],\"b\":{},\"c\":[ ],\"d\":|{ }}", "/d");
        Row("behind every literal", "[true,false,null,-1.5e+3,|0]", "/4");
        Row("behind brackets in a text", "{\"}],{[\":\"}],{[\",\"b\":|1}", "/b");
        Row("behind quotation marks", "[\"\\\"\",\"\\\\\",\"\\\\\\\"\",|1]", "/3");
        Row("key with signs of the pointer", "{\"a/b~c\":|1}", "/a~1b~0c");
        Row("key with a tilde and a one", "{\"~1\":|1,\"/\":2}", "/~01");
        Row("key with escapes", "{\"\\u0061\\n\\\"\":|1}", "/a\n\"");
        Row("key with a pair of escapes", "{\"\\ud83c\\udfac\":|1}", "/\xF0\x9F\x8E\xAC");
        Row("key of wide characters", "{\"\xE6\x98\xA0\":|1}", "/\xE6\x98\xA0");
        Row("last of two members", "{\"a\":1,\"b\":2,\"a\":|3}", "/a");
        Row("member of the last of two", "{\"a\":{\"b\":1},\"a\":{\"b\":|2}}", "/a/b");
        Row("member of the first of two", "{\"a\":{\"b\":1},\"a\":|{\"c\":2}}", "/a/b");
        Row("no such member", "{\"a\":|{\"b\":1}}", "/a/c/d");
        Row("no such element", "{\"a\":|[1]}", "/a/1");
        Row("below a text", "{\"a\":|\"b\"}", "/a/b");
        Row("behind a byte order mark", "\xEF\xBB\xBF{\"a\":|1}", "/a");
    }

    void itFindsTheValueOfAPointer()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, pointer);
        QFETCH(const qsizetype, offset);
        QVERIFY(OLJsonLocator(text).PlaceOf(pointer) == Orlimo::OLTextLines(text).PlaceOf(offset));
    }

    void itFindsTheDeepestValueThatTheParserAccepts()
    {
        constexpr int levels = 1024;
        const QByteArray text = QByteArray(levels, '[') + '1' + QByteArray(levels, ']');
        const QString pointer = u"/0"_s.repeated(levels);
        QVERIFY(OLJsonLocator(text).PlaceOf(pointer) == (OLTextPlace { 1, levels + 1 }));
    }
};

ORLIMO_TEST_MAIN(tst_OLJsonLocator)

#include "tst_oljsonlocator.moc"
