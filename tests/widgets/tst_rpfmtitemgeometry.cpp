#include "TestCase.h"

#include "RPFmtItemGeometry.h"

using namespace Orlimo;

class tst_RPFmtItemGeometry : public Test::TestCase
{
    Q_OBJECT

private:
    const QRect row { 0, 0, 553, 53 };

private Q_SLOTS:
    void rowsAreFiftyThreePixelsHigh() { QCOMPARE(OLRowHeight, 53); }

    void iconAndActionAreCentredVertically_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QRect>("icon");
        QTest::addColumn<QRect>("action");
        QTest::newRow("row of a list")
                << QSize(553, 53) << QRect(10, 10, 33, 33) << QRect(525, 18, 17, 17);
        QTest::newRow("even height")
                << QSize(553, 54) << QRect(10, 10, 33, 33) << QRect(525, 18, 17, 17);
        QTest::newRow("size of the form")
                << QSize(553, 97) << QRect(10, 32, 33, 33) << QRect(525, 40, 17, 17);
        QTest::newRow("narrow") << QSize(100, 53) << QRect(10, 10, 33, 33) << QRect(72, 18, 17, 17);
        QTest::newRow("narrower than its parts")
                << QSize(20, 21) << QRect(10, -6, 33, 33) << QRect(-8, 2, 17, 17);
    }

    void iconAndActionAreCentredVertically()
    {
        QFETCH(const QSize, size);
        const QRect sized({ 0, 0 }, size);
        QTEST(RowIconBox(sized), "icon");
        QTEST(RowActionBox(sized), "action");
    }

    void actionEndsElevenPixelsBeforeTheRightEdge()
    {
        const QRect action = RowActionBox(row);
        QCOMPARE(action.bottomRight(), QPoint(541, 34));
        QCOMPARE(row.right() - action.right(), 11);
    }

    void nodeTitleFillsTheRowBesideTheIcon_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QRect>("title");
        QTest::newRow("row of a list") << QSize(553, 53) << QRect(52, 10, 490, 33);
        QTest::newRow("left column") << QSize(240, 53) << QRect(52, 10, 177, 33);
        QTest::newRow("size of the form") << QSize(553, 97) << QRect(52, 32, 490, 33);
    }

    void nodeTitleFillsTheRowBesideTheIcon()
    {
        QFETCH(const QSize, size);
        QTEST(NodeTitleBox(QRect({ 0, 0 }, size)), "title");
    }

    void presetTitleHasItsMeasuredSizeAndTheMiddleOfTheIcon_data()
    {
        QTest::addColumn<QSize>("measured");
        QTest::addColumn<QRect>("title");
        QTest::newRow("odd height") << QSize(80, 15) << QRect(52, 19, 80, 15);
        QTest::newRow("even height") << QSize(80, 16) << QRect(52, 18, 80, 16);
        QTest::newRow("wider than the row") << QSize(900, 17) << QRect(52, 18, 900, 17);
        QTest::newRow("empty") << QSize(0, 0) << QRect(52, 26, 0, 0);
    }

    void presetTitleHasItsMeasuredSizeAndTheMiddleOfTheIcon()
    {
        QFETCH(const QSize, measured);
        QTEST(PresetTitleBox(row, measured), "title");
    }

    void descriptionEndsTenPixelsBeforeTheAction_data()
    {
        QTest::addColumn<int>("left");
        QTest::addColumn<QRect>("description");
        QTest::addColumn<bool>("holdsText");
        QTest::newRow("wide") << 306 << QRect(306, 18, 209, 17) << true;
        QTest::newRow("just wide enough") << 474 << QRect(474, 18, 41, 17) << true;
        QTest::newRow("just too narrow") << 475 << QRect(475, 18, 40, 17) << false;
        QTest::newRow("right of the action") << 550 << QRect(550, 18, -35, 17) << false;
    }

    void descriptionEndsTenPixelsBeforeTheAction()
    {
        QFETCH(const int, left);
        const QRect box = DescriptionBox(row, left);
        QTEST(box, "description");
        QTEST(HoldsDescription(box), "holdsText");
    }

    void presetDescriptionBeginsAtTheTextWidthOrRightOfMiddleAndTitle_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("textWidth");
        QTest::addColumn<int>("titleRight");
        QTest::addColumn<int>("left");
        QTest::newRow("text width") << 553 << 200 << 100 << 200;
        QTest::newRow("text width under the title") << 553 << 60 << 400 << 60;
        QTest::newRow("least text width") << 553 << 1 << 100 << 1;
        QTest::newRow("automatic, short title") << 553 << 0 << 100 << 306;
        QTest::newRow("automatic, negative") << 553 << -1 << 100 << 306;
        QTest::newRow("automatic, title to the middle") << 553 << 0 << 296 << 306;
        QTest::newRow("automatic, longer title") << 553 << 0 << 297 << 307;
        QTest::newRow("automatic, no title") << 553 << 0 << 42 << 306;
        QTest::newRow("automatic, no title in a narrow row") << 40 << 0 << 42 << 52;
    }

    void presetDescriptionBeginsAtTheTextWidthOrRightOfMiddleAndTitle()
    {
        QFETCH(const int, width);
        QFETCH(const int, textWidth);
        QFETCH(const int, titleRight);
        QTEST(PresetDescriptionLeft(QRect(0, 0, width, 53), textWidth, titleRight), "left");
    }

    void recentDescriptionBeginsLeftOfTheMiddle_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("left");
        QTest::newRow("row of a list") << 553 << 196;
        QTest::newRow("even width") << 600 << 219;
        QTest::newRow("just right of the icon") << 267 << 53;
        QTest::newRow("narrow") << 200 << 52;
    }

    void recentDescriptionBeginsLeftOfTheMiddle()
    {
        QFETCH(const int, width);
        QTEST(RecentDescriptionLeft(QRect(0, 0, width, 53)), "left");
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtItemGeometry)

#include "tst_rpfmtitemgeometry.moc"
