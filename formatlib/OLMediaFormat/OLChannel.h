#pragma once

#include <string>

namespace Orlimo {

/// One entry of an encoder's list of channel counts. A plain value.
struct OLChannel
{
    std::string text; ///< what the user sees (UTF-8), translated at display
    int channels = 0; ///< 0 for the channels of the source

    const std::string &ChannelText() const { return text; }

    bool operator==(const OLChannel &) const = default;
};

} // namespace Orlimo
