#pragma once

#include "IOLMediaFormatPopup.h"

#include <QRect>

namespace Orlimo {

// The pixels that a host's rectangle covers, each of its four values cut off toward zero; a width
// or height of 0 gives a right or bottom edge before the left or top one. Not a number counts as 0,
// and what lies beyond the range of int as its limit.
QRect ToAnchor(const PopupRect &rect);

// The one pixel that a host's point lies in.
QRect ToAnchor(const PopupPoint &point);

} // namespace Orlimo
