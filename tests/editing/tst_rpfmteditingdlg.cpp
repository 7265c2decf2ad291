#include "TestCase.h"

#include "EditingDriver.h"
#include "ForwardingPreset.h"
#include "SampleFormat.h"

#include "IOLCodecPreset.h"
#include "IOLFormatNode.h"

using namespace Test;
using Orlimo::IOLFormatPreset;
using Orlimo::RPFmtEditingDlg;

namespace {

const QString cancel = QStringLiteral("btnCancel");
const QString reset = QStringLiteral("btnDefault");
const QString save = QStringLiteral("btnSave");

using Leave = void (*)(const EditingDriver &);

void CloseWindow(const EditingDriver &user)
{
    user.Dialog().windowHandle()->close();
}

bool EditSample(const std::shared_ptr<IOLFormatPreset> &preset, Leave leave)
{
    return Edit(preset, MakeSampleFormat(), leave);
}

// Goes from the choices of the preset "HD" to other ones.
void ChooseOthers(const EditingDriver &user)
{
    user.Choose(QStringLiteral("cmbResolution"), 2);
    user.Choose(QStringLiteral("cmbFrameRate"), 0);
    user.Choose(QStringLiteral("cmbVQuality"), 1);
    user.Choose(QStringLiteral("cmbAEncoder"), 1);
    user.Choose(QStringLiteral("cmbChannel"), 2);
    user.Choose(QStringLiteral("cmbSampleRate"), 0);
    user.Choose(QStringLiteral("cmbAQuality"), 1);
}

const QList<int> hdChoices { 1, 1, 2, 0, 2, 0, 2, 1 };
const QList<int> otherChoices { 1, 2, 0, 1, 1, 2, 0, 1 };

} // namespace

Q_DECLARE_METATYPE(Leave)

