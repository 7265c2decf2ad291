#include "TestCase.h"

#include "EditingDriver.h"
#include "ForwardingPreset.h"
#include "SampleFormat.h"

#include "IOLCodecPreset.h"
#include "IOLFormatNode.h"

using namespace Test;
using namespace Qt::StringLiterals;

namespace {

using Choices = QList<int>;

// The encoder's combo box and those of its options.
const QStringList &Side(const QString &encoders)
{
    return videoCombos.contains(encoders) ? videoCombos : audioCombos;
}

void Cancel(const EditingDriver &user)
{
    user.Press(Qt::Key_Escape);
}

// Opens the list with the mouse and picks an entry with it. The list lets a button go that has
// already been down when it appeared, unless the mouse has moved since.
void PickWithMouse(QComboBox &combo, int index)
{
    QTest::mouseClick(&combo, Qt::LeftButton);
    QTRY_VERIFY(combo.view()->isVisible());
    QWidget *list = combo.view()->viewport();
    const QPoint entry = combo.view()->visualRect(combo.model()->index(index, 0)).center();
    QTest::mouseMove(list, entry + QPoint(20, 0));
    QTest::mouseMove(list, entry);
    QTest::mouseClick(list, Qt::LeftButton, {}, entry);
    QTRY_VERIFY(!combo.view()->isVisible());
}

} // namespace

