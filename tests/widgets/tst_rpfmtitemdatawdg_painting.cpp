#include "TestCase.h"

#include "PickerData.h"
#include "Pixels.h"
#include "RPFmtItemDataWdg.h"
#include "TreeBuilder.h"

#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

using namespace Orlimo;
using Test::GrabOnWhite;
using Test::InkBox;
using Test::SolidBox;

namespace {

constexpr int face = 1001;
constexpr int otherFace = 1002;
constexpr int unknownFace = 7;

const QColor blue(0, 0, 200);
const QColor green(0, 200, 0);
const QColor red(200, 0, 0);

const QRect iconBox(10, 10, 33, 33);
const QRect actionBox(525, 18, 17, 17);

enum class Kind { Node, Preset, Recent };

} // namespace

// The icons of the rows, and what rows of each kind show and leave out.
class tst_RPFmtItemDataWdg_Painting : public Test::TestCase
{
    Q_OBJECT

private:
    // A row of the lists' height without texts. What does not give the row its icon has another
    // face.
    static std::unique_ptr<RPFmtItemDataWdg> makeRow(Kind kind, int faceID)
    {
        auto row = std::make_unique<RPFmtItemDataWdg>(nullptr);
        row->resize(553, 53);
        if (kind == Kind::Node) {
            row->node = Test::MakeNode("", "", faceID);
        } else if (kind == Kind::Preset) {
            row->preset = Test::MakePreset("", "", faceID);
        } else {
            row->recentItem = IOLFmtPresetRecentItem::MallocFmtPresetRecentItem(
                    Test::MakePreset("", "", otherFace), Test::MakeNode("", "", faceID));
        }
        return row;
    }

    static void addKinds()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("node") << int(Kind::Node);
        QTest::newRow("preset") << int(Kind::Preset);
        QTest::newRow("recent") << int(Kind::Recent);
    }

    void prepare() override { Test::LoadArtwork({ { face, blue }, { otherFace, green } }, { 33 }); }

