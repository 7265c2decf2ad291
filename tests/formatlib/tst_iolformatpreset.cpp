#include "FormatTreeDocument.h"
#include "TestCase.h"

#include "IOLCodecPreset.h"
#include "OLMediaCodecs.h"

using Orlimo::IOLCodecPreset;
using Orlimo::IOLFormatPreset;

using CodecPointer = std::shared_ptr<IOLCodecPreset>;
using PresetPointer = std::shared_ptr<IOLFormatPreset>;

namespace {

PresetPointer DefaultPreset()
{
    return IOLFormatPreset::MallocFormatPreset(Orlimo::OLFormatNameMP4, "");
}

std::string VideoCodecNames(const PresetPointer &preset)
{
    std::string names;
    for (int i = 0; i < preset->VideoCodecCount(); ++i)
        names += preset->VideoCodecAt(i)->Name() + ';';
    return names;
}

} // namespace

class tst_IOLFormatPreset : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNewPresetIsNamedAfterItsFormat()
    {
        const PresetPointer preset = IOLFormatPreset::MallocFormatPreset("MP4", "second text");
        QVERIFY(preset);
        QCOMPARE(preset->Name(), std::string("MP4"));
        QCOMPARE(preset->FormatName(), std::string("MP4"));
        QCOMPARE(preset->Description(), std::string("second text"));
        QCOMPARE(preset->FaceID(), 0);
        QCOMPARE(DefaultPreset()->Description(), std::string());
    }

    void theBuiltInDefaultHasEncodersToEdit()
    {
        const PresetPointer preset = DefaultPreset();
        const CodecPointer video = preset->CurrentVideoCodec();
        QVERIFY(video && !video->IsAutoValue());
        QVERIFY(video->ResolutionCount() > 1);
        video->SetResolutionIndex(1);
        QCOMPARE(preset->CurrentVideoCodec()->CurrentResolutionIndex(), 1);

        const CodecPointer audio = preset->CurrentAudioCodec();
        QVERIFY(audio && !audio->IsAutoValue());
        QVERIFY(audio->SampleRateCount() > 1);
        audio->SetSampleRateIndex(1);
        QCOMPARE(preset->CurrentAudioCodec()->CurrentSampleRateIndex(), 1);
    }

    void theCaseOfTheFormatNameChoosesTheSameEncoders()
    {
        const PresetPointer lower = IOLFormatPreset::MallocFormatPreset("webm", "");
        const PresetPointer upper = IOLFormatPreset::MallocFormatPreset("WEBM", "");
        QCOMPARE(VideoCodecNames(lower), VideoCodecNames(upper));
        QVERIFY(VideoCodecNames(lower) != VideoCodecNames(DefaultPreset()));
        QCOMPARE(lower->Name(), std::string("webm"));
        QCOMPARE(lower->FormatName(), std::string("webm"));
    }

    void anUnknownFormatHasWhatMostContainersCarry_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("unknown") << QByteArray("Nothing Known");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("beyond ascii") << QByteArray("ÄÖ");
    }

    void anUnknownFormatHasWhatMostContainersCarry()
    {
        QFETCH(const QByteArray, name);
        const PresetPointer preset = IOLFormatPreset::MallocFormatPreset(name.toStdString(), "");
        QVERIFY(preset);
        QCOMPARE(preset->Name(), name.toStdString());
        QVERIFY(preset->CurrentVideoCodec());
        QVERIFY(preset->CurrentAudioCodec());
    }

    void anAudioFormatHasNoVideoEncoder()
    {
        const PresetPointer preset = IOLFormatPreset::MallocFormatPreset("MP3", "");
        QCOMPARE(preset->VideoCodecCount(), 0);
        QCOMPARE(preset->CurrentVideoCodecIndex(), -1);
        QVERIFY(!preset->CurrentVideoCodec());
        QVERIFY(!preset->VideoCodecAt(0));
        preset->SetCurrentVideoCodecIndex(0);
        QCOMPARE(preset->CurrentVideoCodecIndex(), -1);
        QVERIFY(preset->CurrentAudioCodec());
    }

    void attributesAreKept()
    {
        const PresetPointer preset = DefaultPreset();
        preset->SetName("ä");
        preset->SetFaceID(-3);
        QCOMPARE(preset->Name(), std::string("ä"));
        QCOMPARE(preset->FaceID(), -3);
        QCOMPARE(preset->FormatName(), std::string("MP4"));
    }

    void anEncoderIsTheSameObjectOnEveryCall()
    {
        const PresetPointer preset = DefaultPreset();
        const CodecPointer video = preset->VideoCodecAt(preset->CurrentVideoCodecIndex());
        QVERIFY(video);
        QCOMPARE(preset->CurrentVideoCodec(), video);
        const CodecPointer audio = preset->AudioCodecAt(preset->CurrentAudioCodecIndex());
        QVERIFY(audio);
        QCOMPARE(preset->CurrentAudioCodec(), audio);
        QVERIFY(preset->VideoCodecAt(0) != preset->VideoCodecAt(1));
    }

    void anEncoderOutlivesItsPreset()
    {
        PresetPointer preset = DefaultPreset();
        const CodecPointer video = preset->CurrentVideoCodec();
        preset.reset();
        video->SetResolutionIndex(1);
        QCOMPARE(video->CurrentResolutionIndex(), 1);
        QVERIFY(!video->ResolutionText(1).empty());
    }

    void indicesOutsideTheListsAreIgnored()
    {
        const PresetPointer preset = Test::SamplePreset();
        QCOMPARE(preset->VideoCodecCount(), 3);
        QCOMPARE(preset->AudioCodecCount(), 3);
        for (const int index : { -1, -2, 3, 1000 }) {
            preset->SetCurrentVideoCodecIndex(index);
            preset->SetCurrentAudioCodecIndex(index);
            QCOMPARE(preset->CurrentVideoCodecIndex(), 1);
            QCOMPARE(preset->CurrentAudioCodecIndex(), 2);
            QVERIFY(!preset->VideoCodecAt(index));
            QVERIFY(!preset->AudioCodecAt(index));
        }
        preset->SetCurrentVideoCodecIndex(2);
        preset->SetCurrentAudioCodecIndex(0);
        QCOMPARE(preset->CurrentVideoCodec()->Name(), std::string("Bare"));
        QVERIFY(preset->CurrentAudioCodec()->IsAutoValue());
    }

    void aCloneIsIndependent()
    {
        const PresetPointer preset = Test::SamplePreset();
        const PresetPointer clone = preset->Clone();
        QCOMPARE(clone->Name(), std::string("HD 1080P"));
        QCOMPARE(clone->Description(), std::string("H.264, 1920 x 1080"));
        QCOMPARE(clone->FormatName(), std::string("MP4"));
        QCOMPARE(clone->FaceID(), 1001);
        QCOMPARE(clone->CurrentVideoCodecIndex(), 1);
        QCOMPARE(clone->CurrentAudioCodecIndex(), 2);
        QCOMPARE(clone->CurrentVideoCodec()->CurrentQualityIndex(), 2);

        clone->SetName("clone");
        clone->SetFaceID(1);
        clone->CurrentVideoCodec()->SetQualityIndex(0);
        clone->SetCurrentVideoCodecIndex(0);
        QCOMPARE(preset->Name(), std::string("HD 1080P"));
        QCOMPARE(preset->FaceID(), 1001);
        QCOMPARE(preset->CurrentVideoCodecIndex(), 1);
        QCOMPARE(preset->CurrentVideoCodec()->CurrentQualityIndex(), 2);
    }

    void aCloneHasTheOptionsChosenSince()
    {
        const PresetPointer preset = Test::SamplePreset();
        preset->VideoCodecAt(1)->SetQualityIndex(0);
        preset->AudioCodecAt(1)->SetChannelIndex(1);
        const PresetPointer clone = preset->Clone();
        preset->VideoCodecAt(1)->SetQualityIndex(1);
        QCOMPARE(clone->VideoCodecAt(1)->CurrentQualityIndex(), 0);
        QCOMPARE(clone->AudioCodecAt(1)->CurrentChannelIndex(), 1);
    }

    void aCloneSharesTheTables()
    {
        const PresetPointer preset = DefaultPreset();
        const PresetPointer clone = preset->Clone();
        QVERIFY(clone->VideoCodecAt(1) != preset->VideoCodecAt(1));
        QVERIFY(clone->VideoCodecAt(1)->ResolutionAt(0));
        QCOMPARE(clone->VideoCodecAt(1)->ResolutionAt(0), preset->VideoCodecAt(1)->ResolutionAt(0));
        QCOMPARE(clone->AudioCodecAt(1)->QualityAt(0), preset->AudioCodecAt(1)->QualityAt(0));
    }

    void copiedSettingsAreThoseOfTheOtherPreset()
    {
        const PresetPointer source = Test::SamplePreset();
        source->VideoCodecAt(1)->SetResolutionIndex(0);
        const PresetPointer preset = DefaultPreset();
        const CodecPointer before = preset->CurrentVideoCodec();
        const std::string beforeName = before->Name();
        preset->CopySettingsFrom(source);

        QCOMPARE(VideoCodecNames(preset), std::string("Auto;H.264;Bare;"));
        QCOMPARE(preset->CurrentVideoCodecIndex(), 1);
        QCOMPARE(preset->CurrentAudioCodecIndex(), 2);
        QCOMPARE(preset->CurrentVideoCodec()->CurrentResolutionIndex(), 0);
        QCOMPARE(preset->CurrentVideoCodec()->CurrentQualityIndex(), 2);
        QCOMPARE(preset->CurrentAudioCodec()->CurrentQualityIndex(), 1);
        QCOMPARE(preset->Name(), std::string("MP4"));
        QVERIFY(preset->CurrentVideoCodec() != source->CurrentVideoCodec());

        QVERIFY(preset->CurrentVideoCodec() != before);
        QCOMPARE(before->Name(), beforeName);
        preset->CurrentVideoCodec()->SetQualityIndex(0);
        QCOMPARE(source->CurrentVideoCodec()->CurrentQualityIndex(), 2);
    }

    void copyingFromNobodyOrItselfChangesNothing()
    {
        const PresetPointer preset = Test::SamplePreset();
        const CodecPointer video = preset->CurrentVideoCodec();
        video->SetQualityIndex(0);
        preset->CopySettingsFrom(nullptr);
        preset->CopySettingsFrom(preset);
        QCOMPARE(preset->CurrentVideoCodec(), video);
        QCOMPARE(video->CurrentQualityIndex(), 0);
    }

    void equalityIgnoresTheEncoderChoices()
    {
        const PresetPointer preset = Test::SamplePreset();
        const PresetPointer other = preset->Clone();
        other->SetCurrentVideoCodecIndex(0);
        other->CopySettingsFrom(DefaultPreset());
        QVERIFY(preset->IsEqual(other));
        QVERIFY(!preset->IsEqual(nullptr));
        other->SetName("HD");
        QVERIFY(!preset->IsEqual(other));
        other->SetName("HD 1080P");
        other->SetFaceID(1);
        QVERIFY(!preset->IsEqual(other));
        QVERIFY(!DefaultPreset()->IsEqual(IOLFormatPreset::MallocFormatPreset("MP4", "text")));
    }
};

ORLIMO_TEST_MAIN(tst_IOLFormatPreset)

#include "tst_iolformatpreset.moc"
