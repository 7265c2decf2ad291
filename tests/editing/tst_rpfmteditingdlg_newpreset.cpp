#include "TestCase.h"

#include "ForwardingPreset.h"
#include "NewPresetDriver.h"

#include "IOLAppSettings.h"
#include "IOLBase64Codec.h"

#include <QSignalSpy>

using namespace Test;
using namespace Qt::StringLiterals;
using Orlimo::IOLAppSettings;
using Orlimo::IOLBase64Codec;
using Orlimo::IOLFormatNode;
using Orlimo::RPFmtEditingDlg;

namespace {

const char *const settingsKey = "custom_format_preset";

// The tree that stands in the settings file.
std::shared_ptr<IOLFormatNode> StoredTree()
{
    const QSettings file(QSettings::IniFormat, QSettings::UserScope,
                         QCoreApplication::organizationName(), QCoreApplication::applicationName());
    const std::string encoded = file.value(QLatin1StringView(settingsKey)).toString().toStdString();
    return MakeTree(IOLBase64Codec::Decode(encoded));
}

QStringList StoredNames()
{
    const auto tree = StoredTree();
    return tree ? CustomNames(*tree) : QStringList { u"nothing is stored"_s };
}

} // namespace

class tst_RPFmtEditingDlgNewPreset : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theNameIsStoredAsTyped_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << u"Mine"_s;
        QTest::newRow("spaces around") << u"  Mine  "_s;
        QTest::newRow("a space") << u" "_s;
        QTest::newRow("beyond ASCII") << u"Größe 小 𐐀"_s;
        QTest::newRow("slash") << u"a/b"_s;
    }

    void theNameIsStoredAsTyped()
    {
        QFETCH(const QString, name);
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [&](const EditingDriver &user) {
            SaveAs(user, name);
            CancelEdit(user);
        });
        QCOMPARE(CustomNames(*CustomNode()), QStringList { u"MP4/"_s + name });
        QCOMPARE(StoredNames(), QStringList { u"MP4/"_s + name });
    }

    void aNameThatExistsIsStoredAgain()
    {
        AddCustom("Mine", "MP4");
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [](const EditingDriver &user) {
            SaveAs(user, u"Mine"_s);
            CancelEdit(user);
        });
        const QStringList expected { u"MP4/Mine"_s, u"MP4/Mine"_s };
        QCOMPARE(CustomNames(*CustomNode()), expected);
    }

    void theWorkingCopyIsStoredAndItsFormatWithIt()
    {
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [](const EditingDriver &user) {
            user.Choose(u"cmbResolution"_s, 2);
            user.Choose(u"cmbAEncoder"_s, 1);
            SaveAs(user, u"Mine"_s);
            CancelEdit(user);
        });
        const auto root = StoredTree();
        QVERIFY(root);
        QCOMPARE(root->Name(), std::string("Custom"));
        const auto node = root->FindChild("MP4");
        QVERIFY(node);
        QCOMPARE(node->Description(), std::string("MP4 Format"));
        QCOMPARE(node->FaceID(), 11);
        QCOMPARE(node->PresetCount(), 1);
        const auto preset = node->FindPreset("Mine");
        QVERIFY(preset);
        QCOMPARE(preset->Description(), std::string("High definition"));
        QCOMPARE(preset->FaceID(), 12);
        const QList<int> choices { 1, 2, 2, 0, 1, 1, 1, 0 };
        QCOMPARE(CurrentChoices(*preset), choices);
    }

    void theDialogStaysOpenWithItsWorkingCopy()
    {
        const auto preset = std::make_shared<WatchedPreset>(MakeSamplePreset("HD"));
        const auto isSaved = Edit(preset, MakeSampleFormat(), [&](const EditingDriver &user) {
            user.Choose(u"cmbResolution"_s, 2);
            SaveAs(user, u"Mine"_s);
            QVERIFY(user.Dialog().isVisible());
            const QList<int> choices { 1, 2, 2, 0, 2, 0, 2, 1 };
            QCOMPARE(user.Shown(), choices);
            QCOMPARE(CurrentChoices(preset->LatestClone()), choices);
            QCOMPARE(preset->LatestClone().Name(), std::string("HD"));
            user.Choose(u"cmbFrameRate"_s, 3);
            user.Click(u"btnSave"_s);
        });
        QVERIFY(isSaved);
        const QList<int> saved { 1, 2, 3, 0, 2, 0, 2, 1 };
        QCOMPARE(CurrentChoices(*preset), saved);
        QCOMPARE(preset->Name(), std::string("HD"));
        // what was stored does not follow the later choice
        const QList<int> stored { 1, 2, 2, 0, 2, 0, 2, 1 };
        QCOMPARE(CurrentChoices(*CustomNode()->FindChild("MP4")->FindPreset("Mine")), stored);
    }

    void cancellingAfterwardsKeepsTheNewPresetAndLeavesTheEdited()
    {
        const auto preset = MakeSamplePreset("HD");
        const auto before = AllIndices(*preset);
        const auto isSaved = Edit(preset, MakeSampleFormat(), [](const EditingDriver &user) {
            user.Choose(u"cmbResolution"_s, 2);
            SaveAs(user, u"Mine"_s);
            CancelEdit(user);
        });
        QVERIFY(!isSaved);
        QCOMPARE(AllIndices(*preset), before);
        QCOMPARE(CustomNames(*CustomNode()), QStringList { u"MP4/Mine"_s });
    }

    void theSignalComesOnceWhenThePresetIsStored()
    {
        int calls = 0;
        QStringList stored;
        QObject receiver;
        connect(RPFmtEditingDlg::Instance(), &RPFmtEditingDlg::CustomNewPresetSucceed, &receiver,
                [&] {
                    ++calls;
                    stored = StoredNames();
                });
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [](const EditingDriver &user) {
            SaveAs(user, u"Mine"_s);
            CancelEdit(user);
        });
        QCOMPARE(calls, 1);
        QCOMPARE(stored, QStringList { u"MP4/Mine"_s });
    }

    void nothingIsStoredWithoutAName_data()
    {
        QTest::addColumn<bool>("isCancelled");
        QTest::newRow("empty name") << false;
        QTest::newRow("cancelled") << true;
    }

    void nothingIsStoredWithoutAName()
    {
        QFETCH(const bool, isCancelled);
        const QSignalSpy succeeded(RPFmtEditingDlg::Instance(),
                                   &RPFmtEditingDlg::CustomNewPresetSucceed);
        const auto before = IOLAppSettings::Shared()->Value(settingsKey);
        AddCustom("Not saved", "MP4");
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [&](const EditingDriver &user) {
            SaveAsNew(user, [&](QInputDialog &prompt) {
                TypeName(prompt, isCancelled ? u"Mine"_s : QString());
                isCancelled ? RejectPrompt(prompt) : AcceptPrompt(prompt);
            });
            QVERIFY(user.Dialog().isVisible());
            CancelEdit(user);
        });
        QVERIFY(succeeded.isEmpty());
        QCOMPARE(CustomNames(*CustomNode()), QStringList { u"MP4/Not saved"_s });
        QCOMPARE(IOLAppSettings::Shared()->Value(settingsKey), before);
    }

    void withoutANodeThePresetGoesUnderItsFormat()
    {
        Edit(MakeSamplePreset("HD"), nullptr, [](const EditingDriver &user) {
            SaveAs(user, u"Mine"_s);
            CancelEdit(user);
        });
        QCOMPARE(CustomNames(*CustomNode()), QStringList { u"MP4/Mine"_s });
        QCOMPARE(StoredNames(), QStringList { u"MP4/Mine"_s });
    }

    void withoutANodeAndAFormatThePresetGoesUnderItsOwnName()
    {
        const auto preset = MakePresetOf(OneOfEachDescription());
        QCOMPARE(preset->FormatName(), std::string());
        Edit(preset, nullptr, [](const EditingDriver &user) {
            SaveAs(user, u"Mine"_s);
            CancelEdit(user);
        });
        QCOMPARE(CustomNames(*CustomNode()), QStringList { u"Preset/Mine"_s });
        QCOMPARE(StoredNames(), QStringList { u"Preset/Mine"_s });
        QCOMPARE(StoredTree()->FindChild("Preset")->FaceID(), 12);
    }

    void nothingIsStoredOfAWorkingCopyWithoutAClone()
    {
        const QSignalSpy succeeded(RPFmtEditingDlg::Instance(),
                                   &RPFmtEditingDlg::CustomNewPresetSucceed);
        const auto before = IOLAppSettings::Shared()->Value(settingsKey);
        AddCustom("Not saved", "MP4");
        const auto working = std::make_shared<PresetWithClone>(MakeSamplePreset("HD"), nullptr);
        const auto preset = std::make_shared<PresetWithClone>(MakeSamplePreset("HD"), working);
        Edit(preset, MakeSampleFormat(), [](const EditingDriver &user) {
            SaveAs(user, u"Mine"_s);
            QVERIFY(user.Dialog().isVisible());
            QCOMPARE(user.EnabledCombos(), allCombos);
            CancelEdit(user);
        });
        QVERIFY(succeeded.isEmpty());
        QCOMPARE(CustomNames(*CustomNode()), QStringList { u"MP4/Not saved"_s });
        QCOMPARE(IOLAppSettings::Shared()->Value(settingsKey), before);
    }

    void withoutANodeThePresetJoinsTheOthersOfItsFormat()
    {
        AddCustom("First", "MP4");
        Edit(MakeSamplePreset("HD"), nullptr, [](const EditingDriver &user) {
            SaveAs(user, u"Second"_s);
            CancelEdit(user);
        });
        QCOMPARE(CustomNode()->ChildCount(), 1);
        const QStringList expected { u"MP4/First"_s, u"MP4/Second"_s };
        QCOMPARE(CustomNames(*CustomNode()), expected);
    }

protected:
    void prepare() override { RemoveCustomPresets(); }
};

ORLIMO_TEST_MAIN(tst_RPFmtEditingDlgNewPreset)

#include "tst_rpfmteditingdlg_newpreset.moc"
