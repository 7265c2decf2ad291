#pragma once

#include <QListWidget>

namespace Test {

// Where a row of a visible list, and the box of its action icon, are on the screen: the box has 17
// by 17 pixels, is centred vertically and ends 11 pixels before the row's right edge.
QRect RowOnScreen(const QListWidget &list, int row);
QRect ActionBoxOnScreen(const QListWidget &list, int row);

// Moves the mouse pointer to a point of the screen, and presses and releases the left button there;
// the window under it gets the events as from the window system.
void ClickOnScreen(QWidget &widget, QPoint point, Qt::KeyboardModifiers modifiers = {});

// Clicks a row left of its action icon.
void ClickRow(QListWidget &list, int row, Qt::KeyboardModifiers modifiers = {});
void ClickAction(QListWidget &list, int row);

// Clicks the action icon of a recent choice, which takes its row out of the list. The item, which
// the list leaves to nobody, is deleted here.
void ClickTrashOfRecent(QListWidget &list, int row);

// The titles of the rows, as assistive technology reads them.
QStringList RowTitles(const QListWidget &list);

} // namespace Test
