#pragma once

#include "olmediacodecs_export.h"

#include <string>

namespace Orlimo {

/// The name of the MP4 container format (ISO/IEC 14496-14), "MP4".
///
/// Initialised when the library is loaded; may be read on any thread until it is unloaded.
OLMEDIACODECS_EXPORT extern const std::string OLFormatNameMP4;

} // namespace Orlimo
