#pragma once

#include "IOLCodecPreset.h"

namespace Test {

// An encoder that stands for automatic choice although it has one option of every kind.
class AutomaticCodec final : public Orlimo::IOLCodecPreset
{
public:
    std::string Name() const override { return "Auto with options"; }

    int ResolutionCount() const override { return 1; }
    std::shared_ptr<const Orlimo::OLResolution> ResolutionAt(int) const override
    {
        return std::make_shared<Orlimo::OLResolution>();
    }
    int CurrentResolutionIndex() const override { return 0; }
    void SetResolutionIndex(int) override { }

    int FrameRateCount() const override { return 1; }
    std::shared_ptr<const Orlimo::OLFrameRate> FrameRateAt(int) const override
    {
        return std::make_shared<Orlimo::OLFrameRate>();
    }
    int CurrentFrameRateIndex() const override { return 0; }
    void SetFrameRateIndex(int) override { }

    int QualityCount() const override { return 1; }
    std::shared_ptr<const Orlimo::OLQuality> QualityAt(int) const override
    {
        return std::make_shared<Orlimo::OLQuality>();
    }
    int CurrentQualityIndex() const override { return 0; }
    void SetQualityIndex(int) override { }

    int ChannelCount() const override { return 1; }
    std::shared_ptr<const Orlimo::OLChannel> ChannelAt(int) const override
    {
        return std::make_shared<Orlimo::OLChannel>();
    }
    int CurrentChannelIndex() const override { return 0; }
    void SetChannelIndex(int) override { }

    int SampleRateCount() const override { return 1; }
    std::shared_ptr<const Orlimo::OLSampleRate> SampleRateAt(int) const override
    {
        return std::make_shared<Orlimo::OLSampleRate>();
    }
    int CurrentSampleRateIndex() const override { return 0; }
    void SetSampleRateIndex(int) override { }

private:
    bool StandsForAutomaticChoice() const override { return true; }
};

} // namespace Test
