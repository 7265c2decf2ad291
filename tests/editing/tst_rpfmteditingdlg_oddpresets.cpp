#include "TestCase.h"

#include "AutomaticCodec.h"
#include "EditingDriver.h"
#include "ForwardingPreset.h"
#include "SampleFormat.h"

#include "IOLCodecPreset.h"
#include "IOLFormatNode.h"

#include <utility>

using namespace Test;
using namespace Qt::StringLiterals;
using Orlimo::IOLCodecPreset;
using Orlimo::IOLFormatPreset;

namespace {

void Cancel(const EditingDriver &user)
{
    user.Click(u"btnCancel"_s);
}

// Leaves the texts of a preset with both sides in the combo boxes.
void OpenFullPreset()
{
    Edit(MakeSamplePreset("HD"), MakeSampleFormat(), Cancel);
}

void CompareEmptyDialog(const EditingDriver &user)
{
    QCOMPARE(user.EnabledCombos(), QStringList());
    for (const QString &combo : allCombos)
        QCOMPARE(user.Texts(combo), QStringList());
    for (const char *name : { "btnDefault", "btnSaveNewPreset", "btnSave" })
        QVERIFY2(!user.Button(QString::fromLatin1(name)).isEnabled(), name);
    QVERIFY(user.Button(u"btnCancel"_s).isEnabled());
}

// A preset whose current encoders are outside its lists, so that there are no objects for them.
class BeyondItsLists final : public ForwardingPreset
{
public:
    using ForwardingPreset::ForwardingPreset;
    ~BeyondItsLists() override = default;

    int CurrentVideoCodecIndex() const override { return VideoCodecCount() + 2; }
    int CurrentAudioCodecIndex() const override { return AudioCodecCount() + 2; }
};

// A preset whose encoders all stand for automatic choice and have options nevertheless.
class AllAutomatic final : public ForwardingPreset
{
public:
    using ForwardingPreset::ForwardingPreset;
    ~AllAutomatic() override = default;

    std::shared_ptr<IOLCodecPreset> VideoCodecAt(int) const override { return m_codec; }
    std::shared_ptr<IOLCodecPreset> AudioCodecAt(int) const override { return m_codec; }

private:
    std::shared_ptr<IOLCodecPreset> m_codec = std::make_shared<AutomaticCodec>();
};

// A preset that has fewer encoders as soon as the first one has been read.
class Shrinking final : public ForwardingPreset
{
public:
    using ForwardingPreset::ForwardingPreset;
    ~Shrinking() override = default;

    int VideoCodecCount() const override { return m_isRead ? 2 : 3; }
    std::shared_ptr<IOLCodecPreset> VideoCodecAt(int index) const override
    {
        m_isRead = true;
        return ForwardingPreset::VideoCodecAt(index);
    }

private:
    mutable bool m_isRead = false;
};

// A preset that loses its current encoders while it is shown.
class Losing final : public ForwardingPreset
{
public:
    using ForwardingPreset::ForwardingPreset;
    ~Losing() override = default;

    int CurrentVideoCodecIndex() const override
    {
        return hasLost ? -1 : ForwardingPreset::CurrentVideoCodecIndex();
    }
    int CurrentAudioCodecIndex() const override
    {
        return hasLost ? -1 : ForwardingPreset::CurrentAudioCodecIndex();
    }

    bool hasLost = false;
};

// A preset that can be cloned once.
class ClonedOnce final : public ForwardingPreset
{
public:
    using ForwardingPreset::ForwardingPreset;
    ~ClonedOnce() override = default;

    std::shared_ptr<IOLFormatPreset> Clone() const override
    {
        return std::exchange(m_isCloned, true) ? nullptr : ForwardingPreset::Clone();
    }

private:
    mutable bool m_isCloned = false;
};

std::shared_ptr<IOLFormatPreset> Showing(std::shared_ptr<IOLFormatPreset> working)
{
    return std::make_shared<PresetWithClone>(MakeSamplePreset("HD"), std::move(working));
}

} // namespace

