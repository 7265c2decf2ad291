#include "FormatTreeDescription.h"
#include "FormatTreeDocument.h"
#include "MessageRecorder.h"
#include "TestCase.h"

#include "IOLCodecPreset.h"
#include "IOLJsonWriter.h"

#include <QRegularExpression>

using Orlimo::IOLFormatNode;
using Orlimo::IOLFormatPreset;
using Orlimo::IOLJsonReader;
using Orlimo::IOLJsonWriter;

using NodePointer = std::shared_ptr<IOLFormatNode>;
using PresetPointer = std::shared_ptr<IOLFormatPreset>;

namespace {

QJsonValue Written(const NodePointer &node)
{
    return node->ToJsonValue()->ToQJsonValue();
}

// Writes the tree as text and reads the text.
NodePointer ThereAndBack(const NodePointer &node)
{
    const std::string text = IOLJsonWriter::WriteJsonString(node->ToJsonValue());
    return IOLFormatNode::MallocFormatNode(IOLJsonReader::ReadJsonString(text, nullptr));
}

NodePointer NodeWithPresets(const QList<PresetPointer> &presets)
{
    const NodePointer node = IOLFormatNode::MallocFormatNode(NodePointer());
    node->SetName("Custom");
    for (const PresetPointer &preset : presets)
        node->AddPreset(preset);
    return node;
}

// The sample preset from a document of its own in which one place differs.
PresetPointer PresetFrom(const char *place, const QJsonValue &value)
{
    const QJsonValue document = Test::Changed(Test::SampleDocument(),
                                              QString::fromUtf8(place).split(u'/'), value);
    return Test::Load(document)->FirstChild()->FirstChild()->FirstFormatPreset();
}

} // namespace

Q_DECLARE_METATYPE(QJsonValue)

