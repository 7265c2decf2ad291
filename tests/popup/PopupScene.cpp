#include "PopupScene.h"

#include "Activity.h"
#include "PickerData.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLMediaFormatPopup.h"

#include <QApplication>
#include <QTest>

#include <algorithm>
#include <utility>

using namespace Orlimo;

namespace Test {

namespace {

using namespace Qt::StringLiterals;

template<class Objects, class Name>
QStringList NamesOf(const Objects &objects, Name name)
{
    QStringList names;
    for (const auto &object : objects)
        names += QString::fromStdString(name(object));
    return names;
}

QStringList NamesOf(const std::vector<PlainNode> &nodes)
{
    return NamesOf(nodes, [](const PlainNode &node) { return node.name; });
}

QStringList NamesOf(const std::vector<PlainPreset> &presets)
{
    return NamesOf(presets, [](const PlainPreset &preset) { return preset.name; });
}

QString Text(const PlainNode &tree)
{
    return QString::fromStdString(Describe(tree));
}

} // namespace

PopupScene::PopupScene(Random &random)
    : m_random(random)
{
    for (QWidget &host : m_hosts) {
        host.resize(100, 60);
        host.show();
    }
    ActivateHost(0);
}

void PopupScene::Open()
{
    const QWidget *popup = PopupDriver::FindPopup();
    if (popup && popup->isVisible())
        m_due.erase(m_opening); // its callback is replaced
    const int opening = ++m_opening;
    m_due.insert(opening);
    const auto callback = [this, opening](const auto &preset, const auto &node) {
        Receive(opening, preset, node);
    };
    const auto x = static_cast<float>(m_random.Below(800));
    const auto y = static_cast<float>(m_random.Below(800));
    if (m_random.OneIn(2))
        IOLMediaFormatPopup::Shared()->ShowFormatPopup({ x, y, 30, 20 }, callback);
    else
        IOLMediaFormatPopup::Shared()->ShowFormatPopupAt({ x, y }, callback);
}

void PopupScene::Receive(int opening, const std::shared_ptr<const IOLFormatPreset> &preset,
                         const std::shared_ptr<const IOLFormatNode> &node)
{
    Verify(m_due.erase(opening) == 1, u"opening %1 reported once too often"_s.arg(opening));
    Verify(IsOpen() || !PopupDriver::FindPopup()->isVisible(), u"the report came too early"_s);
    Verify(!preset == !node, u"half a choice was reported"_s);
    if (preset && node) {
        m_reports.append({ opening, preset->Name(), node->Name(), preset });
        Do(PresetsOperation::AddRecentPreset, AttributesOf(*node), ToPlain(*preset));
        CheckDataSource();
    } else {
        m_reports.append({ opening, {}, {}, {} });
    }
    if (m_callbacksReopen && !IsOpen() && m_random.OneIn(8))
        Open();
}

void PopupScene::Load(bool failing)
{
    const std::string path = failing ? "/missing/formats.json" : m_description.Path();
    if (failing)
        QTest::ignoreMessage(QtWarningMsg, "Failed load external format /missing/formats.json");
    IOLMediaFormatPopup::SetupExternalFormatData(path);
    IOLMediaFormatPopup::WaitForFormatDataLoadingComplete();
    m_loaded = m_loaded || !failing;
}

void PopupScene::ActivateHost(int window)
{
    QWidget &host = m_hosts[static_cast<std::size_t>(window)];
    host.activateWindow();
    Verify(QTest::qWaitFor([&] { return Test::IsActive(host) || IsOpen(); }),
           u"the host's window has not become active"_s);
}

void PopupScene::Do(PresetsOperation::Kind kind, const PlainNode &format, const PlainPreset &preset)
{
    m_model.Apply({ kind, { format.name, format.description, format.faceID, {}, {} }, preset });
    const bool custom = kind == PresetsOperation::AddCustom
            || kind == PresetsOperation::RemoveCustom;
    m_model.Apply({ custom ? PresetsOperation::SaveCustom : PresetsOperation::SaveRecent });
}

bool PopupScene::IsRecentPage() const
{
    return Driver().Tabs()->currentIndex() == 0;
}

bool PopupScene::IsCustomPage() const
{
    return Driver().Tabs()->currentIndex() == Driver().Tabs()->count() - 1;
}

bool PopupScene::IsSearching() const
{
    return !Driver().SearchBox()->text().isEmpty();
}

PlainNode PopupScene::ShownTree() const
{
    const int category = Driver().Tabs()->currentIndex() - 1;
    const std::string keyword = Driver().SearchBox()->text().toStdString();
    const auto root = IOLFmtPresetDataSource::Shared()->GetDefaultFormatNode();
    const PlainNode whole = IsCustomPage() ? m_model.Custom() : ToPlain(*root->ChildAt(category));
    return IsSearching() ? Found(whole, keyword) : whole;
}

std::vector<PresetsModel::Choice> PopupScene::ShownChoices() const
{
    return PresetsModel::Filtered(m_model.Recent(), Driver().SearchBox()->text().toStdString());
}

void PopupScene::CheckAll()
{
    CheckWindows();
    CheckDataSource();
    if (!IsOpen() || !Fault().isEmpty())
        return;
    CheckTabs();
    if (!Fault().isEmpty())
        return;
    if (IsRecentPage())
        CheckRecentPage();
    else
        CheckNodePage();
}

void PopupScene::CheckWindows()
{
    Verify(!QApplication::activeModalWidget(), u"a dialog is open"_s);
    Verify(!QApplication::activePopupWidget(), u"a menu is open"_s);
    Verify(m_due.size() <= 1, u"a closed popup has not reported"_s);
    const QWidget *popup = PopupDriver::FindPopup();
    Verify((popup && popup->isVisible()) == IsOpen(),
           IsOpen() ? u"the popup is not visible and has not reported"_s
                    : u"the popup has reported and is still visible"_s);
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        const bool isHost = window == &m_hosts[0] || window == &m_hosts[1];
        Verify(!window->isVisible() || isHost || window == popup,
               u"%1 is visible"_s.arg(window->objectName()));
    }
    if (!IsOpen())
        return;
    Verify(QTest::qWaitFor([popup] { return Test::IsActive(*popup); }),
           u"the open popup is not active"_s);
#ifdef Q_OS_WIN
    // Shown again at once, it first waits for what else it is told of the focus.
    if (std::exchange(m_settledOpening, m_opening) != m_opening)
        QTest::qWait(25);
#endif
}

