#include "Picker.h"

#include "Scenes.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLMediaFormatPopup.h"
#include "RPFmtSelectionDlg.h"

#include <QApplication>

using namespace Orlimo;

namespace Bench {

namespace {

class Popup final : public Picker
{
public:
    void Show() override { IOLMediaFormatPopup::Shared()->ShowFormatPopupAt({ 0, 0 }, {}); }

    QWidget *Window() const override
    {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (qobject_cast<RPFmtSelectionDlg *>(window))
                return window;
        }
        qFatal("there is no popup");
    }

    void ExpectSearch(const QString &) override { }
};

// Looks all numbers of rows up before they are asked for, to have no part in what is measured.
class Bare final : public Picker
{
public:
    Bare()
        : m_categories(CategoryRows())
    {
    }

    void Show() override
    {
        if (!m_window) {
            m_window = std::make_unique<BarePicker>();
            m_window->AddCategories(m_categories);
        }
        Bench::Show(*m_window);
    }

    QWidget *Window() const override { return m_window.get(); }

    void ExpectSearch(const QString &key) override
    {
        const auto dataSource = IOLFmtPresetDataSource::Shared();
        const auto category = dataSource->GetDefaultFormatNode()->ChildAt(0);
        m_window->SetFound(
                RowsOf(*dataSource->SearchFormatNode(category, key.toStdString(), nullptr)));
    }

private:
    const QList<PageRows> m_categories;
    std::unique_ptr<BarePicker> m_window;
};

} // namespace

QList<PageRows> CategoryRows()
{
    const auto root = IOLFmtPresetDataSource::Shared()->GetDefaultFormatNode();
    QList<PageRows> rows;
    for (int i = 0; i < root->ChildCount(); ++i)
        rows.append(RowsOf(*root->ChildAt(i)));
    return rows;
}

void Show(QWidget &window)
{
    window.show();
    window.activateWindow();
}

std::unique_ptr<Picker> Picker::Of(const QString &kind)
{
    if (kind == QLatin1StringView(popupPicker))
        return std::make_unique<Popup>();
    if (kind == QLatin1StringView(barePicker))
        return std::make_unique<Bare>();
    qFatal("there is no picker %s", qUtf8Printable(kind));
}

QTabWidget *Picker::Tabs() const
{
    return Window()->findChild<QTabWidget *>();
}

QLineEdit *Picker::SearchBox() const
{
    return Window()->findChild<QLineEdit *>();
}

} // namespace Bench
