#include "FormatTreeDocument.h"
#include "MessageRecorder.h"
#include "TestCase.h"

#include "IOLError.h"

using Orlimo::IOLError;
using Orlimo::IOLFormatNode;
using Orlimo::IOLJsonValue;

using ErrorPointer = std::shared_ptr<const IOLError>;

namespace {

QStringList Steps(const char *pointer)
{
    return QString::fromUtf8(pointer).split(u'/').mid(1);
}

// A row of a document that is the sample but for the value at a place; an empty text removes it.
void Row(const char *name, const char *place, const char *value, const char *pointer,
         const char *reason)
{
    const QJsonValue changed = *value ? Test::Json(value) : QJsonValue(QJsonValue::Undefined);
    QTest::newRow(name) << Test::Changed(Test::SampleDocument(), Steps(place), changed)
                        << QByteArray(pointer) << QByteArray(reason);
}

void Columns()
{
    QTest::addColumn<QJsonValue>("document");
    QTest::addColumn<QByteArray>("pointer");
    QTest::addColumn<QByteArray>("reason");
}

constexpr char preset[] = "/root/children/0/children/0/presets/0";

void PresetRow(const char *name, const char *place, const char *value, const char *pointer,
               const char *reason)
{
    Row(name, (QByteArray(preset) + place).constData(), value,
        (QByteArray(preset) + pointer).constData(), reason);
}

} // namespace

Q_DECLARE_METATYPE(QJsonValue)

