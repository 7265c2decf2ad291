#include "RPPopupPlacement.h"

#include <algorithm>
#include <limits>

namespace Orlimo {

namespace {

// Hosts may give coordinates anywhere in the range of int, so nothing is computed in int.
using Wide = qint64;

int Narrow(Wide coordinate)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<Wide>(coordinate, Limits::min(), Limits::max()));
}

Wide PlaceHorizontally(const QRect &anchor, const QRect &available, Wide width)
{
    const Wide left = anchor.left();
    if (available.width() * 0.5 < static_cast<double>(left))
        return std::max<Wide>(2 * left - anchor.right() - width - 1, 0);
    return left + width > available.right() ? available.right() - width : left;
}

Wide PlaceVertically(const QRect &anchor, const QRect &available, Wide height)
{
    const Wide bottom = anchor.bottom();
    if (static_cast<double>(bottom) > available.height() * 0.5)
        return std::max<Wide>(anchor.top() - height, 0);
    if (bottom + height >= available.height())
        return available.height() - height;
    return anchor.top() - Wide(1);
}

} // namespace

QPoint PlacePopup(const QRect &anchor, const QRect &available, QSize size)
{
    return { Narrow(PlaceHorizontally(anchor, available, size.width())),
             Narrow(PlaceVertically(anchor, available, size.height())) };
}

} // namespace Orlimo
