#include "TestCase.h"

#include "NewPresetDriver.h"

using namespace Test;
using namespace Qt::StringLiterals;
using Orlimo::IOLFormatNode;
using Orlimo::IOLFormatPreset;

namespace {

QString ProposalFor(const std::shared_ptr<IOLFormatPreset> &preset,
                    const std::shared_ptr<IOLFormatNode> &node)
{
    QString proposal;
    Edit(preset, node, [&proposal](const EditingDriver &user) {
        SaveAsNew(user, [&proposal](QInputDialog &prompt) {
            proposal = prompt.textValue();
            RejectPrompt(prompt);
        });
        CancelEdit(user);
    });
    return proposal;
}

} // namespace

class tst_RPFmtEditingDlgPrompt : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thePromptAsksForTheName()
    {
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [](const EditingDriver &user) {
            SaveAsNew(user, [&user](QInputDialog &prompt) {
                QCOMPARE(prompt.parentWidget(), &user.Dialog());
                QCOMPARE(prompt.windowTitle(), u"Save as New Preset"_s);
                QCOMPARE(prompt.labelText(), u"preset name"_s);
                QCOMPARE(prompt.inputMode(), QInputDialog::TextInput);
                QCOMPARE(prompt.textEchoMode(), QLineEdit::Normal);
                QCOMPARE(prompt.inputMethodHints(), Qt::ImhNone);
                QCOMPARE(prompt.textValue(), u"MP4 HD-custom0"_s);
                RejectPrompt(prompt);
            });
            CancelEdit(user);
        });
    }

    void thePromptHasTheWindowFlagsOfAnyInputDialog()
    {
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [](const EditingDriver &user) {
            const QInputDialog plain(&user.Dialog());
            SaveAsNew(user, [&plain](QInputDialog &prompt) {
                QCOMPARE(prompt.windowFlags(), plain.windowFlags());
                RejectPrompt(prompt);
            });
            CancelEdit(user);
        });
    }

    void theProposalIsMadeOfTheNames_data()
    {
        QTest::addColumn<QByteArray>("preset");
        QTest::addColumn<QByteArray>("node");
        QTest::addColumn<QString>("proposal");
        QTest::newRow("the format's name")
                << QByteArray("MP4") << QByteArray("MP4") << u"MP4-custom0"_s;
        QTest::newRow("other name") << QByteArray("HD") << QByteArray("MP4") << u"MP4 HD-custom0"_s;
        QTest::newRow("nameless preset") << QByteArray("") << QByteArray("MP4") << u"MP4-custom0"_s;
        QTest::newRow("no node") << QByteArray("HD") << QByteArray() << u"HD-custom0"_s;
        QTest::newRow("beyond ASCII")
                << QByteArray("小") << QByteArray("Größe") << u"Größe 小-custom0"_s;
    }

    void theProposalIsMadeOfTheNames()
    {
        QFETCH(const QByteArray, preset);
        QFETCH(const QByteArray, node);
        const auto format = node.isNull() ? nullptr : NodeCalled(node.toStdString());
        QTEST(ProposalFor(PresetCalled(preset.toStdString()), format), "proposal");
    }

    void theProposalPassesOverTheCustomPresetsOfAllFormats()
    {
        AddCustom("MP4-custom0", "AVI");
        AddCustom("MP4-custom1", "MP4");
        AddCustom("MP4-custom2", "MOV");
        AddCustom("MP4-custom4", "MP4");
        QCOMPARE(ProposalFor(PresetCalled("MP4"), NodeCalled("MP4")), u"MP4-custom3"_s);
    }

    void builtInPresetsDoNotCountForTheProposal()
    {
        const auto node = NodeCalled("MP4");
        node->AddPreset(PresetCalled("MP4-custom0"));
        QCOMPARE(ProposalFor(PresetCalled("MP4"), node), u"MP4-custom0"_s);
    }

    void theNextProposalPassesOverThePresetJustMade()
    {
        Edit(MakeSamplePreset("HD"), MakeSampleFormat(), [](const EditingDriver &user) {
            SaveAsNew(user, AcceptPrompt);
            SaveAsNew(user, [](QInputDialog &prompt) {
                QCOMPARE(prompt.textValue(), u"MP4 HD-custom1"_s);
                AcceptPrompt(prompt);
            });
            CancelEdit(user);
        });
        const QStringList expected { u"MP4/MP4 HD-custom0"_s, u"MP4/MP4 HD-custom1"_s };
        QCOMPARE(CustomNames(*CustomNode()), expected);
    }

    void acceptedProposalsAreNeverTheSame_data()
    {
        QTest::addColumn<QByteArray>("preset");
        QTest::newRow("as long as the prompt takes") << QByteArray(32767, 'x');
        QTest::newRow("longer") << QByteArray(40000, 'x');
        QTest::newRow("too long with its number") << QByteArray(32760, 'x');
        QTest::newRow("no valid UTF-8") << QByteArray("\xff HD \xc3");
    }

    void acceptedProposalsAreNeverTheSame()
    {
        QFETCH(const QByteArray, preset);
        Edit(PresetCalled(preset.toStdString()), nullptr, [](const EditingDriver &user) {
            for (const QString &suffix : { u"-custom0"_s, u"-custom1"_s }) {
                SaveAsNew(user, [&suffix](QInputDialog &prompt) {
                    QVERIFY(prompt.textValue().endsWith(suffix));
                    AcceptPrompt(prompt);
                });
            }
            CancelEdit(user);
        });
        const QStringList names = CustomNames(*CustomNode());
        QCOMPARE(names.size(), 2);
        QVERIFY(names.at(0) != names.at(1));
    }

    void thePromptDoesNotQuitTheApplicationEither()
    {
        const auto steps = [](const EditingDriver &user) {
            SaveAsNew(user, AcceptPrompt);
            CancelEdit(user);
        };
        QVERIFY(!EditingClosesTheLastWindow(MakeSamplePreset("HD"), steps));
    }

protected:
    void prepare() override { RemoveCustomPresets(); }
};

ORLIMO_TEST_MAIN(tst_RPFmtEditingDlgPrompt)

#include "tst_rpfmteditingdlg_prompt.moc"
