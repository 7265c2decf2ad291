#include "FormatTool.h"
#include "TestCase.h"

using namespace Qt::StringLiterals;

// The command line of the tool.
class tst_OLFormat : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void helpDescribesWhatItIsAskedFor_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("words");
        const QStringList commands { u"check FILE"_s, u"pack FOLDER FILE"_s, u"--help"_s };
        QTest::newRow("tool") << QStringList { u"--help"_s } << commands;
        QTest::newRow("tool, short") << QStringList { u"-h"_s } << commands;
        QTest::newRow("check") << QStringList {
            u"check"_s, u"--help"_s
        } << QStringList { u"FILE:LINE:COLUMN"_s, u"--strict"_s, u"icfg"_s,
                           u"exit status is 0"_s, u"1 where"_s,  u"2 where"_s };
        QTest::newRow("check of a file") << QStringList { u"check"_s, u"none.json"_s, u"-h"_s }
                                         << QStringList { u"--strict"_s };
        QTest::newRow("pack") << QStringList { u"pack"_s, u"--help"_s }
                              << QStringList { u"FOLDER"_s, u"PNG"_s, u"1001-mp4.png"_s,
                                               u"exit status is 0"_s };
    }

    void helpDescribesWhatItIsAskedFor()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QStringList, words);
        const Test::ToolResult result = m_folder.Run(arguments);
        for (const QString &word : words)
            QVERIFY2(result.output.contains(word), qPrintable(word));
        QCOMPARE(result.errors, QString());
        QCOMPARE(result.status, 0);
    }

    void itRefusesAWrongCommandLineAndSaysWhy_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("reason");
        QTest::newRow("nothing") << QStringList() << u"a command is missing"_s;
        QTest::newRow("empty command") << QStringList { u""_s } << u"a command is missing"_s;
        QTest::newRow("unknown command") << QStringList { u"cheque"_s, u"tree.json"_s }
                                         << u"there is no command \"cheque\""_s;
        QTest::newRow("unknown command beyond ASCII")
                << QStringList { u"größe 動画 𐐀"_s } << u"there is no command \"größe 動画 𐐀\""_s;
        QTest::newRow("unknown option")
                << QStringList { u"--version"_s } << u"Unknown option 'version'."_s;
        QTest::newRow("option before its command")
                << QStringList { u"--strict"_s, u"check"_s, u"tree.json"_s }
                << u"Unknown option 'strict'."_s;
        QTest::newRow("check without a file")
                << QStringList { u"check"_s } << u"check takes FILE"_s;
        QTest::newRow("check of two files")
                << QStringList { u"check"_s, u"tree.json"_s, u"tree.json"_s }
                << u"check takes FILE"_s;
        QTest::newRow("check with an unknown option")
                << QStringList { u"check"_s, u"tree.json"_s, u"--lenient"_s }
                << u"Unknown option 'lenient'."_s;
        QTest::newRow("check with a value")
                << QStringList { u"check"_s, u"--strict=yes"_s, u"tree.json"_s }
                << u"Unexpected value after '--strict'."_s;
        QTest::newRow("pack without a file")
                << QStringList { u"pack"_s, u"."_s } << u"pack takes FOLDER FILE"_s;
        QTest::newRow("pack with an option of check")
                << QStringList { u"pack"_s, u"--strict"_s, u"."_s, u"a.icfg"_s }
                << u"Unknown option 'strict'."_s;
    }

    void itRefusesAWrongCommandLineAndSaysWhy()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, reason);
        m_folder.Write(u"tree.json"_s, Test::Description(u"clean"_s));
        const Test::ToolResult result = m_folder.Run(arguments);
        QCOMPARE(result.errors.section(u'\n', 0, 0), u"olformat: "_s + reason);
        QVERIFY(result.errors.contains(u"Usage: "_s));
        QCOMPARE(result.output, QString());
        QCOMPARE(result.status, 2);
    }

private:
    Test::ToolFolder m_folder;
};

ORLIMO_TEST_MAIN(tst_OLFormat)

#include "tst_olformat.moc"
