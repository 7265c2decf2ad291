#include "RPFmtSelectionDlg.h"

#include "IOLArtworkImageMgr.h"
#include "IOLFmtPresetDataSource.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "OLFormatText.h"
#include "RPArtworkIcon.h"
#include "RPFmtEditingDlg.h"
#include "RPFmtNodeWdg.h"
#include "RPFmtRecentListWdg.h"
#include "RPPopupPlacement.h"
#include "RPWindowOwner.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScopeGuard>
#include <QScreen>
#include <QTabBar>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <utility>

namespace Orlimo {

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

constexpr QSize popupSize { 800, 600 };
constexpr QSize searchSize { 160, 24 };
constexpr QSize recentIconSize { 15, 15 };
constexpr int recentTab = 0;
constexpr int mostCorrections = 3;

// Windows tells which windows had the focus behind all that is posted meanwhile.
#ifdef Q_OS_WIN
constexpr bool toldOfFocusLate = true;
#else
constexpr bool toldOfFocusLate = false;
#endif
constexpr auto settlingTime = 5ms; // by then it is told as a rule

QString Text(const char *source)
{
    return OrSourceText(RPFmtSelectionDlg::tr(source), source);
}

} // namespace

RPFmtSelectionDlg::RPFmtSelectionDlg()
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint)
{
    ui.setupUi(this);
    setFixedSize(popupSize);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_OpaquePaintEvent);
    ui.tabWidget->clear();
    InitRecentFmtList();
    InitCustomFmtNode();
    InitSearchEdit();
    InitDefaultFormatNode();
    ui.tabWidget->installEventFilter(this);
    ui.tabWidget->tabBar()->installEventFilter(this);
    InitEditingDlg();
    connect(ui.tabWidget, &QTabWidget::currentChanged, this, &RPFmtSelectionDlg::OnTabChanged);
    SelectFirstTab();
    settling.setSingleShot(true);
    settling.setInterval(settlingTime);
    connect(&settling, &QTimer::timeout, this, &RPFmtSelectionDlg::CloseIfLeft);
}

RPFmtSelectionDlg::~RPFmtSelectionDlg() = default;

void RPFmtSelectionDlg::InitRecentFmtList()
{
    auto *page = new RPFmtRecentListWdg(ui.tabWidget);
    const QIcon icon = ArtworkIcon(IOLArtworkImageMgr::CategoryFaceIDRecentList);
    const QIcon reduced(icon.pixmap(recentIconSize, QIcon::Normal, QIcon::Off));
    ui.tabWidget->addTab(page, reduced, Text(QT_TR_NOOP("Recent")));
    page->RefreshRecentList();
    page->installEventFilter(this);
    page->List()->installEventFilter(this);
    page->recentSelected = [this](const std::shared_ptr<IOLFmtPresetRecentItem> &item) {
        Choose(item->GetFormatPreset(), item->GetFormatNode());
    };
}

void RPFmtSelectionDlg::InitCustomFmtNode()
{
    const auto root = IOLFmtPresetDataSource::Shared()->GetCustomFormatNode();
    RPFmtNodeWdg *page = CreateNodeWdg(ui.tabWidget->count(),
                                       ArtworkIcon(IOLArtworkImageMgr::CategoryFaceIDCustomize),
                                       Text(QT_TR_NOOP("Custom")));
    page->SetFormatNode(root, true);
    WatchFocus(page);
    ReportSelectionsOf(page);
}

void RPFmtSelectionDlg::InitDefaultFormatNode()
{
    const auto root = IOLFmtPresetDataSource::Shared()->GetDefaultFormatNode();
    if (!root)
        return;
    for (int i = 0; i < root->ChildCount(); ++i)
        AddCategory(root->ChildAt(i));
}

void RPFmtSelectionDlg::AddCategory(const std::shared_ptr<IOLFormatNode> &category)
{
    RPFmtNodeWdg *page = CreateNodeWdg(ui.tabWidget->count() - 1, ArtworkIcon(category->FaceID()),
                                       TranslateFormatText(category->Name()));
    page->SetFormatNode(category, false);
    WatchFocus(page);
    page->formatEditRequested = [this](const std::shared_ptr<IOLFormatPreset> &preset,
                                       const std::shared_ptr<IOLFormatNode> &node) {
        Edit(preset, node);
    };
    ReportSelectionsOf(page);
}

