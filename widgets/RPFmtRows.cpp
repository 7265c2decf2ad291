#include "RPFmtRows.h"

#include "RPFmtItemDataWdg.h"
#include "RPFmtItemGeometry.h"

#include <QListWidget>
#include <QScrollBar>

namespace Orlimo {

void SetUpRowList(QListWidget &list)
{
    list.setSelectionMode(QAbstractItemView::SingleSelection);
    list.verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
    list.horizontalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
}

void FillRows(QListWidget &list, int count,
              const std::function<void(RPFmtItemDataWdg &row, int index)> &setUpRow)
{
    for (int i = 0; i < count; ++i) {
        auto *item = new QListWidgetItem(&list);
        item->setSizeHint(QSize(0, OLRowHeight));
    }
    for (int i = 0; i < count; ++i) {
        auto *row = new RPFmtItemDataWdg(&list);
        row->setMouseTracking(true);
        setUpRow(*row, i);
        QListWidgetItem *item = list.item(i);
        item->setData(Qt::AccessibleTextRole, row->Title());
        item->setData(Qt::AccessibleDescriptionRole, row->Description());
        list.setItemWidget(item, row);
    }
}

} // namespace Orlimo