class tst_RPFmtEditingDlg : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thereIsOneDialogWithoutAParent()
    {
        RPFmtEditingDlg *dialog = RPFmtEditingDlg::Instance();
        EditSample(MakeSamplePreset("HD"), CloseWindow);
        QCOMPARE(RPFmtEditingDlg::Instance(), dialog);
        QCOMPARE(dialog->parent(), nullptr);
        QVERIFY(dialog->isHidden());
    }

    void theDialogIsModalWhileItIsOpen()
    {
        EditSample(MakeSamplePreset("HD"), [](const EditingDriver &user) {
            QVERIFY(user.Dialog().isModal());
            CloseWindow(user);
        });
    }

    void choicesGoToTheWorkingCopyAtOnceAndNotToThePreset_data()
    {
        QTest::addColumn<QString>("combo");
        QTest::addColumn<int>("index");
        QTest::addColumn<QList<int>>("choices");
        const auto add = [](const char *combo, int index, const QList<int> &choices) {
            QTest::newRow(combo) << QString::fromLatin1(combo) << index << choices;
        };
        add("cmbVEncoder", 2, { 2, 0, 1, 2, 2, 0, 2, 1 });
        add("cmbResolution", 2, { 1, 2, 2, 0, 2, 0, 2, 1 });
        add("cmbFrameRate", 3, { 1, 1, 3, 0, 2, 0, 2, 1 });
        add("cmbVQuality", 1, { 1, 1, 2, 1, 2, 0, 2, 1 });
        add("cmbAEncoder", 1, { 1, 1, 2, 0, 1, 1, 1, 0 });
        add("cmbChannel", 1, { 1, 1, 2, 0, 2, 1, 2, 1 });
        add("cmbSampleRate", 1, { 1, 1, 2, 0, 2, 0, 1, 1 });
        add("cmbAQuality", 2, { 1, 1, 2, 0, 2, 0, 2, 2 });
    }

    void choicesGoToTheWorkingCopyAtOnceAndNotToThePreset()
    {
        QFETCH(const QString, combo);
        QFETCH(const int, index);
        QFETCH(const QList<int>, choices);
        const auto preset = std::make_shared<WatchedPreset>(MakeSamplePreset("HD"));
        Edit(preset, MakeSampleFormat(), [&](const EditingDriver &user) {
            QCOMPARE(CurrentChoices(preset->LatestClone()), hdChoices);
            user.Choose(combo, index);
            QCOMPARE(CurrentChoices(preset->LatestClone()), choices);
            QCOMPARE(CurrentChoices(*preset), hdChoices);
            CloseWindow(user);
        });
    }

    void saveWritesTheChoicesToThePreset_data()
    {
        QTest::addColumn<Leave>("leave");
        QTest::newRow("button") << Leave([](const EditingDriver &user) { user.Click(save); });
        QTest::newRow("return") << Leave(
                [](const EditingDriver &user) { user.Press(Qt::Key_Return); });
        QTest::newRow("enter") << Leave(
                [](const EditingDriver &user) { user.Press(Qt::Key_Enter); });
    }

    void saveWritesTheChoicesToThePreset()
    {
        QFETCH(const Leave, leave);
        const auto preset = MakeSamplePreset("HD");
        const auto isSaved = Edit(preset, MakeSampleFormat(), [&](const EditingDriver &user) {
            ChooseOthers(user);
            leave(user);
        });
        QVERIFY(isSaved);
        QCOMPARE(CurrentChoices(*preset), otherChoices);
        QVERIFY(preset->IsEqual(MakeSamplePreset("HD")));
    }

    void savingWithoutAChoiceChangesNothing()
    {
        const auto preset = MakeSamplePreset("HD");
        const auto before = AllIndices(*preset);
        QVERIFY(EditSample(preset, [](const EditingDriver &user) { user.Click(save); }));
        QCOMPARE(AllIndices(*preset), before);
    }

    void leavingWithoutSavingChangesNothing_data()
    {
        QTest::addColumn<Leave>("leave");
        QTest::newRow("cancel") << Leave([](const EditingDriver &user) { user.Click(cancel); });
        QTest::newRow("escape") << Leave(
                [](const EditingDriver &user) { user.Press(Qt::Key_Escape); });
        QTest::newRow("closed window") << Leave(CloseWindow);
    }

    void leavingWithoutSavingChangesNothing()
    {
        QFETCH(const Leave, leave);
        const auto preset = MakeSamplePreset("HD");
        const auto before = AllIndices(*preset);
        const auto isSaved = Edit(preset, MakeSampleFormat(), [&](const EditingDriver &user) {
            ChooseOthers(user);
            leave(user);
        });
        QVERIFY(!isSaved);
        QCOMPARE(AllIndices(*preset), before);
    }

    void saveIsTheDefaultButton()
    {
        EditSample(MakeSamplePreset("HD"), [](const EditingDriver &user) {
            for (const auto *button : user.Dialog().findChildren<QPushButton *>())
                QCOMPARE(button->isDefault(), button->objectName() == save);
            CloseWindow(user);
        });
    }

    void resetGoesBackToTheOpeningAndStaysOpen()
    {
        const auto preset = std::make_shared<WatchedPreset>(MakeSamplePreset("HD"));
        const auto before = AllIndices(*preset);
        const auto isSaved = Edit(preset, MakeSampleFormat(), [&](const EditingDriver &user) {
            ChooseOthers(user);
            user.Choose(QStringLiteral("cmbVEncoder"), 0);
            user.Click(reset);
            QVERIFY(user.Dialog().isVisible());
            QCOMPARE(user.Shown(), hdChoices);
            QCOMPARE(user.EnabledCombos(), allCombos);
            QCOMPARE(AllIndices(preset->LatestClone()), before);
            user.Click(save);
        });
        QVERIFY(isSaved);
        QCOMPARE(AllIndices(*preset), before);
    }

    void choicesAfterAResetAreSaved()
    {
        const auto preset = MakeSamplePreset("HD");
        EditSample(preset, [](const EditingDriver &user) {
            user.Choose(QStringLiteral("cmbResolution"), 0);
            user.Click(reset);
            user.Choose(QStringLiteral("cmbFrameRate"), 3);
            user.Click(save);
        });
        const QList<int> expected { 1, 1, 3, 0, 2, 0, 2, 1 };
        QCOMPARE(CurrentChoices(*preset), expected);
    }

    void resetGoesBackToWhatWasSavedBefore()
    {
        const auto preset = MakeSamplePreset("HD");
        EditSample(preset, [](const EditingDriver &user) {
            ChooseOthers(user);
            user.Click(save);
        });
        EditSample(preset, [](const EditingDriver &user) {
            user.Choose(QStringLiteral("cmbResolution"), 0);
            user.Click(reset);
            QCOMPARE(user.Shown(), otherChoices);
            user.Click(cancel);
        });
    }

    void aNewOpeningForgetsTheEarlierOne()
    {
        const auto preset = MakeSamplePreset("HD");
        EditSample(preset, [](const EditingDriver &user) {
            ChooseOthers(user);
            user.Click(cancel);
        });
        EditSample(preset, [](const EditingDriver &user) {
            QCOMPARE(user.Shown(), hdChoices);
            user.Click(save);
        });
        QCOMPARE(CurrentChoices(*preset), hdChoices);
    }

    void enterSavesAlsoAfterAnOpeningThatWasCancelled()
    {
        EditSample(MakeSamplePreset("HD"), [](const EditingDriver &user) { user.Click(cancel); });
        QVERIFY(EditSample(MakeSamplePreset("HD"),
                           [](const EditingDriver &user) { user.Press(Qt::Key_Return); }));
    }

    void aSecondCallLeavesTheRunningEditAlone()
    {
        const auto preset = MakeSamplePreset("HD");
        const auto other = MakeSamplePreset("Automatic");
        const auto before = AllIndices(*other);
        const auto isSaved = Edit(preset, MakeSampleFormat(), [&](const EditingDriver &user) {
            user.Choose(QStringLiteral("cmbResolution"), 2);
            QVERIFY(!RPFmtEditingDlg::EditPreset(other, nullptr));
            QVERIFY(user.Dialog().isVisible());
            QCOMPARE(user.Dialog().windowTitle(), QStringLiteral("Settings"));
            const QList<int> shown { 1, 2, 2, 0, 2, 0, 2, 1 };
            QCOMPARE(user.Shown(), shown);
            user.Choose(QStringLiteral("cmbFrameRate"), 3);
            user.Click(save);
        });
        QVERIFY(isSaved);
        const QList<int> expected { 1, 2, 3, 0, 2, 0, 2, 1 };
        QCOMPARE(CurrentChoices(*preset), expected);
        QCOMPARE(AllIndices(*other), before);
    }

    void closingTheOnlyWindowDoesNotQuit_data()
    {
        QTest::addColumn<Leave>("leave");
        QTest::newRow("save") << Leave([](const EditingDriver &user) { user.Click(save); });
        QTest::newRow("cancel") << Leave([](const EditingDriver &user) { user.Click(cancel); });
        QTest::newRow("closed window") << Leave(CloseWindow);
    }

    void closingTheOnlyWindowDoesNotQuit()
    {
        QFETCH(const Leave, leave);
        QVERIFY(QApplication::quitOnLastWindowClosed());
        QVERIFY(!EditingClosesTheLastWindow(MakeSamplePreset("HD"), leave));
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtEditingDlg)

#include "tst_rpfmteditingdlg.moc"