void RPFmtSelectionDlg::InitSearchEdit()
{
    searchEdit = new QLineEdit(ui.tabWidget);
    searchEdit->setStyleSheet(
            u"QLineEdit{border-color: gray;} QLineEdit:hover{border-color: gray;}"_s);
    searchEdit->setClearButtonEnabled(true);
    // A context menu would take the focus, which closes the popup under it.
    searchEdit->setContextMenuPolicy(Qt::NoContextMenu);
    QAction *search = searchEdit->addAction(QIcon(u":/OLMediaFormatPopup/search.png"_s),
                                            QLineEdit::LeadingPosition);
    connect(searchEdit, &QLineEdit::textChanged, this, &RPFmtSelectionDlg::SearchTextChanged);
    connect(search, &QAction::triggered, this, [this] { SearchTextChanged(searchEdit->text()); });
    searchEdit->setPlaceholderText(Text(QT_TR_NOOP("Search...")));
    PlaceSearchEdit();
    searchEdit->installEventFilter(this);
}

void RPFmtSelectionDlg::InitEditingDlg()
{
    connect(RPFmtEditingDlg::Instance(), &RPFmtEditingDlg::CustomNewPresetSucceed, this,
            &RPFmtSelectionDlg::RefreshCustomTab);
}

// The page is filled when it is among the tabs: rows that moved there with it would be given their
// style twice.
RPFmtNodeWdg *RPFmtSelectionDlg::CreateNodeWdg(int tab, const QIcon &icon, const QString &text)
{
    auto *page = new RPFmtNodeWdg(ui.tabWidget);
    ui.tabWidget->insertTab(tab, page, icon, text);
    return page;
}

void RPFmtSelectionDlg::WatchFocus(RPFmtNodeWdg *page)
{
    for (QWidget *widget :
         std::initializer_list<QWidget *> { page, page->FormatList(), page->NodeList() })
        widget->installEventFilter(this);
}

void RPFmtSelectionDlg::ReportSelectionsOf(RPFmtNodeWdg *page)
{
    page->formatSelected = [this](const std::shared_ptr<const IOLFormatPreset> &preset,
                                  const std::shared_ptr<const IOLFormatNode> &node) {
        Choose(preset, node);
    };
}

// A host may ask for the popup when it sees the focus leave a popup that is just being hidden or
// shown. The last one to ask gets it, once that is done.
void RPFmtSelectionDlg::ShowPopup(Callback callback, const QRect &anchor)
{
    if (changingVisibility) {
        requestedShow = [this, callback, anchor] { ShowPopup(callback, anchor); };
        return;
    }
    requestedShow = nullptr;
    selectCallback = std::move(callback);
    selecting = false;
    const auto post = qScopeGuard([this] { PostRequestedShow(); });
    const QScopedValueRollback quiet(changingVisibility, true);
    if (!isVisible()) {
        searchEdit->clear();
        PlaceAboveModalWindow(*this);
    }
    ++openings;
    place = PlacePopup(anchor, screen()->availableGeometry(), size());
    corrections = 0;
    move(place);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    windowHandle()->installEventFilter(this);
    Activate();
    setFocus();
}

void RPFmtSelectionDlg::PostRequestedShow()
{
    if (!requestedShow)
        return;
    const auto show = [this] {
        if (const auto request = std::exchange(requestedShow, nullptr))
            request();
    };
    QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
}

// A popup that is shown again at once may never have lost the focus as far as the window system
// knows, which then has no reason to activate it. Or it tells only behind this that another window
// had the focus meanwhile, and then that the popup has it.
void RPFmtSelectionDlg::Activate()
{
    activateWindow();
    if (QGuiApplication::focusWindow() == windowHandle())
        QApplication::setActiveWindow(this);
    lossHeldBack = false;
    if (settling.isActive())
        settling.start();
}

