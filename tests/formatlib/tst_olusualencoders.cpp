#include "TestCase.h"

#include "IOLCodecPreset.h"
#include "IOLFormatPreset.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

using Orlimo::IOLCodecPreset;
using Orlimo::IOLFormatPreset;

using CodecPointer = std::shared_ptr<IOLCodecPreset>;
using PresetPointer = std::shared_ptr<IOLFormatPreset>;

namespace {

struct Format
{
    const char *name;
    const char *video; // the names of the encoders, in the order of the dialog
    const char *audio;
};

constexpr Format formats[] = {
    { "MP4", "Auto, H.264, HEVC, MPEG-4, AV1", "Auto, AAC, MP3, AC-3" },
    { "M4V", "Auto, H.264, HEVC, MPEG-4", "Auto, AAC, AC-3" },
    { "MOV", "Auto, H.264, HEVC, MPEG-4, ProRes 422 HQ", "Auto, AAC, ALAC, PCM, MP3" },
    { "MKV", "Auto, H.264, HEVC, AV1, VP9, MPEG-4, MPEG-2",
      "Auto, AAC, AC-3, MP3, Opus, Vorbis, FLAC" },
    { "AVI", "Auto, Xvid, DivX, H.264", "Auto, MP3, AC-3, PCM" },
    { "WebM", "Auto, VP9, VP8, AV1", "Auto, Opus, Vorbis" },
    { "FLV", "Auto, H.264, Sorenson H.263", "Auto, AAC, MP3" },
    { "F4V", "Auto, H.264", "Auto, AAC" },
    { "WMV", "Auto, WMV 8, WMV 7", "Auto, WMA" },
    { "ASF", "Auto, WMV 8, WMV 7, MPEG-4", "Auto, WMA, MP3" },
    { "3GP", "Auto, H.264, MPEG-4, H.263", "Auto, AAC, AMR-NB, AMR-WB" },
    { "3G2", "Auto, H.264, MPEG-4, H.263", "Auto, AAC, AMR-NB, AMR-WB" },
    { "MPG", "Auto, MPEG-2, MPEG-1", "Auto, MP2, AC-3" },
    { "VOB", "Auto, MPEG-2, MPEG-1", "Auto, AC-3, MP2, PCM" },
    { "TS", "Auto, H.264, HEVC, MPEG-2", "Auto, AAC, AC-3, E-AC-3, MP2" },
    { "M2TS", "Auto, H.264, HEVC, MPEG-2", "Auto, AC-3, DTS, PCM" },
    { "MXF", "Auto, MPEG-2, H.264, ProRes 422 HQ", "Auto, PCM" },
    { "OGV", "Auto, Theora", "Auto, Vorbis, Opus, FLAC" },
    { "MP3", "", "Auto, MP3" },
    { "MP2", "", "Auto, MP2" },
    { "M4A", "", "Auto, AAC, ALAC" },
    { "AAC", "", "Auto, AAC" },
    { "M4B", "", "Auto, AAC" },
    { "M4R", "", "Auto, AAC" },
    { "AC3", "", "Auto, AC-3" },
    { "EAC3", "", "Auto, E-AC-3" },
    { "DTS", "", "Auto, DTS" },
    { "WAV", "", "Auto, PCM, MP3" },
    { "FLAC", "", "Auto, FLAC" },
    { "OGG", "", "Auto, Vorbis, Opus, FLAC" },
    { "OPUS", "", "Auto, Opus" },
    { "AIFF", "", "Auto, PCM" },
    { "AU", "", "Auto, PCM" },
    { "WMA", "", "Auto, WMA" },
    { "AMR", "", "Auto, AMR-NB, AMR-WB" },
    { "CAF", "", "Auto, AAC, ALAC, PCM" },
    { "MKA", "", "Auto, AAC, FLAC, Opus, Vorbis, MP3, AC-3" },
    { "WV", "", "Auto, WavPack" },
    { "Any other", "Auto, H.264, HEVC", "Auto, AAC, MP3" },
};

using Count = int (IOLFormatPreset::*)() const;
using CodecAt = CodecPointer (IOLFormatPreset::*)(int) const;

QList<CodecPointer> Codecs(const PresetPointer &preset, Count count, CodecAt codecAt)
{
    QList<CodecPointer> codecs;
    for (int i = 0; i < ((*preset).*count)(); ++i)
        codecs.append(((*preset).*codecAt)(i));
    return codecs;
}

QList<CodecPointer> VideoCodecs(const PresetPointer &preset)
{
    return Codecs(preset, &IOLFormatPreset::VideoCodecCount, &IOLFormatPreset::VideoCodecAt);
}

QList<CodecPointer> AudioCodecs(const PresetPointer &preset)
{
    return Codecs(preset, &IOLFormatPreset::AudioCodecCount, &IOLFormatPreset::AudioCodecAt);
}

QByteArray Names(const QList<CodecPointer> &codecs)
{
    QByteArrayList names;
    for (const CodecPointer &codec : codecs)
        names.append(QByteArray::fromStdString(codec->Name()));
    return names.join(", ");
}

bool Inside(int index, int count)
{
    return index >= 0 && index < count;
}

} // namespace

