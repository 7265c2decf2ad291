#pragma once

#include <QRect>

namespace Orlimo {

// Where the parts of a row stand inside the row's rectangle, in logical pixels. Right and bottom
// edges are inclusive, as everywhere in QRect.

inline constexpr int OLRowHeight = 53;

QRect RowIconBox(const QRect &row);
QRect RowActionBox(const QRect &row);
QRect NodeTitleBox(const QRect &row);
QRect PresetTitleBox(const QRect &row, QSize titleSize);

// The box of a description that begins at left. Too narrow for any text, it is not drawn at all.
QRect DescriptionBox(const QRect &row, int left);
bool HoldsDescription(const QRect &descriptionBox);

// The left edge of a preset row's description: textWidth if it is 1 or more, otherwise right of
// both the middle and the title's right edge.
int PresetDescriptionLeft(const QRect &row, int textWidth, int titleRight);

// The left edge of a recent row's description, whatever the length of its title.
int RecentDescriptionLeft(const QRect &row);

} // namespace Orlimo
