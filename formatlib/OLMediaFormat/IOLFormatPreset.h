#pragma once

#include "olmediaformat_export.h"

#include <memory>
#include <string>

namespace Orlimo {

class IOLCodecPreset;

/// An output preset of one container format: its name and texts, and the video and audio encoders
/// that are chosen from its lists.
///
/// Presets are changed on the GUI thread only and may be read on any thread while nothing changes
/// them. Reading a const preset gives encoders that can be changed, as a const shared pointer does:
/// whoever wants to edit edits a clone. The lists of encoders are shared between presets and never
/// change.
class OLMEDIAFORMAT_EXPORT IOLFormatPreset
{
public:
    IOLFormatPreset();
    IOLFormatPreset(const IOLFormatPreset &other);
    IOLFormatPreset(IOLFormatPreset &&other);
    IOLFormatPreset &operator=(const IOLFormatPreset &other);
    IOLFormatPreset &operator=(IOLFormatPreset &&other);

    /// Makes a preset of the format @p formatName, named after it, with the encoders that are usual
    /// in that format and @p description as its second text (both UTF-8). The upper or lower case
    /// of the name does not matter to the choice of encoders; a format that the library does not
    /// know gets the encoders that most containers carry. GUI thread; never empty.
    static std::shared_ptr<IOLFormatPreset> MallocFormatPreset(const std::string &formatName,
                                                               const std::string &description);

    /// Returns the artwork face id of the preset's icon, 0 where none was set.
    virtual int FaceID() const = 0;
    /// Sets the artwork face id of the preset's icon.
    virtual void SetFaceID(int faceID) = 0;

    /// Returns the preset's name as the lists show it (UTF-8).
    virtual std::string Name() const = 0;
    /// Renames the preset (UTF-8).
    virtual void SetName(std::string name) = 0;

    /// Returns the preset's second text (UTF-8), which the search matches besides the name.
    virtual std::string Description() const = 0;

    /// Returns the name of the container format (UTF-8), empty where the description gives none.
    virtual std::string FormatName() const = 0;

    /// Returns an independent copy with the encoders' current options. The copy shares the lists of
    /// encoders and options, which never change. Never empty.
    virtual std::shared_ptr<IOLFormatPreset> Clone() const = 0;

    /// Takes over the lists of encoders, the chosen encoders and the current options of @p other.
    /// Encoders that were obtained from this preset before keep their state and no longer belong to
    /// it. An empty pointer changes nothing.
    virtual void CopySettingsFrom(std::shared_ptr<IOLFormatPreset> other) = 0;

    /// Returns whether @p other has the same name, description and face id. The chosen encoders do
    /// not count, so that an edited preset takes the place of the one that looks the same. False
    /// for an empty pointer.
    virtual bool IsEqual(std::shared_ptr<const IOLFormatPreset> other) const = 0;

    /// Returns the number of video encoders to choose from.
    virtual int VideoCodecCount() const = 0;
    /// Returns the video encoder at @p index, 0-based: the same object on every call; empty for an
    /// index outside the list. It stays valid when the preset is gone.
    virtual std::shared_ptr<IOLCodecPreset> VideoCodecAt(int index) const = 0;
    /// Returns the index of the chosen video encoder, −1 for none.
    virtual int CurrentVideoCodecIndex() const = 0;
    /// Chooses the video encoder at @p index; an index outside the list is ignored.
    virtual void SetCurrentVideoCodecIndex(int index) = 0;

    /// Returns the number of audio encoders to choose from.
    virtual int AudioCodecCount() const = 0;
    /// Returns the audio encoder at @p index as VideoCodecAt() does the video encoder.
    virtual std::shared_ptr<IOLCodecPreset> AudioCodecAt(int index) const = 0;
    /// Returns the index of the chosen audio encoder, −1 for none.
    virtual int CurrentAudioCodecIndex() const = 0;
    /// Chooses the audio encoder at @p index; an index outside the list is ignored.
    virtual void SetCurrentAudioCodecIndex(int index) = 0;

    /// Returns the chosen video encoder, empty where none is.
    std::shared_ptr<IOLCodecPreset> CurrentVideoCodec() const;

    /// Returns the chosen audio encoder, empty where none is.
    std::shared_ptr<IOLCodecPreset> CurrentAudioCodec() const;

protected:
    ~IOLFormatPreset();
};

} // namespace Orlimo