class tst_OLUsualEncoders : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theTableOfTheLibraryHasTheseFormats()
    {
        QFile file(QStringLiteral(":/OLMediaFormat/usual_encoders.json"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonObject table = QJsonDocument::fromJson(file.readAll()).object();
        QStringList names;
        for (const Format &format : formats)
            names.append(QString::fromUtf8(format.name));
        names.removeLast(); // what any other format gets has no name
        names.sort();
        QCOMPARE(table[QStringLiteral("formats")].toObject().keys(), names);
    }

    void aFormatOffersItsUsualEncoders_data() { AddFormats(); }

    void aFormatOffersItsUsualEncoders()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const QByteArray, video);
        QFETCH(const QByteArray, audio);
        const PresetPointer preset = IOLFormatPreset::MallocFormatPreset(name.toStdString(), "");
        QCOMPARE(Names(VideoCodecs(preset)), video);
        QCOMPARE(Names(AudioCodecs(preset)), audio);
        const PresetPointer lower =
                IOLFormatPreset::MallocFormatPreset(name.toLower().toStdString(), "");
        QCOMPARE(Names(VideoCodecs(lower)), video);
        QCOMPARE(Names(AudioCodecs(lower)), audio);
    }

    void theFirstEncoderAfterTheAutomaticChoiceIsCurrent_data() { AddFormats(); }

    void theFirstEncoderAfterTheAutomaticChoiceIsCurrent()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const QByteArray, video);
        const PresetPointer preset = IOLFormatPreset::MallocFormatPreset(name.toStdString(), "");
        QCOMPARE(preset->CurrentVideoCodecIndex(), video.isEmpty() ? -1 : 1);
        QCOMPARE(preset->CurrentAudioCodecIndex(), 1);
        for (const auto &codecs : { VideoCodecs(preset), AudioCodecs(preset) }) {
            for (qsizetype i = 0; i < codecs.size(); ++i)
                QCOMPARE(codecs[i]->IsAutoValue(), i == 0);
        }
    }

    void everyEncoderHasOptionsAndOneOfEachIsCurrent_data() { AddFormats(); }

    void everyEncoderHasOptionsAndOneOfEachIsCurrent()
    {
        QFETCH(const QByteArray, name);
        const PresetPointer preset = IOLFormatPreset::MallocFormatPreset(name.toStdString(), "");
        for (const CodecPointer &codec : VideoCodecs(preset).mid(1)) {
            QVERIFY2(Inside(codec->CurrentResolutionIndex(), codec->ResolutionCount()), name);
            QVERIFY2(Inside(codec->CurrentFrameRateIndex(), codec->FrameRateCount()), name);
            QVERIFY2(Inside(codec->CurrentQualityIndex(), codec->QualityCount()), name);
        }
        for (const CodecPointer &codec : AudioCodecs(preset).mid(1)) {
            QVERIFY2(Inside(codec->CurrentChannelIndex(), codec->ChannelCount()), name);
            QVERIFY2(Inside(codec->CurrentSampleRateIndex(), codec->SampleRateCount()), name);
            QVERIFY2(Inside(codec->CurrentQualityIndex(), codec->QualityCount()), name);
        }
    }

    void everyTextSaysWhatItsFiguresSay_data() { AddFormats(); }

    void everyTextSaysWhatItsFiguresSay()
    {
        QFETCH(const QByteArray, name);
        const PresetPointer preset = IOLFormatPreset::MallocFormatPreset(name.toStdString(), "");
        for (const CodecPointer &codec : VideoCodecs(preset))
            ExpectResolutionTexts(*codec);
        for (const CodecPointer &codec : AudioCodecs(preset))
            ExpectSampleRateTexts(*codec);
    }

    void everyQualityHasOneFigure_data() { AddFormats(); }

    void everyQualityHasOneFigure()
    {
        QFETCH(const QByteArray, name);
        const PresetPointer preset = IOLFormatPreset::MallocFormatPreset(name.toStdString(), "");
        for (const CodecPointer &codec : VideoCodecs(preset) + AudioCodecs(preset)) {
            for (int i = 0; i < codec->QualityCount(); ++i) {
                const auto quality = codec->QualityAt(i);
                QVERIFY(!quality->text.empty());
                QCOMPARE((quality->constantRateFactor >= 0) + (quality->bitRate > 0)
                                 + (quality->bitDepth > 0),
                         1);
            }
        }
    }

    void presetsOfOneFormatAreIndependent()
    {
        const PresetPointer first = IOLFormatPreset::MallocFormatPreset("MP4", "");
        first->CurrentVideoCodec()->SetResolutionIndex(2);
        first->SetCurrentAudioCodecIndex(0);
        const PresetPointer second = IOLFormatPreset::MallocFormatPreset("MP4", "");
        QCOMPARE(second->CurrentVideoCodec()->CurrentResolutionIndex(), 0);
        QCOMPARE(second->CurrentAudioCodecIndex(), 1);
    }

private:
    static void AddFormats()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("video");
        QTest::addColumn<QByteArray>("audio");
        for (const Format &format : formats) {
            QTest::newRow(format.name) << QByteArray(format.name) << QByteArray(format.video)
                                       << QByteArray(format.audio);
        }
    }

    static void ExpectResolutionTexts(const IOLCodecPreset &codec)
    {
        for (int i = 0; i < codec.ResolutionCount(); ++i) {
            const auto resolution = codec.ResolutionAt(i);
            const std::string size = std::to_string(resolution->width) + "x"
                    + std::to_string(resolution->height);
            QCOMPARE(resolution->text, resolution->width == 0 ? "Same as source" : size);
        }
    }

    static void ExpectSampleRateTexts(const IOLCodecPreset &codec)
    {
        for (int i = 0; i < codec.SampleRateCount(); ++i) {
            const auto rate = codec.SampleRateAt(i);
            const std::string hertz = std::to_string(rate->hertz) + " Hz";
            QCOMPARE(rate->text, rate->hertz == 0 ? "Same as source" : hertz);
        }
    }
};

ORLIMO_TEST_MAIN(tst_OLUsualEncoders)

#include "tst_olusualencoders.moc"
