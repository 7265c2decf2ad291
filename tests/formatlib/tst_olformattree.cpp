#include "FormatTreeDescription.h"
#include "FormatTreeDocument.h"
#include "MessageRecorder.h"
#include "TestCase.h"

#include "IOLCodecPreset.h"
#include "IOLError.h"

#include <QFile>

#include <thread>
#include <utility>
#include <vector>

using Orlimo::IOLError;
using Orlimo::IOLFormatNode;
using Orlimo::IOLFormatPreset;
using Orlimo::IOLJsonReader;
using Orlimo::IOLJsonValue;

using NodePointer = std::shared_ptr<IOLFormatNode>;
using PresetPointer = std::shared_ptr<IOLFormatPreset>;

namespace {

// The JSON text of a chain of nodes.
std::string NestedNodes(int levels)
{
    std::string text;
    for (int level = 1; level < levels; ++level)
        text += "{\"name\":\"" + std::to_string(level) + "\",\"children\":[";
    text += "{\"name\":\"deepest\"}";
    for (int level = 1; level < levels; ++level)
        text += "]}";
    return "{\"version\":1,\"root\":" + text + '}';
}

NodePointer Deepest(NodePointer node)
{
    while (node->FirstChild())
        node = node->FirstChild();
    return node;
}

// The first block of JSON in the documentation of the layout.
QByteArray DocumentedExample()
{
    QFile file(QStringLiteral(FORMAT_TREE_DOCUMENTATION));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray text = file.readAll();
    const qsizetype start = text.indexOf("```json\n") + 8;
    return text.sliced(start, text.indexOf("```", start) - start);
}

// The sample document with another set and with one node that has a preset for each id of a set.
QJsonValue DocumentOfPresets(const QStringList &sets)
{
    QJsonArray presets;
    for (const QString &set : sets) {
        const QJsonObject video { { QStringLiteral("encoders"), set } };
        presets.append(QJsonObject { { QStringLiteral("name"), set },
                                     { QStringLiteral("video"), video } });
    }
    const QJsonObject node { { QStringLiteral("name"), QStringLiteral("Video") },
                             { QStringLiteral("presets"), presets } };
    const QJsonValue document = Test::Changed(Test::SampleDocument(),
                                              { QStringLiteral("encoderSets"),
                                                QStringLiteral("größer") },
                                              QJsonArray { QStringLiteral("bare"),
                                                           QStringLiteral("h264") });
    return Test::Changed(document, { QStringLiteral("root"), QStringLiteral("children") },
                         QJsonArray { node });
}

NodePointer LoadPresets(const QStringList &sets)
{
    return Test::Load(DocumentOfPresets(sets));
}

} // namespace

