#include "FormatTool.h"
#include "PathForms.h"
#include "TestCase.h"

using namespace Qt::StringLiterals;

namespace {

void Columns()
{
    QTest::addColumn<QString>("line");
}

// A row of a description of the folder, by the place of its only fault.
void Row(const char *name, int line, int column, const char *pointer, const char *text)
{
    const QString where = *pointer ? QString::fromUtf8(pointer) + u": "_s : QString();
    QTest::newRow(name) << u"tree.json:%1:%2: error: "_s.arg(line).arg(column) + where
                    + QString::fromUtf8(text);
}

QStringList DescriptionsIn(const QString &folder)
{
    return QDir(u"" ORLIMO_TOOL_DESCRIPTIONS "/"_s + folder).entryList({ u"*.json"_s });
}

} // namespace

// What is printed of descriptions that have one fault, and of one that has many.
class tst_OLFormatCheck : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itPrintsWhereTheTextBreaksOff_data()
    {
        Columns();
        Row("syntax-behind-the-end", 5, 1, "", "garbage at the end of the document");
        Row("syntax-behind-wide-characters", 1, 41, "", "unterminated object");
        Row("syntax-comma-missing", 3, 4, "", "unterminated object");
        Row("syntax-comment", 2, 4, "", "unterminated object");
        Row("syntax-cut-short", 3, 26, "", "unterminated string");
        Row("syntax-not-utf8", 3, 23, "", "invalid UTF8 string");
        Row("syntax-nothing", 1, 1, "", "illegal value");
    }
    void itPrintsWhereTheTextBreaksOff() { ExpectTheFault(); }

    void itPrintsAFaultOfTheDocumentOrATable_data()
    {
        Columns();
        Row("member-unknown", 3, 14, "/comment", "this layout does not know the member");
        Row("document-is-an-array", 1, 1, "", "an object is expected");
        Row("document-is-a-number", 1, 2, "", "an object is expected");
        Row("version-missing", 1, 1, "", "the member \"version\" is missing");
        Row("version-unknown", 2, 14, "/version", "a whole number from 1 to 1 is expected");
        Row("root-missing", 1, 1, "", "the member \"root\" is missing");
        Row("table-is-an-array", 3, 17, "/frameRates", "an object is expected");
        Row("list-is-an-object", 5, 13, "/qualities/none", "an array of options is expected");
        Row("option-is-a-text", 6, 15, "/qualities/kbps/0", "an object is expected");
        Row("option-without-text", 5, 45, "/qualities/crf/1", "the member \"text\" is missing");
        Row("option-text-is-a-number", 5, 55, "/qualities/crf/1/text", "a text is expected");
        Row("option-member-unknown", 5, 84, "/qualities/crf/1/bitrate",
            "this layout does not know the member");
        Row("option-width-alone", 3, 28, "/resolutions/hd/0", "the member \"height\" is missing");
        Row("option-height-is-zero", 4, 7, "/resolutions/hd/0/height",
            "a whole number from 1 to 2147483647 is expected");
        Row("option-with-two-figures", 5, 45, "/qualities/crf/1",
            "a quality has at most one of crf, bitRate and bitDepth");
        Row("encoder-is-null", 9, 12, "/encoders/av1", "an object is expected");
        Row("encoder-without-kind", 10, 12, "/encoders/aac", "the member \"kind\" is missing");
        Row("encoder-kind-unknown", 10, 22, "/encoders/aac/kind",
            "\"video\" or \"audio\" is expected");
        Row("encoder-without-name", 10, 12, "/encoders/aac", "the member \"name\" is missing");
        Row("encoder-auto-is-a-number", 10, 54, "/encoders/aac/auto", "true or false is expected");
        Row("encoder-list-not-there", 10, 59, "/encoders/aac/qualities",
            "there is no table called \"Kbps\"");
        Row("encoder-of-video-with-channels", 9, 61, "/encoders/h264/channels",
            "this layout does not know the member");
        Row("encoder-index-behind-list", 10, 78, "/encoders/aac/quality",
            "a whole number from -1 to 0 is expected");
        Row("set-is-a-text", 12, 50, "/encoderSets/audio", "an array of encoder ids is expected");
        Row("set-with-a-number", 12, 59, "/encoderSets/audio/1",
            "the id of an encoder is expected");
        Row("set-encoder-not-there", 12, 52, "/encoderSets/audio/0",
            "there is no table called \"mp3\"");
        Row("set-of-both-kinds", 12, 59, "/encoderSets/audio/1", "an encoder set is of one kind");
    }
    void itPrintsAFaultOfTheDocumentOrATable() { ExpectTheFault(); }

    void itPrintsAFaultOfTheTree_data()
    {
        Columns();
        Row("node-without-name", 16, 7, "/root/children/0", "the member \"name\" is missing");
        Row("node-face-id-is-a-text", 16, 36, "/root/children/0/faceId",
            "a whole number from -2147483648 to 2147483647 is expected");
        Row("node-children-is-an-object", 17, 40, "/root/children/0/children/0/children",
            "an array is expected");
        Row("node-presets-is-null", 16, 37, "/root/children/0/presets", "an array is expected");
        Row("node-member-unknown", 16, 34, "/root/children/0/Name",
            "this layout does not know the member");
        Row("preset-is-an-array", 18, 15, "/root/children/0/children/0/presets/0",
            "an object is expected");
        Row("preset-without-name", 18, 15, "/root/children/0/children/0/presets/0",
            "the member \"name\" is missing");
        Row("preset-format-is-a-number", 18, 63, "/root/children/0/children/0/presets/0/format",
            "a text is expected");
        Row("choices-without-set", 21, 26, "/root/children/0/children/0/presets/0/audio",
            "the member \"encoders\" is missing");
        Row("choices-set-not-there", 21, 40, "/root/children/0/children/0/presets/0/audio/encoders",
            "there is no table called \"sound\"");
        Row("choices-of-other-kind", 21, 40, "/root/children/0/children/0/presets/0/audio/encoders",
            "the encoder set is of the other kind");
        Row("choices-current-behind-set", 19, 60,
            "/root/children/0/children/0/presets/0/video/current",
            "a whole number from -1 to 0 is expected");
        Row("choices-is-an-object", 20, 39, "/root/children/0/children/0/presets/0/video/choices",
            "an array is expected");
        Row("choice-without-encoder", 20, 41,
            "/root/children/0/children/0/presets/0/video/choices/0",
            "the member \"encoder\" is missing");
        Row("choice-encoder-behind-set", 20, 54,
            "/root/children/0/children/0/presets/0/video/choices/0/encoder",
            "a whole number from 0 to 0 is expected");
        Row("choice-twice", 21, 41, "/root/children/0/children/0/presets/0/video/choices/1",
            "there is another choice for this encoder");
        Row("choice-option-behind-list", 20, 68,
            "/root/children/0/children/0/presets/0/video/choices/0/quality",
            "a whole number from -1 to 1 is expected");
        Row("choice-of-other-kind", 20, 68,
            "/root/children/0/children/0/presets/0/video/choices/0/channel",
            "this layout does not know the member");
    }
    void itPrintsAFaultOfTheTree() { ExpectTheFault(); }

    // Columns are those that an editor shows, but for tabulators, which count as one.
    void itCountsCharactersAndKnowsTheKeyOfAMember_data()
    {
        Columns();
        Row("place-behind-wide-characters", 16, 41, "/root/children/0/faceId",
            "a whole number from -2147483648 to 2147483647 is expected");
        Row("place-with-carriage-returns", 17, 13, "/root/children/0/faceId",
            "a whole number from -2147483648 to 2147483647 is expected");
        Row("place-behind-byte-order-mark", 1, 14, "/version",
            "a whole number from 1 to 1 is expected");
        Row("place-behind-tabulators", 17, 13, "/root/children/0/faceId",
            "a whole number from -2147483648 to 2147483647 is expected");
        Row("place-of-escaped-key", 5, 23, "/qualities/a~1b~0\"c\\",
            "an array of options is expected");
        Row("place-of-last-of-two-members", 16, 64, "/root/children/0/faceId",
            "a whole number from -2147483648 to 2147483647 is expected");
        Row("place-behind-brackets-in-a-text", 16, 41, "/root/children/0/faceId",
            "a whole number from -2147483648 to 2147483647 is expected");
    }
    void itCountsCharactersAndKnowsTheKeyOfAMember() { ExpectTheFault(); }

    void everyDescriptionOfTheFolderHasOneFault()
    {
        const QStringList names = DescriptionsIn(u"faulty"_s);
        QVERIFY(!names.isEmpty());
        for (const QString &name : names) {
            const QByteArray description = Test::Description(u"faulty/"_s + name.chopped(5));
            const Test::ToolResult result = m_folder.Check(description);
            QVERIFY2(result.Lines().size() == 1, qPrintable(name + u'\n' + result.output));
            QVERIFY2(result.output.contains(u": error: "_s), qPrintable(name));
        }
    }

    void itPrintsEveryFaultInTheOrderOfTheTextAndNoneThatFollowsFromAnother()
    {
        const Test::ToolResult result = m_folder.Check(Test::Description(u"manyfaults"_s));
        QStringList lines = QString::fromUtf8(Test::Contents(u"" ORLIMO_TOOL_DESCRIPTIONS
                                                             "/manyfaults.txt"_s))
                                    .split(u'\n', Qt::SkipEmptyParts);
        for (QString &line : lines)
            line.prepend(u"tree.json:"_s);
        QCOMPARE(result.Lines(), lines);
        QCOMPARE(result.status, 2);
    }

    void aPointerOrATextWithALineBreakStaysOnItsLine()
    {
        const Test::ToolResult result = m_folder.Check(
                "{ \"version\": 1, \"root\": { \"name\": \"\" }, \"a\\nb\\u001b[1m\": 1 }");
        QCOMPARE(
                result.output,
                u"tree.json:1:58: error: /a\\u000ab\\u001b[1m: this layout does not know the member\n"_s);
    }

    void aCleanDescriptionGivesNoLine()
    {
        const Test::ToolResult result = m_folder.Check(Test::Description(u"clean"_s),
                                                       { u"--strict"_s });
        QCOMPARE(result.output, QString());
        QCOMPARE(result.errors, QString());
        QCOMPARE(result.status, 0);
    }

    void aDescriptionMayHaveAnyPath_data() { Test::AddPathForms(); }

    void aDescriptionMayHaveAnyPath()
    {
        QFETCH(const Test::PathForm, form);
        const QString description = Test::pathBeyondAscii;
        m_folder.Write(description, Test::Description(u"clean"_s));
        m_folder.Write(description.chopped(4) + u"icfg"_s,
                       Test::ArtworkFile(Test::CompleteImages()));
        const QString path = form(m_folder.Path(), description);
        const Test::ToolResult result = m_folder.Run({ u"check"_s, u"--strict"_s, path });
        QCOMPARE(result.output, QString());
        QCOMPARE(result.status, 0);
    }

    void aFileThatCannotBeReadIsAFault_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("line");
        QTest::newRow("not there")
                << u"none.json"_s << u"none.json: error: the file does not exist"_s;
        QTest::newRow("not there, beyond ASCII")
                << u"größe 動画 é.json"_s << u"größe 動画 é.json: error: the file does not exist"_s;
        QTest::newRow("folder") << u"folder.json"_s << u"folder.json: error: not a regular file"_s;
    }

    void aFileThatCannotBeReadIsAFault()
    {
        QFETCH(const QString, file);
        m_folder.Write(u"folder.json/something"_s, {});
        m_folder.Write(file.chopped(4) + u"icfg"_s, Test::ArtworkFile(Test::CompleteImages()));
        const Test::ToolResult result = m_folder.Run({ u"check"_s, file });
        QTEST(result.output.trimmed(), "line");
        QCOMPARE(result.status, 2);
    }

private:
    void ExpectTheFault()
    {
        QFETCH(const QString, line);
        const QString name = QString::fromUtf8(QTest::currentDataTag());
        const Test::ToolResult result = m_folder.Check(Test::Description(u"faulty/"_s + name));
        QCOMPARE(result.Lines(), QStringList { line });
        QCOMPARE(result.errors, QString());
        QCOMPARE(result.status, 2);
    }

    Test::ToolFolder m_folder;
};

ORLIMO_TEST_MAIN(tst_OLFormatCheck)

#include "tst_olformatcheck.moc"
