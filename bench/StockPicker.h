#pragma once

#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <QWidget>

namespace Orlimo {
class IOLFormatNode;
}

namespace Bench {

constexpr QSize popupSize { 800, 600 };

// What a host would put together from Qt's own classes to search a category by the names and
// descriptions of its formats and presets: a filtered tree under a search box.
//
// The tree shows what the picker does, all formats and the presets of the first: only that one is
// expanded after a search, because expanding all takes many times as long.
class StockPicker final : public QWidget
{
public:
    explicit StockPicker(Orlimo::IOLFormatNode &category);

    QLineEdit *SearchBox() { return &m_searchBox; }

private:
    void Fill(Orlimo::IOLFormatNode &category);
    void Search(const QString &text);
    void ExpandFirstFormat();

    QStandardItemModel m_model;
    QSortFilterProxyModel m_filter;
    QLineEdit m_searchBox;
    QTreeView m_view;
};

} // namespace Bench
