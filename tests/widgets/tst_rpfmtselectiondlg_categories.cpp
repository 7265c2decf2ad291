#include "Activity.h"
#include "MapTranslator.h"
#include "PopupDriver.h"
#include "RowClicks.h"
#include "SampleDescription.h"
#include "TestCase.h"
#include "TreeBuilder.h"

#include "IOLAppSettings.h"
#include "IOLFmtPresetDataSource.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "RPFmtEditingDlg.h"
#include "RPFmtNodeWdg.h"
#include "RPFmtSelectionDlg.h"

#include <QInputDialog>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

using namespace Orlimo;
using namespace Qt::StringLiterals;

namespace {

const QRect anchor(20, 20, 100, 30);

struct Report
{
    QString preset;
    QString node;

    bool operator==(const Report &) const = default;
};

const Report nothingChosen { {}, {} };

// A popup that is shown and active, what it has reported, and the host's window, which is active
// whenever the popup is not.
class OpenPopup
{
public:
    OpenPopup()
        : driver(&popup)
    {
        host.show();
        open();
    }

    void open()
    {
        host.activateWindow();
        QTRY_VERIFY(Test::IsActive(host));
        popup.ShowPopup(
                [this](const std::shared_ptr<const IOLFormatPreset> &preset,
                       const std::shared_ptr<const IOLFormatNode> &node) {
                    wasVisibleWhenReporting = popup.isVisible();
                    reports.append({ preset ? QString::fromStdString(preset->Name()) : QString(),
                                     node ? QString::fromStdString(node->Name()) : QString() });
                },
                anchor);
        QTRY_VERIFY(Test::IsActive(popup));
    }

    QWidget host;
    RPFmtSelectionDlg popup;
    Test::PopupDriver driver;
    QList<Report> reports;
    bool wasVisibleWhenReporting = false;
};

// Gives a tree this many categories, by removing its last ones or adding others, for the scope.
class CategoryCount
{
public:
    CategoryCount(std::shared_ptr<IOLFormatNode> root, int count)
        : m_root(std::move(root))
    {
        for (int i = 0; i < m_root->ChildCount(); ++i)
            m_before.append(m_root->ChildAt(i));
        while (m_root->ChildCount() > count)
            m_root->RemoveChildAt(m_root->ChildCount() - 1);
        while (m_root->ChildCount() < count)
            m_root->AppendChild(Test::MakeNode("Added", "", 1003));
    }

    ~CategoryCount()
    {
        while (m_root->ChildCount() > 0)
            m_root->RemoveChildAt(0);
        for (const auto &category : m_before)
            m_root->AppendChild(category);
    }

    Q_DISABLE_COPY_MOVE(CategoryCount)

private:
    std::shared_ptr<IOLFormatNode> m_root;
    QList<std::shared_ptr<IOLFormatNode>> m_before;
};

// Runs act once the editing dialog is open.
template<class Action>
void inEditingDialog(Action act)
{
    QTimer::singleShot(0, RPFmtEditingDlg::Instance(), [act] {
        QTRY_VERIFY(RPFmtEditingDlg::Instance()->isVisible());
        act(RPFmtEditingDlg::Instance());
    });
}

void press(QWidget *dialog, const QString &button)
{
    QTest::mouseClick(dialog->findChild<QPushButton *>(button), Qt::LeftButton);
}

QString storedValue(const char *key)
{
    return QString::fromStdString(IOLAppSettings::Shared()->Value(key));
}

} // namespace

// The popup with a format tree of the categories "Video" and "Audio".
class tst_RPFmtSelectionDlg_Categories : public Test::TestCase
{
    Q_OBJECT

    void prepare() override { Test::ForgetPresets(); }

    Test::SampleDescription description;

private Q_SLOTS:
    void initTestCase()
    {
        description.Load();
        QVERIFY(IOLFmtPresetDataSource::Shared()->GetDefaultFormatNode());
    }

