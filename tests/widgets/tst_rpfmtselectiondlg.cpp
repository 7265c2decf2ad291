#include "MapTranslator.h"
#include "PopupDriver.h"
#include "SampleDescription.h"
#include "TestCase.h"
#include "TreeBuilder.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "RPFmtNodeWdg.h"
#include "RPFmtRecentListWdg.h"
#include "RPFmtSelectionDlg.h"

#include <QAction>
#include <QImageReader>
#include <QLayout>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QTabBar>

using namespace Orlimo;
using namespace Qt::StringLiterals;

namespace {

const QRect anchor(20, 20, 100, 30);

void ignoreChoice(const std::shared_ptr<const IOLFormatPreset> &,
                  const std::shared_ptr<const IOLFormatNode> &)
{
}

} // namespace

// The popup before any format description is loaded.
class tst_RPFmtSelectionDlg : public Test::TestCase
{
    Q_OBJECT

    void prepare() override { Test::ForgetPresets(); }

    static void addRecent(const char *name)
    {
        const auto tree = Test::SampleDescription::Tree();
        const auto format = tree->FirstChild()->FirstChild();
        const auto preset = format->FirstFormatPreset()->Clone();
        preset->SetName(name);
        IOLFmtPresetDataSource::Shared()->AddRecentPreset(preset, format);
    }

    static void addCustom(const char *format, const char *name)
    {
        IOLFmtPresetDataSource::Shared()->AddCustomPreset(Test::MakePreset(name),
                                                          Test::MakeNode(format));
    }

private Q_SLOTS:
    void windowIsFramelessAndOfFixedSize()
    {
        const RPFmtSelectionDlg popup;
        QCOMPARE(popup.size(), QSize(800, 600));
        QCOMPARE(popup.minimumSize(), QSize(800, 600));
        QCOMPARE(popup.maximumSize(), QSize(800, 600));
        QVERIFY(popup.windowFlags().testFlag(Qt::FramelessWindowHint));
        QCOMPARE(popup.windowType(), Qt::Window);
        QVERIFY(!popup.parentWidget());
        QCOMPARE(popup.focusPolicy(), Qt::StrongFocus);
        QCOMPARE(popup.objectName(), u"RPFmtSelectionDlgClass"_s);
        QCOMPARE(popup.windowTitle(), u"RPFmtSelectionDlg"_s);
        QVERIFY(popup.isHidden());
    }

    void formHasTheTabWidgetInItsLayout()
    {
        RPFmtSelectionDlg popup;
        QCOMPARE(popup.layout()->objectName(), u"verticalLayout"_s);
        QCOMPARE(popup.layout()->spacing(), 6);
        QCOMPARE(popup.layout()->contentsMargins(), QMargins(11, 11, 11, 11));
        QCOMPARE(popup.layout()->count(), 1);
        const QTabWidget *tabs = Test::PopupDriver(&popup).Tabs();
        QCOMPARE(popup.layout()->itemAt(0)->widget(), tabs);
        QCOMPARE(tabs->font().families(), QStringList(u"Microsoft New Tai Lue"_s));
        QCOMPARE(tabs->font().pointSize(), 10);
        QCOMPARE(tabs->tabPosition(), QTabWidget::North);
        QCOMPARE(tabs->tabShape(), QTabWidget::Rounded);
        QCOMPARE(tabs->iconSize(), QSize(18, 18));
        QCOMPARE(tabs->styleSheet(),
                 u"QTabBar::tab:selected { background-color: rgb(227, 229, 229); }\n"
                 "QTabBar::tab {\n \t\tbackground-color: rgb(255, 255, 255);\n"
                 "         border-color: rgb(227, 229, 229); /* 设置你想要的颜色，例如红色 */\n"
                 "        border-width: 1px; /* 设置边框宽度 */\n"
                 "        border-style: solid; /* 设置边框样式 */\n\t\t height: 30px;\n    }\n"_s);
    }

