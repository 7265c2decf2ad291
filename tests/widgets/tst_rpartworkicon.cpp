#include "TestCase.h"

#include "PickerData.h"
#include "Pixels.h"
#include "RPArtworkIcon.h"

using Orlimo::ArtworkIcon;

class tst_RPArtworkIcon : public Test::TestCase
{
    Q_OBJECT

private:
    const QColor red { 200, 0, 0 };
    const QColor green { 0, 200, 0 };

private Q_SLOTS:
    // Runs first: the data source keeps its artwork once it has some.
    void withoutArtworkThereIsNoIcon() { QVERIFY(ArtworkIcon(1001).isNull()); }

    void everyFaceIdHasItsOwnIcon()
    {
        Test::LoadArtwork({ { 1001, red }, { -5, green } }, { 33 });
        const QImage first = ArtworkIcon(1001).pixmap(33, 33).toImage();
        QCOMPARE(Test::SolidBox(first, red), QRect(0, 0, 33, 33));
        const QImage second = ArtworkIcon(-5).pixmap(33, 33).toImage();
        QCOMPARE(Test::SolidBox(second, green), QRect(0, 0, 33, 33));
    }

    void anUnknownFaceIdHasNoIcon()
    {
        Test::LoadArtwork({ { 1001, red } }, { 33 });
        QVERIFY(ArtworkIcon(0).isNull());
        QVERIFY(ArtworkIcon(1002).isNull());
    }

    void newArtworkReplacesTheOld()
    {
        Test::LoadArtwork({ { 1001, red } }, { 33 });
        Test::LoadArtwork({ { 1001, green } }, { 33 });
        const QImage image = ArtworkIcon(1001).pixmap(33, 33).toImage();
        QCOMPARE(Test::SolidBox(image, green), QRect(0, 0, 33, 33));
    }

    void theIconHasAllSizesOfItsFaceId()
    {
        Test::LoadArtwork({ { 1001, red } }, { 18, 33 });
        const QList<QSize> expected { QSize(18, 18), QSize(33, 33) };
        QCOMPARE(ArtworkIcon(1001).availableSizes(), expected);
    }
};

ORLIMO_TEST_MAIN(tst_RPArtworkIcon)

#include "tst_rpartworkicon.moc"