    void categoriesStandBetweenRecentAndCustomInTheTreesOrder()
    {
        const OpenPopup open;
        QCOMPARE(open.driver.TabTexts(),
                 QStringList({ u"Recent"_s, u"Video"_s, u"Audio"_s, u"Custom"_s }));
        QCOMPARE(open.driver.Tabs()->currentIndex(), 1);
        QVERIFY(open.popup.HasCategories());
    }

    void tabsShowTheArtworkOfTheirFaceIDs()
    {
        const OpenPopup open;
        const int faceIDs[] = { 1, 3, 4, 2 };
        for (int i = 0; i < 4; ++i) {
            const QImage icon = open.driver.Tabs()->tabIcon(i).pixmap(18, 18).toImage();
            QCOMPARE(icon.pixel(icon.rect().center()),
                     Test::SampleDescription::ColorOf(faceIDs[i]).rgb());
        }
    }

    void onlyTheConstructorReducesTheIconOfTheRecentTab()
    {
        OpenPopup open;
        const QTabWidget *tabs = open.driver.Tabs();
        QCOMPARE(tabs->tabIcon(0).availableSizes(), QList<QSize>({ QSize(15, 15) }));
        const QList<QSize> own { QSize(18, 18), QSize(33, 33) };
        QCOMPARE(tabs->tabIcon(3).availableSizes(), own);
        open.popup.OnFormatDataLoaded();
        QCOMPARE(tabs->tabIcon(0).availableSizes(), own);
        QCOMPARE(tabs->tabIcon(tabs->count() - 1).availableSizes(), own);
    }

    void everyCallThatFormatDataIsLoadedAddsTheCategories()
    {
        OpenPopup open;
        open.popup.OnFormatDataLoaded();
        QCOMPARE(open.driver.TabTexts(),
                 QStringList({ u"Recent"_s, u"Video"_s, u"Audio"_s, u"Video"_s, u"Audio"_s,
                               u"Custom"_s }));
        QVERIFY(open.popup.isVisible());
    }

    void categoryNamesAreTranslatedAsTextsOfTheFormatLibrary()
    {
        const Test::MapTranslator translator({ { { "RPObject", "Audio", "Audio" }, u"Ton"_s } });
        const OpenPopup open;
        QCOMPARE(open.driver.TabTexts().at(2), u"Ton"_s);
    }

    // What the popup named when it was made keeps its language.
    void categoriesThatComeAfterAChangeOfLanguageAreNamedInTheNewOne()
    {
        OpenPopup open;
        const Test::MapTranslator translator({ { { "RPObject", "Audio", "Audio" }, u"Ton"_s } });
        open.popup.OnFormatDataLoaded();
        QCOMPARE(open.driver.TabTexts(),
                 QStringList({ u"Recent"_s, u"Video"_s, u"Audio"_s, u"Video"_s, u"Ton"_s,
                               u"Custom"_s }));
    }

    void newArtworkShowsOnEveryTab()
    {
        OpenPopup open;
        const QTabWidget *tabs = open.driver.Tabs();
        const qint64 before[] = { tabs->tabIcon(0).cacheKey(), tabs->tabIcon(1).cacheKey(),
                                  tabs->tabIcon(2).cacheKey(), tabs->tabIcon(3).cacheKey() };
        open.popup.OnArtworkRenewed();
        QCOMPARE(tabs->count(), 4);
        for (int i = 0; i < 4; ++i)
            QVERIFY(tabs->tabIcon(i).cacheKey() != before[i]);
    }

    void newArtworkGivesCustomItsIconWhateverTheHostDidToTheTree_data()
    {
        QTest::addColumn<int>("categories");
        QTest::newRow("no category left") << 0;
        QTest::newRow("one category removed") << 1;
        QTest::newRow("one category added") << 3;
        QTest::newRow("two categories added") << 4;
    }

