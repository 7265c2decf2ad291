#include "TreeComparison.h"

#include "Require.h"

#include "IOLCodecPreset.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

using Orlimo::IOLCodecPreset;
using Orlimo::IOLFormatNode;
using Orlimo::IOLFormatPreset;

namespace Fuzz {

namespace {

using Codec = std::shared_ptr<IOLCodecPreset>;
using Node = std::shared_ptr<IOLFormatNode>;
using Preset = std::shared_ptr<IOLFormatPreset>;

constexpr int presetsWithEncoders = 16;

bool SameOptions(const IOLCodecPreset &left, const IOLCodecPreset &right)
{
    return left.CurrentResolutionIndex() == right.CurrentResolutionIndex()
            && left.CurrentFrameRateIndex() == right.CurrentFrameRateIndex()
            && left.CurrentQualityIndex() == right.CurrentQualityIndex()
            && left.CurrentChannelIndex() == right.CurrentChannelIndex()
            && left.CurrentSampleRateIndex() == right.CurrentSampleRateIndex();
}

void RequireSameCodec(const Codec &left, const Codec &right)
{
    Require(!left == !right, "a preset has a current encoder again");
    if (!left)
        return;
    Require(left->Name() == right->Name(), "an encoder has the same name again");
    Require(left->IsAutoValue() == right->IsAutoValue(), "an encoder is as automatic as before");
    Require(SameOptions(*left, *right), "an encoder has the same current options again");
}

void RequireSameCodecs(const IOLFormatPreset &left, const IOLFormatPreset &right)
{
    Require(left.VideoCodecCount() == right.VideoCodecCount()
                    && left.AudioCodecCount() == right.AudioCodecCount(),
            "a preset has as many encoders again");
    Require(left.CurrentVideoCodecIndex() == right.CurrentVideoCodecIndex()
                    && left.CurrentAudioCodecIndex() == right.CurrentAudioCodecIndex(),
            "a preset has the same current encoders again");
    RequireSameCodec(left.CurrentVideoCodec(), right.CurrentVideoCodec());
    RequireSameCodec(left.CurrentAudioCodec(), right.CurrentAudioCodec());
}

class TreeComparison
{
public:
    void CompareNodes(const Node &left, const Node &right)
    {
        Require(left && right, "there is a tree again");
        Require(left->IsEqual(right) && right->IsEqual(left), "a node equals itself again");
        Require(left->PresetCount() == right->PresetCount(), "a node has as many presets again");
        Require(left->ChildCount() == right->ChildCount(), "a node has as many children again");
        for (int i = 0; i < left->PresetCount(); ++i)
            ComparePresets(left->PresetAt(i), right->PresetAt(i));
        for (int i = 0; i < left->ChildCount(); ++i)
            CompareNodes(left->ChildAt(i), right->ChildAt(i));
    }

private:
    void ComparePresets(const Preset &left, const Preset &right)
    {
        Require(left->IsEqual(right) && right->IsEqual(left), "a preset equals itself again");
        Require(left->FormatName() == right->FormatName(), "a preset has the same format again");
        if (m_presetsWithEncoders++ < presetsWithEncoders)
            RequireSameCodecs(*left, *right);
    }

    int m_presetsWithEncoders = 0;
};

} // namespace

void RequireSameTree(const Node &left, const Node &right)
{
    TreeComparison().CompareNodes(left, right);
}

} // namespace Fuzz
