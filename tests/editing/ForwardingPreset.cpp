#include "ForwardingPreset.h"

#include "IOLCodecPreset.h"

#include <utility>

using namespace Orlimo;

namespace Test {

ForwardingPreset::ForwardingPreset(std::shared_ptr<IOLFormatPreset> preset)
    : m_preset(std::move(preset))
{
}

ForwardingPreset::~ForwardingPreset() = default;

int ForwardingPreset::FaceID() const
{
    return m_preset->FaceID();
}

void ForwardingPreset::SetFaceID(int faceID)
{
    m_preset->SetFaceID(faceID);
}

std::string ForwardingPreset::Name() const
{
    return m_preset->Name();
}

void ForwardingPreset::SetName(std::string name)
{
    m_preset->SetName(std::move(name));
}

std::string ForwardingPreset::Description() const
{
    return m_preset->Description();
}

std::string ForwardingPreset::FormatName() const
{
    return m_preset->FormatName();
}

std::shared_ptr<IOLFormatPreset> ForwardingPreset::Clone() const
{
    return m_preset->Clone();
}

void ForwardingPreset::CopySettingsFrom(std::shared_ptr<IOLFormatPreset> other)
{
    m_preset->CopySettingsFrom(std::move(other));
}

bool ForwardingPreset::IsEqual(std::shared_ptr<const IOLFormatPreset> other) const
{
    return m_preset->IsEqual(std::move(other));
}

int ForwardingPreset::VideoCodecCount() const
{
    return m_preset->VideoCodecCount();
}

std::shared_ptr<IOLCodecPreset> ForwardingPreset::VideoCodecAt(int index) const
{
    return m_preset->VideoCodecAt(index);
}

int ForwardingPreset::CurrentVideoCodecIndex() const
{
    return m_preset->CurrentVideoCodecIndex();
}

void ForwardingPreset::SetCurrentVideoCodecIndex(int index)
{
    m_preset->SetCurrentVideoCodecIndex(index);
}

int ForwardingPreset::AudioCodecCount() const
{
    return m_preset->AudioCodecCount();
}

std::shared_ptr<IOLCodecPreset> ForwardingPreset::AudioCodecAt(int index) const
{
    return m_preset->AudioCodecAt(index);
}

int ForwardingPreset::CurrentAudioCodecIndex() const
{
    return m_preset->CurrentAudioCodecIndex();
}

void ForwardingPreset::SetCurrentAudioCodecIndex(int index)
{
    m_preset->SetCurrentAudioCodecIndex(index);
}

PresetWithClone::PresetWithClone(std::shared_ptr<IOLFormatPreset> preset,
                                 std::shared_ptr<IOLFormatPreset> clone)
    : ForwardingPreset(std::move(preset))
    , m_clone(std::move(clone))
{
}

PresetWithClone::~PresetWithClone() = default;

WatchedPreset::WatchedPreset(std::shared_ptr<IOLFormatPreset> preset)
    : ForwardingPreset(std::move(preset))
{
}

WatchedPreset::~WatchedPreset() = default;

std::shared_ptr<IOLFormatPreset> WatchedPreset::Clone() const
{
    m_latestClone = ForwardingPreset::Clone();
    return m_latestClone;
}

} // namespace Test
