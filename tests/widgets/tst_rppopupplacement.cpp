#include "TestCase.h"

#include "RPPopupPlacement.h"

#include <limits>

using Orlimo::PlacePopup;

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

} // namespace

class tst_RPPopupPlacement : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void popupIsPlacedByTheAnchorsQuadrant_data()
    {
        QTest::addColumn<QRect>("anchor");
        QTest::addColumn<QRect>("available");
        QTest::addColumn<QPoint>("place");

        const QRect screen(0, 0, 1920, 1080);
        QTest::newRow("upper left: on the anchor's top edge, aligned left")
                << QRect(100, 50, 120, 30) << screen << QPoint(100, 49);
        QTest::newRow("upper right: left of the anchor by its width")
                << QRect(1700, 50, 120, 30) << screen << QPoint(1700 - 120 - 800, 49);
        QTest::newRow("lower left: above the anchor")
                << QRect(100, 900, 120, 30) << screen << QPoint(100, 300);
        QTest::newRow("lower right") << QRect(1700, 900, 120, 30) << screen << QPoint(780, 300);

        QTest::newRow("left at exactly the half counts as the left half")
                << QRect(960, 0, 10, 10) << screen << QPoint(960, -1);
        QTest::newRow("one pixel further counts as the right half")
                << QRect(961, 0, 10, 10) << screen << QPoint(151, -1);
        QTest::newRow("bottom at exactly the half counts as the upper half, and does not fit")
                << QRect(0, 531, 10, 10) << screen << QPoint(0, 480);
        QTest::newRow("one pixel further counts as the lower half")
                << QRect(0, 532, 10, 10) << screen << QPoint(0, 0);

        const QRect narrow(0, 0, 1280, 800);
        QTest::newRow("pushed left to the last pixel of the area")
                << QRect(600, 0, 10, 10) << narrow << QPoint(1279 - 800, -1);
        QTest::newRow("fits to the last pixel")
                << QRect(479, 0, 10, 10) << narrow << QPoint(479, -1);
        QTest::newRow("right half never starts left of 0")
                << QRect(700, 0, 100, 10) << narrow << QPoint(0, -1);
        QTest::newRow("lower half never starts above 0")
                << QRect(0, 420, 10, 100) << narrow << QPoint(0, 0);
        QTest::newRow("pushed up to the area's height")
                << QRect(0, 290, 10, 10) << narrow << QPoint(0, 200);
        QTest::newRow("reaching the area's height exactly is pushed up")
                << QRect(0, 191, 10, 10) << narrow << QPoint(0, 200);
        QTest::newRow("one pixel before is not")
                << QRect(0, 190, 10, 10) << narrow << QPoint(0, 189);

        QTest::newRow("empty anchor") << QRect(100, 50, 0, 0) << screen << QPoint(100, 49);
        QTest::newRow("empty anchor in the right half")
                << QRect(1700, 50, 0, 0) << screen << QPoint(1700 - 800, 49);
        QTest::newRow("empty anchor whose bottom, above its top, is at exactly the half")
                << QRect(0, 541, 10, 0) << screen << QPoint(0, 480);
        QTest::newRow("empty anchor one pixel further")
                << QRect(0, 542, 10, 0) << screen << QPoint(0, 0);
        QTest::newRow("one pixel") << QRect(1700, 900, 1, 1) << screen << QPoint(899, 300);
        QTest::newRow("off the left edge stays")
                << QRect(-30, 50, 10, 10) << screen << QPoint(-30, 49);

        const QRect second(1920, 40, 1280, 984);
        QTest::newRow("halves count from the origin, not from the area")
                << QRect(2000, 60, 100, 20) << second << QPoint(2000 - 100 - 800, 59);
        QTest::newRow("the right edge is the area's")
                << QRect(600, 60, 100, 20) << second << QPoint(600, 59);

        QTest::newRow("far right") << QRect(QPoint(highest, 0), QPoint(highest, 0)) << screen
                                   << QPoint(highest - 801, -1);
        QTest::newRow("far left") << QRect(QPoint(lowest, 0), QPoint(lowest, 0)) << screen
                                  << QPoint(lowest, -1);
        QTest::newRow("far up") << QRect(QPoint(0, lowest), QPoint(0, lowest)) << screen
                                << QPoint(0, lowest);
        QTest::newRow("far down") << QRect(QPoint(0, highest), QPoint(0, highest)) << screen
                                  << QPoint(0, highest - 600);
        QTest::newRow("widest") << QRect(QPoint(1000, 0), QPoint(highest, 0)) << screen
                                << QPoint(0, -1);
    }

    void popupIsPlacedByTheAnchorsQuadrant()
    {
        QFETCH(const QRect, anchor);
        QFETCH(const QRect, available);
        QFETCH(const QPoint, place);
        QCOMPARE(PlacePopup(anchor, available, QSize(800, 600)), place);
    }
};

ORLIMO_TEST_MAIN(tst_RPPopupPlacement)

#include "tst_rppopupplacement.moc"
