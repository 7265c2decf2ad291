#include "WidgetLocator.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTabBar>
#include <QTableWidget>
#include <QWidget>

#include <cstdio>
#include <mutex>
#include <optional>
#include <thread>

namespace Host {

using namespace Qt::StringLiterals;

namespace {

constexpr int standardInput = 0;

struct Place
{
    QRect area; // on the screen
    QString text;
};

using MaybePlace = std::optional<Place>;

QRect OnScreen(const QWidget &widget, const QRect &area)
{
    return { widget.mapToGlobal(area.topLeft()), area.size() };
}

QString TextOf(const QWidget &widget)
{
    for (const char *property : { "text", "currentText", "windowTitle" }) {
        const QVariant text = widget.property(property);
        if (text.isValid())
            return text.toString();
    }
    return {};
}

MaybePlace PlaceOf(const QWidget *widget)
{
    if (!widget)
        return {};
    return Place { OnScreen(*widget, widget->rect()), TextOf(*widget) };
}

const QHash<QString, QString> &WindowNames()
{
    static const QHash<QString, QString> names { { u"host"_s, u"HostWindowClass"_s },
                                                 { u"output"_s, u"OutputDialogClass"_s },
                                                 { u"popup"_s, u"RPFmtSelectionDlgClass"_s },
                                                 { u"dialog"_s, u"RPFmtEditingDlgClass"_s },
                                                 { u"prompt"_s, u"QInputDialog"_s } };
    return names;
}

// The input dialog has no object name.
bool IsNamed(const QWidget &window, const QString &known)
{
    return window.objectName() == known || window.inherits(known.toLatin1());
}

const QWidget *FindWindow(const QString &name)
{
    const QString known = WindowNames().value(name);
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (!known.isEmpty() && IsNamed(*window, known) && window->isVisible())
            return window;
    }
    return nullptr;
}

QString ClassOf(const QWidget &widget)
{
    return QString::fromLatin1(widget.metaObject()->className());
}

QString NameOfWindow(const QWidget &window)
{
    for (auto name = WindowNames().cbegin(); name != WindowNames().cend(); ++name) {
        if (IsNamed(window, name.value()))
            return name.key();
    }
    return ClassOf(window);
}

QString PathOf(const QWidget &widget)
{
    const QString window = NameOfWindow(*widget.window());
    if (widget.isWindow())
        return window;
    if (!widget.objectName().isEmpty())
        return window + u'/' + widget.objectName();
    if (qobject_cast<const QLineEdit *>(&widget))
        return window + u"/search"_s;
    return window + u'/' + ClassOf(widget);
}

// Several pages may have a widget of the same name, of which one is shown. Without a name any
// widget of the class is meant.
template<class Widget>
const Widget *FindShown(const QWidget &window, const QString &name = {})
{
    for (const Widget *widget : window.findChildren<Widget *>()) {
        if (widget->isVisible() && (name.isEmpty() || widget->objectName() == name))
            return widget;
    }
    return nullptr;
}

MaybePlace FindButton(const QString &name)
{
    const QString objectName = u"btn"_s + name.left(1).toUpper() + name.mid(1);
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (const auto *button = FindShown<QWidget>(*window, objectName))
            return PlaceOf(button);
    }
    return {};
}

MaybePlace FindTabAt(const QWidget &window, int index)
{
    const auto *bar = FindShown<QTabBar>(window);
    if (!bar || index < 0 || index >= bar->count())
        return {};
    return Place { OnScreen(*bar, bar->tabRect(index)), bar->tabText(index) };
}

MaybePlace FindTab(const QWidget &window, const QString &text)
{
    const auto *bar = FindShown<QTabBar>(window);
    for (int i = 0; bar && i < bar->count(); ++i) {
        if (text.isEmpty() ? i == bar->currentIndex() : bar->tabText(i) == text)
            return FindTabAt(window, i);
    }
    return {};
}

MaybePlace FindMenuTitle(const QWidget &window, int index)
{
    const auto *bar = FindShown<QMenuBar>(window);
    if (!bar || index < 0 || index >= bar->actions().size())
        return {};
    QAction *title = bar->actions().at(index);
    return Place { OnScreen(*bar, bar->actionGeometry(title)), title->text() };
}

MaybePlace FindMenuEntry(const QString &text)
{
    const auto *menu = qobject_cast<const QMenu *>(QApplication::activePopupWidget());
    if (!menu)
        return {};
    for (QAction *entry : menu->actions()) {
        if (entry->text() == text)
            return Place { OnScreen(*menu, menu->actionGeometry(entry)), text };
    }
    return {};
}

// A row that is scrolled out of sight, if only in part, is not there.
MaybePlace FindRow(const QWidget &window, const QString &listName, int index)
{
    const auto *list = FindShown<QListWidget>(window, listName);
    const QListWidgetItem *item = list ? list->item(index) : nullptr;
    const QWidget *row = item ? list->itemWidget(const_cast<QListWidgetItem *>(item)) : nullptr;
    if (!row || !list->viewport()->rect().contains(list->visualItemRect(item)))
        return {};
    return Place { OnScreen(*row, row->rect()), item->data(Qt::AccessibleTextRole).toString() };
}