// Reading documents that keep the rules.
class tst_OLFormatTree : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nodesAreReadWithTheirPlaces()
    {
        const NodePointer root = Test::Load(Test::SampleDocument());
        QVERIFY(root);
        QVERIFY(!root->Parent());
        QCOMPARE(root->Name(), std::string("Formats"));
        QCOMPARE(root->Description(), std::string("All formats"));
        QCOMPARE(root->FaceID(), 5);
        QCOMPARE(root->PresetCount(), 0);
        QCOMPARE(root->ChildCount(), 2);

        const NodePointer format = root->FirstChild()->FirstChild();
        QCOMPARE(format->Name(), std::string("MP4"));
        QCOMPARE(format->Parent(), root->FirstChild());
        QCOMPARE(format->Parent()->Parent(), root);
        QCOMPARE(format->PresetCount(), 2);
    }

    void presetsAreReadWithTheirTexts()
    {
        const PresetPointer preset = Test::SamplePreset();
        QVERIFY(preset);
        QCOMPARE(preset->Name(), std::string("HD 1080P"));
        QCOMPARE(preset->Description(), std::string("H.264, 1920 x 1080"));
        QCOMPARE(preset->FormatName(), std::string("MP4"));
        QCOMPARE(preset->FaceID(), 1001);
        QCOMPARE(preset->VideoCodecCount(), 3);
        QCOMPARE(preset->CurrentVideoCodecIndex(), 1);
        QCOMPARE(preset->CurrentAudioCodecIndex(), 2);
    }

    void choicesStandBeforeDefaults()
    {
        const auto chosen = Test::SamplePreset()->VideoCodecAt(1);
        QCOMPARE(chosen->CurrentResolutionIndex(), 1);
        QCOMPARE(chosen->CurrentFrameRateIndex(), 1);
        QCOMPARE(chosen->CurrentQualityIndex(), 2);
        const auto none = Test::SamplePreset()->AudioCodecAt(1);
        QCOMPARE(none->CurrentChannelIndex(), 0);
        QCOMPARE(none->CurrentSampleRateIndex(), -1);
        QCOMPARE(none->CurrentQualityIndex(), -1);
    }

    void whatIsAbsentHasItsDefault()
    {
        const NodePointer root = Test::Load(Test::SampleDocument());
        const NodePointer audio = root->FindChild("Audio");
        QCOMPARE(audio->Description(), std::string());
        QCOMPARE(audio->FaceID(), 0);
        QCOMPARE(audio->PresetCount(), 0);
        QCOMPARE(audio->ChildCount(), 0);

        const PresetPointer preset = root->FirstChild()->FirstChild()->FindPreset("Same as source");
        QCOMPARE(preset->Description(), std::string());
        QCOMPARE(preset->FormatName(), std::string());
        QCOMPARE(preset->FaceID(), 0);
        QCOMPARE(preset->CurrentVideoCodecIndex(), 0);
        QCOMPARE(preset->VideoCodecAt(1)->CurrentResolutionIndex(), 1);
        QCOMPARE(preset->VideoCodecAt(1)->CurrentFrameRateIndex(), 2);
        QCOMPARE(preset->VideoCodecAt(1)->CurrentQualityIndex(), -1);
        QCOMPARE(preset->AudioCodecCount(), 0);
        QCOMPARE(preset->CurrentAudioCodecIndex(), -1);
    }

    void anAbsentDefaultIndexIsTheFirstOption()
    {
        const QJsonValue document = Test::Changed(
                Test::SampleDocument(), { QStringLiteral("encoders"), QStringLiteral("h264") },
                Test::Json("{\"kind\":\"video\",\"name\":\"H.264\",\"resolutions\":\"hd\","
                           "\"frameRates\":\"film\",\"qualities\":\"none\"}"));
        const NodePointer root = Test::Load(
                Test::Changed(document,
                              QStringLiteral("root/children/0/children/0/presets/0/video")
                                      .split(u'/'),
                              Test::Json("{\"encoders\":\"video\"}")));
        const auto codec = root->FirstChild()->FirstChild()->FirstFormatPreset()->VideoCodecAt(1);
        QCOMPARE(codec->CurrentResolutionIndex(), 0);
        QCOMPARE(codec->CurrentFrameRateIndex(), 0);
        QCOMPARE(codec->CurrentQualityIndex(), -1);
    }

    void aPresetMayHaveNoEncoders()
    {
        const NodePointer root = Test::Load(Test::Json(
                "{\"version\":1,\"root\":{\"name\":\"\",\"presets\":[{\"name\":\"\"}]}}"));
        const PresetPointer preset = root->FirstFormatPreset();
        QCOMPARE(preset->Name(), std::string());
        QCOMPARE(preset->VideoCodecCount(), 0);
        QCOMPARE(preset->CurrentVideoCodecIndex(), -1);
        QCOMPARE(preset->AudioCodecCount(), 0);
        QVERIFY(!preset->CurrentAudioCodec());
    }

    void limitsAreInside_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<int>("value");
        QTest::newRow("largest face id") << QStringLiteral("root/faceId") << 2147483647;
        QTest::newRow("smallest face id") << QStringLiteral("root/faceId") << -2147483647 - 1;
        QTest::newRow("largest width") << QStringLiteral("resolutions/hd/1/width") << 2147483647;
        QTest::newRow("smallest width") << QStringLiteral("resolutions/hd/1/width") << 1;
        QTest::newRow("no encoder")
                << QStringLiteral("root/children/0/children/0/presets/0/video/current") << -1;
        QTest::newRow("last encoder")
                << QStringLiteral("root/children/0/children/0/presets/0/video/current") << 2;
        QTest::newRow("no default") << QStringLiteral("encoders/h264/resolution") << -1;
    }

    void limitsAreInside()
    {
        QFETCH(const QString, place);
        QFETCH(const int, value);
        QVERIFY(Test::Load(Test::Changed(Test::SampleDocument(), place.split(u'/'), value)));
    }

    void wholeNumbersMayBeWrittenWithAFractionOrAnExponent_data()
    {
        QTest::addColumn<QJsonValue>("width");
        QTest::newRow("fraction") << Test::Json("1920.0");
        QTest::newRow("exponent") << Test::Json("1.92e3");
        QTest::newRow("made as a floating-point number") << QJsonValue(1920.0);
    }

    void wholeNumbersMayBeWrittenWithAFractionOrAnExponent()
    {
        QFETCH(const QJsonValue, width);
        const QStringList place { QStringLiteral("resolutions"), QStringLiteral("hd"),
                                  QStringLiteral("1"), QStringLiteral("width") };
        const NodePointer root = Test::Load(Test::Changed(Test::SampleDocument(), place, width));
        QVERIFY(root);
        const auto codec = root->FirstChild()->FirstChild()->FirstFormatPreset()->VideoCodecAt(1);
        QCOMPARE(codec->ResolutionAt(1)->width, 1920);
    }

    void textsAreUtf8_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("ASCII") << QByteArray("HD ~\\u007f") << QByteArray("HD ~\x7f");
        QTest::newRow("first beyond ASCII")
                << QByteArray("HD \\u0080") << QByteArray("HD \xC2\x80");
        QTest::newRow("nothing but the first") << QByteArray("\\u0080") << QByteArray("\xC2\x80");
        QTest::newRow("at the start") << QByteArray("\\u00fcber")
                                      << QByteArray("\xC3\xBC"
                                                    "ber");
        QTest::newRow("three bytes") << QByteArray("\\u20ac") << QByteArray("\xE2\x82\xAC");
        QTest::newRow("low byte of ASCII") << QByteArray("\\u0141") << QByteArray("\xC5\x81");
        QTest::newRow("four bytes")
                << QByteArray("\\ud83c\\udfac") << QByteArray("\xF0\x9F\x8E\xAC");
        QTest::newRow("zero byte") << QByteArray("a\\u0000b") << QByteArray("a\0b", 3);
    }

    void textsAreUtf8()
    {
        QFETCH(const QByteArray, json);
        QFETCH(const QByteArray, text);
        const NodePointer root = Test::Load(
                Test::Json("{\"version\":1,\"root\":{\"name\":\"R\",\"presets\":[{\"name\":\""
                           + json + "\"}]}}"));
        QVERIFY(root);
        QCOMPARE(QByteArray::fromStdString(root->FirstFormatPreset()->Name()), text);
    }

    void halfASurrogatePairDoesNotBreakTheEncoding()
    {
        const NodePointer root = Test::Load(
                Test::Json("{\"version\":1,\"root\":{\"name\":\"HD \\ud83c!\"}}"));
        QVERIFY(root);
        const QByteArray name = QByteArray::fromStdString(root->Name());
        QVERIFY(name == "HD ?!" || name == "HD \xEF\xBF\xBD!");
    }

    void aPresetIsReadAlikeWhateverStandsBeforeIt()
    {
        const QStringList sets { QStringLiteral("video"),  QStringLiteral("video"),
                                 QStringLiteral("größer"), QStringLiteral("größer"),
                                 QStringLiteral("empty"),  QStringLiteral("empty"),
                                 QStringLiteral("video"),  QStringLiteral("größer") };
        const NodePointer together = LoadPresets(sets)->FirstChild();
        QCOMPARE(together->PresetCount(), sets.size());
        for (qsizetype i = 0; i < sets.size(); ++i) {
            const NodePointer alone = LoadPresets({ sets.at(i) })->FirstChild();
            QCOMPARE(Test::Describe(together->PresetAt(static_cast<int>(i)), 0),
                     Test::Describe(alone->FirstFormatPreset(), 0));
        }
    }

    void aSetIsOfItsKindWhateverWasReadBefore()
    {
        QVERIFY(LoadPresets({ QStringLiteral("video"), QStringLiteral("video") }));
        const QString place = QStringLiteral("root/children/0/presets/1/audio");
        const QJsonValue document = Test::Changed(DocumentOfPresets({ QStringLiteral("video"),
                                                                      QStringLiteral("video") }),
                                                  place.split(u'/'),
                                                  Test::Json("{\"encoders\":\"video\"}"));
        QVERIFY(!Test::Load(document));
    }

    void presetsShareTheirTables()
    {
        const NodePointer format = Test::Load(Test::SampleDocument())->FirstChild()->FirstChild();
        const auto first = format->PresetAt(0)->VideoCodecAt(1);
        const auto second = format->PresetAt(1)->VideoCodecAt(1);
        QVERIFY(first != second);
        QVERIFY(first->ResolutionAt(1));
        QCOMPARE(first->ResolutionAt(1), second->ResolutionAt(1));
    }

    void theDocumentedExampleIsATree()
    {
        std::shared_ptr<const IOLError> error;
        const NodePointer root = IOLFormatNode::MallocFormatNode(
                IOLJsonReader::ReadJsonString(DocumentedExample().toStdString(), nullptr), &error);
        QVERIFY2(root, error ? error->Message().c_str() : "");
        const PresetPointer preset = root->FirstChild()->FirstChild()->FirstFormatPreset();
        QCOMPARE(preset->CurrentVideoCodec()->Name(), std::string("H.264"));
        QCOMPARE(preset->CurrentVideoCodec()->ResolutionText(
                         preset->CurrentVideoCodec()->CurrentResolutionIndex()),
                 std::string("1920 x 1080"));
    }

    void successLeavesTheErrorAlone()
    {
        const auto before = IOLError::MallocError("", "", "an older one");
        std::shared_ptr<const IOLError> error = before;
        QVERIFY(IOLFormatNode::MallocFormatNode(IOLJsonValue::MallocJsonValue(
                                                        Test::SampleDocument()),
                                                &error));
        QCOMPARE(error, before);
    }

    void theDeepestTreeThatTheParserTakesIsReadAndDestroyed()
    {
        const auto json = IOLJsonReader::ReadJsonString(NestedNodes(510), nullptr);
        QVERIFY(json);
        NodePointer root = IOLFormatNode::MallocFormatNode(json);
        QVERIFY(root);
        QCOMPARE(Deepest(root)->Name(), std::string("deepest"));
        const std::weak_ptr<IOLFormatNode> deepest = Deepest(root);
        root.reset();
        QVERIFY(deepest.expired());
        QVERIFY(!IOLJsonReader::ReadJsonString(NestedNodes(520), nullptr));
    }

    void severalThreadsReadAtOnce()
    {
        const auto json = IOLJsonValue::MallocJsonValue(Test::SampleDocument());
        std::vector<NodePointer> roots(4);
        std::vector<std::thread> threads;
        for (NodePointer &root : roots) {
            threads.emplace_back([&root, json] {
                for (int i = 0; i < 50; ++i)
                    root = IOLFormatNode::MallocFormatNode(json);
            });
        }
        for (int i = 0; i < 50; ++i)
            QCOMPARE(Test::SamplePreset()->Clone()->VideoCodecCount(), 3);
        for (std::thread &thread : threads)
            thread.join();
        for (const NodePointer &root : roots)
            QCOMPARE(root->FirstChild()->FirstChild()->PresetCount(), 2);
    }

    void aPresetIsCopiedWholeWhileAnotherThreadAsksForItsEncoders()
    {
        const auto preset = Test::SamplePreset();
        const auto chosen = [](const std::shared_ptr<IOLFormatPreset> &of) {
            const auto codec = of->CurrentVideoCodec();
            return std::pair(codec->CurrentResolutionIndex(), codec->CurrentQualityIndex());
        };
        const int other = (preset->CurrentVideoCodec()->CurrentQualityIndex() + 1)
                % preset->CurrentVideoCodec()->QualityCount();
        preset->CurrentVideoCodec()->SetQualityIndex(other);
        for (int round = 0; round < 50; ++round) {
            const auto source = preset->Clone(); // has made none of its encoders yet
            PresetPointer copy;
            std::thread copying([&] { copy = source->Clone(); });
            std::thread asking([&] { chosen(source); });
            copying.join();
            asking.join();
            QCOMPARE(chosen(copy), chosen(preset));
        }
        QCOMPARE(chosen(preset).second, other);
    }

    void nothingIsLogged()
    {
        Test::MessageRecorder recorder;
        QVERIFY(Test::Load(Test::SampleDocument()));
        QVERIFY(recorder.Take().isEmpty());
    }
};

ORLIMO_TEST_MAIN(tst_OLFormatTree)

#include "tst_olformattree.moc"
