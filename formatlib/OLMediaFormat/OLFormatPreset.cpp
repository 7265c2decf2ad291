#include "OLFormatPreset.h"

#include "OLCodecPreset.h"
#include "OLUsualEncoders.h"

#include <utility>

namespace Orlimo {

OLFormatPreset::OLFormatPreset(const OLPresetTexts &texts, int faceID, OLCodecList video,
                               OLCodecList audio)
    : m_texts(texts)
    , m_video(std::move(video))
    , m_audio(std::move(audio))
    , m_faceID(faceID)
{
}

std::shared_ptr<OLFormatPreset> OLFormatPreset::MakeUsual(const std::string &formatName,
                                                          const std::string &description)
{
    const OLUsualEncoders::Entry &usual = OLUsualEncoders::Shared().Of(formatName);
    return std::make_shared<OLFormatPreset>(OLPresetTexts(formatName, description, formatName), 0,
                                            usual.video, usual.audio);
}

int OLFormatPreset::FaceID() const
{
    return m_faceID;
}

void OLFormatPreset::SetFaceID(int faceID)
{
    m_faceID = faceID;
}

std::string OLFormatPreset::Name() const
{
    return std::string(m_texts.Name());
}

void OLFormatPreset::SetName(std::string name)
{
    m_texts.SetName(name);
}

std::string OLFormatPreset::Description() const
{
    return std::string(m_texts.Description());
}

std::string OLFormatPreset::FormatName() const
{
    return std::string(m_texts.FormatName());
}

std::shared_ptr<IOLFormatPreset> OLFormatPreset::Clone() const
{
    return std::make_shared<OLFormatPreset>(*this);
}

void OLFormatPreset::CopySettingsFrom(std::shared_ptr<IOLFormatPreset> other)
{
    const auto *source = dynamic_cast<const OLFormatPreset *>(other.get());
    if (!source || source == this)
        return;
    m_video = source->m_video;
    m_audio = source->m_audio;
}

bool OLFormatPreset::IsEqual(std::shared_ptr<const IOLFormatPreset> other) const
{
    return other && m_faceID == other->FaceID() && m_texts.Name() == other->Name()
            && m_texts.Description() == other->Description();
}

int OLFormatPreset::VideoCodecCount() const
{
    return m_video.Count();
}

std::shared_ptr<IOLCodecPreset> OLFormatPreset::VideoCodecAt(int index) const
{
    return m_video.At(index);
}

int OLFormatPreset::CurrentVideoCodecIndex() const
{
    return m_video.CurrentIndex();
}

void OLFormatPreset::SetCurrentVideoCodecIndex(int index)
{
    m_video.SetCurrentIndex(index);
}

int OLFormatPreset::AudioCodecCount() const
{
    return m_audio.Count();
}

std::shared_ptr<IOLCodecPreset> OLFormatPreset::AudioCodecAt(int index) const
{
    return m_audio.At(index);
}

int OLFormatPreset::CurrentAudioCodecIndex() const
{
    return m_audio.CurrentIndex();
}

void OLFormatPreset::SetCurrentAudioCodecIndex(int index)
{
    m_audio.SetCurrentIndex(index);
}

} // namespace Orlimo
