#include "RPFmtRows.h"

#include "RPFmtItemDataWdg.h"
#include "RPFmtItemGeometry.h"

#include <QIcon>
#include <QListWidget>
#include <QPixmap>
#include <QScrollBar>

namespace Orlimo {

namespace {

// The texts that assistive technology reads are those of the row at the time it asks, so they
// follow a change of language as the painted ones do.
class RowItem final : public QListWidgetItem
{
public:
    using QListWidgetItem::QListWidgetItem;

    QVariant data(int role) const override
    {
        if (role == Qt::AccessibleTextRole)
            return Row() ? Row()->Title() : QString();
        if (role == Qt::AccessibleDescriptionRole)
            return Row() ? Row()->Description() : QString();
        return QListWidgetItem::data(role);
    }

private:
    const RPFmtItemDataWdg *Row() const
    {
        auto *item = const_cast<RowItem *>(this); // which itemWidget() only looks up
        return listWidget() ? qobject_cast<RPFmtItemDataWdg *>(listWidget()->itemWidget(item))
                            : nullptr;
    }
};

void AddItem(QListWidget &list)
{
    auto *item = new RowItem(&list);
    item->setSizeHint(QSize(0, OLRowHeight));
}

void AddItems(QListWidget &list, int count)
{
    for (int i = 0; i < count; ++i)
        AddItem(list);
}

void RemoveItemsFrom(QListWidget &list, int row)
{
    while (list.count() > row)
        delete list.takeItem(list.count() - 1);
}

} // namespace

void SetUpRowList(QListWidget &list)
{
    list.setSelectionMode(QAbstractItemView::SingleSelection);
    list.verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
    list.horizontalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
}

// QIcon would decode the file each time; QPixmap keeps it in Qt's cache.
QIcon ActionIcon(const QString &file)
{
    return QIcon(QPixmap(file));
}

void FillRows(QListWidget &list, const std::function<int()> &count,
              const std::function<void(RPFmtItemDataWdg &row, int index)> &setUpRow)
{
    AddItems(list, count());
    int i = 0;
    for (; i < count(); ++i) {
        if (i == list.count())
            AddItem(list);
        auto *row = new RPFmtItemDataWdg(&list);
        row->setMouseTracking(true);
        setUpRow(*row, i);
        list.setItemWidget(list.item(i), row);
    }
    RemoveItemsFrom(list, i);
}

} // namespace Orlimo
