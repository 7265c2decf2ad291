#include "Scenes.h"

#include "EventWatch.h"
#include "Heartbeat.h"
#include "Picker.h"
#include "StockPicker.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLMediaFormatPopup.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <initializer_list>
#include <memory>

using namespace Orlimo;

namespace Bench {

namespace {

constexpr std::chrono::milliseconds fadeOfClearButton { 200 };
constexpr std::chrono::milliseconds settling { 50 };

void PrintRound(std::initializer_list<Nanoseconds> figures)
{
    for (const Nanoseconds figure : figures)
        std::printf("%.9g ", Milliseconds(figure).count());
    std::printf("\n");
}

void Load(const QString &path)
{
    IOLMediaFormatPopup::SetupExternalFormatData(path.toStdString());
    IOLMediaFormatPopup::WaitForFormatDataLoadingComplete();
}

bool IsPainted(const EventWatch &watch, const QListWidget &list)
{
    const QRect visible = list.viewport()->rect();
    for (int row = 0; row < list.count(); ++row) {
        QListWidgetItem *item = list.item(row);
        if (!visible.intersects(list.visualItemRect(item)))
            break;
        if (!watch.WasPainted(list.itemWidget(item)))
            return false;
    }
    return watch.WasPainted(list.viewport());
}

bool AreRowsPainted(const EventWatch &watch, const Picker &picker)
{
    const auto lists = picker.Tabs()->currentWidget()->findChildren<QListWidget *>(
            Qt::FindDirectChildrenOnly);
    return std::ranges::all_of(lists,
                               [&](const QListWidget *list) { return IsPainted(watch, *list); });
}

bool IsPickerPainted(const EventWatch &watch, const Picker &picker)
{
    return watch.WasPainted(picker.Window()) && AreRowsPainted(watch, picker);
}

// A window as a host has one open before it asks for a popup, so that neither side of a comparison
// pays for what comes with the first window of a process and the first widgets of a kind.
class HostWindow final : public QTabWidget
{
public:
    HostWindow()
    {
        auto *list = new QListWidget;
        list->setStyleSheet(QStringLiteral("QListWidget { border: none; }"));
        list->addItem(QStringLiteral("MP4, 1920 x 1080"));
        addTab(list, QStringLiteral("Formats"));
        new QLineEdit(QStringLiteral("MP4"), this);
        UntilPainted([this] { show(); },
                     [this](const EventWatch &watch) { return watch.WasPainted(this); });
    }
};

class TabWindow final : public QWidget
{
public:
    TabWindow()
        : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint)
    {
        setFixedSize(popupSize);
        auto *tabs = new QTabWidget(this);
        (new QVBoxLayout(this))->addWidget(tabs);
    }
};

void Hide(QWidget &window)
{
    window.hide();
    RunUntilIdle();
}

// Sends the key to the widget with the focus.
void PressKey(const QString &text)
{
    QKeyEvent press(QEvent::KeyPress, text.at(0).unicode(), Qt::NoModifier, text);
    QCoreApplication::sendEvent(QApplication::focusWidget(), &press);
}

void Focus(QLineEdit &searchBox)
{
    QCursor::setPos(searchBox.mapToGlobal(searchBox.rect().center()));
    searchBox.setFocus(Qt::MouseFocusReason); // any other reason would close the popup
    RunUntilIdle();
    if (QApplication::focusWidget() != &searchBox)
        qFatal("the search box has no focus");
}

void EmptyAndHide(QLineEdit &searchBox)
{
    searchBox.clear();
    RunUntilIdle();
    Hide(*searchBox.window());
}

Nanoseconds SearchInPicker(Picker &picker, const QString &key)
{
    picker.Show();
    RunUntilIdle();
    picker.ExpectSearch(key);
    QLineEdit *searchBox = picker.SearchBox();
    Focus(*searchBox);
    RunFor(fadeOfClearButton);
    const Nanoseconds time = UntilPainted([&] { PressKey(key); },
                                          [&](const EventWatch &watch) {
                                              return AreRowsPainted(watch, picker);
                                          });
    EmptyAndHide(*searchBox);
    return time;
}

// The tree is not painted where the search finds all of it, only the box.
Nanoseconds SearchInStockPicker(StockPicker &picker, const QString &key)
{
    Show(picker);
    RunUntilIdle();
    Focus(*picker.SearchBox());
    RunFor(fadeOfClearButton);
    const Nanoseconds time = UntilPainted([&] { PressKey(key); },
                                          [&](const EventWatch &watch) {
                                              return watch.WasPainted(picker.SearchBox());
                                          });
    EmptyAndHide(*picker.SearchBox());
    return time;
}

void RunSearch(const QString &kind, const QString &path, const QString &key)
{
    Load(path);
    const auto picker = Picker::Of(kind);
    picker->Show();
    const int category = picker->Tabs()->currentIndex() - 1; // after the recent choices
    const auto root = IOLFmtPresetDataSource::Shared()->GetDefaultFormatNode();
    StockPicker stockPicker(*root->ChildAt(category));
    for (int round = 0; round < usualRounds; ++round) {
        const Nanoseconds ours = SearchInPicker(*picker, key);
        PrintRound({ ours, SearchInStockPicker(stockPicker, key) });
    }
}

Nanoseconds Open(Picker &picker)
{
    const Nanoseconds time = UntilPainted([&] { picker.Show(); },
                                          [&](const EventWatch &watch) {
                                              return IsPickerPainted(watch, picker);
                                          });
    Hide(*picker.Window());
    return time;
}

Nanoseconds OpenNewWindow()
{
    std::unique_ptr<TabWindow> window;
    return UntilPainted(
            [&] {
                window = std::make_unique<TabWindow>();
                Show(*window);
            },
            [&](const EventWatch &watch) { return watch.WasPainted(window.get()); });
}

void RunOpening(const QString &kind, const QString &path, bool windowFirst)
{
    Load(path);
    const auto picker = Picker::Of(kind);
    const HostWindow host;
    if (windowFirst) {
        const Nanoseconds other = OpenNewWindow();
        PrintRound({ Open(*picker), other });
    } else {
        const Nanoseconds ours = Open(*picker);
        PrintRound({ ours, OpenNewWindow() });
    }
}

Nanoseconds Reopen(QWidget &window)
{
    const Nanoseconds time = UntilPainted([&] { Show(window); },
                                          [&](const EventWatch &watch) {
                                              return watch.WasPainted(&window);
                                          });
    Hide(window);
    return time;
}

void RunReopening(const QString &kind, const QString &path)
{
    Load(path);
    const auto picker = Picker::Of(kind);
    const HostWindow host;
    TabWindow window;
    Open(*picker);
    Reopen(window);
    for (int round = 0; round < usualRounds; ++round) {
        const Nanoseconds ours = Open(*picker);
        PrintRound({ ours, Reopen(window) });
    }
}

// The longest stalls of the GUI thread: the one in which tabs were inserted, and of the others.
class Stalls
{
public:
    explicit Stalls(const QTabWidget &tabs)
        : m_tabs(tabs)
        , m_tabsBefore(tabs.count())
        , m_heartbeat([this](Nanoseconds gap) { Note(gap); })
    {
    }

