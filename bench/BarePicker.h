#pragma once

#include "ui_RPFmtNodeWdg.h"
#include "ui_RPFmtSelectionDlg.h"

#include <QLineEdit>
#include <QList>
#include <QWidget>

namespace Orlimo {
class IOLFormatNode;
}

namespace Bench {

// How many rows a page of the picker shows of a category: its formats, and the presets of the first
// one.
struct PageRows
{
    int formats = 0;
    int presets = 0;
};

PageRows RowsOf(const Orlimo::IOLFormatNode &category);

// The page of a category, with a plain widget for each row.
class BareNodePage final : public QWidget
{
public:
    explicit BareNodePage(QWidget *parent);

    void Show(PageRows rows);

private:
    Ui::RPFmtNodeWdgClass m_ui;
};

// The picker without anything of its own: the forms and, for every row that the picker shows, a
// plain widget in its place. It has no data, texts or icons, and its rows paint nothing, so what it
// takes is what Qt takes for these widgets.
class BarePicker final : public QWidget
{
public:
    BarePicker();

    // Adds a page for each category and shows the first one, in the steps of the picker.
    void AddCategories(const QList<PageRows> &categories);

    // Every search finds so much from now on; an empty text shows the whole category again.
    void SetFound(PageRows found) { m_found = found; }

    QTabWidget *Tabs() { return m_ui.tabWidget; }

private:
    void Search(const QString &text);

    Ui::RPFmtSelectionDlgClass m_ui;
    QLineEdit *m_searchBox = nullptr;
    QList<PageRows> m_categories;
    PageRows m_found;
};

} // namespace Bench
