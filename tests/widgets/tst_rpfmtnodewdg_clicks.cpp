#include "TestCase.h"

#include "RPFmtItemDataWdg.h"
#include "RPFmtNodeWdg.h"
#include "RowClicks.h"
#include "TreeBuilder.h"

#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <QLabel>

using namespace Orlimo;
using Test::ActionBoxOnScreen;
using Test::ClickAction;
using Test::ClickOnScreen;
using Test::ClickRow;
using Test::MakeCategory;
using Test::MakeFormat;
using Test::RowOnScreen;
using Test::RowTitles;

namespace {

using namespace Qt::StringLiterals;

struct Report
{
    std::shared_ptr<const IOLFormatPreset> preset;
    std::shared_ptr<const IOLFormatNode> node;
};

} // namespace

// Clicks on the presets of a category page.
class tst_RPFmtNodeWdg_Clicks : public Test::TestCase
{
    Q_OBJECT

private:
    std::shared_ptr<IOLFormatNode> video;
    std::unique_ptr<RPFmtNodeWdg> page;
    QList<Report> choices;
    QList<Report> edits;

    void prepare() override
    {
        video = MakeCategory("Video",
                             { MakeFormat("MP4", { "HD 1080P", "SD 480P" }),
                               MakeFormat("AVI", { "DivX", "Xvid" }) });
        choices.clear();
        edits.clear();
        page = std::make_unique<RPFmtNodeWdg>(nullptr);
        page->formatSelected = [this](auto preset, auto node) { choices.append({ preset, node }); };
        page->formatEditRequested = [this](auto preset, auto node) {
            edits.append({ preset, node });
        };
        page->SetFormatNode(video, false);
        page->setGeometry(50, 50, 700, 400);
        page->show();
        QVERIFY(QTest::qWaitForWindowExposed(page.get()));
    }

    QListWidget &formats() const { return *page->FormatList(); }

private Q_SLOTS:
    void cleanup() { page.reset(); }

    void aClickOnAPresetChoosesItUnderItsFormat()
    {
        ClickRow(formats(), 1);
        QCOMPARE(choices.size(), 1);
        QCOMPARE(choices.first().preset, video->FirstChild()->PresetAt(1));
        QCOMPARE(choices.first().node, video->FirstChild());
        QVERIFY(edits.isEmpty());
    }

    void theFormatOfAChoiceIsTheSelectedOne()
    {
        ClickRow(*page->NodeList(), 1);
        QVERIFY(choices.isEmpty());
        ClickRow(formats(), 0);
        QCOMPARE(choices.size(), 1);
        QCOMPARE(choices.first().preset, video->ChildAt(1)->PresetAt(0));
        QCOMPARE(choices.first().node, video->ChildAt(1));
    }

    void aClickOnTheActionIconAsksForEditing()
    {
        ClickAction(formats(), 1);
        QCOMPARE(edits.size(), 1);
        QCOMPARE(edits.first().preset, video->FirstChild()->PresetAt(1));
        QCOMPARE(edits.first().node, video->FirstChild());
        QVERIFY(choices.isEmpty());
        QCOMPARE(formats().count(), 2);
    }

    void theEdgesOfTheActionBoxBelongToIt_data()
    {
        QTest::addColumn<int>("fromRight");
        QTest::addColumn<int>("fromMiddle");
        QTest::addColumn<bool>("asksForEditing");
        QTest::newRow("left edge") << 27 << 0 << true;
        QTest::newRow("right edge") << 11 << 0 << true;
        QTest::newRow("top edge") << 19 << -8 << true;
        QTest::newRow("bottom edge") << 19 << 8 << true;
        QTest::newRow("top left corner") << 27 << -8 << true;
        QTest::newRow("bottom right corner") << 11 << 8 << true;
        QTest::newRow("left of it") << 28 << 0 << false;
        QTest::newRow("right of it") << 10 << 0 << false;
        QTest::newRow("above it") << 19 << -9 << false;
        QTest::newRow("below it") << 19 << 9 << false;
        QTest::newRow("right edge of the row") << 0 << 0 << false;
    }

