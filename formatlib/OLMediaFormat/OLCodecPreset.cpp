#include "OLCodecPreset.h"

#include <utility>

namespace Orlimo {

OLCodecPreset::OLCodecPreset(OLEncoderPointer encoder, const OLOptionIndices &current)
    : m_encoder(std::move(encoder))
    , m_current(current)
{
}

// The option shares the ownership of its list.
template<class Option>
std::shared_ptr<const Option> OLCodecPreset::At(int index) const
{
    if (index < 0 || index >= m_encoder->OptionCount<Option>())
        return nullptr;
    const auto &list = m_encoder->List<Option>();
    return { list, &list->options[static_cast<std::size_t>(index)] };
}

template<class Option>
int OLCodecPreset::CurrentIndex() const
{
    return m_current[OLOptionSlot<Option>()];
}

template<class Option>
void OLCodecPreset::SetIndex(int index)
{
    if (index >= 0 && index < m_encoder->OptionCount<Option>())
        m_current[OLOptionSlot<Option>()] = index;
}

std::string OLCodecPreset::Name() const
{
    return m_encoder->name;
}

bool OLCodecPreset::StandsForAutomaticChoice() const
{
    return m_encoder->automatic;
}

int OLCodecPreset::ResolutionCount() const
{
    return m_encoder->OptionCount<OLResolution>();
}

std::shared_ptr<const OLResolution> OLCodecPreset::ResolutionAt(int index) const
{
    return At<OLResolution>(index);
}

int OLCodecPreset::CurrentResolutionIndex() const
{
    return CurrentIndex<OLResolution>();
}

void OLCodecPreset::SetResolutionIndex(int index)
{
    SetIndex<OLResolution>(index);
}

int OLCodecPreset::FrameRateCount() const
{
    return m_encoder->OptionCount<OLFrameRate>();
}

std::shared_ptr<const OLFrameRate> OLCodecPreset::FrameRateAt(int index) const
{
    return At<OLFrameRate>(index);
}

int OLCodecPreset::CurrentFrameRateIndex() const
{
    return CurrentIndex<OLFrameRate>();
}

void OLCodecPreset::SetFrameRateIndex(int index)
{
    SetIndex<OLFrameRate>(index);
}

int OLCodecPreset::QualityCount() const
{
    return m_encoder->OptionCount<OLQuality>();
}

std::shared_ptr<const OLQuality> OLCodecPreset::QualityAt(int index) const
{
    return At<OLQuality>(index);
}

int OLCodecPreset::CurrentQualityIndex() const
{
    return CurrentIndex<OLQuality>();
}

void OLCodecPreset::SetQualityIndex(int index)
{
    SetIndex<OLQuality>(index);
}

int OLCodecPreset::ChannelCount() const
{
    return m_encoder->OptionCount<OLChannel>();
}

std::shared_ptr<const OLChannel> OLCodecPreset::ChannelAt(int index) const
{
    return At<OLChannel>(index);
}

int OLCodecPreset::CurrentChannelIndex() const
{
    return CurrentIndex<OLChannel>();
}

void OLCodecPreset::SetChannelIndex(int index)
{
    SetIndex<OLChannel>(index);
}

int OLCodecPreset::SampleRateCount() const
{
    return m_encoder->OptionCount<OLSampleRate>();
}

std::shared_ptr<const OLSampleRate> OLCodecPreset::SampleRateAt(int index) const
{
    return At<OLSampleRate>(index);
}

int OLCodecPreset::CurrentSampleRateIndex() const
{
    return CurrentIndex<OLSampleRate>();
}

void OLCodecPreset::SetSampleRateIndex(int index)
{
    SetIndex<OLSampleRate>(index);
}

} // namespace Orlimo
