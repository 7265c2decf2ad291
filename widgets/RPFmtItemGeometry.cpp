#include "RPFmtItemGeometry.h"

#include <algorithm>

namespace Orlimo {

namespace {

constexpr int iconLeft = 10;
constexpr int iconSide = 33;
constexpr int actionSide = 17;
constexpr int actionOffset = 27; // from the row's right edge to the action box's left edge
constexpr int gap = 10;
constexpr int narrowestDescription = 40;

int TextLeft(const QRect &row)
{
    return RowIconBox(row).right() + gap;
}

} // namespace

QRect RowIconBox(const QRect &row)
{
    return { iconLeft, row.center().y() - iconSide / 2, iconSide, iconSide };
}

QRect RowActionBox(const QRect &row)
{
    return { row.right() - actionOffset, row.center().y() - actionSide / 2, actionSide,
             actionSide };
}

QRect NodeTitleBox(const QRect &row)
{
    const QRect icon = RowIconBox(row);
    return { TextLeft(row), icon.top(), row.right() - icon.right() - 2 * gap, icon.height() };
}

QRect PresetTitleBox(const QRect &row, QSize titleSize)
{
    const int top = RowIconBox(row).center().y() - titleSize.height() / 2;
    return { QPoint(TextLeft(row), top), titleSize };
}

QRect DescriptionBox(const QRect &row, int left)
{
    const QRect action = RowActionBox(row);
    return { left, action.top(), action.left() - left - gap, action.height() };
}

bool HoldsDescription(const QRect &descriptionBox)
{
    return descriptionBox.width() > narrowestDescription;
}

int PresetDescriptionLeft(const QRect &row, int textWidth, int titleRight)
{
    if (textWidth >= 1)
        return textWidth;
    return std::max(row.center().x() + 30, titleRight + gap);
}

int RecentDescriptionLeft(const QRect &row)
{
    return std::max(row.center().x() - 80, TextLeft(row));
}

} // namespace Orlimo