MaybePlace FindAction(const QWidget &window, const QString &listName, int index)
{
    MaybePlace row = FindRow(window, listName, index);
    if (row)
        row->area = { row->area.right() - 27, row->area.center().y() - 8, 17, 17 };
    return row;
}

MaybePlace FindCell(const QWidget &window, const QString &tableName, int row, int column)
{
    const auto *table = FindShown<QTableWidget>(window, tableName);
    const QTableWidgetItem *item = table ? table->item(row, column) : nullptr;
    if (!item)
        return {};
    return Place { OnScreen(*table->viewport(), table->visualItemRect(item)), item->text() };
}

MaybePlace FindInWindow(const QWidget &window, const QStringList &path)
{
    const QString kind = path.value(1);
    const QString name = path.value(2);
    const int index = path.value(3).toInt();
    if (kind.isEmpty())
        return PlaceOf(&window);
    if (kind == "search"_L1)
        return PlaceOf(FindShown<QLineEdit>(window));
    if (kind == "tab"_L1)
        return FindTab(window, name);
    if (kind == "tabAt"_L1)
        return FindTabAt(window, name.toInt());
    if (kind == "menu"_L1)
        return FindMenuTitle(window, name.toInt());
    if (kind == "row"_L1)
        return FindRow(window, name, index);
    if (kind == "action"_L1)
        return FindAction(window, name, index);
    if (kind == "cell"_L1)
        return FindCell(window, name, index, path.value(4).toInt());
    return PlaceOf(FindShown<QWidget>(window, kind));
}

MaybePlace Find(const QStringList &path)
{
    if (path.first() == "button"_L1)
        return FindButton(path.value(1));
    if (path.first() == "menu"_L1)
        return FindMenuEntry(path.value(1));
    const QWidget *window = FindWindow(path.first());
    return window ? FindInWindow(*window, path) : MaybePlace();
}

QString Written(const QRect &area)
{
    return u"%1 %2 %3 %4"_s.arg(area.x()).arg(area.y()).arg(area.width()).arg(area.height());
}

QString AnswerOnFocus()
{
    const QWidget *widget = QApplication::focusWidget();
    return widget ? PathOf(*widget) : u"none"_s;
}

QString AnswerOnMenu()
{
    return QApplication::activePopupWidget() ? u"yes"_s : u"no"_s;
}

QString AnswerOnArea(const QString &windowName)
{
    const QWidget *window = FindWindow(windowName);
    return window ? Written(window->screen()->availableGeometry()) : u"none"_s;
}

QString AnswerOnPlace(const QString &question, const MaybePlace &place)
{
    if (question == "visible"_L1)
        return place ? u"yes"_s : u"no"_s;
    if (!place)
        return u"none"_s;
    return question == "text"_L1 ? place->text : Written(place->area);
}

QString Answer(const QString &question, const QString &path)
{
    if (question == "focus"_L1)
        return AnswerOnFocus();
    if (question == "menu"_L1)
        return AnswerOnMenu();
    if (question == "area"_L1)
        return AnswerOnArea(path);
    return AnswerOnPlace(question, Find(path.split(u'/')));
}

void AnswerLine(const QByteArray &line)
{
    const QString request = QString::fromUtf8(line).trimmed();
    const QString question = request.section(u' ', 0, 0);
    const QString path = request.section(u' ', 1);
    std::printf("= %s\n", qUtf8Printable(Answer(question, path)));
    std::fflush(stdout);
}

} // namespace

// Hands lines from the thread that reads them over to the locator, for as long as there is one.
class WidgetLocator::Receiver
{
public:
    explicit Receiver(QObject *locator)
        : m_locator(locator)
    {
    }

    void Close()
    {
        const std::lock_guard lock(m_mutex);
        m_locator = nullptr;
    }

    void Post(const QByteArray &line)
    {
        const std::lock_guard lock(m_mutex);
        if (m_locator)
            QMetaObject::invokeMethod(m_locator, [line] { AnswerLine(line); });
    }

private:
    std::mutex m_mutex;
    QObject *m_locator;
};

// Nothing ends the wait for a line but the driver, so the thread is left behind with what it needs.
WidgetLocator::WidgetLocator()
    : m_receiver(std::make_shared<Receiver>(this))
{
    std::thread([receiver = m_receiver] {
        QFile input;
        if (!input.open(standardInput, QIODevice::ReadOnly | QIODevice::Unbuffered))
            return;
        for (QByteArray line = input.readLine(); !line.isEmpty(); line = input.readLine())
            receiver->Post(line);
    }).detach();
}

WidgetLocator::~WidgetLocator()
{
    m_receiver->Close();
}

} // namespace Host
