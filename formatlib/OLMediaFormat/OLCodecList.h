#pragma once

#include "OLCodecTables.h"

#include <memory>
#include <span>
#include <vector>

namespace Orlimo {

class OLCodecPreset;

// The current options of one encoder of a set, where they are not the encoder's defaults.
struct OLEncoderChoice
{
    int encoder = 0; // index in the set
    OLOptionIndices options = OLNoOptions;
};

// The video or the audio side of one preset: a shared set of encoders and the preset's choices.
//
// An encoder's object is made when somebody first asks for it, since most presets of a description
// are only ever listed; that may happen on several threads at once.
class OLCodecList
{
public:
    OLCodecList() = default;
    // The choices are in the order of their encoders.
    OLCodecList(OLEncoderSetPointer set, int current, std::span<const OLEncoderChoice> choices);

    // A copy has the same choices and objects of its own.
    OLCodecList(const OLCodecList &other);
    OLCodecList(OLCodecList &&other) = default;
    OLCodecList &operator=(const OLCodecList &other);
    OLCodecList &operator=(OLCodecList &&other) = default;
    ~OLCodecList() = default;

    const OLEncoderSetPointer &Set() const { return m_set; } // empty where there are no encoders
    std::vector<OLEncoderChoice> Choices() const;

    int Count() const;
    std::shared_ptr<OLCodecPreset> At(int index) const;
    int CurrentIndex() const { return m_current; }
    void SetCurrentIndex(int index);

private:
    bool Contains(int index) const { return index >= 0 && index < Count(); }
    OLOptionIndices OptionsOf(int index) const;
    void Keep(std::span<const OLEncoderChoice> choices);
    std::span<const OLEncoderChoice> FirstChoices() const;
    std::vector<OLEncoderChoice> ChoicesOfCodecs() const; // where there are objects

    // There are many lists, and few of them are ever asked for their objects.
    OLEncoderSetPointer m_set;
    std::unique_ptr<OLEncoderChoice[]> m_choices; // by encoder, before any object was made
    mutable std::unique_ptr<std::shared_ptr<OLCodecPreset>[]> m_codecs; // one for each encoder
    int m_choiceCount = 0;
    int m_current = -1;
};

} // namespace Orlimo
