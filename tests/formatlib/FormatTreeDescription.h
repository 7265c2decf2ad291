#pragma once

#include "IOLCodecPreset.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <QStringList>

#include <memory>
#include <string>

namespace Test {

// What the interfaces say of an object, one thing per line.

inline QString Line(int depth, const std::string &text)
{
    return QString(depth, u' ') + QString::fromStdString(text);
}

template<class TextAt>
std::string OptionText(const char *list, int count, int current, TextAt textAt)
{
    std::string text = std::string(list) + ' ' + std::to_string(current) + " of";
    for (int i = 0; i < count; ++i)
        text += ' ' + textAt(i);
    return text;
}

inline QStringList Describe(const std::shared_ptr<Orlimo::IOLCodecPreset> &codec, int depth)
{
    const auto resolution = [&](int i) {
        const auto option = codec->ResolutionAt(i);
        return option->text + '/' + std::to_string(option->width) + '/'
                + std::to_string(option->height);
    };
    const auto frameRate = [&](int i) {
        const auto option = codec->FrameRateAt(i);
        return option->text + '/' + std::to_string(option->numerator) + '/'
                + std::to_string(option->denominator);
    };
    const auto quality = [&](int i) {
        const auto option = codec->QualityAt(i);
        return option->text + '/' + std::to_string(option->constantRateFactor) + '/'
                + std::to_string(option->bitRate) + '/' + std::to_string(option->bitDepth);
    };
    const auto channel = [&](int i) {
        return codec->ChannelText(i) + '/' + std::to_string(codec->ChannelAt(i)->channels);
    };
    const auto sampleRate = [&](int i) {
        return codec->SampleRateText(i) + '/' + std::to_string(codec->SampleRateAt(i)->hertz);
    };
    return {
        Line(depth, codec->Name() + (codec->IsAutoValue() ? " auto" : "")),
        Line(depth,
             OptionText("resolution", codec->ResolutionCount(), codec->CurrentResolutionIndex(),
                        resolution)),
        Line(depth,
             OptionText("rate", codec->FrameRateCount(), codec->CurrentFrameRateIndex(),
                        frameRate)),
        Line(depth,
             OptionText("quality", codec->QualityCount(), codec->CurrentQualityIndex(), quality)),
        Line(depth,
             OptionText("channel", codec->ChannelCount(), codec->CurrentChannelIndex(), channel)),
        Line(depth,
             OptionText("hertz", codec->SampleRateCount(), codec->CurrentSampleRateIndex(),
                        sampleRate))
    };
}

inline QStringList Describe(const std::shared_ptr<Orlimo::IOLFormatPreset> &preset, int depth)
{
    QStringList lines { Line(depth,
                             preset->Name() + '|' + preset->Description() + '|'
                                     + preset->FormatName() + '|'
                                     + std::to_string(preset->FaceID())) };
    lines += Line(depth, "video " + std::to_string(preset->CurrentVideoCodecIndex()));
    for (int i = 0; i < preset->VideoCodecCount(); ++i)
        lines += Describe(preset->VideoCodecAt(i), depth + 1);
    lines += Line(depth, "audio " + std::to_string(preset->CurrentAudioCodecIndex()));
    for (int i = 0; i < preset->AudioCodecCount(); ++i)
        lines += Describe(preset->AudioCodecAt(i), depth + 1);
    return lines;
}

inline QStringList Describe(const std::shared_ptr<Orlimo::IOLFormatNode> &node, int depth = 0)
{
    QStringList lines {
        Line(depth, node->Name() + '|' + node->Description() + '|' + std::to_string(node->FaceID()))
    };
    for (int i = 0; i < node->PresetCount(); ++i)
        lines += Describe(node->PresetAt(i), depth + 1);
    for (int i = 0; i < node->ChildCount(); ++i)
        lines += Describe(node->ChildAt(i), depth + 1);
    return lines;
}

} // namespace Test
