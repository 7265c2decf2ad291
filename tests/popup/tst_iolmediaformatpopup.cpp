#include "ModalDriver.h"
#include "PopupDriver.h"
#include "SampleDescription.h"
#include "TestCase.h"

#include "IOLAppSettings.h"
#include "IOLCodecPreset.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLMediaFormatPopup.h"

#include <QComboBox>
#include <QDialog>
#include <QPushButton>

#include <limits>

using namespace Orlimo;
using namespace Qt::StringLiterals;
using Test::PopupDriver;

namespace {

using WhenDialogOpen = Test::WhenOpen<QDialog>;

void press(const QDialog &dialog, const char *button)
{
    QTest::mouseClick(dialog.findChild<QPushButton *>(QString::fromLatin1(button)), Qt::LeftButton);
}

void chooseNextResolution(const QDialog &dialog)
{
    auto *combo = dialog.findChild<QComboBox *>(u"cmbResolution"_s);
    QTest::keyClick(combo, Qt::Key_Down);
}

} // namespace

// The facade without any format description.
class tst_IOLMediaFormatPopup : public Test::TestCase
{
    Q_OBJECT

    void prepare() override { Test::ForgetPresets(); }

    static void closePopup()
    {
        PopupDriver::FindPopup()->close();
        QVERIFY(!PopupDriver::FindPopup()->isVisible());
    }

private Q_SLOTS:
    void thereIsOnePicker()
    {
        const auto picker = IOLMediaFormatPopup::Shared();
        QVERIFY(picker);
        QCOMPARE(IOLMediaFormatPopup::Shared(), picker);
        QVERIFY(!PopupDriver::FindPopup());
    }

    void waitingWithoutALoadDoesNothing()
    {
        IOLMediaFormatPopup::WaitForFormatDataLoadingComplete();
    }

    void showingBeforeAnyLoadOpensRecentAndCustom()
    {
        int closings = 0;
        IOLMediaFormatPopup::Shared()->ShowFormatPopup({ 20, 20, 10, 10 },
                                                       [&](auto preset, auto node) {
                                                           QVERIFY(!preset && !node);
                                                           ++closings;
                                                       });
        QWidget *popup = PopupDriver::FindPopup();
        QVERIFY(popup && popup->isVisible());
        QCOMPARE(PopupDriver(popup).TabTexts(), QStringList({ u"Recent"_s, u"Custom"_s }));
        closePopup();
        QCOMPARE(closings, 1);
    }

    void popupIsMadeOnceAndReused()
    {
        QWidget *popup = PopupDriver::FindPopup();
        IOLMediaFormatPopup::Shared()->ShowFormatPopupAt({ 5, 5 }, {});
        QCOMPARE(PopupDriver::FindPopup(), popup);
        QVERIFY(popup->isVisible());
        closePopup();
    }

    // On the offscreen platform's screen of 800 x 800 only the upper half tells places apart.
    void popupStandsBesideTheRectangle_data()
    {
        constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
        QTest::addColumn<float>("y");
        QTest::addColumn<float>("height");
        QTest::addColumn<int>("top");
        QTest::newRow("whole numbers") << 40.0f << 30.0f << 39;
        QTest::newRow("fractions are cut off") << 40.9f << 30.9f << 39;
        QTest::newRow("negative fractions too") << -0.5f << 10.0f << -1;
        QTest::newRow("no height") << 40.0f << 0.0f << 39;
        QTest::newRow("pushed up") << 300.0f << 10.0f << 200;
        QTest::newRow("lower half") << 700.0f << 20.0f << 100;
        QTest::newRow("not a number") << notANumber << notANumber << -1;
    }

    void popupStandsBesideTheRectangle()
    {
        QFETCH(const float, y);
        QFETCH(const float, height);
        IOLMediaFormatPopup::Shared()->ShowFormatPopup({ 10, y, 20, height }, {});
        QTEST(PopupDriver::FindPopup()->y(), "top");
        closePopup();
    }

    void popupStandsAtThePointAsBesideOnePixel()
    {
        IOLMediaFormatPopup::Shared()->ShowFormatPopupAt({ 10.9f, 40.9f }, {});
        QCOMPARE(PopupDriver::FindPopup()->y(), 39);
        closePopup();
        IOLMediaFormatPopup::Shared()->ShowFormatPopupAt({ 10, 700 }, {});
        QCOMPARE(PopupDriver::FindPopup()->y(), 100);
        closePopup();
    }

    void savedEditChangesThePresetAndKeepsNothing()
    {
        const auto preset = IOLFormatPreset::MallocFormatPreset("MP4", "");
        const int before = preset->CurrentVideoCodec()->CurrentResolutionIndex();
        const WhenDialogOpen act([](const QDialog &dialog) {
            chooseNextResolution(dialog);
            press(dialog, "btnSave");
        });
        QVERIFY(IOLMediaFormatPopup::Shared()->EditFormatPreset(preset, nullptr));
        QCOMPARE(preset->CurrentVideoCodec()->CurrentResolutionIndex(), before + 1);
        QVERIFY(IOLAppSettings::Shared()->Value("recent_format_preset").empty());
        QVERIFY(IOLAppSettings::Shared()->Value("custom_format_preset").empty());
    }

    void cancelledEditLeavesThePreset()
    {
        const auto preset = IOLFormatPreset::MallocFormatPreset("MP4", "");
        const int before = preset->CurrentVideoCodec()->CurrentResolutionIndex();
        const WhenDialogOpen act([](const QDialog &dialog) {
            chooseNextResolution(dialog);
            press(dialog, "btnCancel");
        });
        QVERIFY(!IOLMediaFormatPopup::Shared()->EditFormatPreset(preset, nullptr));
        QCOMPARE(preset->CurrentVideoCodec()->CurrentResolutionIndex(), before);
    }

    void editWithoutAPresetOffersNothingToSave()
    {
        const WhenDialogOpen act([](const QDialog &dialog) {
            QVERIFY(!dialog.findChild<QPushButton *>(u"btnSave"_s)->isEnabled());
            press(dialog, "btnCancel");
        });
        QVERIFY(!IOLMediaFormatPopup::Shared()->EditFormatPreset(nullptr, nullptr));
    }

    void editWhileTheDialogIsOpenIsRefused()
    {
        const auto first = IOLFormatPreset::MallocFormatPreset("MP4", "");
        const int before = first->CurrentVideoCodec()->CurrentResolutionIndex();
        bool second = true;
        const WhenDialogOpen act([&](const QDialog &dialog) {
            chooseNextResolution(dialog);
            second = IOLMediaFormatPopup::Shared()
                             ->EditFormatPreset(IOLFormatPreset::MallocFormatPreset("MP3", ""),
                                                nullptr);
            press(dialog, "btnSave");
        });
        QVERIFY(IOLMediaFormatPopup::Shared()->EditFormatPreset(first, nullptr));
        QVERIFY(!second);
        QCOMPARE(first->CurrentVideoCodec()->CurrentResolutionIndex(), before + 1);
    }

    void editingDialogIsOneForThePopupAndTheHost()
    {
        QList<QDialog *> dialogs;
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == "RPFmtEditingDlgClass"_L1)
                dialogs.append(qobject_cast<QDialog *>(widget));
        }
        QCOMPARE(dialogs.size(), 1);
        QVERIFY(!dialogs.first()->testAttribute(Qt::WA_QuitOnClose));
    }
};

ORLIMO_TEST_MAIN(tst_IOLMediaFormatPopup)

#include "tst_iolmediaformatpopup.moc"