class tst_RPFmtEditingDlgOddPresets : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAPresetOnlyCancelIsEnabled_data()
    {
        QTest::addColumn<bool>("afterAnother");
        QTest::newRow("in a new dialog") << false;
        QTest::newRow("after another preset") << true;
    }

    void withoutAPresetOnlyCancelIsEnabled()
    {
        QFETCH(const bool, afterAnother);
        if (afterAnother)
            OpenFullPreset();
        const auto isSaved = Edit(nullptr, MakeSampleFormat(), [](const EditingDriver &user) {
            CompareEmptyDialog(user);
            QCOMPARE(user.Dialog().windowTitle(), u"Settings"_s);
            Cancel(user);
        });
        QVERIFY(!isSaved);
    }

    void withoutAPresetNothingCanBePressedButCancel()
    {
        const auto isSaved = Edit(nullptr, nullptr, [](const EditingDriver &user) {
            for (const char *name : { "btnDefault", "btnSaveNewPreset", "btnSave" })
                user.Click(QString::fromLatin1(name));
            QVERIFY(user.Dialog().isVisible());
            user.Press(Qt::Key_Escape);
        });
        QVERIFY(!isSaved);
    }

    void aPresetWithoutACloneIsShownAsNone()
    {
        OpenFullPreset();
        const auto preset = Showing(nullptr);
        const auto before = AllIndices(*preset);
        const auto isSaved = Edit(preset, MakeSampleFormat(), [](const EditingDriver &user) {
            CompareEmptyDialog(user);
            Cancel(user);
        });
        QVERIFY(!isSaved);
        QCOMPARE(AllIndices(*preset), before);
    }

    void resettingAPresetWithoutACloneShowsItAsNone()
    {
        const auto preset = std::make_shared<ClonedOnce>(MakeSamplePreset("HD"));
        const auto before = AllIndices(*preset);
        const auto isSaved = Edit(preset, MakeSampleFormat(), [](const EditingDriver &user) {
            QCOMPARE(user.EnabledCombos(), allCombos);
            user.Choose(u"cmbResolution"_s, 2);
            user.Click(u"btnDefault"_s);
            CompareEmptyDialog(user);
            user.Click(u"btnSave"_s);
            QVERIFY(user.Dialog().isVisible());
            Cancel(user);
        });
        QVERIFY(!isSaved);
        QCOMPARE(AllIndices(*preset), before);
    }

    void theControlsAreEnabledAgainForTheNextPreset()
    {
        Edit(nullptr, nullptr, Cancel);
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [](const EditingDriver &user) {
            QCOMPARE(user.EnabledCombos(), allCombos);
            for (const auto *button : user.Dialog().findChildren<QPushButton *>())
                QVERIFY2(button->isEnabled(), qPrintable(button->objectName()));
            user.Choose(u"cmbResolution"_s, 0);
            Cancel(user);
        });
    }

    void aPresetWithoutVideoShowsNoneOfTheEarlierPreset()
    {
        OpenFullPreset();
        Edit(MakeSamplePreset("Audio only"), MakeSampleFormat(), [](const EditingDriver &user) {
            QCOMPARE(user.EnabledCombos(), audioCombos);
            for (const QString &combo : videoCombos)
                QCOMPARE(user.Texts(combo), QStringList());
            const QList<int> shown { -1, -1, -1, -1, 1, 1, 1, 0 };
            QCOMPARE(user.Shown(), shown);
            Cancel(user);
        });
    }

    void theUsualAudioFormatHasNoVideoSide()
    {
        const auto preset = IOLFormatPreset::MallocFormatPreset("MP3", "");
        OpenFullPreset();
        const auto isSaved = Edit(preset, nullptr, [](const EditingDriver &user) {
            QCOMPARE(user.EnabledCombos(), audioCombos);
            for (const QString &combo : videoCombos)
                QCOMPARE(user.Texts(combo), QStringList());
            user.Choose(u"cmbAEncoder"_s, 0);
            user.Click(u"btnSave"_s);
        });
        QVERIFY(isSaved);
        QCOMPARE(preset->CurrentAudioCodecIndex(), 0);
        QCOMPARE(preset->CurrentVideoCodecIndex(), -1);
    }

    void withoutACurrentEncoderItsSideIsDisabled()
    {
        OpenFullPreset();
        Edit(MakeSamplePreset("None chosen"), MakeSampleFormat(), [](const EditingDriver &user) {
            QCOMPARE(user.EnabledCombos(), QStringList());
            const QStringList video { u"Auto video"_s, u"Alpha"_s, u"Beta"_s };
            const QStringList audio { u"Auto audio"_s, u"Gamma"_s, u"Delta"_s };
            QCOMPARE(user.Texts(u"cmbVEncoder"_s), video);
            QCOMPARE(user.Texts(u"cmbAEncoder"_s), audio);
            QVERIFY(user.Button(u"btnSave"_s).isEnabled());
            Cancel(user);
        });
    }

    void optionsWithoutACurrentOneAreListedAndDisabled()
    {
        OpenFullPreset();
        Edit(MakeSamplePreset("Unset"), MakeSampleFormat(), [](const EditingDriver &user) {
            const QStringList enabled { u"cmbVEncoder"_s, u"cmbAEncoder"_s };
            QCOMPARE(user.EnabledCombos(), enabled);
            const QStringList sizes { u"Source size"_s, u"1920 x 1080"_s, u"1280 x 720"_s };
            const QStringList rates { u"Source rate"_s, u"25 fps"_s, u"50 fps"_s, u"60 fps"_s };
            const QStringList videoQualities { u"Best"_s, u"Good"_s };
            const QStringList channels { u"Mono"_s, u"Stereo"_s, u"Surround"_s };
            const QStringList sampleRates { u"44100 Hz"_s, u"48000 Hz"_s };
            const QStringList audioQualities { u"Loud"_s, u"Quiet"_s };
            QCOMPARE(user.Texts(u"cmbResolution"_s), sizes);
            QCOMPARE(user.Texts(u"cmbFrameRate"_s), rates);
            QCOMPARE(user.Texts(u"cmbVQuality"_s), videoQualities);
            QCOMPARE(user.Texts(u"cmbChannel"_s), channels);
            QCOMPARE(user.Texts(u"cmbSampleRate"_s), sampleRates);
            QCOMPARE(user.Texts(u"cmbAQuality"_s), audioQualities);
            Cancel(user);
        });
    }

    void aListWithoutOptionsDisablesItsOwnComboAlone_data()
    {
        QTest::addColumn<QString>("combo");
        QTest::addColumn<QByteArray>("reference");
        QTest::addColumn<QByteArray>("replacement");
        const auto add = [](const char *combo, const QByteArray &kind, const QByteArray &list) {
            const QByteArray reference = '"' + kind + "\": \"" + list + "\",";
            const QByteArray emptyList = '"' + kind + "\": \"none\",";
            const QString name = QString::fromLatin1(combo);
            QTest::addRow("%s absent", combo) << name << reference << QByteArray();
            QTest::addRow("%s empty", combo) << name << reference << emptyList;
        };
        add("cmbResolution", "resolutions", "sizes");
        add("cmbFrameRate", "frameRates", "rates");
        add("cmbVQuality", "qualities", "pictures");
        add("cmbChannel", "channels", "speakers");
        add("cmbSampleRate", "sampleRates", "samples");
        add("cmbAQuality", "qualities", "sounds");
    }

    void aListWithoutOptionsDisablesItsOwnComboAlone()
    {
        QFETCH(const QString, combo);
        QFETCH(const QByteArray, reference);
        QFETCH(const QByteArray, replacement);
        QCOMPARE(OneOfEachDescription().count(reference), 1);
        const auto preset = MakePresetOf(OneOfEachDescription().replace(reference, replacement));
        OpenFullPreset();
        Edit(preset, nullptr, [&combo](const EditingDriver &user) {
            for (const QString &name : allCombos) {
                const QStringList expected = name == combo ? QStringList() : QStringList(u"Text"_s);
                QCOMPARE(user.Texts(name), expected);
                QCOMPARE(user.Combo(name).isEnabled(), name != combo);
            }
            Cancel(user);
        });
    }

    void anEncoderOutsideTheListHasNoOptions()
    {
        const auto working = std::make_shared<BeyondItsLists>(MakeSamplePreset("HD"));
        compareOnlyEncoders(Showing(working));
    }

    void anAutomaticEncoderNeverShowsOptions()
    {
        const auto working = std::make_shared<AllAutomatic>(MakeSamplePreset("HD"));
        compareOnlyEncoders(Showing(working));
    }

    void theNumberOfEncodersIsReadForEveryEntry()
    {
        const auto working = std::make_shared<Shrinking>(MakeSamplePreset("HD"));
        Edit(Showing(working), MakeSampleFormat(), [](const EditingDriver &user) {
            const QStringList encoders { u"Auto video"_s, u"Alpha"_s };
            QCOMPARE(user.Texts(u"cmbVEncoder"_s), encoders);
            Cancel(user);
        });
    }

    void aChoiceWithoutACurrentEncoderDoesNothing()
    {
        const auto shown = MakeSamplePreset("HD");
        const auto before = AllIndices(*shown);
        const auto working = std::make_shared<Losing>(shown);
        Edit(Showing(working), MakeSampleFormat(), [&](const EditingDriver &user) {
            working->hasLost = true;
            for (const QString &combo : videoCombos.mid(1) + audioCombos.mid(1))
                user.Choose(combo, user.Combo(combo).currentIndex() == 0 ? 1 : 0);
            Cancel(user);
        });
        QCOMPARE(AllIndices(*shown), before);
    }

private:
    static void compareOnlyEncoders(const std::shared_ptr<IOLFormatPreset> &preset)
    {
        OpenFullPreset();
        Edit(preset, MakeSampleFormat(), [](const EditingDriver &user) {
            const QStringList enabled { u"cmbVEncoder"_s, u"cmbAEncoder"_s };
            QCOMPARE(user.EnabledCombos(), enabled);
            for (const QString &combo : videoCombos.mid(1) + audioCombos.mid(1))
                QCOMPARE(user.Texts(combo), QStringList());
            Cancel(user);
        });
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtEditingDlgOddPresets)

#include "tst_rpfmteditingdlg_oddpresets.moc"
