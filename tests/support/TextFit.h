#pragma once

#include <QFontDatabase>
#include <QWidget>

namespace Test {

// The width of the text in the widget's font, in logical pixels.
inline int WidthOf(const QWidget &widget, const QString &text)
{
    return widget.fontMetrics().horizontalAdvance(text);
}

// Without one, Japanese texts are measured as boxes.
inline bool HasJapaneseFont()
{
    return !QFontDatabase::families(QFontDatabase::Japanese).isEmpty();
}

} // namespace Test
