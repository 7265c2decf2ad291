#include "FormatTreeDocument.h"
#include "TestCase.h"

#include "IOLCodecPreset.h"

#include <functional>

using Orlimo::IOLCodecPreset;

using CodecPointer = std::shared_ptr<IOLCodecPreset>;

namespace {

// The operations of one of an encoder's lists.
struct List
{
    int (IOLCodecPreset::*count)() const;
    std::function<bool(const IOLCodecPreset &, int)> has;
    std::string (IOLCodecPreset::*text)(int) const;
    int (IOLCodecPreset::*current)() const;
    void (IOLCodecPreset::*setIndex)(int);
};

template<class At>
std::function<bool(const IOLCodecPreset &, int)> Has(At at)
{
    return [at](const IOLCodecPreset &codec, int index) { return (codec.*at)(index) != nullptr; };
}

List Resolutions()
{
    using Codec = IOLCodecPreset;
    return { &Codec::ResolutionCount, Has(&Codec::ResolutionAt), &Codec::ResolutionText,
             &Codec::CurrentResolutionIndex, &Codec::SetResolutionIndex };
}

List FrameRates()
{
    using Codec = IOLCodecPreset;
    return { &Codec::FrameRateCount, Has(&Codec::FrameRateAt), &Codec::FrameRateText,
             &Codec::CurrentFrameRateIndex, &Codec::SetFrameRateIndex };
}

List Qualities()
{
    using Codec = IOLCodecPreset;
    return { &Codec::QualityCount, Has(&Codec::QualityAt), &Codec::QualityText,
             &Codec::CurrentQualityIndex, &Codec::SetQualityIndex };
}

List Channels()
{
    using Codec = IOLCodecPreset;
    return { &Codec::ChannelCount, Has(&Codec::ChannelAt), &Codec::ChannelText,
             &Codec::CurrentChannelIndex, &Codec::SetChannelIndex };
}

List SampleRates()
{
    using Codec = IOLCodecPreset;
    return { &Codec::SampleRateCount, Has(&Codec::SampleRateAt), &Codec::SampleRateText,
             &Codec::CurrentSampleRateIndex, &Codec::SetSampleRateIndex };
}

QByteArray Texts(const IOLCodecPreset &codec, const List &list)
{
    QByteArrayList texts;
    for (int i = 0; i < (codec.*list.count)(); ++i)
        texts.append(QByteArray::fromStdString((codec.*list.text)(i)));
    return texts.join("; ");
}

CodecPointer Video(int index)
{
    return Test::SamplePreset()->VideoCodecAt(index);
}

CodecPointer Audio(int index)
{
    return Test::SamplePreset()->AudioCodecAt(index);
}

} // namespace

Q_DECLARE_METATYPE(List)
Q_DECLARE_METATYPE(CodecPointer)

