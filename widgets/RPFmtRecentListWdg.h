#pragma once

#include "ui_RPFmtRecentListWdg.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace Orlimo {

class IOLFmtPresetRecentItem;

// The page of the recent choices, the newest first.
class RPFmtRecentListWdg final : public QWidget
{
    Q_OBJECT

    Ui::RPFmtRecentListWdgClass ui;

public:
    explicit RPFmtRecentListWdg(QWidget *parent);
    ~RPFmtRecentListWdg() override;

    std::function<void(std::shared_ptr<IOLFmtPresetRecentItem>)> recentSelected;

    // Shows the data source's recent choices; a search result, if there is one, is kept.
    void RefreshRecentList();

    // Shows those recent choices that match text; all of them for an empty text.
    void SearchRecentList(const QString &text);

    // Drops the search result and shows all recent choices.
    void ResetRecentSearch();

    QListWidget *List() const { return ui.lwRecentList; }

public Q_SLOTS:
    void ListRecentClicked(QListWidgetItem *item);

private:
    using RecentItems = std::vector<std::shared_ptr<IOLFmtPresetRecentItem>>;

    void FillRecentList(RecentItems items);
    void DeleteClicked(QListWidgetItem *item,
                       const std::shared_ptr<IOLFmtPresetRecentItem> &recentItem);

    std::unique_ptr<RecentItems> searchResult;
};

} // namespace Orlimo
