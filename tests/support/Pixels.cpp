#include "Pixels.h"

#include <QPixmap>

namespace Test {

namespace {

template<class Matches>
QRect BoxOf(const QImage &image, const QRect &region, Matches matches)
{
    QRect box;
    for (int y = region.top(); y <= region.bottom(); ++y) {
        for (int x = region.left(); x <= region.right(); ++x) {
            if (matches(image.pixelColor(x, y)))
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

} // namespace

QImage GrabOnWhite(QWidget &widget)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Window, Qt::white);
    widget.setPalette(palette);
    widget.setAutoFillBackground(true);
    return widget.grab().toImage();
}

QRect InkBox(const QImage &image, const QRect &region)
{
    return BoxOf(image, region & image.rect(),
                 [](const QColor &pixel) { return pixel != QColor(Qt::white); });
}

QRect SolidBox(const QImage &image, QColor color)
{
    const auto isColor = [&](const QColor &pixel) { return pixel == color; };
    const QRect box = BoxOf(image, image.rect(), isColor);
    const auto isOther = [&](const QColor &pixel) { return !isColor(pixel); };
    return BoxOf(image, box, isOther).isEmpty() ? box : QRect();
}

QPixmap SolidPixmap(QSize size, QColor color)
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    return pixmap;
}

} // namespace Test
