#include "RPFmtRecentListWdg.h"

#include "IOLFmtPresetDataSource.h"
#include "RPFmtItemDataWdg.h"
#include "RPFmtRows.h"

namespace Orlimo {

namespace {

using namespace Qt::StringLiterals;

} // namespace

RPFmtRecentListWdg::RPFmtRecentListWdg(QWidget *parent)
    : QWidget(parent)
{
    ui.setupUi(this);
    SetUpRowList(*ui.lwRecentList);
    connect(ui.lwRecentList, &QListWidget::itemClicked, this,
            &RPFmtRecentListWdg::ListRecentClicked);
}

RPFmtRecentListWdg::~RPFmtRecentListWdg() = default;

void RPFmtRecentListWdg::RefreshRecentList()
{
    const RecentItems items = IOLFmtPresetDataSource::Shared()->GetRecentItems();
    FillRecentList(items);
    if (!items.empty())
        ui.lwRecentList->setCurrentRow(0);
}

void RPFmtRecentListWdg::SearchRecentList(const QString &text)
{
    if (!searchResult)
        searchResult = std::make_unique<RecentItems>();
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    *searchResult = dataSource->FilterRecentItems(dataSource->GetRecentItems(), text.toStdString());
    FillRecentList(*searchResult);
    ui.lwRecentList->setCurrentRow(0);
}

void RPFmtRecentListWdg::ResetRecentSearch()
{
    searchResult.reset();
    RefreshRecentList();
}

void RPFmtRecentListWdg::FillRecentList(RecentItems items)
{
    ui.lwRecentList->clear();
    const QIcon icon = ActionIcon(u":/OLMediaFormatPopup/trash.png"_s);
    const auto setUpRow = [&](RPFmtItemDataWdg &row, int index) {
        row.recentItem = items[static_cast<std::size_t>(index)];
        row.actionIcon = icon;
    };
    FillRows(
            *ui.lwRecentList, [&] { return static_cast<int>(items.size()); }, setUpRow);
}

// Either branch leads out of here and may rebuild the list, so the row is not looked at afterwards.
void RPFmtRecentListWdg::ListRecentClicked(QListWidgetItem *item)
{
    const auto *row = qobject_cast<RPFmtItemDataWdg *>(ui.lwRecentList->itemWidget(item));
    if (!row)
        return;
    const auto recentItem = row->recentItem;
    if (row->GetActionGlobalRect().contains(QCursor::pos()))
        DeleteClicked(item, recentItem);
    else if (recentSelected)
        recentSelected(recentItem);
}

// The taken item is left to live for ever: somebody may still hold it.
void RPFmtRecentListWdg::DeleteClicked(QListWidgetItem *item,
                                       const std::shared_ptr<IOLFmtPresetRecentItem> &recentItem)
{
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    dataSource->RemoveRecentItem(recentItem);
    dataSource->SaveRecentPresets();
    ui.lwRecentList->takeItem(ui.lwRecentList->row(item));
}

} // namespace Orlimo
