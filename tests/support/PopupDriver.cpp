#include "PopupDriver.h"

#include "RowClicks.h"

#include <QApplication>
#include <QTabBar>
#include <QTest>

namespace Test {

namespace {

using namespace Qt::StringLiterals;

} // namespace

void ClickAt(QWidget *widget, QPoint point, Qt::MouseButton button)
{
    QCursor::setPos(widget->mapToGlobal(point));
    QTest::mouseClick(widget, button, {}, point);
}

QWidget *PopupDriver::FindPopup()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == "RPFmtSelectionDlgClass"_L1)
            return widget;
    }
    return nullptr;
}

QTabWidget *PopupDriver::Tabs() const
{
    return m_popup->findChild<QTabWidget *>(u"tabWidget"_s);
}

QLineEdit *PopupDriver::SearchBox() const
{
    return Tabs()->findChild<QLineEdit *>({}, Qt::FindDirectChildrenOnly);
}

QListWidget *PopupDriver::List(const char *name) const
{
    return Tabs()->currentWidget()->findChild<QListWidget *>(QString::fromLatin1(name));
}

QStringList PopupDriver::TabTexts() const
{
    QStringList texts;
    for (int i = 0; i < Tabs()->count(); ++i)
        texts.append(Tabs()->tabText(i));
    return texts;
}

QStringList PopupDriver::RowTexts(const char *list) const
{
    return RowTitles(*List(list));
}

void PopupDriver::SwitchTab(const QString &text) const
{
    QTabBar *bar = Tabs()->tabBar();
    ClickAt(bar, bar->tabRect(static_cast<int>(TabTexts().indexOf(text))).center());
}

void PopupDriver::TypeSearch(const QString &text) const
{
    ClickAt(SearchBox(), SearchBox()->rect().center());
    QTest::keyClicks(SearchBox(), text);
}

void PopupDriver::ClickRow(const char *list, int row) const
{
    Test::ClickRow(*List(list), row);
}

void PopupDriver::ClickAction(const char *list, int row) const
{
    Test::ClickAction(*List(list), row);
}

} // namespace Test
