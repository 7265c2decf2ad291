#pragma once

#include <QIcon>

namespace Orlimo {

// The data source's icon for a face id; null where there is no artwork for it.
QIcon ArtworkIcon(int faceID);

} // namespace Orlimo
