#include "StockPicker.h"

#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <QVBoxLayout>

using namespace Orlimo;

namespace Bench {

namespace {

constexpr int allColumns = -1;

QList<QStandardItem *> Row(const std::string &name, const std::string &description)
{
    return { new QStandardItem(QString::fromStdString(name)),
             new QStandardItem(QString::fromStdString(description)) };
}

} // namespace

StockPicker::StockPicker(IOLFormatNode &category)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint)
{
    setFixedSize(popupSize);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(&m_searchBox);
    layout->addWidget(&m_view);
    Fill(category);
    m_filter.setRecursiveFilteringEnabled(true);
    m_filter.setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_filter.setFilterKeyColumn(allColumns);
    m_filter.setSourceModel(&m_model);
    m_view.setUniformRowHeights(true);
    m_view.setModel(&m_filter);
    ExpandFirstFormat();
    connect(&m_searchBox, &QLineEdit::textChanged, this, &StockPicker::Search);
}

void StockPicker::Fill(IOLFormatNode &category)
{
    for (int i = 0; i < category.ChildCount(); ++i) {
        const auto format = category.ChildAt(i);
        const auto row = Row(format->Name(), format->Description());
        for (int j = 0; j < format->PresetCount(); ++j) {
            const auto preset = format->PresetAt(j);
            row.first()->appendRow(Row(preset->Name(), preset->Description()));
        }
        m_model.appendRow(row);
    }
}

void StockPicker::Search(const QString &text)
{
    m_filter.setFilterFixedString(text);
    ExpandFirstFormat();
}

void StockPicker::ExpandFirstFormat()
{
    m_view.expand(m_filter.index(0, 0));
}

} // namespace Bench
