#include "OLMediaCodecs.h"

namespace Orlimo {

const std::string OLFormatNameMP4 = "MP4";

} // namespace Orlimo