    void searchTextChangedIsTheOnlyMetaMethod()
    {
        const QMetaObject &type = RPFmtSelectionDlg::staticMetaObject;
        QCOMPARE(QByteArray(type.className()), QByteArray("Orlimo::RPFmtSelectionDlg"));
        QCOMPARE(type.methodCount() - type.methodOffset(), 1);
        const QMetaMethod method = type.method(type.methodOffset());
        QCOMPARE(method.methodSignature(), QByteArray("SearchTextChanged(QString)"));
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        QCOMPARE(method.access(), QMetaMethod::Public);
    }

    void withoutFormatDataThereAreTheRecentAndCustomTabs()
    {
        RPFmtSelectionDlg popup;
        const Test::PopupDriver driver(&popup);
        QCOMPARE(driver.TabTexts(), QStringList({ u"Recent"_s, u"Custom"_s }));
        QVERIFY(qobject_cast<RPFmtRecentListWdg *>(driver.Tabs()->widget(0)));
        QVERIFY(qobject_cast<RPFmtNodeWdg *>(driver.Tabs()->widget(1)));
        QVERIFY(driver.Tabs()->tabIcon(0).isNull());
        QVERIFY(driver.Tabs()->tabIcon(1).isNull());
    }

    void ownTextsAreTranslatedInTheClassesContext()
    {
        const char *context = "Orlimo::RPFmtSelectionDlg";
        const Test::MapTranslator translator({ { { context, "Recent", "" }, u"Zuletzt"_s },
                                               { { context, "Custom", "" }, u"Eigene"_s },
                                               { { context, "Search...", "" }, u"Suchen ..."_s } });
        RPFmtSelectionDlg popup;
        const Test::PopupDriver driver(&popup);
        QCOMPARE(driver.TabTexts(), QStringList({ u"Zuletzt"_s, u"Eigene"_s }));
        QCOMPARE(driver.SearchBox()->placeholderText(), u"Suchen ..."_s);
    }

    void ownTextsWithEmptyTranslationsStayInEnglish()
    {
        const char *context = "Orlimo::RPFmtSelectionDlg";
        const Test::MapTranslator translator({ { { context, "Recent", "" }, u""_s },
                                               { { context, "Custom", "" }, u""_s },
                                               { { context, "Search...", "" }, u""_s } });
        RPFmtSelectionDlg popup;
        const Test::PopupDriver driver(&popup);
        QCOMPARE(driver.TabTexts(), QStringList({ u"Recent"_s, u"Custom"_s }));
        QCOMPARE(driver.SearchBox()->placeholderText(), u"Search..."_s);
    }

    void withoutRecentChoicesThePopupOpensOnTheTabAfterRecent()
    {
        RPFmtSelectionDlg popup;
        QCOMPARE(Test::PopupDriver(&popup).Tabs()->currentIndex(), 1);
    }

    void withRecentChoicesThePopupOpensOnRecent()
    {
        addRecent("First");
        addRecent("Second");
        RPFmtSelectionDlg popup;
        const Test::PopupDriver driver(&popup);
        QCOMPARE(driver.Tabs()->currentIndex(), 0);
        QCOMPARE(driver.RowTexts("lwRecentList"), QStringList({ u"MP4 Second"_s, u"MP4 First"_s }));
    }

    void customPresetsThatAreThereBeforeThePopupAreOnItsCustomTab()
    {
        addCustom("MP4", "mine");
        addCustom("MP4", "other");
        addCustom("AVI", "old");
        RPFmtSelectionDlg popup;
        const Test::PopupDriver driver(&popup);
        QCOMPARE(driver.TabTexts().at(driver.Tabs()->currentIndex()), u"Custom"_s);
        QCOMPARE(driver.RowTexts("ListNode"), QStringList({ u"MP4"_s, u"AVI"_s }));
        QCOMPARE(driver.RowTexts("ListFormat"), QStringList({ u"mine"_s, u"other"_s }));
    }

    void formatDataThatIsNotThereAddsNoTab()
    {
        RPFmtSelectionDlg popup;
        popup.OnFormatDataLoaded();
        QCOMPARE(Test::PopupDriver(&popup).Tabs()->count(), 2);
        QVERIFY(!popup.HasCategories());
    }