void RPFmtSelectionDlg::CloseIfLeft()
{
    const bool isLeft = lossHeldBack || QApplication::activeWindow();
    if (isLeft && !isActiveWindow())
        CloseWithoutChoice();
}

// The icons keep their own size here; only the constructor reduces that of the Recent tab.
void RPFmtSelectionDlg::OnFormatDataLoaded()
{
    RenewListIcons();
    InitDefaultFormatNode();
    SelectFirstTab();
}

void RPFmtSelectionDlg::RenewListIcons()
{
    ui.tabWidget->setTabIcon(recentTab, ArtworkIcon(IOLArtworkImageMgr::CategoryFaceIDRecentList));
    ui.tabWidget->setTabIcon(ui.tabWidget->count() - 1,
                             ArtworkIcon(IOLArtworkImageMgr::CategoryFaceIDCustomize));
}

// Rows look their icons up whenever they are painted; tabs keep them.
void RPFmtSelectionDlg::OnArtworkRenewed()
{
    RenewListIcons();
    const auto root = IOLFmtPresetDataSource::Shared()->GetDefaultFormatNode();
    const int categories = root ? std::min(root->ChildCount(), ui.tabWidget->count() - 2) : 0;
    for (int i = 0; i < categories; ++i)
        ui.tabWidget->setTabIcon(recentTab + 1 + i, ArtworkIcon(root->ChildAt(i)->FaceID()));
    update();
}

bool RPFmtSelectionDlg::HasCategories() const
{
    return ui.tabWidget->count() > 2;
}

void RPFmtSelectionDlg::SelectFirstTab()
{
    if (IOLFmtPresetDataSource::Shared()->GetRecentItems().empty())
        ui.tabWidget->setCurrentIndex(1);
}

void RPFmtSelectionDlg::SearchTextChanged(const QString &text)
{
    if (ui.tabWidget->currentIndex() == recentTab) {
        if (auto *page = RecentPage())
            page->SearchRecentList(text);
    } else if (auto *page = CurrentNodePage()) {
        page->SearchFormat(text);
    }
}

void RPFmtSelectionDlg::OnTabChanged(int index)
{
    switchingPage = false;
    if (!searchEdit->text().isEmpty())
        searchEdit->setText(QString());
    if (index == recentTab) {
        if (auto *page = RecentPage())
            page->ResetRecentSearch();
    } else if (auto *page = CurrentNodePage()) {
        page->ResetSearch();
    }
}

void RPFmtSelectionDlg::RefreshCustomTab()
{
    const int index = ui.tabWidget->count() - 1;
    if (auto *page = qobject_cast<RPFmtNodeWdg *>(ui.tabWidget->widget(index)))
        page->SetFormatNode(IOLFmtPresetDataSource::Shared()->GetCustomFormatNode(), true);
}

void RPFmtSelectionDlg::PlaceSearchEdit()
{
    const QRect area = ui.tabWidget->rect();
    searchEdit->move(area.right() - searchSize.width(), area.top());
    searchEdit->resize(searchSize);
}

RPFmtRecentListWdg *RPFmtSelectionDlg::RecentPage() const
{
    return qobject_cast<RPFmtRecentListWdg *>(ui.tabWidget->widget(recentTab));
}

RPFmtNodeWdg *RPFmtSelectionDlg::CurrentNodePage() const
{
    return qobject_cast<RPFmtNodeWdg *>(ui.tabWidget->currentWidget());
}

// The popup may have been opened again meanwhile, for another caller: it stays open then, and the
// edit is reported to the caller it belongs to.
void RPFmtSelectionDlg::Edit(std::shared_ptr<IOLFormatPreset> preset,
                             std::shared_ptr<IOLFormatNode> node)
{
    selecting = true;
    const Callback callback = selectCallback;
    const int opening = openings;
    HideQuietly();
    const bool saved = RPFmtEditingDlg::EditPreset(preset, node);
    if (!saved) {
        preset = nullptr;
        node = nullptr;
    }
    if (opening == openings)
        OnFormatSelected(preset, node);
    else
        Report(callback, preset, node);
    selecting = false;
}

