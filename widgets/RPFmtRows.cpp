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
    const int before = list.count();
    const int expected = count();
    for (int i = 0; i < expected; ++i)
        AddItem(list);
    int i = 0;
    for (; i < count(); ++i) {
        if (i >= expected)
            AddItem(list);
        auto *row = new RPFmtItemDataWdg(&list);
        row->setMouseTracking(true);
        setUpRow(*row, i);
        list.setItemWidget(list.item(before + i), row);
    }
    for (int left = expected - 1; left >= i; --left)
        delete list.takeItem(before + left);
}

} // namespace Orlimo
