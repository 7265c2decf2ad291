#pragma once

#include "olmediaformat_export.h"

#include "OLChannel.h"
#include "OLFrameRate.h"
#include "OLQuality.h"
#include "OLResolution.h"
#include "OLSampleRate.h"

#include <memory>
#include <string>

namespace Orlimo {

/// The settings of one encoder of a preset: lists of options, each with a current index.
///
/// A video encoder has resolutions, frame rates and qualities, an audio encoder channels, sample
/// rates and qualities; its other lists are empty. The lists are shared and never change; only the
/// current indices belong to the preset. A current index of −1 means that none is chosen.
///
/// In every list, an option outside it is an empty pointer, its text is empty, and a setter ignores
/// an index outside it. All texts are UTF-8. Options live as long as the pointers to them. Objects
/// are made by their preset, are changed on the GUI thread only, and may be read on any thread
/// while nothing changes them.
class OLMEDIAFORMAT_EXPORT IOLCodecPreset
{
public:
    IOLCodecPreset();
    IOLCodecPreset(const IOLCodecPreset &other);
    IOLCodecPreset(IOLCodecPreset &&other);
    IOLCodecPreset &operator=(const IOLCodecPreset &other);
    IOLCodecPreset &operator=(IOLCodecPreset &&other);

    /// Returns the encoder's name (UTF-8), which the user sees translated.
    virtual std::string Name() const = 0;

    /// Returns the number of picture sizes.
    virtual int ResolutionCount() const = 0;
    /// Returns the picture size at @p index, 0-based.
    virtual std::shared_ptr<const OLResolution> ResolutionAt(int index) const = 0;
    /// Returns the index of the current picture size.
    virtual int CurrentResolutionIndex() const = 0;
    /// Makes the picture size at @p index the current one.
    virtual void SetResolutionIndex(int index) = 0;

    /// Returns the number of frame rates.
    virtual int FrameRateCount() const = 0;
    /// Returns the frame rate at @p index, 0-based.
    virtual std::shared_ptr<const OLFrameRate> FrameRateAt(int index) const = 0;
    /// Returns the index of the current frame rate.
    virtual int CurrentFrameRateIndex() const = 0;
    /// Makes the frame rate at @p index the current one.
    virtual void SetFrameRateIndex(int index) = 0;

    /// Returns the number of qualities.
    virtual int QualityCount() const = 0;
    /// Returns the quality at @p index, 0-based.
    virtual std::shared_ptr<const OLQuality> QualityAt(int index) const = 0;
    /// Returns the index of the current quality.
    virtual int CurrentQualityIndex() const = 0;
    /// Makes the quality at @p index the current one.
    virtual void SetQualityIndex(int index) = 0;

    /// Returns the number of channel counts.
    virtual int ChannelCount() const = 0;
    /// Returns the channel count at @p index, 0-based.
    virtual std::shared_ptr<const OLChannel> ChannelAt(int index) const = 0;
    /// Returns the index of the current channel count.
    virtual int CurrentChannelIndex() const = 0;
    /// Makes the channel count at @p index the current one.
    virtual void SetChannelIndex(int index) = 0;

    /// Returns the number of sample rates.
    virtual int SampleRateCount() const = 0;
    /// Returns the sample rate at @p index, 0-based.
    virtual std::shared_ptr<const OLSampleRate> SampleRateAt(int index) const = 0;
    /// Returns the index of the current sample rate.
    virtual int CurrentSampleRateIndex() const = 0;
    /// Makes the sample rate at @p index the current one.
    virtual void SetSampleRateIndex(int index) = 0;

    /// Returns whether the encoder stands for automatic choice; it then has no options.
    bool IsAutoValue() const;

    /// Returns the text of the picture size at @p index.
    std::string ResolutionText(int index) const;
    /// Returns the text of the frame rate at @p index.
    std::string FrameRateText(int index) const;
    /// Returns the text of the quality at @p index.
    std::string QualityText(int index) const;
    /// Returns the text of the channel count at @p index.
    std::string ChannelText(int index) const;
    /// Returns the text of the sample rate at @p index.
    std::string SampleRateText(int index) const;

protected:
    ~IOLCodecPreset();

private:
    virtual bool StandsForAutomaticChoice() const = 0;
};

} // namespace Orlimo
