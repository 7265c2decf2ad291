#include "IOLFormatPreset.h"

#include "OLFormatPreset.h"

namespace Orlimo {

IOLFormatPreset::IOLFormatPreset() = default;
IOLFormatPreset::IOLFormatPreset(const IOLFormatPreset &) = default;
IOLFormatPreset::IOLFormatPreset(IOLFormatPreset &&) = default;
IOLFormatPreset &IOLFormatPreset::operator=(const IOLFormatPreset &) = default;
IOLFormatPreset &IOLFormatPreset::operator=(IOLFormatPreset &&) = default;
IOLFormatPreset::~IOLFormatPreset() = default;

std::shared_ptr<IOLFormatPreset> IOLFormatPreset::MallocFormatPreset(const std::string &formatName,
                                                                     const std::string &description)
{
    return OLFormatPreset::MakeUsual(formatName, description);
}

std::shared_ptr<IOLCodecPreset> IOLFormatPreset::CurrentVideoCodec() const
{
    return VideoCodecAt(CurrentVideoCodecIndex());
}

std::shared_ptr<IOLCodecPreset> IOLFormatPreset::CurrentAudioCodec() const
{
    return AudioCodecAt(CurrentAudioCodecIndex());
}

} // namespace Orlimo
