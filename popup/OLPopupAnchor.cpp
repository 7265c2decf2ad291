#include "OLPopupAnchor.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Orlimo {

namespace {

using Limits = std::numeric_limits<int>;

int Truncated(float value)
{
    if (std::isnan(value))
        return 0;
    return static_cast<int>(std::clamp<double>(value, Limits::min(), Limits::max()));
}

int LastPixel(int first, int length)
{
    const qint64 last = qint64(first) + length - 1;
    return static_cast<int>(std::clamp<qint64>(last, Limits::min(), Limits::max()));
}

} // namespace

QRect ToAnchor(const PopupRect &rect)
{
    const int left = Truncated(rect.x);
    const int top = Truncated(rect.y);
    return { QPoint(left, top),
             QPoint(LastPixel(left, Truncated(rect.width)),
                    LastPixel(top, Truncated(rect.height))) };
}

QRect ToAnchor(const PopupPoint &point)
{
    const QPoint pixel(Truncated(point.x), Truncated(point.y));
    return { pixel, pixel };
}

} // namespace Orlimo
