#pragma once

#include "IOLFormatPreset.h"
#include "OLCodecList.h"
#include "OLPresetTexts.h"

namespace Orlimo {

class OLFormatPreset final : public IOLFormatPreset
{
public:
    OLFormatPreset(const OLPresetTexts &texts, int faceID, OLCodecList video, OLCodecList audio);

    static std::shared_ptr<OLFormatPreset> MakeUsual(const std::string &formatName,
                                                     const std::string &description);

    const OLCodecList &Video() const { return m_video; }
    const OLCodecList &Audio() const { return m_audio; }

    int FaceID() const override;
    void SetFaceID(int faceID) override;
    std::string Name() const override;
    void SetName(std::string name) override;
    std::string Description() const override;
    std::string FormatName() const override;
    std::shared_ptr<IOLFormatPreset> Clone() const override;
    void CopySettingsFrom(std::shared_ptr<IOLFormatPreset> other) override;
    bool IsEqual(std::shared_ptr<const IOLFormatPreset> other) const override;

    int VideoCodecCount() const override;
    std::shared_ptr<IOLCodecPreset> VideoCodecAt(int index) const override;
    int CurrentVideoCodecIndex() const override;
    void SetCurrentVideoCodecIndex(int index) override;

    int AudioCodecCount() const override;
    std::shared_ptr<IOLCodecPreset> AudioCodecAt(int index) const override;
    int CurrentAudioCodecIndex() const override;
    void SetCurrentAudioCodecIndex(int index) override;

private:
    OLPresetTexts m_texts;
    OLCodecList m_video;
    OLCodecList m_audio;
    int m_faceID = 0;
};

} // namespace Orlimo
