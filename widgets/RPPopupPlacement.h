#pragma once

#include <QPoint>
#include <QRect>

namespace Orlimo {

// Where a popup of the given size goes beside anchor on a screen with the given available area, all
// in logical pixels of the desktop.
//
// In the left half of the screen it is aligned with the anchor's left edge, pushed left as far as
// the area needs; in the right half it stands left of the anchor by the anchor's width. In the
// lower half it stands above the anchor, in the upper half on the anchor's top edge, pushed up as
// far as the area needs. The halves and the last push count from the desktop's origin, not the
// area's.
QPoint PlacePopup(const QRect &anchor, const QRect &available, QSize size);

} // namespace Orlimo
