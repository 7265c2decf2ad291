#pragma once

#include "IOLCodecPreset.h"
#include "OLCodecTables.h"

namespace Orlimo {

// One encoder of one preset: the shared encoder and the preset's own current options.
class OLCodecPreset final : public IOLCodecPreset
{
public:
    OLCodecPreset(OLEncoderPointer encoder, const OLOptionIndices &current);

    const OLOptionIndices &CurrentOptions() const { return m_current; }

    std::string Name() const override;

    int ResolutionCount() const override;
    std::shared_ptr<const OLResolution> ResolutionAt(int index) const override;
    int CurrentResolutionIndex() const override;
    void SetResolutionIndex(int index) override;

    int FrameRateCount() const override;
    std::shared_ptr<const OLFrameRate> FrameRateAt(int index) const override;
    int CurrentFrameRateIndex() const override;
    void SetFrameRateIndex(int index) override;

    int QualityCount() const override;
    std::shared_ptr<const OLQuality> QualityAt(int index) const override;
    int CurrentQualityIndex() const override;
    void SetQualityIndex(int index) override;

    int ChannelCount() const override;
    std::shared_ptr<const OLChannel> ChannelAt(int index) const override;
    int CurrentChannelIndex() const override;
    void SetChannelIndex(int index) override;

    int SampleRateCount() const override;
    std::shared_ptr<const OLSampleRate> SampleRateAt(int index) const override;
    int CurrentSampleRateIndex() const override;
    void SetSampleRateIndex(int index) override;

private:
    bool StandsForAutomaticChoice() const override;

    template<class Option>
    std::shared_ptr<const Option> At(int index) const;
    template<class Option>
    int CurrentIndex() const;
    template<class Option>
    void SetIndex(int index);

    OLEncoderPointer m_encoder;
    OLOptionIndices m_current;
};

} // namespace Orlimo
