#include "NodePageTest.h"

#include "ui_RPFmtSelectionDlg.h"

#include "IOLFormatPreset.h"

#include <QPointer>
#include <QSignalSpy>

using namespace Orlimo;
using Test::MakeCategory;
using Test::MakeFormat;
using Test::RowAt;
using Test::RowTitles;
using Test::Show;

namespace {

using namespace Qt::StringLiterals;

QImage ImageOf(const QIcon &icon)
{
    return icon.pixmap(64, 64).toImage();
}

} // namespace

// What the two lists show of a node and of a selected child.
class tst_RPFmtNodeWdg : public Test::NodePageTest
{
    Q_OBJECT

private Q_SLOTS:
    void aNodeShowsItsChildrenAndThePresetsOfTheFirst()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        compareLists(page, { u"MP4"_s, u"AVI"_s, u"MKV"_s },
                     { u"HD 1080P"_s, u"SD 480P"_s, u"mobile"_s });
        compareCurrentRows(page, 0, 0);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(RowAt(page.NodeList(), i)->node, video->ChildAt(i));
            QVERIFY(RowAt(page.NodeList(), i)->actionIcon.isNull());
            QCOMPARE(RowAt(page.FormatList(), i)->preset, video->FirstChild()->PresetAt(i));
        }
    }

    void aPageIsTheSameFilledBeforeOrAfterItBecomesATab()
    {
        QWidget windows[2];
        RPFmtNodeWdg *pages[2];
        for (const int i : { 0, 1 }) {
            Ui::RPFmtSelectionDlgClass ui;
            ui.setupUi(&windows[i]);
            pages[i] = new RPFmtNodeWdg(ui.tabWidget);
            if (i == 0)
                pages[i]->SetFormatNode(video, false);
            ui.tabWidget->insertTab(0, pages[i], u"Video"_s);
            ui.tabWidget->setCurrentIndex(0);
            if (i == 1)
                pages[i]->SetFormatNode(video, false);
            windows[i].show();
        }
        QCOMPARE(windows[0].grab().toImage(), windows[1].grab().toImage());
        for (const RPFmtNodeWdg *page : pages) {
            compareCurrentRows(*page, 0, 0);
            compareLists(*page, { u"MP4"_s, u"AVI"_s, u"MKV"_s },
                         { u"HD 1080P"_s, u"SD 480P"_s, u"mobile"_s });
        }
        for (int i = 0; i < 3; ++i) {
            const RPFmtItemDataWdg &first = *RowAt(pages[0]->FormatList(), i);
            const RPFmtItemDataWdg &second = *RowAt(pages[1]->FormatList(), i);
            QCOMPARE(first.font(), second.font());
            QCOMPARE(first.geometry(), second.geometry());
            QCOMPARE(first.textWidth, second.textWidth);
        }
    }

    void theListOfChildrenTellsOfTheRowThatIsSelectedWhenItIsFilled()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        QSignalSpy selections(page.NodeList(), &QListWidget::itemSelectionChanged);
        QSignalSpy rows(page.NodeList(), &QListWidget::currentRowChanged);
        page.SetFormatNode(MakeCategory("Audio", { MakeFormat("MP3", { "High" }) }), false);
        QVERIFY(!selections.isEmpty());
        QCOMPARE(rows.last().first().toInt(), 0);
    }

    void aRowThatAListenerSelectsWhileThePageIsFilledShowsItsPresets()
    {
        RPFmtNodeWdg page(nullptr);
        connect(page.NodeList(), &QListWidget::currentRowChanged, this, [&page](int row) {
            if (row == 0)
                page.NodeList()->setCurrentRow(1);
        });
        page.SetFormatNode(video, false);
        compareLists(page, { u"MP4"_s, u"AVI"_s, u"MKV"_s }, { u"DivX"_s, u"Xvid"_s });
        compareCurrentRows(page, 1, 0);
    }

    void whoListensToTheListOfChildrenSeesThePresetsOfTheSelectedOne()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        QList<QStringList> presets;
        connect(page.NodeList(), &QListWidget::itemSelectionChanged, this,
                [&] { presets.append(RowTitles(*page.FormatList())); });
        page.SetFormatNode(MakeCategory("Audio", { MakeFormat("MP3", { "High" }) }), false);
        QVERIFY(!presets.isEmpty());
        QCOMPARE(presets.last(), QStringList { u"High"_s });
    }

    void rowsAreFiftyThreePixelsHighAndTrackTheMouse()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        QVERIFY(Show(page));
        for (const QListWidget *list : { page.NodeList(), page.FormatList() }) {
            QCOMPARE(list->item(1)->sizeHint(), QSize(0, 53));
            QCOMPARE(RowAt(list, 1)->geometry(), QRect(0, 53, list->viewport()->width(), 53));
            QVERIFY(RowAt(list, 1)->hasMouseTracking());
        }
    }

    void theActionOfAPresetIsToEditItOrOnACustomPageToDeleteIt()
    {
        RPFmtNodeWdg page(nullptr);
        for (const bool custom : { false, true }) {
            page.SetFormatNode(video, custom);
            const QIcon expected(custom ? u":/OLMediaFormatPopup/trash.png"_s
                                        : u":/OLMediaFormatPopup/setting.png"_s);
            for (int i = 0; i < 3; ++i) {
                const QIcon icon = RowAt(page.FormatList(), i)->actionIcon;
                QCOMPARE(ImageOf(icon), ImageOf(expected));
                QCOMPARE(icon.availableSizes(), expected.availableSizes());
            }
        }
    }

    void descriptionsBeginRightOfTheWidestPresetName()
    {
        const QFont usual = QApplication::font();
        QFont larger(usual);
        larger.setPointSize(20);
        QApplication::setFont(larger);
        RPFmtNodeWdg page(nullptr);
        page.FormatList()->setFont(usual);
        page.SetFormatNode(video, false);
        QApplication::setFont(usual);
        const int widest = QFontMetrics(larger).size(0, u"HD 1080P"_s).width();
        for (int i = 0; i < 3; ++i)
            QCOMPARE(RowAt(page.FormatList(), i)->textWidth, widest + 53 + 30);
    }

    void besideAnEmptyNameTheDescriptionBeginsRightOfItsMargins()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(MakeCategory("Video", { MakeFormat("MP4", { "" }) }), false);
        QCOMPARE(RowAt(page.FormatList(), 0)->textWidth, 53 + 30);
    }

    void anEmptyPointerEmptiesTheLists()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        page.SetFormatNode(nullptr, false);
        compareLists(page, {}, {});
        compareCurrentRows(page, -1, -1);
    }

    void aNodeWithoutChildrenShowsNothing()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        page.SetFormatNode(MakeCategory("Audio", {}), false);
        compareLists(page, {}, {});
        compareCurrentRows(page, -1, -1);
    }

    void aChildWithoutPresetsShowsNoPresets()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(MakeCategory("Video", { MakeFormat("MP4", {}) }), false);
        compareLists(page, { u"MP4"_s }, {});
        compareCurrentRows(page, 0, -1);
    }

    void aClickOnAChildShowsItsPresets()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        QVERIFY(Show(page));
        Test::ClickRow(*page.NodeList(), 1);
        QCOMPARE(RowTitles(*page.FormatList()), QStringList({ u"DivX"_s, u"Xvid"_s }));
        compareCurrentRows(page, 1, 0);
        Test::ClickAction(*page.NodeList(), 2); // a node has no action
        QCOMPARE(RowTitles(*page.FormatList()), QStringList({ u"HD 720P"_s }));
        compareCurrentRows(page, 2, 0);
    }

    void aChildThatIsDeselectedKeepsItsPresets()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        QVERIFY(Show(page));
        Test::ClickRow(*page.NodeList(), 1);
        const QPointer<QWidget> preset = RowAt(page.FormatList(), 0);
        Test::ClickRow(*page.NodeList(), 1, Qt::ControlModifier);
        QVERIFY(page.NodeList()->selectedItems().isEmpty());
        QCOMPARE(RowTitles(*page.FormatList()), QStringList({ u"DivX"_s, u"Xvid"_s }));
        QVERIFY(preset);
        QCOMPARE(RowAt(page.FormatList(), 0), preset.get());
        compareCurrentRows(page, 1, 0);
    }

    void theArrowKeysShowThePresetsOfTheNextChild()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        QVERIFY(Show(page));
        Test::ClickRow(*page.NodeList(), 0);
        QTest::keyClick(page.NodeList(), Qt::Key_Down);
        QCOMPARE(RowTitles(*page.FormatList()), QStringList({ u"DivX"_s, u"Xvid"_s }));
        compareCurrentRows(page, 1, 0);
    }

    void theWidthOfTheNamesIsThatOfTheSelectedChild()
    {
        RPFmtNodeWdg page(nullptr);
        page.SetFormatNode(video, false);
        QVERIFY(Show(page));
        Test::ClickRow(*page.NodeList(), 1);
        const QFontMetrics metrics { QFont() };
        const int widest = std::max(metrics.size(0, u"DivX"_s).width(),
                                    metrics.size(0, u"Xvid"_s).width());
        QCOMPARE(RowAt(page.FormatList(), 0)->textWidth, widest + 83);
    }

    void theNodeIsReleasedWithThePage()
    {
        const std::weak_ptr<IOLFormatNode> observed = video;
        {
            RPFmtNodeWdg page(nullptr);
            page.SetFormatNode(std::move(video), false);
            page.SearchFormat(u"HD"_s);
            QVERIFY(!observed.expired());
        }
        QVERIFY(observed.expired());
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtNodeWdg)

#include "tst_rpfmtnodewdg.moc"
