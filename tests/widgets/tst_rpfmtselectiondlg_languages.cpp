#include "Activity.h"
#include "Languages.h"
#include "PopupDriver.h"
#include "RowClicks.h"
#include "SampleDescription.h"
#include "TestCase.h"
#include "TextFit.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "RPFmtItemDataWdg.h"
#include "RPFmtItemGeometry.h"
#include "RPFmtSelectionDlg.h"

#include <QStyleOptionTab>
#include <QTabBar>
#include <QToolButton>

using namespace Orlimo;
using namespace Test;
using namespace Qt::StringLiterals;

namespace {

const std::map<int, QColor> tabColors { { 1, Qt::red },  { 2, Qt::green },   { 3, Qt::blue },
                                        { 4, Qt::cyan }, { 5, Qt::magenta }, { 6, Qt::yellow } };

// The example's description, with icons for the tabs, in the process's data source.
void LoadExample()
{
    const QTemporaryDir folder;
    const QString description = folder.filePath(u"formats.json"_s);
    if (!QFile::copy(u"" ORLIMO_EXAMPLE_DESCRIPTION ""_s, description))
        qFatal("the example's description cannot be copied");
    WriteArtwork(folder.filePath(u"formats.icfg"_s), tabColors, { 15, 18 });
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    dataSource->AsyncLoadExternalDataSource(description.toStdString(), [] {});
    dataSource->WaitForLoadingComplete();
}

// Between the buttons on both sides, the magnifier and the clear button, with the margins that a
// line edit has beside its text.
int RoomForPlaceholder(const QLineEdit &box)
{
    constexpr int textMargin = 2;
    int left = 0;
    int right = box.width();
    for (const QToolButton *button : box.findChildren<QToolButton *>()) {
        if (button->x() < box.width() / 2)
            left = std::max(left, button->geometry().right() + 1);
        else
            right = std::min(right, button->x());
    }
    return right - left - 2 * textMargin;
}

// The tab bar as its style sees it.
class TabBarLook : public QTabBar
{
public:
    static bool ShowsWholeText(const QTabBar &bar, int index)
    {
        QStyleOptionTab option;
        (bar.*&TabBarLook::initStyleOption)(&option, index);
        const QRect text = bar.style()->subElementRect(QStyle::SE_TabBarTabText, &option, &bar);
        return text.width() >= WidthOf(bar, bar.tabText(index));
    }
};

const RPFmtItemDataWdg &RowAt(const QListWidget &list, int index)
{
    return *qobject_cast<const RPFmtItemDataWdg *>(list.itemWidget(list.item(index)));
}

bool ShowsItsWholeTitle(const RPFmtItemDataWdg &row)
{
    return WidthOf(row, row.Title()) <= NodeTitleBox(row.rect()).width();
}

// Neither runs the title into the description nor the description into the action icon.
bool ShowsBothTextsWhole(const RPFmtItemDataWdg &row)
{
    const QRect title = PresetTitleBox(row.rect(), { WidthOf(row, row.Title()), 1 });
    const int left = PresetDescriptionLeft(row.rect(), row.textWidth, title.right());
    const QRect description = DescriptionBox(row.rect(), left);
    return title.right() < description.left()
            && WidthOf(row, row.Description()) <= description.width();
}

// The description of a recent choice begins at the same place whatever the length of its title.
bool ShowsBothTextsApart(const RPFmtItemDataWdg &row)
{
    const QRect title = PresetTitleBox(row.rect(), { WidthOf(row, row.Title()), 1 });
    const QRect description = DescriptionBox(row.rect(), RecentDescriptionLeft(row.rect()));
    return title.right() < description.left()
            && WidthOf(row, row.Description()) <= description.width();
}

} // namespace

class tst_RPFmtSelectionDlgLanguages : public Test::TestCase
{
    Q_OBJECT

private:
    // Runs look(driver) on the popup that was made in the language of the data row.
    template<class Look>
    static void openAndLook(Look look)
    {
        QFETCH(const int, language);
        const InstalledLanguage installed(AllLanguages().at(language));
        QWidget host;
        host.show();
        RPFmtSelectionDlg popup;
        popup.ShowPopup({}, { 20, 20, 100, 30 });
        QTRY_VERIFY(Test::IsActive(popup));
        look(PopupDriver(&popup));
    }

