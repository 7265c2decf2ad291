#pragma once

#include <string>

namespace Orlimo {

/// One entry of an encoder's list of sample rates. A plain value.
struct OLSampleRate
{
    std::string text; ///< what the user sees (UTF-8), translated at display
    int hertz = 0;    ///< samples per second; 0 for the rate of the source

    const std::string &SampleRateText() const { return text; }

    bool operator==(const OLSampleRate &) const = default;
};

} // namespace Orlimo
