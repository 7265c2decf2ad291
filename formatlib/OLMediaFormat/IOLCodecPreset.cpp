#include "IOLCodecPreset.h"

namespace Orlimo {

namespace {

template<class Option>
std::string TextOf(const std::shared_ptr<const Option> &option)
{
    return option ? option->text : std::string();
}

} // namespace

IOLCodecPreset::IOLCodecPreset() = default;
IOLCodecPreset::IOLCodecPreset(const IOLCodecPreset &) = default;
IOLCodecPreset::IOLCodecPreset(IOLCodecPreset &&) = default;
IOLCodecPreset &IOLCodecPreset::operator=(const IOLCodecPreset &) = default;
IOLCodecPreset &IOLCodecPreset::operator=(IOLCodecPreset &&) = default;
IOLCodecPreset::~IOLCodecPreset() = default;

bool IOLCodecPreset::IsAutoValue() const
{
    return StandsForAutomaticChoice();
}

std::string IOLCodecPreset::ResolutionText(int index) const
{
    return TextOf(ResolutionAt(index));
}

std::string IOLCodecPreset::FrameRateText(int index) const
{
    return TextOf(FrameRateAt(index));
}

std::string IOLCodecPreset::QualityText(int index) const
{
    return TextOf(QualityAt(index));
}

std::string IOLCodecPreset::ChannelText(int index) const
{
    return TextOf(ChannelAt(index));
}

std::string IOLCodecPreset::SampleRateText(int index) const
{
    return TextOf(SampleRateAt(index));
}

} // namespace Orlimo