class tst_IOLCodecPreset : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyListHasItsTextsAndItsCurrentOption_data()
    {
        QTest::addColumn<CodecPointer>("codec");
        QTest::addColumn<List>("list");
        QTest::addColumn<QByteArray>("texts");
        QTest::addColumn<int>("current");
        QTest::newRow("resolutions")
                << Video(1) << Resolutions() << QByteArray("Same as source; 1920 x 1080") << 1;
        QTest::newRow("frame rates") << Video(1) << FrameRates()
                                     << QByteArray("Same as source; 23.976 fps; 25 fps") << 1;
        QTest::newRow("video qualities")
                << Video(1) << Qualities() << QByteArray("Best; High; Low") << 2;
        QTest::newRow("channels") << Audio(1) << Channels() << QByteArray("Same as source; Stereo")
                                  << 0;
        QTest::newRow("sample rates")
                << Audio(1) << SampleRates() << QByteArray("Same as source; 48000 Hz") << -1;
        QTest::newRow("audio qualities")
                << Audio(2) << Qualities() << QByteArray("16 bit; Any depth") << 1;
    }

    void everyListHasItsTextsAndItsCurrentOption()
    {
        QFETCH(const CodecPointer, codec);
        QFETCH(const List, list);
        QFETCH(const QByteArray, texts);
        QFETCH(const int, current);
        QCOMPARE(Texts(*codec, list), texts);
        QCOMPARE(((*codec).*list.current)(), current);
    }

    void settersTakeEveryIndexOfTheListAndNoOther_data()
    {
        everyListHasItsTextsAndItsCurrentOption_data();
    }

    void settersTakeEveryIndexOfTheListAndNoOther()
    {
        QFETCH(const CodecPointer, codec);
        QFETCH(const List, list);
        const int count = ((*codec).*list.count)();
        for (int index = count - 1; index >= 0; --index) {
            ((*codec).*list.setIndex)(index);
            QCOMPARE(((*codec).*list.current)(), index);
        }
        for (const int index : { -1, count, -2, 1000 }) {
            ((*codec).*list.setIndex)(index);
            QCOMPARE(((*codec).*list.current)(), 0);
            QVERIFY(!list.has(*codec, index));
            QCOMPARE(((*codec).*list.text)(index), std::string());
        }
    }

    void theListsAreIndependentOfEachOther()
    {
        const CodecPointer codec = Video(1);
        codec->SetFrameRateIndex(2);
        QCOMPARE(codec->CurrentResolutionIndex(), 1);
        QCOMPARE(codec->CurrentFrameRateIndex(), 2);
        QCOMPARE(codec->CurrentQualityIndex(), 2);
    }

    void listsOfTheOtherKindAreEmpty_data()
    {
        QTest::addColumn<CodecPointer>("codec");
        QTest::addColumn<List>("list");
        QTest::newRow("channels of video") << Video(1) << Channels();
        QTest::newRow("sample rates of video") << Video(1) << SampleRates();
        QTest::newRow("resolutions of audio") << Audio(1) << Resolutions();
        QTest::newRow("frame rates of audio") << Audio(1) << FrameRates();
        QTest::newRow("lists of a bare encoder") << Video(2) << Qualities();
        QTest::newRow("video qualities of the automatic choice") << Video(0) << Qualities();
        QTest::newRow("resolutions of the automatic choice") << Video(0) << Resolutions();
        QTest::newRow("frame rates of the automatic choice") << Video(0) << FrameRates();
        QTest::newRow("audio qualities of the automatic choice") << Audio(0) << Qualities();
        QTest::newRow("channels of the automatic choice") << Audio(0) << Channels();
        QTest::newRow("sample rates of the automatic choice") << Audio(0) << SampleRates();
    }

    void listsOfTheOtherKindAreEmpty()
    {
        QFETCH(const CodecPointer, codec);
        QFETCH(const List, list);
        QCOMPARE(((*codec).*list.count)(), 0);
        QCOMPARE(((*codec).*list.current)(), -1);
        QVERIFY(!list.has(*codec, 0));
        QCOMPARE(((*codec).*list.text)(0), std::string());
        ((*codec).*list.setIndex)(0);
        QCOMPARE(((*codec).*list.current)(), -1);
    }

    void onlyTheAutomaticChoiceIsAuto()
    {
        QVERIFY(Video(0)->IsAutoValue());
        QVERIFY(Audio(0)->IsAutoValue());
        QVERIFY(!Video(1)->IsAutoValue());
        QVERIFY(!Video(2)->IsAutoValue());
        QVERIFY(!Audio(1)->IsAutoValue());
    }

    void encodersHaveTheirNames()
    {
        QCOMPARE(Video(0)->Name(), std::string("Auto"));
        QCOMPARE(Video(1)->Name(), std::string("H.264"));
        QCOMPARE(Audio(1)->Name(), std::string("AAC"));
    }

    void videoOptionsHaveTheirFigures()
    {
        const CodecPointer codec = Video(1);
        QCOMPARE(codec->ResolutionAt(0)->width, 0);
        QCOMPARE(codec->ResolutionAt(0)->height, 0);
        QCOMPARE(codec->ResolutionAt(1)->width, 1920);
        QCOMPARE(codec->ResolutionAt(1)->height, 1080);
        QCOMPARE(codec->ResolutionAt(1)->ResolutionText(), std::string("1920 x 1080"));
        QCOMPARE(codec->FrameRateAt(0)->numerator, 0);
        QCOMPARE(codec->FrameRateAt(0)->denominator, 0);
        QCOMPARE(codec->FrameRateAt(1)->numerator, 24000);
        QCOMPARE(codec->FrameRateAt(1)->denominator, 1001);
        QCOMPARE(codec->FrameRateAt(1)->FrameRateText(), std::string("23.976 fps"));
        QCOMPARE(codec->QualityAt(0)->constantRateFactor, 0);
        QCOMPARE(codec->QualityAt(1)->constantRateFactor, 20);
        QCOMPARE(codec->QualityAt(1)->bitRate, 0);
        QCOMPARE(codec->QualityAt(1)->bitDepth, 0);
        QCOMPARE(codec->QualityAt(1)->QualityText(), std::string("High"));
    }

    void audioOptionsHaveTheirFigures()
    {
        const CodecPointer codec = Audio(1);
        QCOMPARE(codec->ChannelAt(0)->channels, 0);
        QCOMPARE(codec->ChannelAt(1)->channels, 2);
        QCOMPARE(codec->ChannelAt(1)->ChannelText(), std::string("Stereo"));
        QCOMPARE(codec->SampleRateAt(0)->hertz, 0);
        QCOMPARE(codec->SampleRateAt(1)->hertz, 48000);
        QCOMPARE(codec->SampleRateAt(1)->SampleRateText(), std::string("48000 Hz"));
        QCOMPARE(codec->QualityAt(0)->bitRate, 192000);
        QCOMPARE(codec->QualityAt(0)->constantRateFactor, -1);
        const CodecPointer pcm = Audio(2);
        QCOMPARE(pcm->QualityAt(0)->bitDepth, 16);
        QCOMPARE(pcm->QualityAt(1)->bitDepth, 0);
        QCOMPARE(pcm->QualityAt(1)->constantRateFactor, -1);
    }

    void anOptionOutlivesItsEncoder()
    {
        CodecPointer codec = Video(1);
        const auto resolution = codec->ResolutionAt(1);
        codec.reset();
        QCOMPARE(resolution->text, std::string("1920 x 1080"));
    }
};

ORLIMO_TEST_MAIN(tst_IOLCodecPreset)

#include "tst_iolcodecpreset.moc"
