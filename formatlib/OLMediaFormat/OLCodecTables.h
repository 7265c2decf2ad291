#pragma once

#include "OLChannel.h"
#include "OLFrameRate.h"
#include "OLQuality.h"
#include "OLResolution.h"
#include "OLSampleRate.h"

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

namespace Orlimo {

// The tables that presets refer to. They are read once and shared, and never change afterwards.

// The options of one list of an encoder, under its id in the document it was read from.
template<class Option>
struct OLOptionList
{
    std::string id;
    std::vector<Option> options;
};

template<class Option>
using OLOptionListPointer = std::shared_ptr<const OLOptionList<Option>>;

using OLOptionLists = std::tuple<OLOptionListPointer<OLResolution>,
                                 OLOptionListPointer<OLFrameRate>, OLOptionListPointer<OLQuality>,
                                 OLOptionListPointer<OLChannel>, OLOptionListPointer<OLSampleRate>>;

// The current index of each of an encoder's lists, in the order of OLOptionLists.
using OLOptionIndices = std::array<int, std::tuple_size_v<OLOptionLists>>;

inline constexpr OLOptionIndices OLNoOptions = { -1, -1, -1, -1, -1 };

// The place of an option type's list in OLOptionLists and of its index in OLOptionIndices.
template<class Option, std::size_t slot = 0>
constexpr std::size_t OLOptionSlot()
{
    using Candidate = std::tuple_element_t<slot, OLOptionLists>;
    if constexpr (std::is_same_v<Candidate, OLOptionListPointer<Option>>)
        return slot;
    else
        return OLOptionSlot<Option, slot + 1>();
}

enum class OLEncoderKind { Video, Audio };

struct OLEncoder
{
    std::string id;
    OLEncoderKind kind = OLEncoderKind::Video;
    std::string name;
    bool automatic = false;
    OLOptionLists lists; // an absent list is empty
    OLOptionIndices defaults = OLNoOptions;

    template<class Option>
    const OLOptionListPointer<Option> &List() const
    {
        return std::get<OLOptionListPointer<Option>>(lists);
    }

    template<class Option>
    int OptionCount() const
    {
        const auto &list = List<Option>();
        return list ? static_cast<int>(list->options.size()) : 0;
    }
};

using OLEncoderPointer = std::shared_ptr<const OLEncoder>;

// The encoders of one kind that a preset offers, in the order in which they are shown.
struct OLEncoderSet
{
    std::string id;
    OLEncoderKind kind = OLEncoderKind::Video;
    std::vector<OLEncoderPointer> encoders;
};

using OLEncoderSetPointer = std::shared_ptr<const OLEncoderSet>;

} // namespace Orlimo