    bool HasInsertion() const { return m_atInsertion.count() > 0; }
    Nanoseconds AtInsertion() const { return m_atInsertion; }
    Nanoseconds Longest() const { return m_longest; }

private:
    void Note(Nanoseconds gap)
    {
        if (!HasInsertion() && m_tabs.count() != m_tabsBefore)
            m_atInsertion = gap;
        else
            m_longest = std::max(m_longest, gap);
    }

    const QTabWidget &m_tabs;
    const int m_tabsBefore;
    Nanoseconds m_atInsertion {};
    Nanoseconds m_longest {};
    Heartbeat m_heartbeat;
};

void PrintStalls(const QTabWidget &tabs, const std::function<void()> &startInsertion)
{
    RunFor(settling);
    Nanoseconds longest {};
    Nanoseconds atInsertion {};
    const Nanoseconds duration = Elapsed([&] {
        const Stalls stalls(tabs);
        startInsertion();
        while (!stalls.HasInsertion())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        RunFor(settling);
        longest = stalls.Longest();
        atInsertion = stalls.AtInsertion();
    });
    const Stalls withoutLoad(tabs);
    RunFor(std::chrono::duration_cast<std::chrono::milliseconds>(duration));
    PrintRound({ longest, atInsertion, withoutLoad.Longest() });
}

void RunLoadingUnderPopup(const QString &path)
{
    const auto popup = Picker::Of(QLatin1StringView(popupPicker));
    popup->Show();
    PrintStalls(*popup->Tabs(),
                [&] { IOLMediaFormatPopup::SetupExternalFormatData(path.toStdString()); });
    IOLMediaFormatPopup::WaitForFormatDataLoadingComplete();
}

void RunBareInsertion(const QString &path)
{
    Load(path);
    const QList<PageRows> categories = CategoryRows();
    BarePicker picker;
    Show(picker);
    PrintStalls(*picker.Tabs(),
                [&] { QTimer::singleShot(0, &picker, [&] { picker.AddCategories(categories); }); });
}

void RunLoading(const QString &kind, const QString &path)
{
    if (kind == QLatin1StringView(popupPicker))
        RunLoadingUnderPopup(path);
    else
        RunBareInsertion(path);
}

} // namespace

void RunScene(const QStringList &arguments)
{
    const QString &scene = arguments.at(0);
    const QString &picker = arguments.at(1);
    const QString &path = arguments.at(2);
    if (scene == QLatin1StringView(searchScene))
        RunSearch(picker, path, arguments.at(3));
    else if (scene == QLatin1StringView(openingScene))
        RunOpening(picker, path, arguments.at(3) == QLatin1StringView("window"));
    else if (scene == QLatin1StringView(reopeningScene))
        RunReopening(picker, path);
    else if (scene == QLatin1StringView(loadingScene))
        RunLoading(picker, path);
    else
        qFatal("there is no scene %s", qUtf8Printable(scene));
}

} // namespace Bench
