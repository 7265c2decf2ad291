#include "TestCase.h"

#include "IOLError.h"

using Orlimo::IOLError;

class tst_IOLError : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keepsItsPartsAndJoinsThoseThatAreNotEmpty_data()
    {
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QByteArray>("place");
        QTest::addColumn<QByteArray>("reason");
        QTest::addColumn<QByteArray>("message");
        const QByteArray none;
        QTest::newRow("all") << QByteArray("/a/ä.json") << QByteArray("line 2, column 3")
                             << QByteArray("a text is expected")
                             << QByteArray("/a/ä.json: line 2, column 3: a text is expected");
        QTest::newRow("no place") << QByteArray("/a.json") << none << QByteArray("not there")
                                  << QByteArray("/a.json: not there");
        QTest::newRow("text in memory") << none << QByteArray("/root/name") << QByteArray("missing")
                                        << QByteArray("/root/name: missing");
        QTest::newRow("reason only")
                << none << none << QByteArray("broken") << QByteArray("broken");
        QTest::newRow("no reason") << QByteArray("/a.json") << QByteArray("line 1, column 1")
                                   << none << QByteArray("/a.json: line 1, column 1");
        QTest::newRow("nothing") << none << none << none << none;
    }

    void keepsItsPartsAndJoinsThoseThatAreNotEmpty()
    {
        QFETCH(const QByteArray, source);
        QFETCH(const QByteArray, place);
        QFETCH(const QByteArray, reason);
        QFETCH(const QByteArray, message);
        const std::shared_ptr<const IOLError> error = IOLError::MallocError(source.toStdString(),
                                                                            place.toStdString(),
                                                                            reason.toStdString());
        QVERIFY(error);
        QCOMPARE(error->Source(), source.toStdString());
        QCOMPARE(error->Place(), place.toStdString());
        QCOMPARE(error->Reason(), reason.toStdString());
        QCOMPARE(error->Message(), message.toStdString());
    }
};

ORLIMO_TEST_MAIN(tst_IOLError)

#include "tst_iolerror.moc"