void PopupScene::CheckTabs()
{
    QStringList expected { u"Recent"_s };
    if (m_loaded)
        expected += NamesOf(
                ToPlain(*IOLFmtPresetDataSource::Shared()->GetDefaultFormatNode()).children);
    expected += u"Custom"_s;
    Verify(Driver().TabTexts() == expected, u"tabs: "_s + Driver().TabTexts().join(u", "_s));
}

void PopupScene::CheckRecentPage()
{
    CheckRows("lwRecentList",
              NamesOf(ShownChoices(), [](const auto &choice) { return choice.DisplayName(); }));
}

void PopupScene::CheckNodePage()
{
    const auto formats = ShownTree().children;
    CheckRows("ListNode", NamesOf(formats));
    const int current = Driver().List("ListNode")->currentRow();
    Verify(formats.empty() ? current == -1 : current >= 0 && current < std::ssize(formats),
           u"current format: %1"_s.arg(current));
    if (Fault().isEmpty())
        CheckRows("ListFormat",
                  current < 0 ? QStringList()
                              : NamesOf(formats[static_cast<std::size_t>(current)].presets));
}

void PopupScene::CheckRows(const char *list, QStringList expected)
{
    QStringList rows = Driver().RowTexts(list);
    if (IsCustomPage() && m_customOrderIsLoose) {
        rows.sort();
        expected.sort();
    }
    Verify(rows == expected,
           u"%1: %2\nexpected: %3"_s.arg(QLatin1StringView(list), rows.join(u", "_s),
                                         expected.join(u", "_s)));
}

void PopupScene::CheckDataSource()
{
    const auto source = IOLFmtPresetDataSource::Shared();
    const auto items = source->GetRecentItems();
    const bool same = std::ranges::equal(items, m_model.Recent(),
                                         [](const auto &item, const auto &choice) {
                                             return AttributesOf(*item->GetFormatNode())
                                                     == choice.format
                                                     && ToPlain(*item->GetFormatPreset())
                                                     == choice.preset;
                                         });
    Verify(same, u"the recent choices are others"_s);
    const PlainNode custom = ToPlain(*source->GetCustomFormatNode());
    Verify(custom == m_model.Custom(), u"custom: "_s + Text(custom));
    if (const auto stored = StoredTree("recent_format_preset"))
        Verify(ToPlain(*stored) == m_model.StoredRecent(), u"stored: "_s + Text(ToPlain(*stored)));
    if (const auto stored = StoredTree("custom_format_preset"))
        Verify(ToPlain(*stored) == m_model.StoredCustom(), u"stored: "_s + Text(ToPlain(*stored)));
}

void PopupScene::Verify(bool condition, const QString &what)
{
    if (!condition && m_fault.isEmpty())
        m_fault = what;
}

} // namespace Test
