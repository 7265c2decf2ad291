#include "PopupWalk.h"

#include "DialogWalk.h"
#include "RowClicks.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLMediaFormatPopup.h"

#include <QApplication>
#include <QTabBar>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>

using namespace Orlimo;

namespace Test {

namespace {

using namespace Qt::StringLiterals;

constexpr std::array keys { Qt::Key_Down, Qt::Key_Up,     Qt::Key_Home,  Qt::Key_End,
                            Qt::Key_Left, Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape };
constexpr std::array keywords { "mp", "HD", "4", "i", "custom", "n", "usual", "Ä", "zz" };

void TurnWheel(QWidget *widget, int steps)
{
    const QPointF place = widget->rect().center();
    QWheelEvent event(place, widget->mapToGlobal(place), {}, { 0, steps * -120 }, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

} // namespace

const std::array<PopupWalk::StepKind, 18> PopupWalk::stepKinds { {
        { "open", 4, &PopupWalk::Open, false },
        { "activate a host window", 6, &PopupWalk::ActivateHost, false },
        { "load", 2, &PopupWalk::Load, false },
        { "load during input", 2, &PopupWalk::LoadLate, false },
        { "host edits a preset", 3, &PopupWalk::EditOwnPreset, false },
        { "request to close", 2, &PopupWalk::RequestClose, true },
        { "choose preset", 7, &PopupWalk::ChoosePreset, true },
        { "choose recent", 5, &PopupWalk::ChooseRecent, true },
        { "click preset action", 16, &PopupWalk::ClickPresetAction, true },
        { "delete recent", 5, &PopupWalk::DeleteRecent, true },
        { "select format", 8, &PopupWalk::SelectFormat, true },
        { "switch tab", 14, &PopupWalk::SwitchTab, true },
        { "scroll tabs", 4, &PopupWalk::ScrollTabs, true },
        { "scroll list", 3, &PopupWalk::ScrollList, true },
        { "type search", 8, &PopupWalk::TypeSearch, true },
        { "erase search", 4, &PopupWalk::EraseSearch, true },
        { "press key", 8, &PopupWalk::PressKey, true },
        { "press Tab", 1, &PopupWalk::PressTab, true },
} };

PopupWalk::PopupWalk(unsigned seed)
    : m_random(seed)
    , m_scene(m_random)
{
}

void PopupWalk::Step()
{
    const StepKind &kind = m_random.PickWeighted(stepKinds);
    const bool opensFirst = kind.needsPopup && !m_scene.IsOpen();
    m_scene.ForgetReports();
    m_steps += QString::fromLatin1(opensFirst ? "open" : kind.name);
    if (opensFirst)
        Open();
    else
        (this->*kind.run)();
    QCoreApplication::processEvents();
    m_scene.CheckAll();
}

void PopupWalk::Open()
{
    m_scene.Open();
    m_scene.Verify(m_scene.Reports().isEmpty(), u"opening the popup reported something"_s);
}

void PopupWalk::ActivateHost()
{
    const bool wasOpen = m_scene.IsOpen();
    m_scene.ActivateHost(m_random.Below(2));
    QCoreApplication::processEvents();
    if (wasOpen)
        ExpectReport({}, {});
    else
        m_scene.Verify(m_scene.Reports().isEmpty(), u"a closed popup reported something"_s);
}

void PopupWalk::Load()
{
    m_scene.Load(m_random.OneIn(3));
}

// The popup handles the end of the load amid the events of a click or a key.
void PopupWalk::LoadLate()
{
    m_scene.Load(false);
    if (!m_scene.IsOpen()) {
        m_scene.Open();
        return;
    }
    const PopupDriver driver = m_scene.Driver();
    const char *list = m_scene.IsRecentPage() ? "lwRecentList" : "ListFormat";
    const auto row = VisibleRow(list);
    if (row && m_random.OneIn(2))
        driver.ClickRow(list, *row);
    else if (m_random.OneIn(2))
        driver.TypeSearch(QString::fromUtf8(m_random.Pick(keywords)));
    else
        driver.SwitchTab(m_random.Pick(driver.TabTexts()));
}

void PopupWalk::EditOwnPreset()
{
    const bool wasOpen = m_scene.IsOpen();
    const auto preset = IOLFormatPreset::MallocFormatPreset(m_random.OneIn(2) ? "MP4" : "MP3",
                                                            "own");
    const auto node = IOLFormatNode::MallocFormatNode(std::shared_ptr<IOLFormatNode>());
    node->SetName("Own");
    DialogWalk dialog(m_scene, m_random, preset, ToPlain(*node));
    m_scene.LetCallbacksReopen(false);
    const bool saved = IOLMediaFormatPopup::Shared()->EditFormatPreset(preset, node);
    Note(dialog.Steps().join(u", "_s));
    m_scene.Verify(saved == dialog.HasSaved(), u"the edit returned the opposite"_s);
    m_scene.Verify(m_scene.Reports().size() == dialog.Openings() + (wasOpen ? 1 : 0),
                   u"%1 reports"_s.arg(m_scene.Reports().size()));
    dialog.CheckPreset();
}

void PopupWalk::RequestClose()
{
    PopupDriver::FindPopup()->windowHandle()->close();
    ExpectReport({}, {});
}

void PopupWalk::ChoosePreset()
{
    const auto row = m_scene.IsRecentPage() ? std::nullopt : VisibleRow("ListFormat");
    if (!row)
        return;
    const PlainNode format = CurrentFormat();
    const QString title = m_scene.Driver().RowTexts("ListFormat").at(*row);
    Note(title);
    m_scene.Driver().ClickRow("ListFormat", *row);
    ExpectReport(title.toStdString(), format.name);
}

void PopupWalk::ChooseRecent()
{
    const auto row = m_scene.IsRecentPage() ? VisibleRow("lwRecentList") : std::nullopt;
    if (!row)
        return;
    const auto choice = m_scene.ShownChoices().at(static_cast<std::size_t>(*row));
    Note(QString::fromStdString(choice.DisplayName()));
    m_scene.Driver().ClickRow("lwRecentList", *row);
    ExpectReport(choice.preset.name, choice.format.name);
}

void PopupWalk::DeleteRecent()
{
    const auto row = m_scene.IsRecentPage() ? VisibleRow("lwRecentList") : std::nullopt;
    if (!row)
        return;
    const int child = m_scene.ShownChoices().at(static_cast<std::size_t>(*row)).child;
    PresetsModel &model = m_scene.Model();
    const auto place = std::ranges::find(model.Recent(), child, &PresetsModel::Choice::child)
            - model.Recent().begin();
    Note(QString::number(place));
    model.Apply({ PresetsOperation::RemoveListedItem, {}, {}, static_cast<int>(place), {} });
    model.Apply({ PresetsOperation::SaveRecent });
    Test::ClickTrashOfRecent(*m_scene.Driver().List("lwRecentList"), *row);
    m_scene.Verify(m_scene.Reports().isEmpty(), u"a deletion was reported"_s);
}

void PopupWalk::ClickPresetAction()
{
    const auto row = m_scene.IsRecentPage() ? std::nullopt : VisibleRow("ListFormat");
    if (row && m_scene.IsCustomPage())
        DeleteCustom(*row);
    else if (row)
        EditPreset(*row);
}

void PopupWalk::DeleteCustom(int row)
{
    const PlainNode format = CurrentFormat();
    const QString title = m_scene.Driver().RowTexts("ListFormat").at(row);
    Note(title);
    PlainPreset preset;
    preset.name = title.toStdString();
    if (std::ranges::count(format.presets, preset.name, &PlainPreset::name) > 1)
        m_scene.LoosenCustomOrder();
    m_scene.Do(PresetsOperation::RemoveCustom, format, preset);
    m_scene.Driver().ClickAction("ListFormat", row);
    m_scene.Verify(m_scene.Reports().isEmpty(), u"a deletion was reported"_s);
}

void PopupWalk::EditPreset(int row)
{
    const PlainNode format = CurrentFormat();
    const PlainPreset preset = format.presets.at(static_cast<std::size_t>(row));
    const int opening = m_scene.Opening();
    const bool searching = m_scene.IsSearching();
    DialogWalk dialog(m_scene, m_random, PresetInTree(preset.name), format);
    m_scene.Driver().ClickAction("ListFormat", row);
    Note(QString::fromStdString(preset.name) + u": "_s + dialog.Steps().join(u", "_s));
    m_scene.Verify(dialog.HasOpened(), u"no dialog has opened"_s);

    const auto reports = m_scene.Reports();
    m_scene.Verify(reports.size() == dialog.Openings() + 1, u"%1 reports"_s.arg(reports.size()));
    if (m_scene.Fault().isEmpty())
        CheckEdit(dialog, preset.name, reports.last(), searching);
    m_scene.Verify(reports.isEmpty() || reports.last().opening == opening,
                   u"the edit was reported to another caller"_s);
}

// A search shows copies, so what is edited there is reported, and the tree stays as it was.
void PopupWalk::CheckEdit(const DialogWalk &dialog, const std::string &preset,
                          const PopupScene::Report &report, bool searching)
{
    m_scene.Verify(report.preset == (dialog.HasSaved() ? preset : std::string()),
                   u"the edit was reported as another one"_s);
    if (report.choice)
        dialog.CheckEdited(*report.choice);
    if (searching)
        dialog.CheckUntouched();
    else
        dialog.CheckPreset();
}

void PopupWalk::SelectFormat()
{
    const auto row = m_scene.IsRecentPage() ? std::nullopt : VisibleRow("ListNode");
    if (!row)
        return;
    m_scene.Driver().ClickRow("ListNode", *row);
    m_scene.Verify(m_scene.Driver().List("ListNode")->currentRow() == *row,
                   u"the clicked format is not the current one"_s);
}

void PopupWalk::SwitchTab()
{
    const PopupDriver driver = m_scene.Driver();
    const int before = driver.Tabs()->currentIndex();
    const QString tab = m_random.Pick(driver.TabTexts());
    Note(tab);
    driver.SwitchTab(tab);
    const int now = driver.Tabs()->currentIndex();
    m_scene.Verify(driver.TabTexts().at(now) == tab, u"another tab is shown"_s);
    m_scene.Verify(now == before || driver.SearchBox()->text().isEmpty(),
                   u"the search box has kept its text"_s);
}

void PopupWalk::ScrollTabs()
{
    TurnWheel(m_scene.Driver().Tabs()->tabBar(), m_random.OneIn(2) ? 1 : -1);
    m_scene.Verify(m_scene.IsOpen(), u"the wheel has closed the popup"_s);
}

void PopupWalk::ScrollList()
{
    const char *list = m_scene.IsRecentPage() ? "lwRecentList" : "ListFormat";
    TurnWheel(m_scene.Driver().List(list)->viewport(), 1 - 2 * m_random.Below(2));
    m_scene.Verify(m_scene.IsOpen(), u"the wheel has closed the popup"_s);
}

void PopupWalk::TypeSearch()
{
    const QString text = QString::fromUtf8(m_random.Pick(keywords));
    QLineEdit *box = m_scene.Driver().SearchBox();
    Note(text);
    ClickAt(box, box->rect().center());
    QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, text, Qt::NoModifier);
    m_scene.Verify(box->text().contains(text), u"the search box has not taken the text"_s);
}

void PopupWalk::EraseSearch()
{
    QLineEdit *box = m_scene.Driver().SearchBox();
    ClickAt(box, box->rect().center());
    if (m_random.OneIn(2))
        QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_Backspace);
}

// None of these keys closes the popup, whatever has the focus.
void PopupWalk::PressKey()
{
    const Qt::Key key = m_random.Pick(keys);
    Note(QKeySequence(key).toString());
    QTest::keyClick(PopupDriver::FindPopup()->windowHandle(), key);
    m_scene.Verify(m_scene.IsOpen(), u"the key has closed the popup"_s);
}

// The focus leaves for another widget of the popup, which counts as leaving the popup.
void PopupWalk::PressTab()
{
    QTest::keyClick(PopupDriver::FindPopup()->windowHandle(), Qt::Key_Tab);
    ExpectReport({}, {});
}

// One of the rows that lie in view as a whole.
std::optional<int> PopupWalk::VisibleRow(const char *list)
{
    const QListWidget &rows = *m_scene.Driver().List(list);
    QList<int> visible;
    for (int row = 0; row < rows.count(); ++row) {
        if (rows.viewport()->rect().contains(
                    rows.visualItemRect(rows.item(row)).adjusted(0, 0, -1, 0)))
            visible += row;
    }
    return visible.isEmpty() ? std::nullopt : std::optional(m_random.Pick(visible));
}

PlainNode PopupWalk::CurrentFormat() const
{
    const int row = m_scene.Driver().List("ListNode")->currentRow();
    return m_scene.ShownTree().children.at(static_cast<std::size_t>(row));
}

std::shared_ptr<IOLFormatPreset> PopupWalk::PresetInTree(const std::string &name) const
{
    const int category = m_scene.Driver().Tabs()->currentIndex() - 1;
    const auto root = IOLFmtPresetDataSource::Shared()->GetDefaultFormatNode();
    return root->ChildAt(category)->FindChild(CurrentFormat().name)->FindPreset(name);
}

void PopupWalk::ExpectReport(const std::string &preset, const std::string &node)
{
    const auto &reports = m_scene.Reports();
    m_scene.Verify(reports.size() == 1, u"%1 reports"_s.arg(reports.size()));
    if (reports.size() == 1)
        m_scene.Verify(reports.first().preset == preset && reports.first().node == node,
                       u"reported: "_s + QString::fromStdString(reports.first().preset));
}

} // namespace Test
