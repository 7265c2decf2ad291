#include "TestCase.h"

#include "IOLBase64Codec.h"

using Orlimo::IOLBase64Codec;

class tst_IOLBase64Codec : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // RFC 4648, section 10, and the two digits in which other alphabets differ.
    void encodesAndDecodesStandardBase64_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("nothing") << QByteArray() << QByteArray();
        QTest::newRow("one byte") << QByteArray("f") << QByteArray("Zg==");
        QTest::newRow("two bytes") << QByteArray("fo") << QByteArray("Zm8=");
        QTest::newRow("three bytes") << QByteArray("foo") << QByteArray("Zm9v");
        QTest::newRow("four bytes") << QByteArray("foob") << QByteArray("Zm9vYg==");
        QTest::newRow("five bytes") << QByteArray("fooba") << QByteArray("Zm9vYmE=");
        QTest::newRow("six bytes") << QByteArray("foobar") << QByteArray("Zm9vYmFy");
        QTest::newRow("plus") << QByteArray("\xFB\xEF\xBE") << QByteArray("++++");
        QTest::newRow("slash") << QByteArray("\xFF\xFF\xFF") << QByteArray("////");
        QTest::newRow("zero bytes") << QByteArray("\0\0", 2) << QByteArray("AAA=");
        QTest::newRow("utf-8") << QByteArray("\xC3\xA4") << QByteArray("w6Q=");
    }

    void encodesAndDecodesStandardBase64()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QByteArray, text);
        QCOMPARE(IOLBase64Codec::Encode(bytes.toStdString()), text.toStdString());
        QCOMPARE(IOLBase64Codec::Decode(text.toStdString()), bytes.toStdString());
    }

    void whatIsNotBase64DecodesToNothing_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("no padding") << QByteArray("Zg");
        QTest::newRow("half the padding") << QByteArray("Zg=");
        QTest::newRow("single digit") << QByteArray("Z");
        QTest::newRow("single digit, padded") << QByteArray("Z===");
        QTest::newRow("only padding") << QByteArray("====");
        QTest::newRow("padding inside") << QByteArray("Zg==Zg==");
        QTest::newRow("too much padding") << QByteArray("Zm9v====");
        QTest::newRow("bits beyond the last byte") << QByteArray("Zh==");
        QTest::newRow("line break") << QByteArray("Zm9v\nYmFy");
        QTest::newRow("leading space") << QByteArray(" Zm9v");
        QTest::newRow("url alphabet") << QByteArray("-_-_");
        QTest::newRow("other character") << QByteArray("Zm9*");
        QTest::newRow("zero byte") << QByteArray("Zm9\0", 4);
        QTest::newRow("beyond ascii") << QByteArray("Zm9\xC3\xA4===");
    }

    void whatIsNotBase64DecodesToNothing()
    {
        QFETCH(const QByteArray, text);
        QCOMPARE(IOLBase64Codec::Decode(text.toStdString()), std::string());
    }

    void everyByteAndAnyLengthSurvives()
    {
        std::string bytes;
        for (int i = 0; i < 1024; ++i) {
            const std::string text = IOLBase64Codec::Encode(bytes);
            QCOMPARE(text.size(), (bytes.size() + 2) / 3 * 4);
            QCOMPARE(IOLBase64Codec::Decode(text), bytes);
            bytes += static_cast<char>(i * 7);
        }
    }
};

ORLIMO_TEST_MAIN(tst_IOLBase64Codec)

#include "tst_iolbase64codec.moc"
