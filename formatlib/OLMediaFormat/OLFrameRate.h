#pragma once

#include <string>

namespace Orlimo {

/// One entry of an encoder's list of frame rates: frames per second as a fraction. A plain value.
struct OLFrameRate
{
    std::string text;    ///< what the user sees (UTF-8), translated at display
    int numerator = 0;   ///< 0 for the rate of the source
    int denominator = 0; ///< 0 for the rate of the source

    const std::string &FrameRateText() const { return text; }

    bool operator==(const OLFrameRate &) const = default;
};

} // namespace Orlimo