    // Of every format on the current page.
    static void checkPresetRows(const PopupDriver &user)
    {
        const QListWidget &formats = *user.List("ListNode");
        for (int format = 0; format < formats.count(); ++format) {
            const QByteArray title = RowAt(formats, format).Title().toUtf8();
            QVERIFY2(ShowsItsWholeTitle(RowAt(formats, format)), title.constData());
            user.List("ListNode")->scrollToItem(formats.item(format));
            user.ClickRow("ListNode", format);
            QCOMPARE(formats.currentRow(), format);
            const QListWidget &presets = *user.List("ListFormat");
            QVERIFY(presets.count() > 0);
            for (int preset = 0; preset < presets.count(); ++preset) {
                const RPFmtItemDataWdg &row = RowAt(presets, preset);
                const QString texts = row.Title() + u" | "_s + row.Description();
                QVERIFY2(ShowsBothTextsWhole(row), title + ": " + texts.toUtf8());
            }
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(HasJapaneseFont(), "there is no font to measure Japanese texts with");
        LoadExample();
    }

    void cleanup() { ForgetPresets(); }

    void noTabIsCutOrUnderTheSearchBox_data() { AddLanguageRows(AllLanguages()); }

    void noTabIsCutOrUnderTheSearchBox()
    {
        openAndLook([](const PopupDriver &user) {
            const QTabBar &bar = *user.Tabs()->tabBar();
            QCOMPARE(bar.count(), 6);
            for (int i = 0; i < bar.count(); ++i) {
                QVERIFY(!bar.tabIcon(i).isNull());
                QVERIFY2(TabBarLook::ShowsWholeText(bar, i), qPrintable(bar.tabText(i)));
                const int right = bar.mapTo(user.Tabs(), bar.tabRect(i).topRight()).x();
                QVERIFY2(right < user.SearchBox()->x(), qPrintable(bar.tabText(i)));
            }
            for (const QToolButton *scroll : bar.findChildren<QToolButton *>())
                QVERIFY(!scroll->isVisible());
        });
    }

    void thePlaceholderFitsTheSearchBox_data() { AddLanguageRows(AllLanguages()); }

    void thePlaceholderFitsTheSearchBox()
    {
        openAndLook([](const PopupDriver &user) {
            const QLineEdit &box = *user.SearchBox();
            QVERIFY(!box.placeholderText().isEmpty());
            QVERIFY(WidthOf(box, box.placeholderText()) <= RoomForPlaceholder(box));
        });
    }

    void everyRowOfTheExampleShowsItsWholeTexts_data() { AddLanguageRows(AllLanguages()); }

    void everyRowOfTheExampleShowsItsWholeTexts()
    {
        openAndLook([](const PopupDriver &user) {
            for (int tab = 1; tab < user.Tabs()->count() - 1; ++tab) {
                user.SwitchTab(user.TabTexts().at(tab));
                QCOMPARE(user.Tabs()->currentIndex(), tab);
                checkPresetRows(user);
            }
        });
    }

    void everyRecentRowOfTheExampleShowsItsWholeTexts_data() { AddLanguageRows(AllLanguages()); }

    void everyRecentRowOfTheExampleShowsItsWholeTexts()
    {
        const auto dataSource = IOLFmtPresetDataSource::Shared();
        const auto root = dataSource->GetDefaultFormatNode();
        for (int i = 0; i < root->ChildCount(); ++i) {
            const auto category = root->ChildAt(i);
            for (int j = 0; j < category->ChildCount(); ++j) {
                const auto format = category->ChildAt(j);
                for (int k = 0; k < format->PresetCount(); ++k)
                    QVERIFY(dataSource->AddRecentPreset(format->PresetAt(k), format));
            }
        }
        openAndLook([](const PopupDriver &user) {
            const QListWidget &list = *user.List("lwRecentList");
            QCOMPARE(list.count(), 414);
            for (int i = 0; i < list.count(); ++i) {
                const RPFmtItemDataWdg &row = RowAt(list, i);
                QVERIFY2(ShowsBothTextsApart(row), qPrintable(row.Title()));
            }
        });
    }

    // Tabs and placeholder are named once; rows are translated whenever they are painted.
    void aLaterChangeOfLanguageShowsInTheRowsAlone()
    {
        QWidget host;
        host.show();
        RPFmtSelectionDlg popup;
        const PopupDriver user(&popup);
        popup.ShowPopup({}, { 20, 20, 100, 30 });
        user.SwitchTab(u"Audio"_s);
        const QStringList tabs = user.TabTexts();
        const RPFmtItemDataWdg &row = RowAt(*user.List("ListFormat"), 0);
        QCOMPARE(row.Title(), u"Best"_s);

        const InstalledLanguage japanese(LanguageOf(u"ja_JP"_s));
        QCOMPARE(row.Title(), u"最高"_s);
        QCOMPARE(user.TabTexts(), tabs);
        QCOMPARE(user.SearchBox()->placeholderText(), u"Search..."_s);
        popup.hide();
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtSelectionDlgLanguages)

#include "tst_rpfmtselectiondlg_languages.moc"