    void searchBoxStandsInTheTopRightCorner()
    {
        RPFmtSelectionDlg popup;
        const Test::PopupDriver driver(&popup);
        popup.ShowPopup(ignoreChoice, anchor);
        QVERIFY(QTest::qWaitForWindowExposed(&popup));
        const QRect tabs = driver.Tabs()->rect();
        QCOMPARE(driver.SearchBox()->geometry(), QRect(tabs.right() - 160, 0, 160, 24));
        QCOMPARE(driver.SearchBox()->geometry().right(), tabs.right() - 1);
        QVERIFY(driver.SearchBox()->isVisible());
    }

    void searchBoxFollowsTheTabWidgetsSize()
    {
        RPFmtSelectionDlg popup;
        const Test::PopupDriver driver(&popup);
        popup.ShowPopup(ignoreChoice, anchor);
        driver.Tabs()->resize(500, 300);
        QCOMPARE(driver.SearchBox()->geometry(), QRect(499 - 160, 0, 160, 24));
    }

    void searchBoxHasItsLook()
    {
        RPFmtSelectionDlg popup;
        const QLineEdit *search = Test::PopupDriver(&popup).SearchBox();
        QCOMPARE(search->styleSheet(),
                 u"QLineEdit{border-color: gray;} QLineEdit:hover{border-color: gray;}"_s);
        QVERIFY(search->isClearButtonEnabled());
        QCOMPARE(search->placeholderText(), u"Search..."_s);
        const auto hasSearchIcon = [](const QAction *action) {
            constexpr auto format = QImage::Format_ARGB32_Premultiplied;
            const QImage icon(u":/OLMediaFormatPopup/search.png"_s);
            const QImage shown = action->icon().pixmap(36, 36).toImage();
            return shown.convertToFormat(format) == icon.convertToFormat(format);
        };
        const auto actions = search->actions();
        QVERIFY(std::any_of(actions.begin(), actions.end(), hasSearchIcon));
    }

    void searchBoxHasNoContextMenu()
    {
        RPFmtSelectionDlg popup;
        const Test::PopupDriver driver(&popup);
        popup.ShowPopup(ignoreChoice, anchor);
        QVERIFY(QTest::qWaitForWindowActive(&popup));
        QLineEdit *search = driver.SearchBox();
        Test::ClickAt(search, search->rect().center());
        Test::ClickAt(search, search->rect().center(), Qt::RightButton);
        QContextMenuEvent event(QContextMenuEvent::Mouse, search->rect().center(), QCursor::pos());
        QApplication::sendEvent(search, &event);
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(popup.isVisible());
    }

    void backgroundIsWhiteWithAFrameOnAllFourSides()
    {
        RPFmtSelectionDlg popup;
        popup.ShowPopup(ignoreChoice, anchor);
        QVERIFY(QTest::qWaitForWindowExposed(&popup));
        const QImage picture = popup.grab().toImage();
        const QColor frame(188, 188, 188);
        for (int x = 0; x < 800; ++x) {
            QCOMPARE(picture.pixelColor(x, 0), frame);
            QCOMPARE(picture.pixelColor(x, 599), frame);
        }
        for (int y = 0; y < 600; ++y) {
            QCOMPARE(picture.pixelColor(0, y), frame);
            QCOMPARE(picture.pixelColor(799, y), frame);
        }
        const QRect tabs = popup.findChild<QTabWidget *>()->geometry();
        for (int y = 1; y < 599; ++y) {
            for (int x = 1; x < 799; ++x) {
                if (!tabs.contains(x, y))
                    QCOMPARE(picture.pixelColor(x, y), QColor(Qt::white));
            }
        }
    }

    void popupIsPlacedBesideTheAnchor()
    {
        RPFmtSelectionDlg popup;
        popup.ShowPopup(ignoreChoice, QRect(20, 40, 100, 30));
        const QRect available = popup.screen()->availableGeometry();
        QVERIFY2(available.topLeft() == QPoint(0, 0) && available.height() < 1200,
                 "the expected place holds for the offscreen platform's screen of 800 x 800");
        QCOMPARE(popup.pos(), QPoint(available.right() - 800, 39));
    }

    void closingThePopupDoesNotQuitTheApplication()
    {
        const RPFmtSelectionDlg popup;
        QVERIFY(!popup.testAttribute(Qt::WA_QuitOnClose));
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtSelectionDlg)

#include "tst_rpfmtselectiondlg.moc"
