#pragma once

#include <QString>

namespace Orlimo {

// Packs the PNG files of a folder into one artwork file. A file's name begins with its face id and
// a minus sign or a point ("1001-mp4.png", "1001.png"); sub-folders count too, so that each size
// can have its own. Returns an empty text, or the reason for which nothing was written.
QString PackArtwork(const QString &folder, const QString &artworkFile);

} // namespace Orlimo