    void newArtworkGivesCustomItsIconWhateverTheHostDidToTheTree()
    {
        QFETCH(const int, categories);
        OpenPopup open;
        const auto root = IOLFmtPresetDataSource::Shared()->GetDefaultFormatNode();
        const CategoryCount changed(root, categories);
        const qint64 before = open.driver.Tabs()->tabIcon(3).cacheKey();
        description.Load();
        open.popup.OnArtworkRenewed();
        QCOMPARE(open.driver.TabTexts(),
                 QStringList({ u"Recent"_s, u"Video"_s, u"Audio"_s, u"Custom"_s }));
        const QIcon custom = open.driver.Tabs()->tabIcon(3);
        QVERIFY(custom.cacheKey() != before);
        const QImage icon = custom.pixmap(18, 18).toImage();
        QCOMPARE(icon.pixel(icon.rect().center()), Test::SampleDescription::ColorOf(2).rgb());
    }

    void leavingRecentDropsItsSearch()
    {
        OpenPopup open;
        open.driver.ClickRow("ListFormat", 0);
        open.open();
        open.driver.ClickRow("ListFormat", 1);
        open.open();
        open.driver.SwitchTab(u"Recent"_s);
        open.driver.TypeSearch(u"hd 10"_s);
        open.driver.SwitchTab(u"Audio"_s);
        open.driver.SwitchTab(u"Recent"_s);
        QCOMPARE(open.driver.RowTexts("lwRecentList").size(), 2);
        open.popup.OnFormatDataLoaded();
        QCOMPARE(open.driver.Tabs()->currentIndex(), 0);
    }

    void popupOpenedAgainDuringAnEditIsReportedByItself()
    {
        OpenPopup open;
        int closings = 0;
        inEditingDialog([&](QWidget *dialog) {
            open.popup.ShowPopup([&](auto, auto) { ++closings; }, anchor);
            press(dialog, u"btnSave"_s);
        });
        open.driver.ClickAction("ListFormat", 1);
        QCOMPARE(open.reports, QList<Report>({ { u"SD 480P"_s, u"MP4"_s } }));
        open.host.activateWindow();
        QTRY_VERIFY(!open.popup.isVisible());
        QCOMPARE(closings, 1);
        QCOMPARE(open.reports.size(), 1);
    }

    void choiceThatCannotBeRecordedIsReportedAllTheSame()
    {
        OpenPopup open;
        const std::string before = IOLAppSettings::Shared()->Value("recent_format_preset");
        auto *page = qobject_cast<RPFmtNodeWdg *>(open.driver.Tabs()->currentWidget());
        page->formatSelected(IOLFormatPreset::MallocFormatPreset("MP4", ""), nullptr);
        QCOMPARE(open.reports, QList<Report>({ { u"MP4"_s, QString() } }));
        QVERIFY(IOLFmtPresetDataSource::Shared()->GetRecentItems().empty());
        QCOMPARE(IOLAppSettings::Shared()->Value("recent_format_preset"), before);
    }

    void choiceThatCannotBeRecordedLeavesTheRecentChoicesAsTheyAre()
    {
        OpenPopup open;
        const auto *page = qobject_cast<RPFmtNodeWdg *>(open.driver.Tabs()->currentWidget());
        for (int row = 0; row < 2; ++row) {
            open.driver.ClickRow("ListFormat", row);
            open.open();
        }
        open.driver.SwitchTab(u"Recent"_s);
        QListWidget *recent = open.driver.List("lwRecentList");
        recent->setCurrentRow(1);
        const QPointer<QWidget> row = recent->itemWidget(recent->item(0));
        IOLAppSettings::Shared()->SetValue("not saved over", "recent_format_preset");

        page->formatSelected(IOLFormatPreset::MallocFormatPreset("MP4", ""), nullptr);
        QCOMPARE(open.reports.last(), Report({ u"MP4"_s, QString() }));
        QCOMPARE(storedValue("recent_format_preset"), u"not saved over"_s);
        QCOMPARE(recent->itemWidget(recent->item(0)), row);
        QCOMPARE(recent->currentRow(), 1);
    }

