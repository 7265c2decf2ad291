#include "FormatTool.h"
#include "TestCase.h"

using namespace Qt::StringLiterals;

namespace {

// A row of a description of the folder, by what is printed behind its name.
void Row(const char *name, const QList<const char *> &findings)
{
    QStringList lines;
    for (const char *finding : findings)
        lines += u"tree.json:"_s + QString::fromUtf8(finding);
    QTest::newRow(name) << lines;
}

} // namespace

// What is printed of descriptions that the picker accepts.
class tst_OLFormatCheckWarnings : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itWarnsOfWhatHardlyAnybodyMeans_data()
    {
        QTest::addColumn<QStringList>("lines");
        Row("category-name-twice",
            { "25:17: warning: /root/children/2/name: the category at index 0 is called \"Video\" "
              "too" });
        Row("format-name-twice",
            { "23:21: warning: /root/children/0/children/1/name: the format at index 0 is called "
              "\"MP4\" too" });
        Row("preset-name-twice",
            { "22:25: warning: /root/children/0/children/0/presets/1/name: the preset at index 0 "
              "is called \"HD 1080P\" too",
              "22:73: warning: /root/children/0/children/0/presets/3/name: the preset at index 0 "
              "is called \"HD 1080P\" too" });
        Row("names-empty",
            { "10:39: warning: /encoders/aac/name: the encoder has no name",
              "16:17: warning: /root/children/0/name: the category has no name",
              "17:21: warning: /root/children/0/children/0/name: the format has no name",
              "18:25: warning: /root/children/0/children/0/presets/0/name: the preset has no "
              "name" });
        Row("lists-unused",
            { "3:27: warning: /sampleRates/48k: no preset uses this entry of the table",
              "4:24: warning: /channels/two: no preset uses this entry of the table",
              "5:27: warning: /frameRates/film: no preset uses this entry of the table",
              "6:27: warning: /resolutions/uhd: no preset uses this entry of the table",
              "8:15: warning: /qualities/crf ~0~1: no preset uses this entry of the table" });
        Row("encoder-unused",
            { "9:12: warning: /encoders/av1: no preset uses this entry of the table" });
        Row("set-unused-with-all-it-leads-to",
            { "5:10: warning: /qualities/q: no preset uses this entry of the table",
              "10:12: warning: /encoders/av1: no preset uses this entry of the table",
              "14:28: warning: /encoderSets/rare: no preset uses this entry of the table" });
        Row("face-ids-without-artwork",
            { "16:36: warning: /root/children/0/faceId: face id 4 has no image",
              "17:38: warning: /root/children/0/children/0/faceId: face id -7 has no image" });
    }

    void itWarnsOfWhatHardlyAnybodyMeans()
    {
        const Test::ToolResult result = m_folder.Check(Warned());
        QTEST(result.Lines(), "lines");
        QCOMPARE(result.errors, QString());
        QCOMPARE(result.status, 0);
    }

    void warningsCountWhereItIsStrict_data() { itWarnsOfWhatHardlyAnybodyMeans_data(); }

    void warningsCountWhereItIsStrict()
    {
        const Test::ToolResult result = m_folder.Check(Warned(), { u"--strict"_s });
        QTEST(result.Lines(), "lines");
        QCOMPARE(result.status, 1);
    }

    void faultsCountMoreThanWarnings()
    {
        m_folder.Write(u"alone.json"_s, Test::Description(u"faulty/version-unknown"_s));
        const Test::ToolResult result = m_folder.Run(
                { u"check"_s, u"--strict"_s, u"alone.json"_s });
        QCOMPARE(result.Lines().size(), 2);
        QVERIFY(result.output.contains(u"alone.json:2:14: error: "_s));
        QVERIFY(result.output.contains(u"alone.icfg: warning: "_s));
        QCOMPARE(result.status, 2);
    }

private:
    static QByteArray Warned()
    {
        return Test::Description(u"warned/"_s + QString::fromUtf8(QTest::currentDataTag()));
    }

    Test::ToolFolder m_folder;
};

ORLIMO_TEST_MAIN(tst_OLFormatCheckWarnings)

#include "tst_olformatcheck_warnings.moc"
