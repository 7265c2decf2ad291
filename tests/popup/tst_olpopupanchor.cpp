#include "TestCase.h"

#include "OLPopupAnchor.h"

#include <limits>

using Orlimo::PopupPoint;
using Orlimo::PopupRect;
using Orlimo::ToAnchor;

namespace {

constexpr float infinite = std::numeric_limits<float>::infinity();
constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

} // namespace

Q_DECLARE_METATYPE(Orlimo::PopupRect)
Q_DECLARE_METATYPE(Orlimo::PopupPoint)

class tst_OLPopupAnchor : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rectangleIsCutOffTowardZero_data()
    {
        QTest::addColumn<PopupRect>("rect");
        QTest::addColumn<QPoint>("topLeft");
        QTest::addColumn<QPoint>("bottomRight");
        QTest::newRow("whole numbers")
                << PopupRect { 10, 20, 30, 40 } << QPoint(10, 20) << QPoint(39, 59);
        QTest::newRow("fractions, each by itself")
                << PopupRect { 10.9f, 20.9f, 30.9f, 40.9f } << QPoint(10, 20) << QPoint(39, 59);
        QTest::newRow("negative fractions")
                << PopupRect { -0.5f, -1.9f, 1, 1 } << QPoint(0, -1) << QPoint(0, -1);
        QTest::newRow("empty") << PopupRect { 5, 6, 0, 0 } << QPoint(5, 6) << QPoint(4, 5);
        QTest::newRow("negative size")
                << PopupRect { 5, 6, -3, -4 } << QPoint(5, 6) << QPoint(1, 1);
        QTest::newRow("not numbers") << PopupRect { notANumber, notANumber, notANumber, notANumber }
                                     << QPoint(0, 0) << QPoint(-1, -1);
        QTest::newRow("too large") << PopupRect { 1e20f, infinite, 1e20f, infinite }
                                   << QPoint(highest, highest) << QPoint(highest, highest);
        QTest::newRow("too small") << PopupRect { -1e20f, -infinite, -1e20f, -infinite }
                                   << QPoint(lowest, lowest) << QPoint(lowest, lowest);
        QTest::newRow("first value beyond int")
                << PopupRect { 2147483648.0f, 0, 1, 1 } << QPoint(highest, 0) << QPoint(highest, 0);
    }

    void rectangleIsCutOffTowardZero()
    {
        QFETCH(const PopupRect, rect);
        QFETCH(const QPoint, topLeft);
        QFETCH(const QPoint, bottomRight);
        QCOMPARE(ToAnchor(rect).topLeft(), topLeft);
        QCOMPARE(ToAnchor(rect).bottomRight(), bottomRight);
    }

    void pointIsAnAnchorOfOnePixel_data()
    {
        QTest::addColumn<PopupPoint>("point");
        QTest::addColumn<QRect>("anchor");
        QTest::newRow("whole") << PopupPoint { 7, 8 } << QRect(QPoint(7, 8), QPoint(7, 8));
        QTest::newRow("fractions")
                << PopupPoint { 7.9f, -0.9f } << QRect(QPoint(7, 0), QPoint(7, 0));
        QTest::newRow("not numbers")
                << PopupPoint { notANumber, notANumber } << QRect(QPoint(0, 0), QPoint(0, 0));
        QTest::newRow("too large") << PopupPoint { 3e9f, -3e9f }
                                   << QRect(QPoint(highest, lowest), QPoint(highest, lowest));
    }

    void pointIsAnAnchorOfOnePixel()
    {
        QFETCH(const PopupPoint, point);
        QFETCH(const QRect, anchor);
        QCOMPARE(ToAnchor(point), anchor);
    }

    void rectangleAndPointAreFloatsInOrder()
    {
        static_assert(sizeof(PopupRect) == 4 * sizeof(float));
        static_assert(offsetof(PopupRect, x) == 0 && offsetof(PopupRect, y) == 4);
        static_assert(offsetof(PopupRect, width) == 8 && offsetof(PopupRect, height) == 12);
        static_assert(sizeof(PopupPoint) == 2 * sizeof(float) && offsetof(PopupPoint, y) == 4);
        QVERIFY((std::is_same_v<decltype(PopupRect::x), float>));
    }
};

ORLIMO_TEST_MAIN(tst_OLPopupAnchor)

#include "tst_olpopupanchor.moc"