    void clickOnAPresetReportsItWithItsFormat()
    {
        OpenPopup open;
        QCOMPARE(open.driver.RowTexts("ListNode"), QStringList({ u"MP4"_s, u"AVI"_s }));
        open.driver.ClickRow("ListFormat", 1);
        QCOMPARE(open.reports, QList<Report>({ { u"SD 480P"_s, u"MP4"_s } }));
        QVERIFY(!open.popup.isVisible());
        QVERIFY(!open.wasVisibleWhenReporting);
    }

    void choiceIsRecordedSavedAndShownFirst()
    {
        OpenPopup open;
        open.driver.ClickRow("ListFormat", 1);
        const auto dataSource = IOLFmtPresetDataSource::Shared();
        QCOMPARE(dataSource->GetLatestRecentItem()->GetDisplayName(), std::string("MP4 SD 480P"));
        const QString first = storedValue("recent_format_preset");
        QVERIFY(!first.isEmpty());

        open.open();
        open.driver.ClickRow("ListFormat", 0);
        QVERIFY(storedValue("recent_format_preset") != first);
        open.open();
        open.driver.SwitchTab(u"Recent"_s);
        QCOMPARE(open.driver.RowTexts("lwRecentList"),
                 QStringList({ u"MP4 HD 1080P"_s, u"MP4 SD 480P"_s }));
    }

    void clickOnARecentRowReportsItAgain()
    {
        OpenPopup open;
        open.driver.ClickRow("ListFormat", 1);
        open.open();
        open.driver.SwitchTab(u"Recent"_s);
        open.driver.ClickRow("lwRecentList", 0);
        QCOMPARE(open.reports.size(), 2);
        QCOMPARE(open.reports.last(), Report({ u"SD 480P"_s, u"MP4"_s }));
        QCOMPARE(IOLFmtPresetDataSource::Shared()->GetRecentItems().size(), std::size_t(1));
    }

    void trashIconOfARecentRowDeletesItAndKeepsThePopupOpen()
    {
        OpenPopup open;
        open.driver.ClickRow("ListFormat", 0);
        open.open();
        open.driver.ClickRow("ListFormat", 1);
        open.open();
        open.driver.SwitchTab(u"Recent"_s);
        Test::ClickTrashOfRecent(*open.driver.List("lwRecentList"), 0);
        QCOMPARE(open.driver.RowTexts("lwRecentList"), QStringList({ u"MP4 HD 1080P"_s }));
        QCOMPARE(open.reports.size(), 2);
        QVERIFY(open.popup.isVisible());
    }

    void searchFiltersTheCurrentCategory()
    {
        OpenPopup open;
        open.driver.TypeSearch(u"720"_s);
        QCOMPARE(open.driver.RowTexts("ListNode"), QStringList({ u"AVI"_s }));
        QCOMPARE(open.driver.RowTexts("ListFormat"), QStringList({ u"HD 720P"_s }));
        QVERIFY(open.popup.isVisible());
        QTest::keyClick(open.driver.SearchBox(), Qt::Key_X);
        QCOMPARE(open.driver.RowTexts("ListNode"), QStringList());
        QCOMPARE(open.driver.RowTexts("ListFormat"), QStringList());
        open.driver.SearchBox()->clear();
        QCOMPARE(open.driver.RowTexts("ListNode"), QStringList({ u"MP4"_s, u"AVI"_s }));
    }

    void searchFiltersTheRecentChoices()
    {
        OpenPopup open;
        open.driver.ClickRow("ListFormat", 0);
        open.open();
        open.driver.ClickRow("ListFormat", 1);
        open.open();
        open.driver.SwitchTab(u"Recent"_s);
        open.driver.TypeSearch(u"hd 10"_s);
        QCOMPARE(open.driver.RowTexts("lwRecentList"), QStringList({ u"MP4 HD 1080P"_s }));
    }

