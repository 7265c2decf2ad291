#include "EncoderSettings.h"

#include "FormatText.h"

#include "IOLCodecPreset.h"
#include "IOLFormatPreset.h"

#include <QCoreApplication>

namespace Host {

using namespace Orlimo;
using namespace Qt::StringLiterals;

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Host::EncoderSettings)
};

QString AsSource()
{
    return Texts::tr("as the source");
}

QString Value(const OLResolution &resolution)
{
    if (resolution.width <= 0)
        return AsSource();
    return u"%1 x %2 px"_s.arg(resolution.width).arg(resolution.height);
}

QString Value(const OLFrameRate &rate)
{
    if (rate.numerator <= 0)
        return AsSource();
    return u"%1/%2 fps"_s.arg(rate.numerator).arg(rate.denominator);
}

QString Value(const OLQuality &quality)
{
    if (quality.constantRateFactor >= 0)
        return u"CRF %1"_s.arg(quality.constantRateFactor);
    if (quality.bitRate > 0)
        return u"%1 bit/s"_s.arg(quality.bitRate);
    if (quality.bitDepth > 0)
        return u"%1 bit"_s.arg(quality.bitDepth);
    return Texts::tr("left to the encoder");
}

QString Value(const OLChannel &channel)
{
    return channel.channels > 0 ? QString::number(channel.channels) : AsSource();
}

QString Value(const OLSampleRate &rate)
{
    return rate.hertz > 0 ? u"%1 Hz"_s.arg(rate.hertz) : AsSource();
}

// An option that an encoder has no list for is empty.
template<class Option>
void AppendOption(QList<EncoderSetting> &settings, const QString &name,
                  const std::shared_ptr<const Option> &option)
{
    if (option)
        settings.append({ name, FormatText(option->text), Value(*option) });
}

void AppendEncoder(QList<EncoderSetting> &settings, const QString &name,
                   const IOLCodecPreset &encoder)
{
    const QString value = encoder.IsAutoValue() ? Texts::tr("automatic")
                                                : QString::fromStdString(encoder.Name());
    settings.append({ name, FormatText(encoder.Name()), value });
}

void AppendVideo(QList<EncoderSetting> &settings, const IOLCodecPreset &encoder)
{
    AppendEncoder(settings, Texts::tr("Video encoder"), encoder);
    AppendOption(settings, Texts::tr("Resolution"),
                 encoder.ResolutionAt(encoder.CurrentResolutionIndex()));
    AppendOption(settings, Texts::tr("Frame rate"),
                 encoder.FrameRateAt(encoder.CurrentFrameRateIndex()));
    AppendOption(settings, Texts::tr("Video quality"),
                 encoder.QualityAt(encoder.CurrentQualityIndex()));
}

void AppendAudio(QList<EncoderSetting> &settings, const IOLCodecPreset &encoder)
{
    AppendEncoder(settings, Texts::tr("Audio encoder"), encoder);
    AppendOption(settings, Texts::tr("Channels"), encoder.ChannelAt(encoder.CurrentChannelIndex()));
    AppendOption(settings, Texts::tr("Sample rate"),
                 encoder.SampleRateAt(encoder.CurrentSampleRateIndex()));
    AppendOption(settings, Texts::tr("Audio quality"),
                 encoder.QualityAt(encoder.CurrentQualityIndex()));
}

} // namespace

QList<EncoderSetting> EncoderSettingsOf(const IOLFormatPreset &preset)
{
    QList<EncoderSetting> settings;
    if (const auto encoder = preset.CurrentVideoCodec())
        AppendVideo(settings, *encoder);
    if (const auto encoder = preset.CurrentAudioCodec())
        AppendAudio(settings, *encoder);
    return settings;
}

} // namespace Host