// Documents that break one rule of the layout.
class tst_OLFormatTreeFaults : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aFaultyDocument_data()
    {
        Columns();
        Row("array instead of a document", "", "[]", "", "object");
        Row("null instead of a document", "", "null", "", "object");
        Row("no version", "/version", "", "", "version");
        Row("version 0", "/version", "0", "/version", "1");
        Row("version 2", "/version", "2", "/version", "1");
        Row("version as a text", "/version", "\"1\"", "/version", "number");
        Row("no root", "/root", "", "", "root");
        Row("root is null", "/root", "null", "/root", "object");
        Row("unknown member", "/encoder", "{}", "", "know");
        Row("encoders as an array", "/encoders", "[]", "/encoders", "object");
        Row("encoder sets as a text", "/encoderSets", "\"\"", "/encoderSets", "object");
    }
    void aFaultyDocument() { ExpectFault(); }

    void aFaultyOptionList_data()
    {
        Columns();
        Row("lists as an array", "/resolutions", "[]", "/resolutions", "object");
        Row("list as an object", "/resolutions/hd", "{}", "/resolutions/hd", "array");
        Row("option as a text", "/frameRates/film/0", "\"a\"", "/frameRates/film/0", "object");
        Row("option without a text", "/qualities/crf/1/text", "", "/qualities/crf/1", "text");
        Row("text as a number", "/channels/two/0/text", "1", "/channels/two/0/text", "text");
        Row("unknown member", "/sampleRates/48k/1/herz", "1", "/sampleRates/48k/1", "know");
        Row("member of another option", "/channels/two/1/hertz", "1", "/channels/two/1", "know");
        Row("width alone", "/resolutions/hd/1/height", "", "/resolutions/hd/1", "height");
        Row("height alone", "/resolutions/hd/1/width", "", "/resolutions/hd/1", "width");
        Row("width 0", "/resolutions/hd/1/width", "0", "/resolutions/hd/1/width", "number");
        Row("height below 0", "/resolutions/hd/1/height", "-1", "/resolutions/hd/1/height",
            "number");
        Row("width as a fraction", "/resolutions/hd/1/width", "1.5", "/resolutions/hd/1/width",
            "whole number");
        Row("width beyond 32 bits", "/resolutions/hd/1/width", "2147483648",
            "/resolutions/hd/1/width", "2147483647");
        Row("numerator alone", "/frameRates/film/1/denominator", "", "/frameRates/film/1",
            "denominator");
        Row("denominator alone", "/frameRates/film/1/numerator", "", "/frameRates/film/1",
            "numerator");
        Row("denominator 0", "/frameRates/film/1/denominator", "0",
            "/frameRates/film/1/denominator", "number");
        Row("two figures", "/qualities/crf/1/bitRate", "1000", "/qualities/crf/1", "crf");
        Row("two figures, the factor 0", "/qualities/crf/0/bitRate", "1", "/qualities/crf/0",
            "crf");
        Row("bit rate and bit depth", "/qualities/kbps/0/bitDepth", "16", "/qualities/kbps/0",
            "bitDepth");
        Row("factor below 0", "/qualities/crf/0/crf", "-1", "/qualities/crf/0/crf", "number");
        Row("bit rate 0", "/qualities/kbps/0/bitRate", "0", "/qualities/kbps/0/bitRate", "number");
        Row("bit depth 0", "/qualities/pcm/0/bitDepth", "0", "/qualities/pcm/0/bitDepth", "number");
        Row("no channels", "/channels/two/1/channels", "0", "/channels/two/1/channels", "number");
        Row("hertz 0", "/sampleRates/48k/1/hertz", "0", "/sampleRates/48k/1/hertz", "number");
        Row("id with signs of the pointer", "/qualities/a~b", "1", "/qualities/a~0b", "array");
    }
    void aFaultyOptionList() { ExpectFault(); }

    void aFaultyEncoder_data()
    {
        Columns();
        Row("array", "/encoders/h264", "[]", "/encoders/h264", "object");
        Row("no kind", "/encoders/h264/kind", "", "/encoders/h264", "kind");
        Row("other kind", "/encoders/h264/kind", "\"Video\"", "/encoders/h264/kind", "video");
        Row("kind as a number", "/encoders/h264/kind", "0", "/encoders/h264/kind", "text");
        Row("no name", "/encoders/h264/name", "", "/encoders/h264", "name");
        Row("name is null", "/encoders/h264/name", "null", "/encoders/h264/name", "text");
        Row("auto as a number", "/encoders/aac/auto", "1", "/encoders/aac/auto", "true");
        Row("automatic with a list", "/encoders/video-auto/qualities", "\"crf\"",
            "/encoders/video-auto", "know");
        Row("automatic with an index", "/encoders/video-auto/quality", "-1", "/encoders/video-auto",
            "know");
        Row("list that is not there", "/encoders/h264/qualities", "\"none such\"",
            "/encoders/h264/qualities", "none such");
        Row("list of another table", "/encoders/h264/qualities", "\"hd\"",
            "/encoders/h264/qualities", "hd");
        Row("list as a number", "/encoders/h264/qualities", "1", "/encoders/h264/qualities",
            "text");
        Row("video with channels", "/encoders/h264/channels", "\"two\"", "/encoders/h264", "know");
        Row("audio with resolutions", "/encoders/aac/resolutions", "\"hd\"", "/encoders/aac",
            "know");
        Row("index behind the list", "/encoders/h264/resolution", "2", "/encoders/h264/resolution",
            "number");
        Row("index below none", "/encoders/h264/frameRate", "-2", "/encoders/h264/frameRate",
            "number");
        Row("index without a list", "/encoders/bare/quality", "0", "/encoders/bare/quality",
            "number");
        Row("index in an empty list", "/encoders/pcm",
            "{\"kind\":\"audio\",\"name\":\"PCM\",\"qualities\":\"none\",\"quality\":0}",
            "/encoders/pcm/quality", "number");
        Row("unknown member", "/encoders/h264/level", "1", "/encoders/h264", "know");
        Row("set as an object", "/encoderSets/video", "{}", "/encoderSets/video", "array");
        Row("number in a set", "/encoderSets/video/0", "0", "/encoderSets/video/0", "id");
        Row("unknown encoder in a set", "/encoderSets/video/1", "\"h265\"", "/encoderSets/video/1",
            "h265");
        Row("set of both kinds", "/encoderSets/video/3", "\"aac\"", "/encoderSets/video/3", "kind");
    }
    void aFaultyEncoder() { ExpectFault(); }

    void aFaultyNode_data()
    {
        Columns();
        Row("no name", "/root/name", "", "/root", "name");
        Row("name as a number", "/root/children/1/name", "1", "/root/children/1/name", "text");
        Row("description is null", "/root/description", "null", "/root/description", "text");
        Row("face id as a text", "/root/faceId", "\"5\"", "/root/faceId", "number");
        Row("face id as a fraction", "/root/faceId", "0.5", "/root/faceId", "whole number");
        Row("face id beyond 32 bits", "/root/faceId", "2147483648", "/root/faceId", "2147483647");
        Row("face id below 32 bits", "/root/faceId", "-2147483649", "/root/faceId", "-2147483648");
        Row("children as an object", "/root/children", "{}", "/root/children", "array");
        Row("child is null", "/root/children/2", "null", "/root/children/2", "object");
        Row("presets as an object", "/root/presets", "{}", "/root/presets", "array");
        Row("preset as a text", "/root/presets", "[\"a\"]", "/root/presets/0", "object");
        Row("unknown member", "/root/children/0/children/0/faceID", "1",
            "/root/children/0/children/0", "know");
    }
    void aFaultyNode() { ExpectFault(); }

    void aFaultyPreset_data()
    {
        Columns();
        PresetRow("no name", "/name", "", "", "name");
        PresetRow("description as a number", "/description", "1", "/description", "text");
        PresetRow("format as an object", "/format", "{}", "/format", "text");
        PresetRow("face id as a truth value", "/faceId", "true", "/faceId", "number");
        PresetRow("unknown member", "/children", "[]", "", "know");
        PresetRow("encoders as a text", "/video", "\"video\"", "/video", "object");
        PresetRow("no set", "/video/encoders", "", "/video", "encoders");
        PresetRow("set as a number", "/video/encoders", "1", "/video/encoders", "text");
        PresetRow("set that is not there", "/video/encoders", "\"mp4\"", "/video/encoders", "mp4");
        PresetRow("set of the other kind", "/video/encoders", "\"audio\"", "/video/encoders",
                  "kind");
        PresetRow("current behind the set", "/video/current", "3", "/video/current", "number");
        PresetRow("current below none", "/video/current", "-2", "/video/current", "number");
        PresetRow("unknown member of the encoders", "/video/auto", "true", "/video", "know");
        PresetRow("choices as an object", "/video/choices", "{}", "/video/choices", "array");
        PresetRow("choice as a number", "/video/choices/0", "1", "/video/choices/0", "object");
        PresetRow("choice of no encoder", "/video/choices/0/encoder", "", "/video/choices/0",
                  "encoder");
        PresetRow("choice behind the set", "/video/choices/0/encoder", "3",
                  "/video/choices/0/encoder", "number");
        PresetRow("choice of none", "/video/choices/0/encoder", "-1", "/video/choices/0/encoder",
                  "number");
        PresetRow("two choices of one encoder", "/video/choices/1", "{\"encoder\":1}",
                  "/video/choices/1", "another");
        PresetRow("option behind the list", "/video/choices/0/quality", "3",
                  "/video/choices/0/quality", "number");
        PresetRow("option below none", "/video/choices/0/resolution", "-2",
                  "/video/choices/0/resolution", "number");
        PresetRow("option as a text", "/audio/choices/0/quality", "\"1\"",
                  "/audio/choices/0/quality", "number");
        PresetRow("option without a list", "/audio/choices/0/channel", "0",
                  "/audio/choices/0/channel", "number");
        PresetRow("option of the other kind", "/video/choices/0/channel", "0", "/video/choices/0",
                  "know");
        PresetRow("option of the automatic choice", "/video/choices/1",
                  "{\"encoder\":0,\"quality\":0}", "/video/choices/1/quality", "number");
    }
    void aFaultyPreset() { ExpectFault(); }

    void anEmptyPointerIsNoTree()
    {
        const std::shared_ptr<const IOLJsonValue> none;
        ErrorPointer error;
        QVERIFY(!IOLFormatNode::MallocFormatNode(none));
        QVERIFY(!IOLFormatNode::MallocFormatNode(none, nullptr));
        QVERIFY(!IOLFormatNode::MallocFormatNode(none, &error));
        QVERIFY(error);
        QVERIFY(!error->Reason().empty());
    }

private:
    static void ExpectFault()
    {
        QFETCH(const QJsonValue, document);
        QFETCH(const QByteArray, pointer);
        QFETCH(const QByteArray, reason);
        const std::shared_ptr<const IOLJsonValue> json = IOLJsonValue::MallocJsonValue(document);
        Test::MessageRecorder recorder;
        ErrorPointer error;
        QVERIFY(!IOLFormatNode::MallocFormatNode(json, &error));
        QVERIFY(!IOLFormatNode::MallocFormatNode(json, nullptr));
        QVERIFY(!IOLFormatNode::MallocFormatNode(json));
        QVERIFY(recorder.Take().isEmpty());
        QVERIFY(error);
        QCOMPARE(error->Source(), std::string());
        QCOMPARE(error->Place(), pointer.toStdString());
        QVERIFY2(error->Reason().find(reason.toStdString()) != std::string::npos,
                 error->Reason().c_str());
    }
};

ORLIMO_TEST_MAIN(tst_OLFormatTreeFaults)

#include "tst_olformattreefaults.moc"
