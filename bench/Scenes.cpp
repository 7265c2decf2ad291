#include "Scenes.h"

#include "EventWatch.h"
#include "Heartbeat.h"
#include "Measures.h"
#include "ModelComparisons.h"
#include "Picker.h"
#include "StockPicker.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLMediaFormatPopup.h"

#include <QAnimationDriver>
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
#include <iterator>
#include <memory>

using namespace Orlimo;

namespace Bench {

namespace {

constexpr std::chrono::milliseconds fadeOfClearButton { 200 };
constexpr std::chrono::milliseconds settling { 50 };

void PrintRound(std::initializer_list<Cost> figures)
{
    for (const Cost figure : figures)
        std::printf("%s ", QByteArray::number(figure, 'g', 9).constData());
    std::printf("\n");
}

void PrintRounds(const Rounds &rounds)
{
    for (int i = 0; i < rounds.Count(); ++i)
        PrintRound({ rounds.Ours(i), rounds.Other(i) });
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

bool AreRowsPainted(const EventWatch &watch, const QTabWidget &tabs)
{
    const auto lists = tabs.currentWidget()->findChildren<QListWidget *>(
            Qt::FindDirectChildrenOnly);
    return std::ranges::all_of(lists,
                               [&](const QListWidget *list) { return IsPainted(watch, *list); });
}

bool IsPickerPainted(const EventWatch &watch, const Picker &picker)
{
    return watch.WasPainted(picker.Window()) && AreRowsPainted(watch, *picker.Tabs());
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

Cost SearchInPicker(Picker &picker, const QString &key)
{
    picker.Show();
    RunUntilIdle();
    picker.ExpectSearch(key);
    QLineEdit *searchBox = picker.SearchBox();
    Focus(*searchBox);
    RunFor(fadeOfClearButton);
    const Cost cost = UntilPainted([&] { PressKey(key); },
                                   [&](const EventWatch &watch) {
                                       return AreRowsPainted(watch, *picker.Tabs());
                                   });
    EmptyAndHide(*searchBox);
    return cost;
}

// The picker's search, which came before, fades out first. The tree is not painted where the search
// finds all of it, only the box.
Cost SearchInStockPicker(StockPicker &picker, const QString &key)
{
    Show(picker);
    RunUntilIdle();
    Focus(*picker.SearchBox());
    RunFor(fadeOfClearButton);
    const Cost cost = UntilPainted([&] { PressKey(key); },
                                   [&](const EventWatch &watch) {
                                       return watch.WasPainted(picker.SearchBox());
                                   });
    EmptyAndHide(*picker.SearchBox());
    return cost;
}

void RunSearch(const QString &kind, const QString &path, const QString &key, int rounds)
{
    Load(path);
    const auto picker = Picker::Of(kind);
    picker->Show();
    const int category = picker->Tabs()->currentIndex() - 1; // after the recent choices
    const auto root = IOLFmtPresetDataSource::Shared()->GetDefaultFormatNode();
    StockPicker stockPicker(*root->ChildAt(category));
    SearchInPicker(*picker, key);
    SearchInStockPicker(stockPicker, key);
    PrintRounds(RunByTurns([&] { return SearchInPicker(*picker, key); },
                           [&] { return SearchInStockPicker(stockPicker, key); }, rounds));
}

Cost Open(Picker &picker)
{
    const Cost cost = UntilPainted([&] { picker.Show(); },
                                   [&](const EventWatch &watch) {
                                       return IsPickerPainted(watch, picker);
                                   });
    Hide(*picker.Window());
    return cost;
}

Cost OpenNewWindow()
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
        const Cost other = OpenNewWindow();
        PrintRound({ Open(*picker), other });
    } else {
        const Cost ours = Open(*picker);
        PrintRound({ ours, OpenNewWindow() });
    }
}

Cost Reopen(QWidget &window)
{
    const Cost cost = UntilPainted([&] { Show(window); },
                                   [&](const EventWatch &watch) {
                                       return watch.WasPainted(&window);
                                   });
    Hide(window);
    return cost;
}

void RunReopening(const QString &kind, const QString &path, int rounds)
{
    Load(path);
    const auto picker = Picker::Of(kind);
    const HostWindow host;
    TabWindow window;
    Open(*picker);
    Reopen(window);
    PrintRounds(RunByTurns([&] { return Open(*picker); }, [&] { return Reopen(window); }, rounds));
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

Cost InMilliseconds(Nanoseconds time)
{
    return std::chrono::duration<Cost, std::milli>(time).count();
}

struct LongestStalls
{
    Nanoseconds besideInsertion;
    Nanoseconds atInsertion;
};

LongestStalls StallsUntilInserted(const QTabWidget &tabs,
                                  const std::function<void()> &startInsertion)
{
    const Stalls stalls(tabs);
    startInsertion();
    while (!stalls.HasInsertion())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    RunFor(settling);
    return { stalls.Longest(), stalls.AtInsertion() };
}

Nanoseconds LongestStallIn(const QTabWidget &tabs, std::chrono::milliseconds time)
{
    const Stalls stalls(tabs);
    RunFor(time);
    return stalls.Longest();
}

void PrintStalls(const QTabWidget &tabs, const std::function<void()> &startInsertion)
{
    RunFor(settling);
    const auto start = std::chrono::steady_clock::now();
    const LongestStalls stalls = StallsUntilInserted(tabs, startInsertion);
    const auto time = std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::steady_clock::now() - start);
    PrintRound({ InMilliseconds(stalls.besideInsertion), InMilliseconds(stalls.atInsertion),
                 InMilliseconds(LongestStallIn(tabs, time)) });
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

// The categories wait in the event loop to be taken up, as the load is over.
Cost CostOfInsertionIntoPopup(const QString &path)
{
    const auto popup = Picker::Of(QLatin1StringView(popupPicker));
    popup->Show();
    RunUntilIdle();
    Load(path);
    return UntilPainted([] {},
                        [&](const EventWatch &watch) {
                            return AreRowsPainted(watch, *popup->Tabs());
                        });
}

Cost CostOfBareInsertion(const QString &path)
{
    Load(path);
    const QList<PageRows> categories = CategoryRows();
    BarePicker picker;
    Show(picker);
    RunUntilIdle();
    return UntilPainted([&] { picker.AddCategories(categories); },
                        [&](const EventWatch &watch) {
                            return AreRowsPainted(watch, *picker.Tabs());
                        });
}

void RunInsertion(const QString &kind, const QString &path)
{
    const bool ofPopup = kind == QLatin1StringView(popupPicker);
    PrintRound({ ofPopup ? CostOfInsertionIntoPopup(path) : CostOfBareInsertion(path) });
}

// What moves by itself goes on while a counted program runs, many times slower than usual, and
// would be counted.
void StopAnimations()
{
    (new QAnimationDriver)->install(); // for the rest of the process
    QApplication::setCursorFlashTime(0);
}

void PrepareWindows()
{
    NeedApplication();
    if (IsCounting())
        StopAnimations();
}

struct Scene
{
    const char *name;
    qsizetype arguments;
    bool hasWindows;
    void (*run)(const QStringList &arguments);
};

const Scene scenes[] = {
    { searchScene, 4, true,
      [](const QStringList &arguments) {
          RunSearch(arguments[0], arguments[1], arguments[2], arguments[3].toInt());
      } },
    { openingScene, 3, true,
      [](const QStringList &arguments) {
          RunOpening(arguments[0], arguments[1], arguments[2] == QLatin1StringView("window"));
      } },
    { reopeningScene, 3, true,
      [](const QStringList &arguments) {
          RunReopening(arguments[0], arguments[1], arguments[2].toInt());
      } },
    { loadingScene, 2, true,
      [](const QStringList &arguments) { RunLoading(arguments[0], arguments[1]); } },
    { insertionScene, 2, true,
      [](const QStringList &arguments) { RunInsertion(arguments[0], arguments[1]); } },
    { loadScene, 2, false,
      [](const QStringList &arguments) {
          PrintRounds(CompareLoads(arguments[0], arguments[1].toInt()));
      } },
    { findScene, 2, false,
      [](const QStringList &arguments) {
          PrintRounds(CompareFinds(arguments[0], arguments[1].toInt()));
      } },
    { saveScene, 2, false,
      [](const QStringList &arguments) {
          PrintRounds(CompareSaves(arguments[0], arguments[1].toInt()));
      } },
};

} // namespace

void RunScene(const QStringList &arguments)
{
    const QString name = arguments.value(0);
    const auto *scene = std::ranges::find(scenes, name, [](const Scene &listed) {
        return QString::fromLatin1(listed.name);
    });
    if (scene == std::end(scenes))
        qFatal("there is no scene %s", qUtf8Printable(name));
    if (arguments.size() != scene->arguments + 1)
        qFatal("the scene %s takes %d arguments", scene->name, int(scene->arguments));
    if (scene->hasWindows)
        PrepareWindows();
    scene->run(arguments.mid(1));
}

} // namespace Bench
