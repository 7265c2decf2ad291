#include "RowClicks.h"

#include <QTest>
#include <QWindow>

namespace Test {

QRect RowOnScreen(const QListWidget &list, int row)
{
    const QRect box = list.visualItemRect(list.item(row));
    return { list.viewport()->mapToGlobal(box.topLeft()), box.size() };
}

QRect ActionBoxOnScreen(const QListWidget &list, int row)
{
    const QRect box = RowOnScreen(list, row);
    return { box.right() - 27, box.center().y() - 8, 17, 17 };
}

void ClickOnScreen(QWidget &widget, QPoint point, Qt::KeyboardModifiers modifiers)
{
    QCursor::setPos(point);
    QWindow *window = widget.window()->windowHandle();
    QTest::mouseClick(window, Qt::LeftButton, modifiers, window->mapFromGlobal(point));
}

void ClickRow(QListWidget &list, int row, Qt::KeyboardModifiers modifiers)
{
    const QRect box = RowOnScreen(list, row);
    ClickOnScreen(list, { box.left() + 20, box.center().y() }, modifiers);
}

void ClickAction(QListWidget &list, int row)
{
    ClickOnScreen(list, ActionBoxOnScreen(list, row).center());
}

void ClickTrashOfRecent(QListWidget &list, int row)
{
    const QListWidgetItem *item = list.item(row);
    ClickAction(list, row);
    if (item && list.row(item) < 0)
        delete item;
}

QStringList RowTitles(const QListWidget &list)
{
    QStringList titles;
    for (int row = 0; row < list.count(); ++row)
        titles.append(list.item(row)->data(Qt::AccessibleTextRole).toString());
    return titles;
}

} // namespace Test