    void theEdgesOfTheActionBoxBelongToIt()
    {
        QFETCH(const int, fromRight);
        QFETCH(const int, fromMiddle);
        QFETCH(const bool, asksForEditing);
        const QRect row = RowOnScreen(formats(), 1);
        ClickOnScreen(formats(), { row.right() - fromRight, row.center().y() + fromMiddle });
        QCOMPARE(edits.size(), asksForEditing ? 1 : 0);
        QCOMPARE(choices.size(), asksForEditing ? 0 : 1);
    }

    void theMousePointerDecidesNotThePointOfTheEvent()
    {
        QCursor::setPos(ActionBoxOnScreen(formats(), 1).center());
        QWidget *viewport = formats().viewport();
        const QRect row = formats().visualItemRect(formats().item(1));
        QTest::mouseClick(viewport, Qt::LeftButton, {}, row.topLeft() + QPoint(20, 20));
        QCOMPARE(edits.size(), 1);
        QVERIFY(choices.isEmpty());
    }

    void withoutCallbacksClicksDoNothing()
    {
        page->formatSelected = nullptr;
        page->formatEditRequested = nullptr;
        ClickRow(formats(), 1);
        ClickAction(formats(), 1);
        QCOMPARE(RowTitles(formats()), QStringList({ u"HD 1080P"_s, u"SD 480P"_s }));
    }

    void theThirdCallbackIsNeverCalled()
    {
        bool called = false;
        page->formatActionRequested = [&](auto, auto) { called = true; };
        ClickRow(formats(), 1);
        ClickAction(formats(), 1);
        ClickRow(*page->NodeList(), 1);
        QVERIFY(!called);
    }

    void aRowWithoutAnItemWidgetOfItsKindIsIgnored()
    {
        for (const bool labelled : { false, true }) {
            auto *item = new QListWidgetItem(&formats());
            item->setSizeHint(QSize(0, 53));
            if (labelled)
                formats().setItemWidget(item, new QLabel);
            formats().doItemsLayout();
            ClickRow(formats(), formats().row(item));
            ClickAction(formats(), formats().row(item));
            QCOMPARE(formats().currentItem(), item);
        }
        QVERIFY(choices.isEmpty());
        QVERIFY(edits.isEmpty());
    }

    void aChoiceInASearchIsReportedWithTheFormatOfTheResult()
    {
        page->SearchFormat(u"xvid"_s);
        ClickRow(formats(), 0);
        QCOMPARE(choices.size(), 1);
        QCOMPARE(choices.first().preset->Name(), std::string("Xvid"));
        QCOMPARE(choices.first().node->Name(), std::string("AVI"));
        QCOMPARE(choices.first().node->PresetCount(), 1);
    }

    void aCallbackMayShowAnotherNode_data()
    {
        QTest::addColumn<bool>("action");
        QTest::newRow("choosing") << false;
        QTest::newRow("editing") << true;
    }

    void aCallbackMayShowAnotherNode()
    {
        QFETCH(const bool, action);
        const auto showOther = [this](auto preset, auto node) {
            page->SetFormatNode(MakeCategory("Audio", { MakeFormat("MP3", { "Best" }) }), false);
            video.reset();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCOMPARE(preset->Name(), std::string("SD 480P"));
            QCOMPARE(node->Name(), std::string("MP4"));
        };
        page->formatSelected = showOther;
        page->formatEditRequested = showOther;
        action ? ClickAction(formats(), 1) : ClickRow(formats(), 1);
        QCOMPARE(RowTitles(formats()), QStringList({ u"Best"_s }));
    }

    void theMouseOverARowShowsItsActionAlone()
    {
        const auto rowAt = [this](int index) {
            return qobject_cast<RPFmtItemDataWdg *>(formats().itemWidget(formats().item(index)));
        };
        QCursor::setPos(RowOnScreen(formats(), 0).center());
        QTRY_VERIFY(rowAt(0)->hovered);
        QCursor::setPos(RowOnScreen(formats(), 1).center());
        QTRY_VERIFY(rowAt(1)->hovered);
        QTRY_VERIFY(!rowAt(0)->hovered);
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtNodeWdg_Clicks)

#include "tst_rpfmtnodewdg_clicks.moc"
