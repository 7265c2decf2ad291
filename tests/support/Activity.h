#pragma once

#include <QApplication>

namespace Test {

// Whether the application has been told that the window is active. Windows knows it earlier, and
// QWidget::isActiveWindow() asks it.
inline bool IsActive(const QWidget &window)
{
    return QApplication::activeWindow() == &window;
}

} // namespace Test
