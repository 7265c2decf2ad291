#include "Scenes.h"

#include "EventWatch.h"
#include "Heartbeat.h"
#include "StockPicker.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLMediaFormatPopup.h"
#include "RPFmtNodeWdg.h"
#include "RPFmtSelectionDlg.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdio>
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

void ShowPopup()
{
    IOLMediaFormatPopup::Shared()->ShowFormatPopupAt({ 0, 0 }, {});
}

RPFmtSelectionDlg *Popup()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *popup = qobject_cast<RPFmtSelectionDlg *>(window))
            return popup;
    }
    qFatal("there is no popup");
}

QTabWidget *Tabs()
{
    return Popup()->findChild<QTabWidget *>();
}

RPFmtNodeWdg *CurrentPage()
{
    return qobject_cast<RPFmtNodeWdg *>(Tabs()->currentWidget());
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

bool AreRowsPainted(const EventWatch &watch)
{
    const RPFmtNodeWdg *page = CurrentPage();
    return IsPainted(watch, *page->NodeList()) && IsPainted(watch, *page->FormatList());
}

bool IsPopupPainted(const EventWatch &watch)
{
    return watch.WasPainted(Popup()) && AreRowsPainted(watch);
}

// A window as a host has one open before it asks for a popup, so that neither side of a comparison
// pays for what comes with the first window of a process.
class HostWindow final : public QLabel
{
public:
    HostWindow()
        : QLabel(QStringLiteral("MP4, 1920 x 1080"))
    {
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

void Show(QWidget &window)
{
    window.show();
    window.activateWindow();
}

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

Nanoseconds SearchInPopup(const QString &key)
{
    ShowPopup();
    RunUntilIdle();
    auto *searchBox = Popup()->findChild<QLineEdit *>();
    Focus(*searchBox);
    RunFor(fadeOfClearButton);
    const Nanoseconds time = UntilPainted([&] { PressKey(key); }, AreRowsPainted);
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

void RunSearch(const QString &path, const QString &key)
{
    Load(path);
    ShowPopup();
    const int category = Tabs()->currentIndex() - 1; // after the recent choices
    const auto root = IOLFmtPresetDataSource::Shared()->GetDefaultFormatNode();
    StockPicker picker(*root->ChildAt(category));
    for (int round = 0; round < usualRounds; ++round) {
        const Nanoseconds ours = SearchInPopup(key);
        PrintRound({ ours, SearchInStockPicker(picker, key) });
    }
}

Nanoseconds OpenPopup()
{
    const Nanoseconds time = UntilPainted(ShowPopup, IsPopupPainted);
    Hide(*Popup());
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

void RunOpening(const QString &path, bool popupFirst)
{
    Load(path);
    const HostWindow host;
    if (popupFirst) {
        const Nanoseconds ours = OpenPopup();
        PrintRound({ ours, OpenNewWindow() });
    } else {
        const Nanoseconds other = OpenNewWindow();
        PrintRound({ OpenPopup(), other });
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

void RunReopening(const QString &path)
{
    Load(path);
    const HostWindow host;
    TabWindow window;
    OpenPopup();
    Reopen(window);
    for (int round = 0; round < usualRounds; ++round) {
        const Nanoseconds ours = OpenPopup();
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

void LoadUnderPopup(const QString &path, const Stalls &stalls)
{
    IOLMediaFormatPopup::SetupExternalFormatData(path.toStdString());
    while (!stalls.HasInsertion())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    RunFor(settling);
}

void RunLoading(const QString &path)
{
    ShowPopup();
    RunFor(settling);
    Nanoseconds longest {};
    Nanoseconds atInsertion {};
    const Nanoseconds duration = Elapsed([&] {
        const Stalls stalls(*Tabs());
        LoadUnderPopup(path, stalls);
        longest = stalls.Longest();
        atInsertion = stalls.AtInsertion();
    });
    IOLMediaFormatPopup::WaitForFormatDataLoadingComplete();
    const Stalls withoutLoad(*Tabs());
    RunFor(std::chrono::duration_cast<std::chrono::milliseconds>(duration));
    PrintRound({ longest, atInsertion, withoutLoad.Longest() });
}

} // namespace

void RunScene(const QStringList &arguments)
{
    const QString &scene = arguments.at(0);
    const QString &path = arguments.at(1);
    if (scene == QLatin1StringView(searchScene))
        RunSearch(path, arguments.at(2));
    else if (scene == QLatin1StringView(openingScene))
        RunOpening(path, arguments.at(2) == QLatin1StringView("popup"));
    else if (scene == QLatin1StringView(reopeningScene))
        RunReopening(path);
    else if (scene == QLatin1StringView(loadingScene))
        RunLoading(path);
    else
        qFatal("there is no scene %s", qUtf8Printable(scene));
}

} // namespace Bench
