#include "BarePicker.h"

#include "ui_RPFmtRecentListWdg.h"

#include "IOLFormatNode.h"
#include "RPFmtItemGeometry.h"
#include "StockPicker.h"

using namespace Orlimo;

namespace Bench {

namespace {

constexpr QRect searchArea { 617, 0, 160, 24 };

class RecentPage final : public QWidget
{
public:
    explicit RecentPage(QWidget *parent)
        : QWidget(parent)
    {
        Ui::RPFmtRecentListWdgClass().setupUi(this);
    }
};

// Empties the list and makes a plain widget for each row, all items first.
void FillWithBareRows(QListWidget &list, int rows)
{
    list.clear();
    for (int i = 0; i < rows; ++i)
        (new QListWidgetItem(&list))->setSizeHint(QSize(0, OLRowHeight));
    for (int i = 0; i < rows; ++i)
        list.setItemWidget(list.item(i), new QWidget(&list));
}

} // namespace

BareNodePage::BareNodePage(QWidget *parent)
    : QWidget(parent)
{
    m_ui.setupUi(this);
}

void BareNodePage::Show(PageRows rows)
{
    FillWithBareRows(*m_ui.ListNode, rows.formats);
    FillWithBareRows(*m_ui.ListFormat, rows.presets);
}

PageRows RowsOf(const IOLFormatNode &category)
{
    const auto first = category.FirstChild();
    return { category.ChildCount(), first ? first->PresetCount() : 0 };
}

BarePicker::BarePicker()
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint)
{
    m_ui.setupUi(this);
    setFixedSize(popupSize);
    m_ui.tabWidget->clear();
    m_ui.tabWidget->addTab(new RecentPage(m_ui.tabWidget), {});
    m_ui.tabWidget->addTab(new BareNodePage(m_ui.tabWidget), {});
    m_searchBox = new QLineEdit(m_ui.tabWidget);
    m_searchBox->setGeometry(searchArea);
    connect(m_searchBox, &QLineEdit::textChanged, this, &BarePicker::Search);
    m_ui.tabWidget->setCurrentIndex(1);
}

void BarePicker::AddCategories(const QList<PageRows> &categories)
{
    for (const PageRows rows : categories) {
        auto *page = new BareNodePage(m_ui.tabWidget);
        m_ui.tabWidget->insertTab(m_ui.tabWidget->count() - 1, page, {});
        page->Show(rows);
    }
    m_categories = categories;
    m_ui.tabWidget->setCurrentIndex(1);
}

void BarePicker::Search(const QString &text)
{
    auto *page = static_cast<BareNodePage *>(m_ui.tabWidget->currentWidget());
    page->Show(text.isEmpty() ? m_categories.at(m_ui.tabWidget->currentIndex() - 1) : m_found);
}

} // namespace Bench
