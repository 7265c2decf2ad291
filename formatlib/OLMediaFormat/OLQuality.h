#pragma once

#include <string>

namespace Orlimo {

/// One entry of an encoder's list of qualities. At most one of the figures is given. A plain value.
struct OLQuality
{
    std::string text;            ///< what the user sees (UTF-8), translated at display
    int constantRateFactor = -1; ///< 0 or more, lower is better; −1 where it is not used
    int bitRate = 0;             ///< in bits per second; 0 where it is not used
    int bitDepth = 0;            ///< in bits per sample; 0 where it is not used

    const std::string &QualityText() const { return text; }

    bool operator==(const OLQuality &) const = default;
};

} // namespace Orlimo