void RPFmtSelectionDlg::Choose(std::shared_ptr<const IOLFormatPreset> preset,
                               std::shared_ptr<const IOLFormatNode> node)
{
    selecting = true;
    OnFormatSelected(std::move(preset), std::move(node));
    selecting = false;
}

void RPFmtSelectionDlg::OnFormatSelected(std::shared_ptr<const IOLFormatPreset> preset,
                                         std::shared_ptr<const IOLFormatNode> node)
{
    const Callback callback = selectCallback;
    HideQuietly();
    Report(callback, std::move(preset), std::move(node));
}

void RPFmtSelectionDlg::Report(const Callback &callback,
                               std::shared_ptr<const IOLFormatPreset> preset,
                               std::shared_ptr<const IOLFormatNode> node)
{
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    if (preset && dataSource->AddRecentPreset(preset, node)) {
        dataSource->SaveRecentPresets();
        if (auto *page = RecentPage())
            page->RefreshRecentList();
    }
    if (callback)
        callback(std::move(preset), std::move(node));
}

// Hiding the popup takes the focus from it while it still counts as visible.
void RPFmtSelectionDlg::HideQuietly()
{
    const auto post = qScopeGuard([this] { PostRequestedShow(); });
    const QScopedValueRollback quiet(changingVisibility, true);
    hide();
    if (toldOfFocusLate)
        settling.start();
}

void RPFmtSelectionDlg::CloseWithoutChoice()
{
    if (selecting || changingVisibility || switchingPage || !isVisible())
        return;
    OnFormatSelected(nullptr, nullptr);
}

void RPFmtSelectionDlg::focusOutEvent(QFocusEvent *event)
{
    const bool clickInside = event->reason() == Qt::MouseFocusReason
            && rect().contains(mapFromGlobal(QCursor::pos()));
    if (clickInside)
        return;
    if (settling.isActive() && event->reason() == Qt::ActiveWindowFocusReason)
        lossHeldBack = true;
    else
        CloseWithoutChoice();
}

bool RPFmtSelectionDlg::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == windowHandle()) {
        // Inside the event it is too early to put the place right.
        if (event->type() == QEvent::Expose || event->type() == QEvent::Move)
            QTimer::singleShot(0, this, &RPFmtSelectionDlg::StayInPlace);
    } else if (watched == ui.tabWidget && event->type() == QEvent::Resize) {
        PlaceSearchEdit();
    } else if (event->type() == QEvent::FocusOut) {
        NoticePageSwitch(static_cast<const QWidget *>(watched));
        focusOutEvent(static_cast<QFocusEvent *>(event));
    }
    return false;
}

// A change of tab hides the old page, whose focus then wanders over other widgets to the new page;
// OnTabChanged() ends that.
void RPFmtSelectionDlg::NoticePageSwitch(const QWidget *focusLoser)
{
    if (isVisible() && !focusLoser->isVisibleTo(this))
        switchingPage = true;
}

void RPFmtSelectionDlg::closeEvent(QCloseEvent *event)
{
    CloseWithoutChoice();
    event->setAccepted(!isVisible());
}

// A frame one logical pixel thick on white. A pen that draws the rectangle of the popup would draw
// its right and bottom edges beside it.
void RPFmtSelectionDlg::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect inside = rect().adjusted(1, 1, -1, -1);
    painter.fillRect(inside, Qt::white);
    for (const QRect &edge : QRegion(rect()) - inside)
        painter.fillRect(edge, QColor(188, 188, 188));
}

// An X11 window manager that takes the window into its frame can make Qt believe for good that the
// window is where the frame was for a moment; clicks would then be held for clicks elsewhere. A
// manager that insists on another place keeps it.
void RPFmtSelectionDlg::StayInPlace()
{
    if (!isVisible() || windowHandle()->position() == place || corrections == mostCorrections)
        return;
    ++corrections;
    windowHandle()->setPosition(place);
}

void RPFmtSelectionDlg::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
}

} // namespace Orlimo
