#include "TestCase.h"

#include "IOLStringHelper.h"

using Orlimo::IOLStringHelper;

class tst_IOLStringHelper : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void toLowerFoldsUnicodeAndKeepsOtherBytes_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("lowered");
        QTest::newRow("empty") << QByteArray() << QByteArray();
        QTest::newRow("ascii") << QByteArray("MP4 Hd 1080P_@[") << QByteArray("mp4 hd 1080p_@[");
        QTest::newRow("already lower") << QByteArray("avi") << QByteArray("avi");
        QTest::newRow("latin") << QByteArray("ÄÖÜ É Ñ") << QByteArray("äöü é ñ");
        QTest::newRow("greek") << QByteArray("ΩΣ") << QByteArray("ωσ");
        QTest::newRow("cyrillic") << QByteArray("ВИДЕО") << QByteArray("видео");
        QTest::newRow("beyond the first plane") << QByteArray("𐐀") << QByteArray("𐐨");
        QTest::newRow("no letters") << QByteArray("日本語") << QByteArray("日本語");
        QTest::newRow("byte order mark")
                << QByteArray("\xEF\xBB\xBFÄ") << QByteArray("\xEF\xBB\xBFä");
        QTest::newRow("two byte order marks") << QByteArray("\xEF\xBB\xBF\xEF\xBB\xBFÄ")
                                              << QByteArray("\xEF\xBB\xBF\xEF\xBB\xBFä");
        const QByteArray marks = QByteArray("\xEF\xBB\xBF").repeated(100000);
        QTest::newRow("nothing but byte order marks") << marks << marks;
        QTest::newRow("stray continuation") << QByteArray("A\x80Ä") << QByteArray("a\x80ä");
        QTest::newRow("cut short") << QByteArray("Ä\xC3") << QByteArray("ä\xC3");
        QTest::newRow("overlong") << QByteArray("\xC1\x81"
                                                "B")
                                  << QByteArray("\xC1\x81"
                                                "b");
        QTest::newRow("surrogate") << QByteArray("\xED\xA0\x80"
                                                 "B")
                                   << QByteArray("\xED\xA0\x80"
                                                 "b");
        QTest::newRow("beyond Unicode") << QByteArray("\xF4\x90\x80\x80"
                                                      "B")
                                        << QByteArray("\xF4\x90\x80\x80"
                                                      "b");
        QTest::newRow("zero byte") << QByteArray("A\0B", 3) << QByteArray("a\0b", 3);
    }

    void toLowerFoldsUnicodeAndKeepsOtherBytes()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QByteArray, lowered);
        const std::string once = IOLStringHelper::ToLower(text.toStdString());
        QCOMPARE(QByteArray::fromStdString(once), lowered);
        QCOMPARE(IOLStringHelper::ToLower(once), once);
    }
};

ORLIMO_TEST_MAIN(tst_IOLStringHelper)

#include "tst_iolstringhelper.moc"