    void switchingTabsEmptiesTheSearchBoxAndShowsEverything()
    {
        OpenPopup open;
        open.driver.TypeSearch(u"720"_s);
        open.driver.SwitchTab(u"Audio"_s);
        QVERIFY(open.driver.SearchBox()->text().isEmpty());
        QCOMPARE(open.driver.RowTexts("ListNode"), QStringList({ u"MP3"_s }));
        open.driver.SwitchTab(u"Video"_s);
        QCOMPARE(open.driver.RowTexts("ListNode"), QStringList({ u"MP4"_s, u"AVI"_s }));
        QVERIFY(open.popup.isVisible());
    }

    void searchBoxIsEmptyWhenThePopupOpens()
    {
        OpenPopup open;
        open.driver.TypeSearch(u"720"_s);
        open.driver.ClickRow("ListFormat", 0);
        QCOMPARE(open.reports.size(), 1);
        open.open();
        QVERIFY(open.driver.SearchBox()->text().isEmpty());
        QCOMPARE(open.driver.RowTexts("ListNode"), QStringList({ u"MP4"_s, u"AVI"_s }));
    }

    void searchIconSearchesAgain()
    {
        OpenPopup open;
        open.driver.TypeSearch(u"720"_s);
        const auto *page = qobject_cast<RPFmtNodeWdg *>(open.driver.Tabs()->currentWidget());
        const QListWidgetItem *before = page->NodeList()->item(0);
        QPoint icon(12, open.driver.SearchBox()->rect().center().y());
        QWidget *button = open.driver.SearchBox()->childAt(icon);
        QVERIFY(button);
        Test::ClickAt(button, button->rect().center());
        QCOMPARE(open.driver.RowTexts("ListNode"), QStringList({ u"AVI"_s }));
        QVERIFY(page->NodeList()->item(0) != before);
    }

    void savedEditReportsThePreset()
    {
        OpenPopup open;
        bool popupWasVisible = true;
        inEditingDialog([&](QWidget *dialog) {
            popupWasVisible = open.popup.isVisible();
            press(dialog, u"btnSave"_s);
        });
        open.driver.ClickAction("ListFormat", 1);
        QCOMPARE(open.reports, QList<Report>({ { u"SD 480P"_s, u"MP4"_s } }));
        QVERIFY(!popupWasVisible);
        QCOMPARE(IOLFmtPresetDataSource::Shared()->GetRecentItems().size(), std::size_t(1));
    }

    void cancelledEditReportsNothingChosenOnce()
    {
        OpenPopup open;
        inEditingDialog([](QWidget *dialog) { press(dialog, u"btnCancel"_s); });
        open.driver.ClickAction("ListFormat", 1);
        QCOMPARE(open.reports, QList<Report>({ nothingChosen }));
        QVERIFY(!open.popup.isVisible());
        QVERIFY(IOLFmtPresetDataSource::Shared()->GetRecentItems().empty());
    }

    void newPresetAppearsOnTheCustomTab()
    {
        OpenPopup open;
        inEditingDialog([](QWidget *dialog) {
            QTimer::singleShot(0, dialog, [dialog] {
                auto *prompt = dialog->findChild<QInputDialog *>();
                QVERIFY(prompt);
                QTest::keyClick(prompt, Qt::Key_Enter);
            });
            press(dialog, u"btnSaveNewPreset"_s);
            press(dialog, u"btnCancel"_s);
        });
        open.driver.ClickAction("ListFormat", 1);
        open.open();
        open.driver.SwitchTab(u"Custom"_s);
        QCOMPARE(open.driver.RowTexts("ListNode"), QStringList({ u"MP4"_s }));
        QCOMPARE(open.driver.RowTexts("ListFormat"), QStringList({ u"MP4 SD 480P-custom0"_s }));

        open.driver.ClickRow("ListFormat", 0);
        QCOMPARE(open.reports.last(), Report({ u"MP4 SD 480P-custom0"_s, u"MP4"_s }));
        open.open();
        open.driver.ClickAction("ListFormat", 0);
        QCOMPARE(open.driver.RowTexts("ListNode"), QStringList());
        QCOMPARE(open.reports.size(), 2);
        QVERIFY(open.popup.isVisible());
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtSelectionDlg_Categories)

#include "tst_rpfmtselectiondlg_categories.moc"