class tst_RPFmtEditingDlgControls : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyComboShowsItsList_data()
    {
        QTest::addColumn<QString>("combo");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<int>("current");
        const auto add = [](const char *combo, const QStringList &texts, int current) {
            QTest::newRow(combo) << QString::fromLatin1(combo) << texts << current;
        };
        add("cmbVEncoder", { u"Auto video"_s, u"Alpha"_s, u"Beta"_s }, 1);
        add("cmbResolution", { u"Source size"_s, u"1920 x 1080"_s, u"1280 x 720"_s }, 1);
        add("cmbFrameRate", { u"Source rate"_s, u"25 fps"_s, u"50 fps"_s, u"60 fps"_s }, 2);
        add("cmbVQuality", { u"Best"_s, u"Good"_s }, 0);
        add("cmbAEncoder", { u"Auto audio"_s, u"Gamma"_s, u"Delta"_s }, 2);
        add("cmbChannel", { u"One"_s, u"Two"_s }, 0);
        add("cmbSampleRate", { u"8000 Hz"_s, u"16000 Hz"_s, u"32000 Hz"_s }, 2);
        add("cmbAQuality", { u"High"_s, u"Middle"_s, u"Low"_s }, 1);
    }

    void everyComboShowsItsList()
    {
        QFETCH(const QString, combo);
        QFETCH(const QStringList, texts);
        QFETCH(const int, current);
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [&](const EditingDriver &user) {
            QCOMPARE(user.Texts(combo), texts);
            QCOMPARE(user.Combo(combo).currentIndex(), current);
            QVERIFY(user.Combo(combo).isEnabled());
            QVERIFY(!user.Combo(combo).isEditable());
            for (int i = 0; i < texts.size(); ++i)
                QVERIFY(!user.Combo(combo).itemData(i).isValid());
            Cancel(user);
        });
    }

    void openingChangesNoIndex_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char *name : { "HD", "Automatic", "Audio only", "None chosen", "Unset", "Long" })
            QTest::newRow(name) << QByteArray(name);
    }

    void openingChangesNoIndex()
    {
        QFETCH(const QByteArray, name);
        const auto preset = std::make_shared<WatchedPreset>(MakeSamplePreset(name.toStdString()));
        const auto before = AllIndices(*preset);
        // what the combos still hold of another preset must not reach this one
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), Cancel);
        Edit(preset, MakeSampleFormat(), [&](const EditingDriver &user) {
            QCOMPARE(AllIndices(preset->LatestClone()), before);
            user.Click(u"btnDefault"_s);
            QCOMPARE(AllIndices(preset->LatestClone()), before);
            user.Click(u"btnSave"_s);
        });
        QCOMPARE(AllIndices(*preset), before);
    }

    void theAutomaticEncoderHasNoOptions_data() { addSides(); }

    void theAutomaticEncoderHasNoOptions()
    {
        QFETCH(const QString, encoders);
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [&](const EditingDriver &user) {
            const Choices before = user.Shown();
            user.Choose(encoders, 0);
            for (const QString &combo : Side(encoders).mid(1)) {
                QCOMPARE(user.Combo(combo).count(), 0);
                QVERIFY(!user.Combo(combo).isEnabled());
            }
            QVERIFY(user.Combo(encoders).isEnabled());
            const bool isVideo = Side(encoders) == videoCombos;
            QCOMPARE(user.EnabledCombos().size(), 5);
            QCOMPARE(user.Shown().mid(isVideo ? 4 : 0, 4), before.mid(isVideo ? 4 : 0, 4));
            Cancel(user);
        });
    }

    void aPresetOfAutomaticEncodersOpensWithoutOptions()
    {
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), Cancel);
        Edit(MakeSamplePreset("Automatic"), MakeSampleFormat(), [](const EditingDriver &user) {
            const QStringList enabled { u"cmbVEncoder"_s, u"cmbAEncoder"_s };
            QCOMPARE(user.EnabledCombos(), enabled);
            const Choices shown { 0, -1, -1, -1, 0, -1, -1, -1 };
            QCOMPARE(user.Shown(), shown);
            for (const QString &combo : videoCombos.mid(1) + audioCombos.mid(1))
                QCOMPARE(user.Texts(combo), QStringList());
            Cancel(user);
        });
    }

    void anotherEncoderBringsItsOwnLists()
    {
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [](const EditingDriver &user) {
            user.Choose(u"cmbVEncoder"_s, 2);
            user.Choose(u"cmbAEncoder"_s, 1);
            const QStringList sizes { u"640 x 480"_s, u"320 x 240"_s };
            const QStringList rates { u"15 fps"_s, u"30 fps"_s };
            const QStringList videoQualities { u"Large"_s, u"Small"_s, u"Tiny"_s };
            const QStringList channels { u"Mono"_s, u"Stereo"_s, u"Surround"_s };
            const QStringList sampleRates { u"44100 Hz"_s, u"48000 Hz"_s };
            const QStringList audioQualities { u"Loud"_s, u"Quiet"_s };
            QCOMPARE(user.Texts(u"cmbResolution"_s), sizes);
            QCOMPARE(user.Texts(u"cmbFrameRate"_s), rates);
            QCOMPARE(user.Texts(u"cmbVQuality"_s), videoQualities);
            QCOMPARE(user.Texts(u"cmbChannel"_s), channels);
            QCOMPARE(user.Texts(u"cmbSampleRate"_s), sampleRates);
            QCOMPARE(user.Texts(u"cmbAQuality"_s), audioQualities);
            const Choices shown { 2, 0, 1, 2, 1, 1, 1, 0 };
            QCOMPARE(user.Shown(), shown);
            Cancel(user);
        });
    }

    void optionsComeBackAfterTheAutomaticEncoder()
    {
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [](const EditingDriver &user) {
            const Choices before = user.Shown();
            user.Choose(u"cmbVEncoder"_s, 0);
            user.Choose(u"cmbVEncoder"_s, 1);
            QCOMPARE(user.Shown(), before);
            QCOMPARE(user.EnabledCombos(), allCombos);
            Cancel(user);
        });
    }

    void everyEncoderRemembersItsOptions()
    {
        const auto preset = MakeSamplePreset("HD");
        Edit(preset, MakeSampleFormat(), [](const EditingDriver &user) {
            user.Choose(u"cmbResolution"_s, 2);
            user.Choose(u"cmbSampleRate"_s, 0);
            user.Choose(u"cmbVEncoder"_s, 2);
            user.Choose(u"cmbResolution"_s, 1);
            user.Choose(u"cmbAEncoder"_s, 1);
            user.Choose(u"cmbSampleRate"_s, 0);
            user.Choose(u"cmbVEncoder"_s, 1);
            const Choices first { 1, 2, 2, 0, 1, 1, 0, 0 };
            QCOMPARE(user.Shown(), first);
            user.Choose(u"cmbVEncoder"_s, 2);
            user.Choose(u"cmbAEncoder"_s, 2);
            const Choices second { 2, 1, 1, 2, 2, 0, 0, 1 };
            QCOMPARE(user.Shown(), second);
            user.Click(u"btnSave"_s);
        });
        // the current encoders; Auto video, Alpha, Beta; Auto audio, Gamma, Delta
        const Choices saved { 2, 2, -1, -1, -1, 2, 2, 0, 1, 1, 2, -1, -1, -1, 1, 0, 0, 0, 0, 1 };
        QCOMPARE(AllIndices(*preset), saved);
    }

    void entriesArePickedWithTheMouse()
    {
        const auto preset = MakeSamplePreset("HD");
        Edit(preset, MakeSampleFormat(), [](const EditingDriver &user) {
            PickWithMouse(user.Combo(u"cmbVEncoder"_s), 2);
            PickWithMouse(user.Combo(u"cmbVQuality"_s), 1);
            PickWithMouse(user.Combo(u"cmbChannel"_s), 1);
            user.Click(u"btnSave"_s);
        });
        const Choices expected { 2, 0, 1, 1, 2, 1, 2, 1 };
        QCOMPARE(CurrentChoices(*preset), expected);
    }

    void theTabKeyGoesThroughTheControlsInTheirOrder()
    {
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [](const EditingDriver &user) {
            user.Combo(u"cmbVEncoder"_s).setFocus(Qt::TabFocusReason);
            QStringList visited;
            for (int i = 0; i < 12; ++i) {
                visited += user.Dialog().focusWidget()->objectName();
                user.Press(Qt::Key_Tab);
            }
            const QStringList buttons { u"btnDefault"_s, u"btnSaveNewPreset"_s, u"btnCancel"_s,
                                        u"btnSave"_s };
            QCOMPARE(visited, allCombos + buttons);
            Cancel(user);
        });
    }

private:
    static void addSides()
    {
        QTest::addColumn<QString>("encoders");
        QTest::newRow("video") << videoCombos.first();
        QTest::newRow("audio") << audioCombos.first();
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtEditingDlgControls)

#include "tst_rpfmteditingdlg_controls.moc"
