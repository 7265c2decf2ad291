#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>

namespace Test {

// What a widget paints on white.
QImage GrabOnWhite(QWidget &widget);

// The smallest rectangle that holds every pixel of region with another colour than white.
QRect InkBox(const QImage &image, const QRect &region);

// The smallest rectangle that holds every pixel of this colour; empty if it has pixels of another.
QRect SolidBox(const QImage &image, QColor color);

// An icon of one colour and size.
QPixmap SolidPixmap(QSize size, QColor color);

} // namespace Test