private Q_SLOTS:
    void aRowWithoutDataStaysBlankAndSaysSoEveryTime()
    {
        RPFmtItemDataWdg row(nullptr);
        row.hovered = true;
        row.actionIcon = Test::SolidPixmap({ 17, 17 }, red);
        for (int i = 0; i < 2; ++i) {
            QTest::ignoreMessage(QtWarningMsg, "Error format item data to paint");
            QVERIFY(InkBox(GrabOnWhite(row), row.rect()).isEmpty());
        }
    }

    void theIconFillsItsBox_data() { addKinds(); }

    void theIconFillsItsBox()
    {
        QFETCH(const int, kind);
        const auto row = makeRow(Kind(kind), face);
        const QImage image = GrabOnWhite(*row);
        QCOMPARE(SolidBox(image, blue), iconBox);
        QCOMPARE(InkBox(image, row->rect()), iconBox);
    }

    void theIconIsCentredVertically_data()
    {
        QTest::addColumn<int>("height");
        QTest::addColumn<QRect>("box");
        QTest::newRow("form") << 97 << QRect(10, 32, 33, 33);
        QTest::newRow("even height") << 98 << QRect(10, 32, 33, 33);
        QTest::newRow("odd height") << 99 << QRect(10, 33, 33, 33);
    }

    void theIconIsCentredVertically()
    {
        QFETCH(const int, height);
        const auto row = makeRow(Kind::Node, face);
        row->resize(553, height);
        QTEST(SolidBox(GrabOnWhite(*row), blue), "box");
    }

    void aLargerIconIsShrunkToItsBox()
    {
        Test::LoadArtwork({ { face, blue } }, { 66 });
        const QImage image = GrabOnWhite(*makeRow(Kind::Node, face));
        QCOMPARE(InkBox(image, image.rect()), iconBox);
    }

    void aSmallerIconIsCentredInItsBox()
    {
        Test::LoadArtwork({ { face, blue } }, { 17 });
        QCOMPARE(SolidBox(GrabOnWhite(*makeRow(Kind::Node, face)), blue), QRect(18, 18, 17, 17));
    }

    void aRowWithoutArtworkHasNoIcon_data() { addKinds(); }

    void aRowWithoutArtworkHasNoIcon()
    {
        QFETCH(const int, kind);
        const auto row = makeRow(Kind(kind), unknownFace);
        QVERIFY(InkBox(GrabOnWhite(*row), row->rect()).isEmpty());
    }

    void theIconIsLookedUpOnEveryPaint()
    {
        const auto row = makeRow(Kind::Node, face);
        QCOMPARE(SolidBox(GrabOnWhite(*row), blue), iconBox);
        Test::LoadArtwork({ { face, red } }, { 33 });
        QCOMPARE(SolidBox(GrabOnWhite(*row), red), iconBox);
    }

    void aDisabledRowShowsItsIconsAsUsual()
    {
        const auto row = makeRow(Kind::Preset, face);
        row->hovered = true;
        row->actionIcon = Test::SolidPixmap({ 17, 17 }, red);
        row->setEnabled(false);
        const QImage image = GrabOnWhite(*row);
        QCOMPARE(SolidBox(image, blue), iconBox);
        QCOMPARE(SolidBox(image, red), actionBox);
    }

    void aNodeGoesBeforeAPresetAndAPresetBeforeARecentItem()
    {
        const auto row = makeRow(Kind::Recent, unknownFace);
        row->preset = Test::MakePreset("", "", face);
        QCOMPARE(SolidBox(GrabOnWhite(*row), blue), iconBox);
        row->node = Test::MakeNode("", "", otherFace);
        const QImage image = GrabOnWhite(*row);
        QCOMPARE(SolidBox(image, green), iconBox);
        QVERIFY(SolidBox(image, blue).isEmpty());
    }

    void theActionIconIsShownOnlyWhileHovered_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("hovered");
        QTest::addColumn<QRect>("action");
        QTest::newRow("preset") << int(Kind::Preset) << true << actionBox;
        QTest::newRow("recent") << int(Kind::Recent) << true << actionBox;
        QTest::newRow("preset, not hovered") << int(Kind::Preset) << false << QRect();
        QTest::newRow("recent, not hovered") << int(Kind::Recent) << false << QRect();
        QTest::newRow("nodes have none") << int(Kind::Node) << true << QRect();
    }

    void theActionIconIsShownOnlyWhileHovered()
    {
        QFETCH(const int, kind);
        QFETCH(const bool, hovered);
        const auto row = makeRow(Kind(kind), face);
        row->actionIcon = Test::SolidPixmap({ 17, 17 }, red);
        row->hovered = hovered;
        QTEST(SolidBox(GrabOnWhite(*row), red), "action");
    }

    void theActionIconIsFittedIntoItsBox_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QRect>("ink");
        QTest::newRow("larger") << QSize(236, 236) << actionBox;
        QTest::newRow("smaller") << QSize(7, 7) << QRect(530, 23, 7, 7);
        QTest::newRow("upright") << QSize(30, 34) << QRect(526, 18, 15, 17);
    }

    void theActionIconIsFittedIntoItsBox()
    {
        QFETCH(const QSize, size);
        const auto row = makeRow(Kind::Preset, unknownFace);
        row->actionIcon = Test::SolidPixmap(size, red);
        row->hovered = true;
        QTEST(InkBox(GrabOnWhite(*row), row->rect()), "ink");
    }

    void theActionIconIsThatOfTheNormalStateThatIsOff()
    {
        const auto row = makeRow(Kind::Preset, unknownFace);
        row->actionIcon.addPixmap(Test::SolidPixmap({ 17, 17 }, green), QIcon::Active, QIcon::Off);
        row->actionIcon.addPixmap(Test::SolidPixmap({ 17, 17 }, blue), QIcon::Normal, QIcon::On);
        row->actionIcon.addPixmap(Test::SolidPixmap({ 17, 17 }, red), QIcon::Normal, QIcon::Off);
        row->hovered = true;
        QCOMPARE(SolidBox(GrabOnWhite(*row), red), actionBox);
    }

    void withoutAnActionIconHoveringShowsNothing()
    {
        const auto row = makeRow(Kind::Preset, unknownFace);
        row->hovered = true;
        QVERIFY(InkBox(GrabOnWhite(*row), row->rect()).isEmpty());
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtItemDataWdg_Painting)

#include "tst_rpfmtitemdatawdg_painting.moc"
