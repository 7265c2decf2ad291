#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>

namespace Test {

// Works the picker's popup as a user does, with the mouse and the keyboard.
class PopupDriver
{
public:
    explicit PopupDriver(QWidget *popup)
        : m_popup(popup)
    {
    }

    // The process's popup, null as long as it was never shown.
    static QWidget *FindPopup();

    QTabWidget *Tabs() const;
    QLineEdit *SearchBox() const;
    QListWidget *List(const char *name) const; // on the current page

    QStringList TabTexts() const;
    QStringList RowTexts(const char *list) const; // of the current page

    void SwitchTab(const QString &text) const;
    void TypeSearch(const QString &text) const;
    void ClickRow(const char *list, int row) const; // left of the action icon
    void ClickAction(const char *list, int row) const;

private:
    QWidget *m_popup;
};

// Puts the mouse pointer on a point of the widget and presses and releases a button there.
void ClickAt(QWidget *widget, QPoint point, Qt::MouseButton button = Qt::LeftButton);

} // namespace Test
