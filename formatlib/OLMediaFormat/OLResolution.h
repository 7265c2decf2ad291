#pragma once

#include <string>

namespace Orlimo {

/// One entry of an encoder's list of picture sizes. A plain value.
struct OLResolution
{
    std::string text; ///< what the user sees (UTF-8), translated at display
    int width = 0;    ///< in pixels; 0 for the size of the source
    int height = 0;   ///< in pixels; 0 for the size of the source

    const std::string &ResolutionText() const { return text; }

    bool operator==(const OLResolution &) const = default;
};

} // namespace Orlimo
