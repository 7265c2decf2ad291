#include "TestCase.h"

#include "IOLJsonReader.h"
#include "IOLJsonValue.h"
#include "IOLJsonWriter.h"

#include <QJsonArray>
#include <QJsonObject>

#include <limits>

using Orlimo::IOLJsonReader;
using Orlimo::IOLJsonValue;
using Orlimo::IOLJsonWriter;

Q_DECLARE_METATYPE(QJsonValue)

namespace {

QJsonValue Nested(int levels)
{
    QJsonArray array;
    for (int i = 1; i < levels; ++i)
        array = QJsonArray { array };
    return array;
}

} // namespace

class tst_IOLJsonWriter : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void writesOneLineThatReadsBack_data()
    {
        QTest::addColumn<QJsonValue>("value");
        QTest::newRow("null") << QJsonValue(QJsonValue::Null);
        QTest::newRow("true") << QJsonValue(true);
        QTest::newRow("false") << QJsonValue(false);
        QTest::newRow("zero") << QJsonValue(0);
        QTest::newRow("fraction") << QJsonValue(0.1);
        QTest::newRow("large") << QJsonValue(1.7976931348623157e308);
        QTest::newRow("small") << QJsonValue(-4.9e-300);
        QTest::newRow("largest integer") << QJsonValue(std::numeric_limits<qint64>::max());
        QTest::newRow("smallest integer") << QJsonValue(std::numeric_limits<qint64>::min());
        QTest::newRow("empty text") << QJsonValue(QString());
        QTest::newRow("text") << QJsonValue(QStringLiteral("ä\u2028日本語𐐀 \"quoted\" \\ /"));
        QTest::newRow("bytes of a mark apart") << QJsonValue(QStringLiteral("\uFF21\uF000\u00BB"));
        QTest::newRow("control characters") << QJsonValue(QStringLiteral("\n\r\t\b\f\u0001\u007F"));
        QTest::newRow("brackets in a text") << QJsonValue(QStringLiteral("],["));
        QTest::newRow("empty array") << QJsonValue(QJsonArray());
        QTest::newRow("array") << QJsonValue(QJsonArray { 1, QStringLiteral("a"), QJsonArray() });
        QTest::newRow("empty object") << QJsonValue(QJsonObject());
        QTest::newRow("object") << QJsonValue(QJsonObject {
                { QString(), QJsonValue::Null }, { QStringLiteral("ä\n"), QJsonObject() } });
        QTest::newRow("as deep as the reader goes") << Nested(1024);
    }

    void writesOneLineThatReadsBack()
    {
        QFETCH(const QJsonValue, value);
        const std::string text = IOLJsonWriter::WriteJsonString(
                IOLJsonValue::MallocJsonValue(value));
        QVERIFY(!text.empty());
        QCOMPARE(text.find('\n'), std::string::npos);
        const auto back = IOLJsonReader::ReadJsonString(text, nullptr);
        QVERIFY(back);
        QCOMPARE(back->ToQJsonValue().type(), value.type());
        QCOMPARE(back->ToQJsonValue(), value);
    }

    void writesPlainJson()
    {
        const QJsonObject object { { QStringLiteral("a"), QJsonArray { true, 1 } } };
        QCOMPARE(IOLJsonWriter::WriteJsonString(IOLJsonValue::MallocJsonValue(object)),
                 std::string("{\"a\":[true,1]}"));
        QCOMPARE(IOLJsonWriter::WriteJsonString(IOLJsonValue::MallocJsonValue(QStringLiteral("ä"))),
                 std::string("\"ä\""));
    }

    void anEmptyPointerGivesAnEmptyText()
    {
        QCOMPARE(IOLJsonWriter::WriteJsonString(nullptr), std::string());
    }
};

ORLIMO_TEST_MAIN(tst_IOLJsonWriter)

#include "tst_ioljsonwriter.moc"