// Writing trees, and reading what was written.
class tst_OLFormatTreeWriting : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aTreeComesBackEqual()
    {
        const NodePointer root = Test::Load(Test::SampleDocument());
        const NodePointer back = ThereAndBack(root);
        QVERIFY(back);
        QVERIFY(back->IsEqual(root));
        QCOMPARE(Test::Describe(back), Test::Describe(root));
        QCOMPARE(back->FirstChild()->Parent(), back);
        QCOMPARE(Written(back), Written(root));
    }

    void chosenEncodersAndOptionsComeBack()
    {
        const PresetPointer preset = Test::SamplePreset();
        preset->SetCurrentVideoCodecIndex(2);
        preset->VideoCodecAt(1)->SetResolutionIndex(0);
        preset->VideoCodecAt(1)->SetQualityIndex(0);
        preset->SetCurrentAudioCodecIndex(1);
        preset->AudioCodecAt(1)->SetSampleRateIndex(0);
        const NodePointer node = NodeWithPresets({ preset });
        const NodePointer back = ThereAndBack(node);
        QVERIFY(back);
        QCOMPARE(Test::Describe(back), Test::Describe(node));

        const PresetPointer read = back->FirstFormatPreset();
        QCOMPARE(read->CurrentVideoCodecIndex(), 2);
        QCOMPARE(read->VideoCodecAt(1)->CurrentResolutionIndex(), 0);
        QCOMPARE(read->VideoCodecAt(1)->CurrentQualityIndex(), 0);
        QCOMPARE(read->CurrentAudioCodecIndex(), 1);
        QCOMPARE(read->AudioCodecAt(1)->CurrentSampleRateIndex(), 0);
    }

    void theChosenOptionsOfAPresetAreItsOwn()
    {
        const PresetPointer preset = IOLFormatPreset::MallocFormatPreset("MP4", "with a choice");
        const PresetPointer other = IOLFormatPreset::MallocFormatPreset("MP4", "without");
        preset->VideoCodecAt(1)->SetResolutionIndex(1);
        QVERIFY(other->VideoCodecAt(1)->CurrentResolutionIndex() != 1);
        const NodePointer node = NodeWithPresets({ preset, other });
        const NodePointer back = ThereAndBack(node);
        QVERIFY(back);
        QCOMPARE(Test::Describe(back), Test::Describe(node));
    }

    void noChosenEncoderAndNoChosenOptionComeBack()
    {
        const QJsonValue none = Test::Json(
                "{\"encoders\":\"video\",\"current\":-1,"
                "\"choices\":[{\"encoder\":1,\"resolution\":-1,\"frameRate\":-1,\"quality\":-1}]}");
        const NodePointer node = NodeWithPresets(
                { PresetFrom("root/children/0/children/0/presets/0/video", none) });
        const NodePointer back = ThereAndBack(node);
        QVERIFY(back);
        QCOMPARE(Test::Describe(back), Test::Describe(node));
        QCOMPARE(back->FirstFormatPreset()->CurrentVideoCodecIndex(), -1);
        QCOMPARE(back->FirstFormatPreset()->VideoCodecAt(1)->CurrentResolutionIndex(), -1);
    }

    void textsComeBackAsTheyAre()
    {
        const NodePointer node = IOLFormatNode::MallocFormatNode(NodePointer());
        node->SetName("ä \"\\/\n\t\u2028");
        node->SetDescription("日本 𐐀");
        node->SetFaceID(-2147483647 - 1);
        const NodePointer back = ThereAndBack(node);
        QVERIFY(back);
        QVERIFY(back->IsEqual(node));
    }

    void aByteOrderMarkIsPartOfTheText()
    {
        const NodePointer node = IOLFormatNode::MallocFormatNode(NodePointer());
        node->SetName("\xEF\xBB\xBFMP4");
        node->SetDescription("\xEF\xBB\xBF");
        const NodePointer back = ThereAndBack(node);
        QVERIFY(back);
        QVERIFY(back->IsEqual(node));
    }

    void ofAMemberThatStandsTwiceTheLastCounts()
    {
        const auto json = Orlimo::IOLJsonReader::ReadJsonString(
                R"({"version": 1, "root": {"name": "first", "name": "second"}})", nullptr);
        const NodePointer node = IOLFormatNode::MallocFormatNode(
                std::shared_ptr<const Orlimo::IOLJsonValue>(json));
        QVERIFY(node);
        QCOMPARE(node->Name(), std::string("second"));
    }

    void anEmptyNodeComesBack()
    {
        const NodePointer node = IOLFormatNode::MallocFormatNode(NodePointer());
        const NodePointer back = ThereAndBack(node);
        QVERIFY(back);
        QVERIFY(back->IsEqual(node));
        QCOMPARE(back->PresetCount() + back->ChildCount(), 0);
    }

    void usualPresetsComeBack_data()
    {
        QTest::addColumn<QByteArray>("format");
        for (const char *format : { "MP4", "MKV", "3GP", "MP3", "WAV", "unknown" })
            QTest::newRow(format) << QByteArray(format);
    }

    void usualPresetsComeBack()
    {
        QFETCH(const QByteArray, format);
        const NodePointer node = NodeWithPresets(
                { IOLFormatPreset::MallocFormatPreset(format.toStdString(), "text") });
        const NodePointer back = ThereAndBack(node);
        QVERIFY(back);
        QCOMPARE(Test::Describe(back), Test::Describe(node));
    }

    void aBranchIsWrittenAsADocument()
    {
        const NodePointer branch =
                Test::Load(Test::SampleDocument())->FirstChild()->Clone(IOLFormatNode::CloneAll);
        QCOMPARE(Written(branch)[QStringLiteral("root")][QStringLiteral("name")].toString(),
                 QStringLiteral("Video"));
        QCOMPARE(Test::Describe(ThereAndBack(branch)), Test::Describe(branch));
    }

    void tablesStandOnce()
    {
        QList<PresetPointer> presets;
        for (int i = 0; i < 20; ++i) {
            presets.append(Test::SamplePreset());
            presets.append(presets.last()->Clone());
        }
        const QJsonValue document = Written(NodeWithPresets(presets));
        for (const char *table : { "resolutions", "frameRates", "encoders", "channels" }) {
            const QString name = QString::fromUtf8(table);
            QCOMPARE(document[name].toObject().keys(),
                     Test::SampleDocument()[name].toObject().keys());
        }
        QCOMPARE(document[QStringLiteral("encoderSets")].toObject().keys(),
                 (QStringList { QStringLiteral("audio"), QStringLiteral("video") }));
        QCOMPARE(document[QStringLiteral("root")][QStringLiteral("presets")].toArray().size(), 40);
    }

    void otherTablesOfTheSameIdGetANumber_data()
    {
        QTest::addColumn<QByteArray>("place");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("id");
        QTest::newRow("option list") << QByteArray("resolutions/hd/1/width") << QJsonValue(1440)
                                     << QStringLiteral("resolutions") << QStringLiteral("hd");
        QTest::newRow("encoder") << QByteArray("encoders/h264/name")
                                 << QJsonValue(QStringLiteral("x")) << QStringLiteral("encoders")
                                 << QStringLiteral("h264");
        QTest::newRow("default") << QByteArray("encoders/h264/resolution") << QJsonValue(0)
                                 << QStringLiteral("encoders") << QStringLiteral("h264");
        QTest::newRow("set") << QByteArray("encoderSets/video/3")
                             << QJsonValue(QStringLiteral("video-auto"))
                             << QStringLiteral("encoderSets") << QStringLiteral("video");
    }

    void otherTablesOfTheSameIdGetANumber()
    {
        QFETCH(const QByteArray, place);
        QFETCH(const QJsonValue, value);
        QFETCH(const QString, table);
        QFETCH(const QString, id);
        const PresetPointer other = PresetFrom(place.constData(), value);
        const NodePointer node = NodeWithPresets(
                { Test::SamplePreset(), other, other->Clone(), Test::SamplePreset() });
        const QStringList ids = Written(node)[table].toObject().keys();
        QVERIFY(ids.contains(id));
        const QStringList added = ids.filter(
                QRegularExpression(u'^' + id + QStringLiteral("\\D?\\d+$")));
        QCOMPARE(added.size(), 1);
        QCOMPARE(ids.size(), Test::SampleDocument()[table].toObject().size() + 1 - UnusedIn(table));
        QCOMPARE(Test::Describe(ThereAndBack(node)), Test::Describe(node));
    }

    void severalTablesOfTheSameIdComeBack()
    {
        QList<PresetPointer> presets;
        for (int width = 1; width <= 5; ++width)
            presets.append(PresetFrom("resolutions/hd/1/width", width));
        const NodePointer node = NodeWithPresets(presets);
        QCOMPARE(Written(node)[QStringLiteral("resolutions")].toObject().size(), 5);
        const NodePointer back = ThereAndBack(node);
        QVERIFY(back);
        QCOMPARE(Test::Describe(back), Test::Describe(node));
        for (int i = 0; i < 5; ++i)
            QCOMPARE(back->PresetAt(i)->VideoCodecAt(1)->ResolutionAt(1)->width, i + 1);

        back->AddPreset(PresetFrom("resolutions/hd/1/width", 6));
        QCOMPARE(Test::Describe(ThereAndBack(back)), Test::Describe(back));
    }

    void theDeepestTreeComesBack()
    {
        const NodePointer root = IOLFormatNode::MallocFormatNode(NodePointer());
        NodePointer node = root;
        for (int level = 1; level < 510; ++level) {
            node->AppendChild(IOLFormatNode::MallocFormatNode(node));
            node = node->FirstChild();
        }
        node->SetName("deepest");
        NodePointer back = ThereAndBack(root);
        QVERIFY(back);
        QCOMPARE(Test::Describe(back).last().trimmed(), QStringLiteral("deepest||0"));
    }

    void nothingIsLogged()
    {
        const NodePointer root = Test::Load(Test::SampleDocument());
        Test::MessageRecorder recorder;
        QVERIFY(ThereAndBack(root));
        QVERIFY(recorder.Take().isEmpty());
    }

private:
    // The entries of a table of the sample that its first preset does not need.
    static int UnusedIn(const QString &table)
    {
        return table == QStringLiteral("encoderSets") ? 1 : 0;
    }
};

ORLIMO_TEST_MAIN(tst_OLFormatTreeWriting)

#include "tst_olformattreewriting.moc"
